#pragma once

#include <QPointer>
#include <QTranslator>
#include <map>

#include "controls/desktop.h"

namespace qt {

class FormWindow;

/// The desktop of an operator: real windows and boxes, in Italian. Needs a QApplication that outlives it.
class QtDesktop : public controls::Desktop {
 public:
  QtDesktop();
  ~QtDesktop() override;

  /// Lets the windows live until the last one is unloaded or the program is ended; the program's exit code.
  int run();
  /// The window of a loaded form; nullptr without one.
  FormWindow* windowOf(controls::Form& form);

  bool showOpen(controls::CommonDialog& dialog) override;
  void doEvents() override;
  void setMousePointer(controls::MousePointer pointer) override;
  int screenWidth() const override;
  int screenHeight() const override;
  void loadForm(controls::Form& form) override;
  void showForm(controls::Form& form, bool modal) override;
  void keepOnTop(controls::Form& form, bool onTop) override;
  void unloadForm(controls::Form& form) override;
  void endProgram() override;

 protected:
  controls::MessageAnswer showBox(const std::string& text, int style, const std::string& title) override;
  std::string showInput(const std::string& prompt, const std::string& title,
                        const std::string& text) override;

 private:
  std::map<controls::Form*, QPointer<FormWindow>> windows_;
  QTranslator italian_;
  bool ended_ = false;
};

}  // namespace qt
