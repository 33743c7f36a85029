#include "jet/dao/tables.h"

#include "jet/dao/constants.h"
#include "jet/dao/values.h"

namespace jet::dao {

namespace {

class SessionTableDef : public TableDef,
                        public FieldOwner,
                        public std::enable_shared_from_this<SessionTableDef> {
 public:
  SessionTableDef(std::shared_ptr<Session> session, std::uint32_t page)
      : session_(std::move(session)), page_(page) {}

  std::string Name() const override { return design().name; }
  std::size_t fieldCount() const override { return design().columns.size(); }
  Field Fields(std::size_t index) override {
    if (index >= fieldCount()) missing(std::to_string(index));
    const auto position = design().displayOrder()[index];
    return Field(shared_from_this(), design().columns[position].number);
  }
  Field Fields(std::string_view name) override {
    const auto position = design().find(name);
    if (!position) missing(name);
    return Field(shared_from_this(), design().columns[*position].number);
  }
  void deleteField(std::string_view name) override { session_->image().dropColumn(page_, name); }

  std::vector<Index> Indexes() const override {
    std::vector<Index> result;
    for (const auto& logical : design().logicalIndexes) result.push_back(index(logical));
    return result;
  }

  // A field is known by its column's number, which a rename keeps.
  std::string fieldName(std::size_t number) const override { return column(number).name; }
  void renameField(std::size_t number, const std::string& name) override {
    session_->image().renameColumn(page_, column(number).name, name);
  }
  int fieldType(std::size_t number) const override { return dataType(column(number).type); }
  int fieldSize(std::size_t number) const override { return dao::fieldSize(column(number)); }
  int fieldAttributes(std::size_t number) const override { return dao::fieldAttributes(column(number)); }
  runtime::Variant fieldValue(std::size_t) const override { invalidOperation(); }
  void setFieldValue(std::size_t, const runtime::Variant&) override { invalidOperation(); }

 private:
  const file::TableDefinition& design() const { return session_->image().definition(page_); }
  const file::Column& column(std::size_t number) const {
    const auto position = design().findNumber(static_cast<std::uint16_t>(number));
    if (!position) missing(std::to_string(number));
    return design().columns[*position];
  }
  Index index(const file::LogicalIndex& logical) const {
    const auto& real = design().realIndexes.at(logical.real);
    Index result;
    result.Name = logical.name;
    result.Primary = logical.kind == file::LogicalIndex::Kind::Primary;
    result.Foreign = logical.side == file::LogicalIndex::Side::Foreign;
    result.Unique = real.flags & file::RealIndex::Unique;
    result.Required = real.flags & file::RealIndex::Required;
    result.IgnoreNulls = real.flags & file::RealIndex::IgnoreNulls;
    for (const auto& part : real.columns)
      result.Fields.push_back({column(part.column).name, !part.ascending});
    return result;
  }
  [[noreturn]] static void missing(std::string_view name) {
    throw runtime::Error(3265, "DAO.Fields", "Elemento inesistente nell'insieme: " + std::string(name));
  }
  [[noreturn]] static void invalidOperation() {
    throw runtime::Error(3219, "DAO.Field", "Operazione non valida: il campo non appartiene a un recordset");
  }

  std::shared_ptr<Session> session_;
  std::uint32_t page_;
};

}  // namespace

TableDefPtr tableDef(std::shared_ptr<Session> session, std::string_view name) {
  const auto* table = session->image().find(name);
  if (!table) throw runtime::Error(3265, "DAO.TableDefs", "Tabella inesistente: " + std::string(name));
  return std::make_shared<SessionTableDef>(session, table->page);
}

}  // namespace jet::dao
