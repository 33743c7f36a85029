// Queries and reference tables taken along from a model.
#include "apps/catalogo/contents.h"

#include "jet/dao/database.h"

namespace catalogo {
namespace {

using namespace jet::dao;

/// The columns alone: the keys and rules are the target's.
void copyDesign(Database& reference, TableDef& table, const std::string& name) {
  const auto copy = reference.CreateTableDef(name);
  for (const auto& field : table.Fields()) {
    const auto column = copy->CreateField(field.Name(), field.Type(), field.Size());
    column.setAttributes(field.Attributes() & ~dbAutoIncrField);
    column.setPrecision(field.precision());
    column.setScale(field.scale());
    if (field.Type() == dbText || field.Type() == dbMemo) column.setAllowZeroLength(field.AllowZeroLength());
    copy->Fields().Append(column);
  }
  reference.TableDefs().Append(copy);
}

}  // namespace

std::size_t copyQueries(Database& reference, Database& model) {
  std::size_t copied = 0;
  for (const auto& query : model.QueryDefs()) {
    const std::string name = query->Name();
    if (name.starts_with("~")) continue;
    if (reference.QueryDefs().contains(name))
      reference.QueryDefs(name)->setSQL(query->SQL());
    else
      reference.CreateQueryDef(name, query->SQL());
    ++copied;
  }
  return copied;
}

std::size_t copyTable(Database& reference, Database& model, const std::string& prefix,
                      const std::string& name) {
  const auto table = model.TableDefs(name);
  const std::string copy = prefix + table->Name(), link = "link" + table->Name();
  if (reference.TableDefs().contains(copy)) reference.TableDefs().Delete(copy);
  copyDesign(reference, *table, copy);
  const auto source = reference.CreateTableDef(link);
  source->setConnect(";DATABASE=" + model.Name());
  source->setSourceTableName(table->Name());
  reference.TableDefs().Append(source);
  reference.Execute("INSERT INTO [" + copy + "] SELECT * FROM [" + link + "]", dbFailOnError);
  const auto rows = reference.RecordsAffected();
  reference.TableDefs().Delete(link);
  return static_cast<std::size_t>(rows);
}

}  // namespace catalogo
