// The table of functions: what they take, what they give, how SQLite writes them.
#include "jet/sql/binder/function.h"

#include <algorithm>

#include "jet/sql/parser/token.h"

namespace jet::sql {

namespace {

using F = Function;
constexpr auto Any = F::Any, Number = F::Number, Boolean = F::Boolean, Long = F::Long, Double = F::Double,
               Date = F::Date, Text = F::Text;
// What a Null makes an error.
constexpr std::uint8_t AnAny = Any | F::NotNull, aNumber = Number | F::NotNull,
                       aBoolean = Boolean | F::NotNull, aLong = Long | F::NotNull,
                       aDouble = Double | F::NotNull, aDate = Date | F::NotNull, aText = Text | F::NotNull;
constexpr auto Fixed = F::Result::Fixed, LikeFirst = F::Result::LikeFirst;

/// A conversion is all that its argument's type asks for: the expression is the argument itself.
constexpr Function Functions[] = {
    {"ABS", 1, {Number}, LikeFirst, Type::Null, "jet_abs($t, $1)"},
    {"ASC", 1, {aText}, Fixed, Type::Long, "jet_asc($1)"},
    {"ASCW", 1, {aText}, Fixed, Type::Long, "jet_asc_w($1)"},
    {"ATN", 1, {aDouble}, Fixed, Type::Double, "jet_atn($1)"},
    {"CBOOL", 1, {aBoolean}, Fixed, Type::Boolean, "$1"},
    {"CBYTE", 1, {AnAny}, Fixed, Type::Byte, "$1"},
    {"CCUR", 1, {AnAny}, Fixed, Type::Currency, "$1"},
    {"CDATE", 1, {aDate}, Fixed, Type::Date, "$1"},
    {"CDBL", 1, {aDouble}, Fixed, Type::Double, "$1"},
    {"CDEC", 1, {AnAny}, Fixed, Type::Decimal, "$1"},
    {"CHR", 1, {aLong}, Fixed, Type::Text, "jet_chr($1)"},
    {"CHRW", 1, {aLong}, Fixed, Type::Text, "jet_chr_w($1)"},
    {"CINT", 1, {AnAny}, Fixed, Type::Integer, "$1"},
    {"CLNG", 1, {aLong}, Fixed, Type::Long, "$1"},
    {"COS", 1, {aDouble}, Fixed, Type::Double, "jet_cos($1)"},
    {"CSNG", 1, {AnAny}, Fixed, Type::Single, "$1"},
    {"CSTR", 1, {aText}, Fixed, Type::Text, "$1"},
    {"CVAR", 1, {Any}, LikeFirst, Type::Null, "$1"},
    {"CVDATE", 1, {Date}, Fixed, Type::Date, "$1"},
    {"DATE", 0, {}, Fixed, Type::Date, "jet_date()"},
    {"DATE$", 0, {}, Fixed, Type::Text, "strftime('%m-%d-%Y', 2415018.5 + jet_date())"},
    {"DATEADD", 3, {aText, aDouble, Date}, Fixed, Type::Date, "jet_date_add($*)"},
    {"DATEDIFF", 3, {aText, Date, Date, Long, Long}, Fixed, Type::Long, "jet_date_diff($*)"},
    {"DATEPART", 2, {aText, Date, Long, Long}, Fixed, Type::Integer, "jet_date_part($*)"},
    {"DATESERIAL", 3, {aLong, aLong, aLong}, Fixed, Type::Date, "jet_date_serial($*)"},
    {"DATEVALUE", 1, {aDate}, Fixed, Type::Date, "jet_day_of($1)"},
    {"DAY", 1, {Date}, Fixed, Type::Integer, "jet_day($1)"},
    {"EXP", 1, {aDouble}, Fixed, Type::Double, "jet_exp($1)"},
    {"FIX", 1, {Number}, LikeFirst, Type::Null, "jet_fix($t, $1)"},
    {"FORMAT", 1, {Any, Text, Long, Long}, Fixed, Type::Text, "jet_format($t, $*)"},
    {"FORMATCURRENCY",
     1,
     {aNumber, Long, Long, Long, Long},
     Fixed,
     Type::Text,
     "jet_format_currency($t, $*)"},
    {"FORMATDATETIME", 1, {aDate, Long}, Fixed, Type::Text, "jet_format_date_time($t, $*)"},
    {"FORMATNUMBER", 1, {aNumber, Long, Long, Long, Long}, Fixed, Type::Text, "jet_format_number($t, $*)"},
    {"FORMATPERCENT", 1, {aNumber, Long, Long, Long, Long}, Fixed, Type::Text, "jet_format_percent($t, $*)"},
    {"HEX", 1, {Any}, Fixed, Type::Text, "jet_hex($t, $1)"},
    {"HOUR", 1, {Date}, Fixed, Type::Integer, "jet_hour($1)"},
    {"INSTR", 2, {Text, Text}, Fixed, Type::Long, "jet_instr(1, $*)"},
    {"INSTR", 3, {aLong, Text, Text, Long}, Fixed, Type::Long, "jet_instr($*)"},
    {"INSTRREV", 2, {Text, Text, Long, Long}, Fixed, Type::Long, "jet_instr_rev($*)"},
    {"INT", 1, {Number}, LikeFirst, Type::Null, "jet_int($t, $1)"},
    {"ISDATE", 1, {Any}, Fixed, Type::Boolean, "jet_is_date($t, $1)"},
    {"ISEMPTY", 1, {Any}, Fixed, Type::Boolean, "0"},
    {"ISERROR", 1, {Any}, Fixed, Type::Boolean, "0"},
    {"ISNUMERIC", 1, {Any}, Fixed, Type::Boolean, "jet_is_numeric($t, $1)"},
    {"ISOBJECT", 1, {Any}, Fixed, Type::Boolean, "0"},
    {"LCASE", 1, {Text}, Fixed, Type::Text, "jet_lower($1)"},
    {"LEFT", 2, {Text, aLong}, Fixed, Type::Text, "jet_left($*)"},
    {"LEN", 1, {Text}, Fixed, Type::Long, "jet_length($1)"},
    {"LOG", 1, {aDouble}, Fixed, Type::Double, "jet_log($1)"},
    {"LTRIM", 1, {Text}, Fixed, Type::Text, "jet_left_trim($1)"},
    {"MID", 2, {Text, aLong, Long}, Fixed, Type::Text, "jet_mid($*)"},
    {"MINUTE", 1, {Date}, Fixed, Type::Integer, "jet_minute($1)"},
    {"MONTH", 1, {Date}, Fixed, Type::Integer, "jet_month($1)"},
    {"MONTHNAME", 1, {aLong, Boolean}, Fixed, Type::Text, "jet_month_name($*)"},
    {"NOW", 0, {}, Fixed, Type::Date, "jet_now()"},
    {"OCT", 1, {Any}, Fixed, Type::Text, "jet_oct($t, $1)"},
    {"PARTITION", 4, {Long, Long, Long, Long}, Fixed, Type::Text, "jet_partition($*)"},
    {"REPLACE", 3, {aText, aText, aText, Long, Long, Long}, Fixed, Type::Text, "jet_replace($*)"},
    {"RIGHT", 2, {Text, aLong}, Fixed, Type::Text, "jet_right($*)"},
    {"RND", 0, {aDouble}, Fixed, Type::Single, "jet_rnd($*)"},
    {"ROUND", 1, {Number, Long}, LikeFirst, Type::Null, "jet_round($t, $*)"},
    {"RTRIM", 1, {Text}, Fixed, Type::Text, "jet_right_trim($1)"},
    {"SECOND", 1, {Date}, Fixed, Type::Integer, "jet_second($1)"},
    {"SGN", 1, {Double}, Fixed, Type::Integer, "sign($1)"},
    {"SIN", 1, {aDouble}, Fixed, Type::Double, "jet_sin($1)"},
    {"SPACE", 1, {aLong}, Fixed, Type::Text, "jet_space($1)"},
    {"SQR", 1, {aDouble}, Fixed, Type::Double, "jet_sqr($1)"},
    {"STR", 1, {Double}, Fixed, Type::Text, "jet_str($1)"},
    {"STRCOMP", 2, {Text, Text, Long}, Fixed, Type::Integer, "jet_str_comp($*)"},
    {"STRCONV", 2, {Text, aLong, Long}, Fixed, Type::Text, "jet_str_conv($*)"},
    {"STRING", 2, {Long, Any}, Fixed, Type::Text, "jet_string($*)"},
    {"STRREVERSE", 1, {aText}, Fixed, Type::Text, "jet_str_reverse($1)"},
    {"TAN", 1, {aDouble}, Fixed, Type::Double, "jet_tan($1)"},
    {"TIME", 0, {}, Fixed, Type::Date, "jet_time()"},
    {"TIME$", 0, {}, Fixed, Type::Text, "strftime('%H:%M:%S', jet_time() + 0.5)"},
    {"TIMER", 0, {}, Fixed, Type::Single, "jet_timer()"},
    {"TIMESERIAL", 3, {aLong, aLong, aLong}, Fixed, Type::Date, "jet_time_serial($*)"},
    {"TIMEVALUE", 1, {aDate}, Fixed, Type::Date, "jet_time_of($1)"},
    {"TRIM", 1, {Text}, Fixed, Type::Text, "jet_trim($1)"},
    {"TYPENAME", 1, {Any}, Fixed, Type::Text, "jet_type_name($t, $1)"},
    {"UCASE", 1, {Text}, Fixed, Type::Text, "jet_upper($1)"},
    {"VAL", 1, {aText}, Fixed, Type::Double, "jet_val($1)"},
    {"VARTYPE", 1, {Any}, Fixed, Type::Integer, "jet_var_type($t, $1)"},
    {"WEEKDAY", 1, {Date, Long}, Fixed, Type::Integer, "jet_weekday($*)"},
    {"WEEKDAYNAME", 1, {aLong, Boolean, Long}, Fixed, Type::Text, "jet_weekday_name($*)"},
    {"YEAR", 1, {Date}, Fixed, Type::Integer, "jet_year($1)"},
};

constexpr Function Choose{"CHOOSE", 2, {aLong}, Fixed, Type::Null, "jet_choose($*)"};
constexpr Function Identity{"@@IDENTITY", 0, {}, Fixed, Type::Long, "jet_identity()"};
constexpr Function Domain{"DLOOKUP",       4, {Any, Any, aText, aText, Text}, Fixed, Type::Variant,
                          "jet_domain($*)"};

}  // namespace

std::size_t Function::most() const {
  return static_cast<std::size_t>(std::ranges::find(arguments, None) - std::begin(arguments));
}

const Function* findFunction(const std::string& name, std::size_t arguments) {
  const bool dollar = name.ends_with('$');
  const std::string_view bare = std::string_view(name).substr(0, name.size() - dollar);
  const auto* found = std::ranges::find_if(Functions, [&](const Function& candidate) {
    const bool named = sameWord(name, candidate.name) || (dollar && sameWord(bare, candidate.name));
    return named && arguments >= candidate.least && arguments <= candidate.most() &&
           (!dollar || candidate.type == Type::Text);
  });
  return found == std::end(Functions) ? nullptr : found;
}

const Function& chooseFunction() {
  return Choose;
}

const Function& identityFunction() {
  return Identity;
}

const Function& domainFunction() {
  return Domain;
}

}  // namespace jet::sql
