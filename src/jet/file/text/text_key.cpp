// Sort keys of texts in the General order, from the weights of their characters.
#include "jet/file/text/text_key.h"

#include <algorithm>

#include "jet/file/text/general_order.h"
#include "jet/file/text/text.h"

namespace jet::file {

namespace {

using Bytes = std::vector<std::byte>;

constexpr std::byte End{0x00};       // closes a key
constexpr std::byte Section{0x01};   // closes a section of it
constexpr std::byte NoAccent{0x02};  // holds the place of a character without diacritic

std::byte toByte(std::size_t value) {
  return static_cast<std::byte>(value & 0xFF);
}

/// The sections behind the primary bytes, which most texts don't have.
class Sections {
 public:
  void clear() {
    diacritics_.clear();
    notes_.clear();
    kana_.clear();
    covered_ = lead_ = 0;
    any_ = false;
  }

  /// `position`: number of characters with primary bytes before this one.
  void add(const Weight& weight, std::size_t position) {
    switch (weight.kind) {
      case Weight::Kind::Accented:
        addAccent(weight, position);
        break;
      case Weight::Kind::Kana:
        if (weight.diacriticLength != 0) addAccent(weight, position);
        kana_.push_back(weight.other);
        break;
      case Weight::Kind::Mark:
        addMark(weight, position);
        break;
      case Weight::Kind::Noted:
        addNote(weight, position);
        break;
      default:
        break;
    }
  }

  void append(Bytes& key) {
    while (!diacritics_.empty() && diacritics_.back() <= NoAccent) diacritics_.pop_back();
    key.insert(key.end(), diacritics_.begin(), diacritics_.end());
    if (notes_.empty() && kana_.empty()) return;
    key.insert(key.end(), 2, Section);
    const bool hasKana = !kana_.empty();
    if (hasKana) appendKana(key);
    if (notes_.empty()) return;
    if (hasKana) key.push_back(std::byte{0xFF});
    key.push_back(Section);
    key.insert(key.end(), notes_.begin(), notes_.end());
  }

 private:
  void coverUpTo(std::size_t position) {
    if (position <= covered_) return;
    diacritics_.insert(diacritics_.end(), position - covered_, NoAccent);
    covered_ = position;
  }

  void addAccent(const Weight& weight, std::size_t position) {
    coverUpTo(position);
    diacritics_.insert(diacritics_.end(), weight.diacritic.begin(),
                       weight.diacritic.begin() + weight.diacriticLength);
    covered_ = position + 1;
    any_ = true;
  }

  void addMark(const Weight& weight, std::size_t position) {
    coverUpTo(position);
    if (diacritics_.empty()) {
      diacritics_.push_back(weight.diacritic[0]);
      lead_ = 1;
    } else {
      diacritics_.back() = toByte(std::to_integer<std::size_t>(diacritics_.back()) +
                                  std::to_integer<std::size_t>(weight.diacritic[0]));
    }
    any_ = true;
  }

  void addNote(const Weight& weight, std::size_t position) {
    const std::size_t at = any_ ? diacritics_.size() + position - covered_ - lead_ : position;
    const std::size_t place = (7 + 4 * at) | 0x8000;
    notes_.insert(notes_.end(), {toByte(place >> 8), toByte(place), std::byte{6}, std::byte{weight.other}});
  }

  // Three marks of two bits to a byte; the most frequent mark is left out at the end.
  void appendKana(Bytes& key) {
    while (!kana_.empty() && kana_.back() == 3) kana_.pop_back();
    for (std::size_t i = 0; i < kana_.size(); i += 3) {
      unsigned packed = 0x80;
      for (std::size_t k = i; k < std::min(i + 3, kana_.size()); ++k)
        packed |= static_cast<unsigned>(kana_[k]) << (2 * (2 - (k - i)));
      key.push_back(toByte(packed));
    }
    for (const unsigned byte : {0xFFu, 0x02u, 0x80u, 0xFFu, 0x80u}) key.push_back(toByte(byte));
  }

