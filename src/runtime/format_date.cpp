// Format's codes of dates and times.
#include "runtime/date.h"
#include "runtime/date_arithmetic.h"
#include "runtime/format_pattern.h"
#include "runtime/italian.h"

namespace runtime::pattern {

namespace {

/// What the codes write of.
struct Subject {
  Date date;
  DateParts parts;
  int firstDayOfWeek, firstWeekOfYear;
};

using Write = void (*)(const Subject&, std::string&);

template <int DateParts::*part>
void number(const Subject& subject, std::string& out) {
  out += std::to_string(subject.parts.*part);
}

void appendTwo(int value, std::string& out) {
  out += static_cast<char>('0' + value / 10);
  out += static_cast<char>('0' + value % 10);
}

template <int DateParts::*part>
void twoDigits(const Subject& subject, std::string& out) {
  appendTwo(subject.parts.*part, out);
}

void whole(const Subject& subject, std::string_view pattern, std::string& out) {
  out += formatDate(subject.date, pattern, subject.firstDayOfWeek, subject.firstWeekOfYear);
}

struct Code {
  std::string_view text;
  Write write;
};

/// The longer code of a letter before the shorter one.
constexpr Code Codes[] = {
    {"c", [](const Subject& s, std::string& out) { out += dateText(s.date); }},
    {"dddddd", [](const Subject& s, std::string& out) { whole(s, italian::LongDate, out); }},
    {"ddddd", [](const Subject& s, std::string& out) { whole(s, italian::ShortDate, out); }},
    {"dddd", [](const Subject& s, std::string& out) { out += weekdayName(s.parts.weekday); }},
    {"ddd", [](const Subject& s, std::string& out) { out += shortWeekdayName(s.parts.weekday); }},
    {"dd", twoDigits<&DateParts::day>},
    {"d", number<&DateParts::day>},
    {"mmmm", [](const Subject& s, std::string& out) { out += monthName(s.parts.month); }},
    {"mmm", [](const Subject& s, std::string& out) { out += shortMonthName(s.parts.month); }},
    {"mm", twoDigits<&DateParts::month>},
    {"m", number<&DateParts::month>},
    {"yyyy",
     [](const Subject& s, std::string& out) {
       appendTwo(s.parts.year / 100, out);
       appendTwo(s.parts.year % 100, out);
     }},
    {"yy", [](const Subject& s, std::string& out) { appendTwo(s.parts.year % 100, out); }},
    {"y", [](const Subject& s, std::string& out) { out += std::to_string(datePart("y", s.date)); }},
    {"hh", twoDigits<&DateParts::hour>},
    {"h", number<&DateParts::hour>},
    {"nn", twoDigits<&DateParts::minute>},
    {"n", number<&DateParts::minute>},
    {"ss", twoDigits<&DateParts::second>},
    {"s", number<&DateParts::second>},
    {"ttttt", [](const Subject& s, std::string& out) { whole(s, italian::LongTime, out); }},
    {"q", [](const Subject& s, std::string& out) { out += std::to_string(datePart("q", s.date)); }},
    {"ww",
     [](const Subject& s, std::string& out) {
       out += std::to_string(datePart("ww", s.date, s.firstDayOfWeek, s.firstWeekOfYear));
     }},
    {"w",
     [](const Subject& s, std::string& out) { out += std::to_string(weekday(s.date, s.firstDayOfWeek)); }},
};

const Code* codeAt(std::string_view rest) {
  for (const Code& code : Codes)
    if ((rest[0] | 0x20) == code.text[0] && startsWith(rest, code.text)) return &code;
  return nullptr;
}

/// Length of "AM/PM" or "A/P" at the front of `rest`, otherwise 0.
std::size_t halfOfDayLength(std::string_view rest) {
  constexpr std::string_view longForm = "am/pm", shortForm = "a/p";
  if (startsWith(rest, longForm)) return longForm.size();
  return startsWith(rest, shortForm) ? shortForm.size() : 0;
}

bool hasHalfOfDay(std::string_view pattern) {
  while (!pattern.empty()) {
    if (halfOfDayLength(pattern) > 0) return true;
    const std::size_t marked = markedLength(pattern);
    pattern.remove_prefix(marked > 0 ? marked : 1);
  }
  return false;
}

}  // namespace

std::string formatDate(Date date, std::string_view pattern, int firstDayOfWeek, int firstWeekOfYear) {
  Subject subject{date, partsOf(date), firstDayOfWeek, firstWeekOfYear};
  const bool afternoon = subject.parts.hour >= 12;
  if (hasHalfOfDay(pattern)) subject.parts.hour = (subject.parts.hour + 11) % 12 + 1;

  std::string result;
  char previous = 0;  // letter of the code before
  while (!pattern.empty()) {
    if (const std::size_t length = halfOfDayLength(pattern)) {
      const std::string_view code = pattern.substr(0, length);
      const std::size_t slash = code.find('/');
      result += afternoon ? code.substr(slash + 1) : code.substr(0, slash);
      pattern.remove_prefix(length);
    } else if (const Code* code = codeAt(pattern)) {
      const bool minutes = previous == 'h' && (code->text == "m" || code->text == "mm");
      if (minutes && code->text == "mm") {
        twoDigits<&DateParts::minute>(subject, result);
      } else if (minutes) {
        number<&DateParts::minute>(subject, result);
      } else {
        code->write(subject, result);
      }
      previous = code->text[0];
      pattern.remove_prefix(code->text.size());
    } else {
      pattern.remove_prefix(takeLiteral(pattern, result));
    }
  }
  return result;
}

}  // namespace runtime::pattern
