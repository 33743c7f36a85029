#pragma once

#include <string>

#include "controls/control.h"

namespace controls {

/// The dialog that asks for a file. Its properties are set before showOpen() and fileName() read after it.
class CommonDialog : public Control {
 public:
  using Control::Control;

  /// Bits of flags().
  enum Flag : int { HideReadOnly = 4, FileMustExist = 4096 };

  /// Descriptions and patterns in turn: "Database Access (*.mdb)|*.mdb|Tutti|*.*".
  const std::string& filter() const { return filter_; }
  void setFilter(const std::string& filter) { assign(filter_, filter); }
  int flags() const { return flags_; }
  void setFlags(int flags) { assign(flags_, flags); }
  const std::string& dialogTitle() const { return dialogTitle_; }
  void setDialogTitle(const std::string& title) { assign(dialogTitle_, title); }
  /// Full path with backslashes; a cancelled dialog leaves it as it was.
  const std::string& fileName() const { return fileName_; }
  void setFileName(const std::string& path) { assign(fileName_, path); }

  /// Asks the current desktop for an existing file. True if one was chosen.
  bool showOpen();

 private:
  std::string filter_;
  std::string dialogTitle_;
  std::string fileName_;
  int flags_ = 0;
};

}  // namespace controls
