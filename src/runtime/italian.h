#pragma once

#include <string_view>

/// How Italy writes numbers, money, dates and answers: what the language takes from the system's settings.
namespace runtime::italian {

constexpr char decimalSign = ',';
constexpr char thousandsSign = '.';
constexpr std::string_view euro = "€";

constexpr int firstDayOfWeek = 2;  // Monday

// In the codes of Format.
constexpr std::string_view generalDate = "c";
constexpr std::string_view shortDate = "dd/mm/yyyy";
constexpr std::string_view mediumDate = "dd-mmm-yy";
constexpr std::string_view longDate = "dddd d mmmm yyyy";
constexpr std::string_view shortTime = "hh:nn";
constexpr std::string_view mediumTime = "hh:nn AM/PM";
constexpr std::string_view longTime = "hh:nn:ss";
constexpr std::string_view currency = "\"€ \"#,##0.00";

}  // namespace runtime::italian
