#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "controls/control.h"

namespace controls {

/// What was dropped on a control.
struct DropData {
  /// The number of the format "list of files".
  static constexpr int FileList = 15;

  bool hasFiles = false;
  /// Full paths as the product writes them, with backslashes.
  std::vector<std::string> files;

  bool getFormat(int format) const { return format == FileList && hasFiles; }
};

/// A box of text, UTF-8; positions and lengths count characters, and a line end (CR LF) counts two.
class TextBox : public Control {
 public:
  using Control::Control;

  const std::string& text() const { return text_; }
  /// Replaces the whole text and puts the selection, empty, at its beginning.
  void setText(std::string_view text);
  /// Characters of the text; costs nothing.
  int textLength() const { return length_; }

  int selStart() const { return selStart_; }
  /// Empties the selection and puts it at `start`, at most the text's end; negative is error 380.
  void setSelStart(int start);
  int selLength() const { return selLength_; }
  /// At most what stands behind the start; negative is error 380.
  void setSelLength(int length);
  std::string selText() const;
  /// Puts `text` in the selection's place and the selection, empty, behind it. At the text's end this
  /// appends: it costs what `text` is long, here and in a view.
  void setSelText(std::string_view text);

  bool multiLine() const { return multiLine_; }
  void setMultiLine(bool multiLine) { assign(multiLine_, multiLine); }
  /// Locked: the operator can read, select and copy, not type.
  bool locked() const { return locked_; }
  void setLocked(bool locked) { assign(locked_, locked); }
  bool dropTarget() const { return dropTarget_; }
  void setDropTarget(bool dropTarget) { assign(dropTarget_, dropTarget); }

  /// The text has changed, whoever changed it.
  Event<> change;
  /// Something was dropped on the box; the box itself does nothing with it.
  Event<const DropData&> oleDragDrop;
  /// For a view: this was appended, the rest stands as it was.
  Event<std::string_view> appended;
  /// For a view: the text has changed in another way.
  Event<> replaced;

 private:
  std::string text_;
  int length_ = 0;
  int selStart_ = 0;
  int selLength_ = 0;
  bool multiLine_ = false;
  bool locked_ = false;
  bool dropTarget_ = false;
};

}  // namespace controls
