#pragma once

#include <memory>
#include <string>
#include <vector>

#include "jet/dao/recordset/positioned_recordset.h"

namespace jet::dao {

/// Rows kept as they were when the query ran; also a dynaset whose rows can't be named.
class SnapshotRecordset : public PositionedRecordset {
 public:
  SnapshotRecordset(std::shared_ptr<Session> session, Origin origin, sql::RowStatement plan, Answers answers);
  runtime::Variant fieldValue(std::size_t index) const override;
  void setFieldValue(std::size_t, const runtime::Variant&) override { refuse(); }
  void Edit() override { refuse(); }
  void AddNew() override { refuse(); }
  void Update() override { refuse(); }
  void CancelUpdate() override { refuse(); }
  void Delete() override { refuse(); }
  RecordsetPtr OpenRecordset() override;
  RecordsetPtr Clone() override;
  void Requery() override;
  void Close() override;

 private:
  /// The table of the image that holds the rows; dropped when the last recordset over it goes.
  struct Rows {
    Rows(std::shared_ptr<Session> owner, std::string columns);
    ~Rows();
    Rows(const Rows&) = delete;
    Rows& operator=(const Rows&) = delete;
    void count();
    /// False once a rollback has taken the table away.
    bool there() const;
    std::shared_ptr<Session> session;
    std::string table;
    std::int64_t size = 0;
  };

  SnapshotRecordset(const SnapshotRecordset& other, std::vector<RowFilter> rowFilters);

  std::int64_t count() const override { return rows_ ? rows_->size : 0; }
  void moved() override;
  std::unique_ptr<RecordSearch> makeSearch() override;
  void fill();
  void filterRows(const RowFilter& rowFilter);
  std::shared_ptr<Rows> newRows();
  void use(std::shared_ptr<Rows> rows);
  [[noreturn]] void refuse() const;

  sql::RowStatement plan_;
  Answers answers_;
  std::shared_ptr<Rows> rows_;
  image::Statement fetch_;
  image::Prepared<> there_;  // rows_, at the last look
};

}  // namespace jet::dao
