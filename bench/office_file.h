#pragma once

#include <string>

namespace bench {

/// Makes an office's database with `rows` rows (about 210 bytes each in the file) in the table storico_quote,
/// and small ones: KepGenerali, the six control tables, italia_comuni. Paths with backslashes.
void makeOffice(const std::string& path, long rows);
/// Makes the reference database that a batch run on it needs: its application, an empty catalogue.
void makeReference(const std::string& path);

}  // namespace bench
