// Text and selection in characters, and files dropped on the box.
#include "controls/text_box.h"

#include <algorithm>

#include "controls/property_error.h"
#include "runtime/letters.h"

namespace controls {
namespace {

bool beginsCharacter(char byte) {
  return !runtime::continuesCharacter(byte);
}

int charactersOf(std::string_view text) {
  return static_cast<int>(std::count_if(text.begin(), text.end(), beginsCharacter));
}

/// Byte at which character number `position` begins; the text's size for the position at its end.
std::size_t byteOf(std::string_view text, int position) {
  std::size_t byte = 0;
  while (byte < text.size() && (!beginsCharacter(text[byte]) || position-- > 0)) ++byte;
  return byte;
}

}  // namespace

void TextBox::setText(std::string_view text) {
  selStart_ = selLength_ = 0;
  if (text_ == text) return;
  text_ = text;
  length_ = charactersOf(text_);
  replaced.raise();
  change.raise();
}

void TextBox::setSelStart(int start) {
  if (start < 0) throw invalidProperty(name(), "SelStart");
  selStart_ = std::min(start, length_);
  selLength_ = 0;
}

void TextBox::setSelLength(int length) {
  if (length < 0) throw invalidProperty(name(), "SelLength");
  selLength_ = std::min(length, length_ - selStart_);
}

std::string TextBox::selText() const {
  const std::size_t begin = byteOf(text_, selStart_);
  return text_.substr(begin, byteOf(std::string_view(text_).substr(begin), selLength_));
}

void TextBox::setSelText(std::string_view text) {
  if (text.empty() && selLength_ == 0) return;
  const bool append = selStart_ == length_;
  const int added = charactersOf(text);
  if (append) {
    text_ += text;
  } else {
    const std::size_t begin = byteOf(text_, selStart_);
    text_.replace(begin, byteOf(std::string_view(text_).substr(begin), selLength_), text);
  }
  length_ += added - selLength_;
  selStart_ += added;
  selLength_ = 0;
  if (append) {
    appended.raise(text);
  } else {
    replaced.raise();
  }
  change.raise();
}

}  // namespace controls
