// Texts of the file, in UTF-16, compressed or in a code page, from and to UTF-8.
#include "jet/file/text/text.h"

#include <algorithm>

#include "jet/file/errors.h"
#include "jet/file/page/bytes.h"
#include "platform/code_page.h"
#include "runtime/letters.h"

namespace jet::file {

namespace {

using BytesView = std::span<const std::byte>;
using runtime::appendUtf8;

constexpr std::byte Zero{0};
constexpr char16_t Mark = 0xFEFF;  // stored FF FE, what compressed text begins with
constexpr std::size_t ShortestCompressed = 3;

bool isHigh(char32_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
bool isLow(char32_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

/// Joins surrogates on their way to UTF-8, across a change of mode too. One that stands alone keeps its value
/// in the three bytes that any unit gets, so that a row written back is the row that was read.
class Utf16Decoder {
 public:
  explicit Utf16Decoder(std::string& out) : out_(out) {}

  void put(char16_t unit) {
    if (high_ != 0) {
      const char32_t high = high_;
      high_ = 0;
      if (isLow(unit)) return appendUtf8(0x10000 + ((high - 0xD800) << 10) + (unit - 0xDC00), out_);
      appendUtf8(high, out_);
    }
    if (unit < 0x80)
      out_.push_back(static_cast<char>(unit));
    else if (isHigh(unit))
      high_ = unit;
    else
      appendUtf8(unit, out_);
  }
  void end() {
    if (high_ != 0) appendUtf8(high_, out_);
  }

 private:
  std::string& out_;
  char16_t high_ = 0;
};

/// Length of the run of ASCII without NUL in front: what most text is, and the same in every form of one
/// byte.
std::size_t asciiRun(BytesView bytes) {
  const auto isOther = [](std::byte byte) { return byte == Zero || byte >= std::byte{0x80}; };
  return static_cast<std::size_t>(std::ranges::find_if(bytes, isOther) - bytes.begin());
}

void appendAscii(BytesView ascii, std::string& out) {
  out.append(reinterpret_cast<const char*>(ascii.data()), ascii.size());
}

bool isCompressed(BytesView field) {
  return field.size() >= 2 && readU16(field.data()) == Mark;
}

void appendPlain(BytesView field, std::string& out) {
  if (field.size() % 2 != 0)
    throw damagedFile("testo di " + std::to_string(field.size()) + " byte, un numero dispari");
  // ASCII goes straight to its place; at the first other unit the rest is decoded one by one.
  const std::size_t units = field.size() / 2, begin = out.size();
  out.resize(begin + units);
  std::size_t unit = 0;
  for (; unit < units; ++unit) {
    const char16_t value = readU16(&field[2 * unit]);
    if (value >= 0x80) break;
    out[begin + unit] = static_cast<char>(value);
  }
  out.resize(begin + unit);
  Utf16Decoder decoder(out);
  for (; unit < units; ++unit) decoder.put(readU16(&field[2 * unit]));
  decoder.end();
}

// One byte a character and two bytes a character take turns; a zero byte changes over.
void appendCompressed(BytesView packed, std::string& out) {
  Utf16Decoder decoder(out);
  bool wide = false;
  for (std::size_t i = 0; i < packed.size();) {
    if (packed[i] == Zero) {
      wide = !wide;
      ++i;
    } else if (!wide) {
      decoder.put(std::to_integer<char16_t>(packed[i++]));
      const std::size_t ascii = asciiRun(packed.subspan(i));
      appendAscii(packed.subspan(i, ascii), out);
      i += ascii;
    } else {
      if (i + 1 == packed.size()) throw damagedFile("testo compresso interrotto a metà di un carattere");
      decoder.put(readU16(&packed[i]));
      i += 2;
    }
  }
  decoder.end();
}

void appendCodePage(BytesView field, std::uint16_t codePage, std::string& out) {
  const std::size_t ascii = asciiRun(field);
  appendAscii(field.first(ascii), out);
  for (const std::byte byte : field.subspan(ascii)) {
    const auto value = std::to_integer<unsigned char>(byte);
    if (value < 0x80) {
      out.push_back(static_cast<char>(value));
    } else if (codePage == 1252) {
      appendUtf8(platform::codePage1252Character(value), out);
    } else {
      throw damagedFile("testo nella tabella codici " + std::to_string(codePage) + ", che non è gestita");
    }
  }
}

void putUnit(char16_t unit, std::vector<std::byte>& out) {
  out.push_back(static_cast<std::byte>(unit & 0xFF));
  out.push_back(static_cast<std::byte>(unit >> 8));
}

/// Appends a text of characters U+0001 to U+00FF in the form of one byte each; leaves `out` as it was and
/// gives false where another character stands in it, or where it is too short for that form.
bool appendNarrow(std::string_view utf8, std::vector<std::byte>& out) {
  const std::size_t begin = out.size();
  putUnit(Mark, out);
  while (!utf8.empty()) {
    const BytesView bytes = std::as_bytes(std::span(utf8));
    const std::size_t ascii = asciiRun(bytes);
    out.insert(out.end(), bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(ascii));
    utf8.remove_prefix(ascii);
    if (utf8.empty()) break;
    const char32_t character = runtime::takeValidCharacter(utf8);
    if (character == 0 || character > 0xFF) {
      out.resize(begin);
      return false;
    }
    out.push_back(static_cast<std::byte>(character));
  }
  const bool longEnough = out.size() - begin >= 2 + ShortestCompressed;
  if (!longEnough) out.resize(begin);
  return longEnough;
}

}  // namespace

void appendText(const Format& format, BytesView field, std::string& out, std::uint16_t codePage) {
  if (format.wideText && isCompressed(field))
    appendCompressed(field.subspan(2), out);
  else if (format.wideText)
    appendPlain(field, out);
  else
    appendCodePage(field, codePage, out);
}

std::string nameText(const Format& format, BytesView name, std::uint16_t codePage) {
  std::string out;
  if (format.wideText)
    appendPlain(name, out);
  else
    appendCodePage(name, codePage, out);
  return out;
}

void encodeText(std::string_view utf8, bool compress, std::vector<std::byte>& out) {
  if (compress && appendNarrow(utf8, out)) return;
  const std::u16string text = toUtf16(utf8);
  if (!text.empty() && text.front() == Mark) {
    // In two-byte mode a zero low byte would change modes, so such a character can't follow.
    if (std::ranges::any_of(text, [](char16_t unit) { return (unit & 0xFF) == 0; }))
      throw jetError(InvalidArgument, "Il testo comincia con U+FEFF e non si può scrivere");
    putUnit(Mark, out);
    out.push_back(Zero);
  }
  for (const char16_t unit : text) putUnit(unit, out);
}

std::size_t utf16Length(std::string_view utf8) {
  std::size_t length = 0;
  while (!utf8.empty()) length += runtime::takeValidCharacter(utf8) >= 0x10000 ? 2 : 1;
  return length;
}

std::u16string toUtf16(std::string_view utf8) {
  std::u16string out;
  out.reserve(utf8.size());
  while (!utf8.empty()) {
    const char32_t value = runtime::takeValidCharacter(utf8);
    if (value >= 0x10000) {
      out.push_back(static_cast<char16_t>(0xD800 + ((value - 0x10000) >> 10)));
      out.push_back(static_cast<char16_t>(0xDC00 + ((value - 0x10000) & 0x3FF)));
    } else {
      out.push_back(static_cast<char16_t>(value));
    }
  }
  return out;
}

}  // namespace jet::file
