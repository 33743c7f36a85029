#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "jet/image/image.h"
#include "jet/sql/compile.h"

namespace jet::dao {

using sql::Answers;

/// Error 3061 while a parameter of `plan` is not answered.
void bindAnswers(image::Statement& statement, const sql::RowStatement& plan, const Answers& answers);

/// An UPDATE, INSERT or DELETE, prepared once and carried out with changing answers as long as the image's
/// design stays what it is.
class RowChanges {
 public:
  RowChanges(image::Image& image, sql::RowStatement plan);

  /// With `failOnError` all rows are changed or none. Without it, rows that a key, a rule, a relation or a
  /// conversion refuses are left out and the rest is done; other errors leave everything as it was. Gives the
  /// number of rows changed.
  std::int64_t run(const Answers& answers, bool failOnError);

 private:
  std::int64_t runWhole(const Answers& answers);
  std::int64_t runRowByRow(const Answers& answers, bool failOnError);
  void noteChange();

  image::Image& image_;
  sql::RowStatement plan_;
  image::Statement whole_;
  bool manyRowsInserted_ = false, readsLinks_ = false;
};

/// True if a table of `plan` lies in another file, which may change at any time.
bool readsLinks(const image::Image& image, const sql::RowStatement& plan);
/// Makes the tables of `plan` ready for it.
void makeReady(image::Image& image, const sql::RowStatement& plan);

}  // namespace jet::dao
