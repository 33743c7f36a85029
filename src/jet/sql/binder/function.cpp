#include "jet/sql/binder/function.h"

#include <algorithm>

#include "jet/sql/parser/token.h"

namespace jet::sql {

namespace {

using Argument = Function::Argument;
using Result = Function::Result;
constexpr auto Any = Argument::Any, Number = Argument::Number, Boolean = Argument::Boolean,
               Long = Argument::Long, Double = Argument::Double, Date = Argument::Date, Text = Argument::Text;
constexpr auto Fixed = Result::Fixed, LikeFirst = Result::LikeFirst;

/// A conversion is all that its argument's type asks for: the expression is the argument itself.
constexpr Function functions[] = {
    {"ABS", {Number}, LikeFirst, Type::Null, "abs($1)"},
    {"ASC", {Text}, Fixed, Type::Long, "jet_asc($1)"},
    {"CBOOL", {Boolean}, Fixed, Type::Boolean, "$1"},
    {"CBYTE", {Any}, Fixed, Type::Byte, "$1"},
    {"CCUR", {Any}, Fixed, Type::Currency, "$1"},
    {"CDATE", {Date}, Fixed, Type::Date, "$1"},
    {"CVDATE", {Date}, Fixed, Type::Date, "$1"},
    {"CDBL", {Double}, Fixed, Type::Double, "$1"},
    {"CHR", {Long}, Fixed, Type::Text, "jet_chr($1)"},
    {"CINT", {Any}, Fixed, Type::Integer, "$1"},
    {"CLNG", {Long}, Fixed, Type::Long, "$1"},
    {"CSNG", {Any}, Fixed, Type::Single, "$1"},
    {"CSTR", {Text}, Fixed, Type::Text, "$1"},
    {"DATE", {}, Fixed, Type::Date, "jet_date()"},
    {"DATESERIAL", {Long, Long, Long}, Fixed, Type::Date, "jet_date_serial($1, $2, $3)"},
    {"DATEVALUE", {Date}, Fixed, Type::Date, "jet_day_of($1)"},
    {"DAY", {Date}, Fixed, Type::Integer, "jet_day($1)"},
    {"FIX", {Number}, LikeFirst, Type::Null, "jet_fix($1)"},
    {"FORMAT", {Any, Text}, Fixed, Type::Text, "jet_format($t, $1, $2)"},
    {"HOUR", {Date}, Fixed, Type::Integer, "jet_hour($1)"},
    {"INSTR", {Text, Text}, Fixed, Type::Long, "jet_instr(1, $1, $2)"},
    {"INSTR", {Long, Text, Text}, Fixed, Type::Long, "jet_instr($1, $2, $3)"},
    {"INT", {Number}, LikeFirst, Type::Null, "jet_int($1)"},
    {"ISDATE", {Any}, Fixed, Type::Boolean, "jet_is_date($t, $1)"},
    {"ISNUMERIC", {Any}, Fixed, Type::Boolean, "jet_is_numeric($t, $1)"},
    {"LCASE", {Text}, Fixed, Type::Text, "jet_lower($1)"},
    {"LEFT", {Text, Long}, Fixed, Type::Text, "jet_left($1, $2)"},
    {"LEN", {Text}, Fixed, Type::Long, "jet_length($1)"},
    {"LTRIM", {Text}, Fixed, Type::Text, "ltrim($1)"},
    {"MID", {Text, Long}, Fixed, Type::Text, "jet_mid($1, $2)"},
    {"MID", {Text, Long, Long}, Fixed, Type::Text, "jet_mid($1, $2, $3)"},
    {"MINUTE", {Date}, Fixed, Type::Integer, "jet_minute($1)"},
    {"MONTH", {Date}, Fixed, Type::Integer, "jet_month($1)"},
    {"NOW", {}, Fixed, Type::Date, "jet_now()"},
    {"RIGHT", {Text, Long}, Fixed, Type::Text, "jet_right($1, $2)"},
    {"ROUND", {Number}, LikeFirst, Type::Null, "jet_round($1, 0)"},
    {"ROUND", {Number, Long}, LikeFirst, Type::Null, "jet_round($1, $2)"},
    {"RTRIM", {Text}, Fixed, Type::Text, "rtrim($1)"},
    {"SECOND", {Date}, Fixed, Type::Integer, "jet_second($1)"},
    {"SGN", {Double}, Fixed, Type::Integer, "sign($1)"},
    {"SPACE", {Long}, Fixed, Type::Text, "jet_space($1)"},
    {"STR", {Double}, Fixed, Type::Text, "jet_str($1)"},
    {"TIME", {}, Fixed, Type::Date, "jet_time()"},
    {"TRIM", {Text}, Fixed, Type::Text, "trim($1)"},
    {"UCASE", {Text}, Fixed, Type::Text, "jet_upper($1)"},
    {"VAL", {Text}, Fixed, Type::Double, "jet_val($1)"},
    {"WEEKDAY", {Date}, Fixed, Type::Integer, "jet_weekday($1)"},
    {"YEAR", {Date}, Fixed, Type::Integer, "jet_year($1)"},
};

}  // namespace

std::size_t Function::argumentCount() const {
  return static_cast<std::size_t>(std::ranges::find(arguments, Argument::None) - std::begin(arguments));
}

const Function* findFunction(const std::string& name, std::size_t arguments) {
  const bool dollar = name.ends_with('$');
  const std::string_view bare = std::string_view(name).substr(0, name.size() - dollar);
  const auto* found = std::ranges::find_if(functions, [&](const Function& candidate) {
    return sameWord(bare, candidate.name) && candidate.argumentCount() == arguments &&
           (!dollar || candidate.type == Type::Text);
  });
  return found == std::end(functions) ? nullptr : found;
}

}  // namespace jet::sql
