#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "controls/desktop.h"

namespace controls {

class TextBox;

/// A desktop without an operator: boxes and questions become lines of a stream, answered from the command
/// line.
class BatchDesktop : public Desktop {
 public:
  /// The answer to the questions; Default: the default button of each.
  enum class Answer { Default, Yes, No, Cancel };

  /// `out` receives the boxes and outlives this. `application` answers an input box; without it the default
  /// text does, or nothing if the answer is No or Cancel.
  explicit BatchDesktop(std::ostream& out, Answer answer = Answer::Default,
                        std::optional<std::string> application = std::nullopt);

  /// Boxes shown so far.
  int boxesShown() const { return boxesShown_; }

  /// Always given up: there is nobody to choose.
  bool showOpen(CommonDialog& dialog) override;
  void doEvents() override;
  void setMousePointer(MousePointer) override {}
  int screenWidth() const override { return 0; }
  int screenHeight() const override { return 0; }
  void loadForm(Form&) override {}
  /// A modal window is unloaded at once, as nobody could leave it.
  void showForm(Form& form, bool modal) override;
  void keepOnTop(Form&, bool) override {}
  void unloadForm(Form&) override {}
  void endProgram() override {}

 protected:
  MessageAnswer showBox(const std::string& text, int style, const std::string& title) override;
  std::string showInput(const std::string& prompt, const std::string& title,
                        const std::string& text) override;

 private:
  MessageAnswer answerTo(int style) const;
  void write(std::string_view kind, const std::string& title, const std::string& text);

  std::ostream& out_;
  Answer answer_;
  std::optional<std::string> application_;
  int boxesShown_ = 0;
};

/// A text as one line, for a log: line ends become " / ".
std::string oneLine(const std::string& text);

/// Copies what the box grows by from now on to `out`, which outlives it, with the line ends of a stream.
void streamText(TextBox& box, std::ostream& out);

}  // namespace controls
