#include <cstring>
#include <limits>

#include "desk.h"
#include "jet/file/read/table_reader.h"
#include "jet/image/decimal.h"

namespace {

using desk::Desk;
using Bytes = std::vector<std::byte>;

template <typename Number>
Bytes raw(Number number) {
  Bytes bytes(sizeof number);
  std::memcpy(bytes.data(), &number, sizeof number);
  return bytes;
}

/// One row whose fields are given as the file has them.
class OneRow : public jet::file::RowSource {
 public:
  explicit OneRow(std::vector<Bytes> fields) : fields_(std::move(fields)) {}
  bool next(jet::file::Row& row) override {
    if (given_) return false;
    row.clear();
    for (const auto& field : fields_) row.push_back({false, field});
    return given_ = true;
  }

 private:
  std::vector<Bytes> fields_;
  bool given_ = false;
};

std::vector<Bytes> firstRow(Desk& desk, const std::string& table) {
  const auto& definition = *desk.image().definition(table);
  jet::file::TableReader reader(desk.image().source(), definition);
  jet::file::Row row;
  EXPECT_TRUE(reader.next(row));
  std::vector<Bytes> fields;
  for (const auto& field : row) fields.emplace_back(field.bytes.begin(), field.bytes.end());
  return fields;
}

TEST(Values, ThoseThatStatementsCannotMakeSurviveARewrite) {
  Desk desk(
      {"CREATE TABLE t (d DOUBLE, s SINGLE, q DATETIME, n DECIMAL(28, 4), m DECIMAL(28, 0), altro LONG)"});
  Bytes decimal(17), largest(17, std::byte{0xFF});
  largest[0] = std::byte{0x80};
  // A number of 30 digits.
  jet::image::decimalToBytes(
      {.negative = false, .scale = 4, .magnitude = (__extension__(unsigned __int128){1} << 98) + 7},
      std::span<std::byte, 17>(decimal.data(), 17));
  const std::vector<Bytes> fields = {raw(std::numeric_limits<double>::quiet_NaN()),
                                     raw(std::numeric_limits<float>::signaling_NaN()),
                                     raw(std::numeric_limits<double>::infinity()),
                                     decimal,
                                     largest,
                                     raw(std::int32_t{1})};
  {
    jet::file::Changes changes;
    changes.tables.push_back({*desk.image().definition("t"), std::make_unique<OneRow>(fields)});
    platform::Replacement replacement(desk.path("b.mdb"));
    jet::file::writeChanged(desk.image().source(), std::move(changes), replacement.file());
    replacement.publish();
  }
  desk.goOnWith(desk.path("b.mdb"));
  ASSERT_EQ(firstRow(desk, "t"), fields);
  EXPECT_EQ(desk.run("UPDATE t SET altro = 2"), 1);
  desk.reopen();
  auto expected = fields;
  expected.back() = raw(std::int32_t{2});
  EXPECT_EQ(firstRow(desk, "t"), expected);
}

}  // namespace
