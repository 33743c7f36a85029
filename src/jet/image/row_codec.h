#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "jet/file/page/page_file.h"
#include "jet/file/row.h"
#include "jet/image/connection.h"

/// Fields on their way between the file's form and the image's. The image keeps
///   Boolean INTEGER -1 or 0, Byte Integer Long INTEGER, Currency INTEGER in ten-thousandths, Single Double
///   Date REAL (what is no number: BLOB of its bytes), Text Memo TEXT, Numeric TEXT of decimal digits, Guid
///   Binary OLE Raw BLOB.
namespace jet::image {

/// SQLite type and collation of a column of the image ("TEXT COLLATE JET").
const char* columnDeclaration(file::ColumnType type);

/// Binds the fields of rows from a file to an INSERT, parameter i+1 for column i; keeps the texts of one row.
class FieldBinder {
 public:
  FieldBinder(const file::PageFile& source, const file::TableDefinition& table)
      : header_(source.header()), table_(table), texts_(table.columns.size()) {}
  void bind(sqlite3_stmt* statement, const file::Row& row);
  /// Gives field `column` of `row` as the result of a function or virtual table.
  void result(sqlite3_context* context, const file::Row& row, std::size_t column);

 private:
  const file::Header& header_;
  const file::TableDefinition& table_;
  std::vector<std::string> texts_;
};

/// The rows of a table of the image in the order of their rowids, for the writer.
class ImageRows : public file::RowSource {
 public:
  ImageRows(const Connection& connection, file::TableDefinition table);
  bool next(file::Row& row) override;

 private:
  file::FieldBytes encode(std::size_t column);

  file::TableDefinition table_;
  Statement statement_;
  std::vector<std::vector<std::byte>> buffers_;
};

/// "t<page>", the table's name in the image.
std::string tableName(std::uint32_t page);
/// "c<number>"
std::string columnName(std::uint16_t number);

}  // namespace jet::image
