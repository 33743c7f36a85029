#pragma once

namespace bench {

/// Prints one line of a report: a figure and the bound that it is held to ("<", "<=" or ">="; none where
/// `aim` is 0).
void report(const char* what, double figure, const char* unit, const char* relation, double aim);

}  // namespace bench
