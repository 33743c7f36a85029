// Format: which of the named and written formats a value gets.
#include "runtime/format.h"

#include "runtime/date.h"
#include "runtime/format_pattern.h"
#include "runtime/italian.h"
#include "runtime/numbers.h"

namespace runtime {

namespace {

using pattern::Kind;

struct Named {
  std::string_view name;  // in small letters
  Kind kind;
  std::string_view pattern;
};

constexpr Named NamedFormats[] = {
    {"general date", Kind::Date, italian::GeneralDate},
    {"long date", Kind::Date, italian::LongDate},
    {"medium date", Kind::Date, italian::MediumDate},
    {"short date", Kind::Date, italian::ShortDate},
    {"long time", Kind::Date, italian::LongTime},
    {"medium time", Kind::Date, italian::MediumTime},
    {"short time", Kind::Date, italian::ShortTime},
    {"general number", Kind::Number, ""},
    {"currency", Kind::Number, italian::Currency},
    {"fixed", Kind::Number, "0.00"},
    {"standard", Kind::Number, "#,##0.00"},
    {"percent", Kind::Number, "0.00%"},
    {"scientific", Kind::Number, "0.00E+00"},
    {"yes/no", Kind::Number, "\"Sì\";\"Sì\";\"No\""},
    {"true/false", Kind::Number, "\"Vero\";\"Vero\";\"Falso\""},
    {"on/off", Kind::Number, "\"Attivato\";\"Attivato\";\"Disattivato\""},
};

Named kindAndPattern(std::string_view text) {
  constexpr std::size_t longestName = 14;
  if (text.size() <= longestName) {
    for (const Named& format : NamedFormats)
      if (text.size() == format.name.size() && pattern::startsWith(text, format.name)) return format;
  }
  return {{}, pattern::kindOf(text), text};
}

/// What Null and empty texts have a section for.
std::string formatNothing(const Named& format) {
  constexpr std::size_t ofNumbers = 3, ofTexts = 1;
  const pattern::Sections sections = pattern::sectionsOf(format.pattern);
  const std::size_t own = format.kind == Kind::Number ? ofNumbers : ofTexts;
  const bool hasOwn = sections.count > own && (format.kind == Kind::Number || format.kind == Kind::Text);
  return hasOwn ? pattern::formatText("", sections.text[own]) : std::string();
}

std::string literals(std::string_view rest) {
  std::string result;
  while (!rest.empty()) rest.remove_prefix(pattern::takeLiteral(rest, result));
  return result;
}

std::string formatAsNumber(const Variant& value, std::string_view text) {
  if (!value.isText())
    return text.empty() ? Variant(value.toDouble()).toText() : pattern::formatNumber(value, text);
  const auto& written = std::get<std::string>(value.value());
  const std::optional<std::string> plain = plainNumber(written);
  if (!plain) return written;
  const Variant number = plainToDouble(*plain);
  return text.empty() ? number.toText() : pattern::formatNumber(number, text);
}

}  // namespace

std::string format(const Variant& value, std::string_view text, int firstDayOfWeek, int firstWeekOfYear) {
  const bool nothing = value.isNull() || value.isEmpty();
  if (text.empty()) return nothing ? std::string() : value.toText();
  const Named chosen = kindAndPattern(text);
  if (nothing) return formatNothing(chosen);
  switch (chosen.kind) {
    case Kind::Date: {
      if (!value.isText())
        return pattern::formatDate(value.toDate(), chosen.pattern, firstDayOfWeek, firstWeekOfYear);
      const auto& written = std::get<std::string>(value.value());
      const std::optional<Date> date = dateFromText(written);
      return date ? pattern::formatDate(*date, chosen.pattern, firstDayOfWeek, firstWeekOfYear) : written;
    }
    case Kind::Number:
      return formatAsNumber(value, chosen.pattern);
    case Kind::Text: {
      const std::string shown = value.toText();
      if (shown.empty() && pattern::sectionsOf(chosen.pattern).count > 1) return formatNothing(chosen);
      return pattern::formatText(shown, pattern::sectionsOf(chosen.pattern).text[0]);
    }
    case Kind::Literal:
      break;
  }
  return literals(chosen.pattern);
}

}  // namespace runtime
