#pragma once

#include <string_view>

/// How Italy writes numbers, money, dates and answers: what the language takes from the system's settings.
namespace runtime::italian {

constexpr char DecimalSign = ',';
constexpr char ThousandsSign = '.';
constexpr std::string_view Euro = "€";

constexpr int FirstDayOfWeek = 2;  // Monday

// In the codes of Format.
constexpr std::string_view GeneralDate = "c";
constexpr std::string_view ShortDate = "dd/mm/yyyy";
constexpr std::string_view MediumDate = "dd-mmm-yy";
constexpr std::string_view LongDate = "dddd d mmmm yyyy";
constexpr std::string_view ShortTime = "hh:nn";
constexpr std::string_view MediumTime = "hh:nn AM/PM";
constexpr std::string_view LongTime = "hh:nn:ss";
constexpr std::string_view Currency = "\"€ \"#,##0.00";

}  // namespace runtime::italian
