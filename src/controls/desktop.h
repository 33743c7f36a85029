#pragma once

#include <string>

#include "controls/message_box.h"
#include "controls/mouse_pointer.h"

namespace controls {

class CommonDialog;
class Form;

/// Leaves the procedures under way behind Desktop::endProgram. No trap of theirs catches it: it is no error.
struct ProgramEnded {};

/// What the windows ask of the world around them: boxes, the file dialog, the event pump, the mouse pointer.
class Desktop {
 public:
  /// Title of a box that names none.
  static constexpr const char* DefaultTitle = "AggNorvo";

  virtual ~Desktop() = default;

  /// Shows a box and waits for the answer. `style` is a sum of MessageStyle.
  MessageAnswer msgBox(const std::string& text, int style = vbOKOnly, const std::string& title = {});
  /// Asks for a text; empty also if the operator gives up.
  std::string inputBox(const std::string& prompt, const std::string& title = {},
                       const std::string& text = {});

  /// Asks for an existing file and puts its path into the dialog; false if the operator gives up.
  virtual bool showOpen(CommonDialog& dialog) = 0;
  /// Lets pending events run: painting, clicks, timers.
  virtual void doEvents() = 0;
  /// The pointer over the whole program, until Default is set.
  virtual void setMousePointer(MousePointer pointer) = 0;
  /// Room on the screen; 0 without one.
  virtual int screenWidth() const = 0;
  virtual int screenHeight() const = 0;
  /// Builds the hidden window of a form and fills in the form's size.
  virtual void loadForm(Form& form) = 0;
  /// Shows the window of a loaded form; a modal one returns when it is unloaded.
  virtual void showForm(Form& form, bool modal) = 0;
  /// Puts the window of a loaded form before all others and keeps it there, or lets others cover it again.
  virtual void keepOnTop(Form& form, bool onTop) = 0;
  /// Takes a form's window away.
  virtual void unloadForm(Form& form) = 0;
  /// Ends the program: nothing more is shown, and the event loop ends as soon as the caller has returned.
  virtual void endProgram() = 0;

 protected:
  virtual MessageAnswer showBox(const std::string& text, int style, const std::string& title) = 0;
  virtual std::string showInput(const std::string& prompt, const std::string& title,
                                const std::string& text) = 0;
};

bool hasDesktop();
/// The desktop of this process; error 5 if none was set.
Desktop& desktop();

/// Sets a desktop for the length of a scope, then the one before.
class DesktopScope {
 public:
  explicit DesktopScope(Desktop& current);
  ~DesktopScope();
  DesktopScope(const DesktopScope&) = delete;
  DesktopScope& operator=(const DesktopScope&) = delete;

 private:
  Desktop* before_;
};

}  // namespace controls
