#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "controls/common_dialog.h"
#include "controls/desktop.h"
#include "controls/form.h"

namespace support {

/// A desktop whose operator is a script: boxes are answered in the order of the script, and all that was
/// shown is kept. Anything the script does not foresee throws std::logic_error, unless a default answer is
/// set.
class ScriptedDesktop : public controls::Desktop {
 public:
  struct Box {
    std::string text;
    int style = 0;
    std::string title;
  };
  struct Input {
    std::string prompt;
    std::string title;
    std::string text;
  };

  /// The next box must contain `part` in its text and is answered with `answer`.
  void expectBox(const std::string& part, controls::MessageAnswer answer) {
    boxScript_.push_back({part, answer});
  }
  /// The next input box is answered with `answer`; without one, with its default text.
  void expectInput(std::optional<std::string> answer) { inputScript_.push_back(std::move(answer)); }
  /// The next file dialog is answered with `path` (backslashes), or given up.
  void expectOpen(std::optional<std::string> path) { openScript_.push_back(std::move(path)); }
  /// Answers every box the script says nothing of with its default button.
  void answerRestByDefault() { restByDefault_ = true; }
  void setEventsHook(std::function<void()> hook) { hook_ = std::move(hook); }
  /// Called while a modal form is up; the form is unloaded after it if it still is.
  void setModalHook(std::function<void(controls::Form&)> hook) { modalHook_ = std::move(hook); }
  /// Steps of the script that were not asked for yet.
  std::size_t left() const { return boxScript_.size() + inputScript_.size() + openScript_.size(); }

  std::vector<Box> boxes;
  std::vector<Input> inputs;
  std::vector<controls::MousePointer> pointers;
  /// "load NAME", "show NAME", "show NAME modal", "top NAME", "not top NAME", "unload NAME".
  std::vector<std::string> forms;
  int opens = 0;
  int eventRounds = 0;
  bool ended = false;

  bool showOpen(controls::CommonDialog& dialog) override {
    ++opens;
    const auto path =
        next(openScript_, "dialogo di scelta file: " + dialog.dialogTitle(), std::optional<std::string>());
    if (path) dialog.setFileName(*path);
    return path.has_value();
  }
  void doEvents() override {
    ++eventRounds;
    if (hook_) hook_();
  }
  void setMousePointer(controls::MousePointer pointer) override { pointers.push_back(pointer); }
  int screenWidth() const override { return 1280; }
  int screenHeight() const override { return 1024; }
  void loadForm(controls::Form& form) override {
    forms.push_back("load " + form.name());
    form.setWidth(640);
    form.setHeight(512);
  }
  void showForm(controls::Form& form, bool modal) override {
    forms.push_back("show " + form.name() + (modal ? " modal" : ""));
    if (!modal) return;
    if (modalHook_) modalHook_(form);
    form.unload();
  }
  void keepOnTop(controls::Form& form, bool onTop) override {
    forms.push_back((onTop ? "top " : "not top ") + form.name());
  }
  void unloadForm(controls::Form& form) override { forms.push_back("unload " + form.name()); }
  void endProgram() override { ended = true; }

 protected:
  controls::MessageAnswer showBox(const std::string& text, int style, const std::string& title) override {
    boxes.push_back({text, style, title});
    const auto step = next(boxScript_, "finestra: " + text, BoxStep{text, controls::defaultButtonOf(style)});
    if (text.find(step.part) == std::string::npos)
      throw std::logic_error("finestra \"" + text + "\" invece di \"" + step.part + "\"");
    if (!controls::hasButton(style, step.answer)) throw std::logic_error("risposta senza pulsante: " + text);
    return step.answer;
  }
  std::string showInput(const std::string& prompt, const std::string& title,
                        const std::string& text) override {
    inputs.push_back({prompt, title, text});
    return next(inputScript_, "richiesta: " + prompt, std::optional<std::string>()).value_or(text);
  }

 private:
  struct BoxStep {
    std::string part;
    controls::MessageAnswer answer;
  };

  template <typename Step>
  Step next(std::deque<Step>& script, const std::string& what, Step otherwise) {
    if (script.empty()) {
      if (restByDefault_) return otherwise;
      throw std::logic_error("non prevista dal test: " + what);
    }
    Step step = script.front();
    script.pop_front();
    return step;
  }

  std::deque<BoxStep> boxScript_;
  std::deque<std::optional<std::string>> inputScript_;
  std::deque<std::optional<std::string>> openScript_;
  std::function<void()> hook_;
  std::function<void(controls::Form&)> modalHook_;
  bool restByDefault_ = false;
};

}  // namespace support
