#pragma once

#include <functional>
#include <random>
#include <string>
#include <vector>

#include "jet/dao/engine.h"
#include "model.h"

namespace model {

/// Plays random steps on a database and on its model, and compares what both say.
class Play {
 public:
  /// The database at `path` is made; the same seed plays the same steps.
  Play(std::string path, unsigned seed);

  /// One session: opens, some steps with their transactions, closes. Empty, or what was different.
  std::string session();
  const std::string& log() const { return log_; }

 private:
  using Step = void (Play::*)();
  using Change = std::function<int(Database&)>;
  struct WeightedStep {
    unsigned weight;
    Step run;
  };
  static const std::vector<WeightedStep>& steps();

  // Data
  void insertRows();
  void takeNumber(const std::string& table);
  void addRecord();
  void editRecord();
  void deleteRecord();
  void changeByKey();
  // Design
  void createTable();
  void defineTable();
  void dropTable();
  void addColumn();
  void dropColumn();
  void renameColumn();
  void moveColumn();
  void createIndex();
  void dropIndex();
  void createRelation();
  void dropRelation();
  // Transactions
  void begin();
  void commit();
  void rollBack();

  /// Does `work` to the database and `change` (which gives an error's number) to the model, keeps the change
  /// if there is no error, and notes a difference in the errors.
  bool both(const std::string& what, const std::function<void()>& work, const Change& change);
  /// The same for a statement, and for what can be done by a statement or with objects.
  bool both(const std::string& sql, const Change& change);
  bool either(const std::string& sql, const std::function<void()>& work, const Change& change);
  void finish();
  void compact();
  /// The database as the model would show it, read from the file by an own opening.
  Database readBack() const;

  unsigned below(unsigned limit) { return std::uniform_int_distribution<unsigned>(0, limit - 1)(random_); }
  bool oneIn(unsigned count) { return below(count) == 0; }
  Table* anyTable();
  Table* anyTableWithRows();
  const Index* anyIndex(Table*& table);
  std::string newName();
  Column newColumn(Table& table);
  runtime::Variant valueFor(const Column& column);
  Row rowFor(const Table& table);
  /// A record of the table under the cursor of a dynaset, at this place.
  jet::dao::RecordsetPtr at(const Table& table, std::size_t row);

  std::string path_;
  std::mt19937 random_;
  jet::dao::Workspace workspace_;
  jet::dao::DatabasePtr db_;
  Database model_;
  std::vector<Database> saved_;  // one for each open transaction
  unsigned names_ = 0;
  std::string log_, difference_;
};

}  // namespace model
