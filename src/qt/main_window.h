#pragma once

#include "qt/form_window.h"

namespace qt {

/// The window of the update: the choice of a database above, the running summary in the middle, the commands
/// below. Looks its controls up in the form by name; error 5 if one is missing.
class MainWindow : public FormWindow {
 public:
  explicit MainWindow(controls::Form& form);

 private:
  void layOut();
  template <typename View, typename Kind>
  View* place(const char* name);
  void nameForReaders();

  QWidget* page_;
};

}  // namespace qt