  Bytes diacritics_;
  Bytes notes_;
  std::vector<std::uint8_t> kana_;
  std::size_t covered_ = 0;  // characters that diacritics_ accounts for
  std::size_t lead_ = 0;     // 1: diacritics_ begins with a byte that belongs to no character
  bool any_ = false;
};

/// Primary bytes of a UTF-8 text of characters up to U+00FF, one after the other.
class PrimaryBytes {
 public:
  static constexpr int AtEnd = -1, Beyond = -2;  // Beyond: a character above U+00FF

  explicit PrimaryBytes(std::string_view text) : text_(text) {}

  int next() {
    while (true) {
      if (pending_ < weight_->primaryLength) return std::to_integer<int>(weight_->primary[pending_++]);
      if (at_ == text_.size()) return AtEnd;
      const auto lead = static_cast<unsigned char>(text_[at_++]);
      unsigned unit = lead;
      if (lead >= 0x80) {
        if ((lead != 0xC2 && lead != 0xC3) || at_ == text_.size() || (text_[at_] & 0xC0) != 0x80)
          return Beyond;
        unit = (lead & 3u) << 6 | (static_cast<unsigned char>(text_[at_++]) & 0x3Fu);
      }
      weight_ = &order_[unit];
      pending_ = 0;
      primaryOnly_ &= weight_->kind == Weight::Kind::Plain || weight_->kind == Weight::Kind::Ignored;
    }
  }
  /// True if no character so far has anything but primary bytes.
  bool primaryOnly() const { return primaryOnly_; }

 private:
  static constexpr Weight Nothing{};
  const WeightTable& order_ = generalOrder();
  std::string_view text_;
  std::size_t at_ = 0;
  const Weight* weight_ = &Nothing;
  std::size_t pending_ = 0;
  bool primaryOnly_ = true;
};

std::string_view withoutTrailingBlanks(std::string_view text) {
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

int compareKeys(std::string_view a, std::string_view b) {
  const auto keyOf = [](std::string_view text) {
    const std::u16string units = toUtf16(text);
    Bytes key;
    appendTextKey(units, units.size(), key);
    return key;
  };
  const auto order = keyOf(a) <=> keyOf(b);
  return order < 0 ? -1 : order > 0 ? 1 : 0;
}

}  // namespace

void appendTextKey(std::u16string_view text, std::size_t limit, Bytes& key) {
  thread_local Sections sections;
  const WeightTable& order = generalOrder();
  text = text.substr(0, limit);
  while (!text.empty() && text.back() == u' ') text.remove_suffix(1);

  bool primaryOnly = true;
  std::size_t position = 0, at = key.size();
  // Four bytes are copied for each unit, whatever its length, and the next one overwrites what was too much.
  key.resize(at + sizeof(Weight::primary) * text.size());
  for (const char16_t unit : text) {
    const Weight& weight = order[unit];
    if (weight.kind != Weight::Kind::Plain && weight.kind != Weight::Kind::Ignored) {
      if (primaryOnly) sections.clear();
      primaryOnly = false;
      sections.add(weight, position);
    }
    std::ranges::copy(weight.primary, key.data() + at);
    at += weight.primaryLength;
    if (weight.primaryLength != 0) ++position;
  }
  key.resize(at);
  key.push_back(Section);
  if (!primaryOnly) sections.append(key);
  key.push_back(End);
}

int compareText(std::string_view a, std::string_view b) {
  if (a == b) return 0;
  a = withoutTrailingBlanks(a);
  b = withoutTrailingBlanks(b);
  PrimaryBytes left(a), right(b);
  // A section's end sorts below every primary byte, as the text's end does here.
  while (true) {
    const int l = left.next(), r = right.next();
    if (l == PrimaryBytes::Beyond || r == PrimaryBytes::Beyond) return compareKeys(a, b);
    if (l != r) return l < r ? -1 : 1;
    if (l == PrimaryBytes::AtEnd) break;
  }
  return left.primaryOnly() && right.primaryOnly() ? 0 : compareKeys(a, b);
}

}  // namespace jet::file
