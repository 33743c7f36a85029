#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

#include "jet/sql/syntax_error.h"
#include "office.h"
#include "platform/files.h"

namespace jet::dao {
namespace {

namespace fs = std::filesystem;
using office::errorOf;
using office::rows;

const std::vector<std::string> Office = {
    "CREATE TABLE ragioniere (cd_matr LONG CONSTRAINT pk PRIMARY KEY, ds_cognome TEXT(40), cd_comune "
    "TEXT(4))",
    "CREATE TABLE comune (cd_comune TEXT(4), ds_comune TEXT(40))",
    "INSERT INTO ragioniere VALUES (1, 'Rossi', 'A001')",
    "INSERT INTO ragioniere VALUES (2, 'Bianchi', 'B002')",
    "INSERT INTO ragioniere VALUES (3, 'Verdi', 'A001')",
    "INSERT INTO comune VALUES ('A001', 'Abano')",
    "INSERT INTO comune VALUES ('B002', 'Bari')",
};

/// Joined by blanks.
std::string queryNames(Database& db) {
  std::string names;
  for (const auto& query : db.QueryDefs()) names += (names.empty() ? "" : " ") + query->Name();
  return names;
}

class StoredQueries : public testing::Test {
 protected:
  void SetUp() override {
    office::make(path_, Office);
    open();
  }
  void open() { db_ = workspace_.OpenDatabase(path_, true); }
  void reopen() {
    db_->Close();
    open();
  }
  void store(const std::string& name, const std::string& sql) { db_->CreateQueryDef(name, sql)->Close(); }
  std::string names() { return queryNames(*db_); }
  std::string read(const std::string& source) { return rows(*db_->OpenRecordset(source)); }

  support::TempFolder folder_;
  std::string path_ = folder_.path("albo.mdb");
  Workspace workspace_;
  DatabasePtr db_;
};

TEST_F(StoredQueries, StandWhereATableStands) {
  store("Con comune",
        "SELECT cd_matr, ds_cognome, ds_comune FROM ragioniere AS r INNER JOIN comune AS c ON "
        "r.cd_comune = c.cd_comune");
  store("Di Abano", "SELECT ds_cognome FROM [Con comune] WHERE ds_comune = 'Abano' ORDER BY ds_cognome DESC");
  store("Tutti i nomi", "SELECT ds_cognome AS nome FROM ragioniere UNION SELECT ds_comune FROM comune");
  store("Per comune",
        "PARAMETERS parComune Text; SELECT cd_matr FROM ragioniere WHERE cd_comune = parComune");
  store("Incrocio",
        "TRANSFORM Count(*) SELECT Left(ds_cognome, 1) AS iniziale FROM ragioniere GROUP BY "
        "Left(ds_cognome, 1) PIVOT cd_comune IN ('A001', 'B002')");
  for (int pass = 0; pass < 2; ++pass) {
    EXPECT_EQ(read("Incrocio"), "B|Null|1 R|1|Null V|1|Null");
    EXPECT_EQ(read("SELECT iniziale FROM Incrocio WHERE A001 = 1 ORDER BY iniziale"), "R V");
    EXPECT_EQ(read("Di Abano"), "Verdi Rossi");
    EXPECT_EQ(read("SELECT Count(*) FROM [tutti I nomi] WHERE nome LIKE 'B*'"), "2");
    EXPECT_EQ(read("SELECT x.ds_cognome FROM [Di Abano] AS x, comune WHERE ds_comune = 'Bari' ORDER BY 1"),
              "Rossi Verdi");
    // The query's parameters are those of the statement around it.
    const auto query = db_->CreateQueryDef("", "SELECT Count(*) FROM [Per comune] WHERE cd_matr > [da]");
    EXPECT_EQ(errorOf([&] { query->OpenRecordset(); }), 3061);
    query->Parameters("parComune").setValue("A001");
    query->Parameters("da").setValue(std::int32_t{1});
    EXPECT_EQ(rows(*query->OpenRecordset()), "1");
    reopen();
  }
  EXPECT_EQ(office::complaints((db_->Close(), path_)), "");
}

TEST_F(StoredQueries, ACrosstabHasAsManyColumnsAsItsRowsHaveValues) {
  db_->Execute(
      "CREATE TABLE rata (id LONG, anno LONG, data DATETIME, importo CURRENCY, tipo TEXT(9), si BIT)");
  for (const char* row : {"5, 2025, #2/1/2025#, 10.5, 'b.c', True", "1, 2025, #1/31/2025#, 4, 'a', False",
                          "3, 2026, #1/31/2025#, 2, Null, False", "2, 2026, #1/31/2025#, 7, 'a', True"})
    db_->Execute("INSERT INTO rata VALUES (" + std::string(row) + ")", dbFailOnError);
  const struct {
    const char *value, *pivot, *names, *rows;
  } cases[] = {
      {"Sum(importo)", "tipo", "<> a b_c", "2025|Null|4|10,5 2026|2|7|Null"},
      {"Count(*)", "importo", "2 4 7 10,5", "2025|Null|1|Null|1 2026|1|Null|1|Null"},
      {"First(importo)", "data", "31/01/2025 01/02/2025", "2025|4|10,5 2026|2|Null"},
      {"Last(id)", "1", "1", "2025|1 2026|2"},
      {"Max(id) - Min(id)", "si", "-1 0", "2025|0|0 2026|0|0"},
      {"Sum(id)", "Format(data, 'mm') & '!'", "01_ 02_", "2025|1|5 2026|5|Null"},
      {"Sum(id)", "id / 10", "0,1 0,2 0,3 0,5", "2025|1|Null|Null|5 2026|Null|2|3|Null"},
  };
  for (const auto& test : cases) {
    const auto found = db_->OpenRecordset(std::string("TRANSFORM ") + test.value + " SELECT anno FROM rata " +
                                          "GROUP BY anno PIVOT " + test.pivot);
    std::string names;
    for (std::size_t i = 1; i < found->Fields().Count(); ++i)
      names += (i > 1 ? " " : "") + found->Fields(i).Name();
    EXPECT_EQ(names, test.names) << test.pivot;
    EXPECT_EQ(rows(*found), test.rows) << test.pivot;
  }

  store("Per tipo",
        "PARAMETERS dal Long; TRANSFORM Sum(importo) SELECT anno FROM rata WHERE anno >= [dal] "
        "GROUP BY anno PIVOT tipo");
  store("Sopra", "TRANSFORM Sum([a]) SELECT 'a' AS chi FROM [Per tipo] GROUP BY 'a' PIVOT anno");
  const auto above = db_->QueryDefs("Sopra");
  EXPECT_EQ(errorOf([&] { above->OpenRecordset(); }), 3061);
  above->Parameters("dal").setValue(std::int32_t{2025});
  EXPECT_EQ(rows(*above->OpenRecordset()), "a|4|7");
  const auto kept = db_->CreateQueryDef("", "SELECT * INTO copia FROM [Per tipo]");
  kept->Parameters("dal").setValue(std::int32_t{2026});
  kept->Execute(dbFailOnError);
  EXPECT_EQ(read("copia"), "2026|2|7");
  db_->Execute("DROP TABLE copia");
  db_->Execute("INSERT INTO rata (anno, tipo, importo) VALUES (2026, 'z', 1)", dbFailOnError);
  kept->Execute(dbFailOnError);
  EXPECT_EQ(read("copia"), "2026|2|7|1");
  EXPECT_EQ(errorOf([&] {
              read("TRANSFORM Sum(id) SELECT anno FROM rata WHERE id > [manca] GROUP BY anno PIVOT tipo");
            }),
            3070);
}

TEST_F(StoredQueries, ARingOfThemIsAnError) {
  store("Uno", "SELECT * FROM Due");
  store("Due", "SELECT * FROM Uno");
  store("Se stessa", "SELECT * FROM [Se stessa]");
  EXPECT_EQ(errorOf([&] { read("Uno"); }), 3360);
  EXPECT_EQ(errorOf([&] { read("Se stessa"); }), 3360);

  store("Rotta", "SELECT a FROM nessuna");
  try {
    read("SELECT * FROM ragioniere, Rotta");
    ADD_FAILURE();
  } catch (const sql::SyntaxError& error) {
    EXPECT_EQ(error.number(), 3078);
    EXPECT_EQ(error.position(), 26u);  // where the statement names the query, not within the query's own text
    EXPECT_NE(error.description().find("Rotta"), std::string::npos) << error.description();
    EXPECT_NE(error.description().find("nessuna"), std::string::npos) << error.description();
  }
}

TEST_F(StoredQueries, ActionsRunByTheirName) {
  store("Trasloca",
        "PARAMETERS parDa Text; UPDATE ragioniere SET cd_comune = 'B002' WHERE cd_comune = parDa");
  store("Svuota comuni", "DELETE FROM comune");
  db_->Execute("Svuota comuni", dbFailOnError);
  EXPECT_EQ(db_->RecordsAffected(), 2);
  EXPECT_EQ(errorOf([&] { db_->Execute("Trasloca", dbFailOnError); }), 3061);
  const auto query = db_->QueryDefs("trasloca");
  query->Parameters(std::size_t{0}).setValue("A001");
  query->Execute(dbFailOnError);
  EXPECT_EQ(query->RecordsAffected(), 2);
  EXPECT_EQ(errorOf([&] { db_->OpenRecordset("Trasloca"); }), 3219);
  EXPECT_EQ(errorOf([&] { read("SELECT * FROM Trasloca"); }), 3078);
  EXPECT_EQ(errorOf([&] { db_->Execute("Nessuna", dbFailOnError); }), 3129);
  store("Elenco", "SELECT * FROM ragioniere");
  EXPECT_EQ(errorOf([&] { db_->Execute("Elenco", dbFailOnError); }), 3065);
  EXPECT_EQ(errorOf([&] { db_->OpenRecordset("Elenco", dbOpenTable); }), 3219);
}

TEST_F(StoredQueries, ExecuteGivesTheParametersByTheirPlaces) {
  store("Trasloca",
        "PARAMETERS parDa Text, parA Text; UPDATE ragioniere SET cd_comune = [parA] WHERE cd_comune "
        "= [parDa] AND cd_matr < [fino]");
  store("Chi sta a", "PARAMETERS dove Text; SELECT ds_cognome FROM ragioniere WHERE cd_comune = dove");
  db_->Execute("EXECUTE Trasloca 'A001', Left('C003bis', 4), 1 + 1", dbFailOnError);
  EXPECT_EQ(db_->RecordsAffected(), 1);
  EXPECT_EQ(rows(*db_->OpenRecordset("EXEC [chi sta a] 'C003';")), "Rossi");
  const std::pair<const char*, int> wrong[] = {
      {"EXECUTE Trasloca 'A001', 'B002'", 3061}, {"EXECUTE [Chi sta a] 'A001', 1", 3061},
      {"EXECUTE [Chi sta a] dove", 3075},        {"EXECUTE Nessuna", 3078},
      {"EXECUTE [Chi sta a] 'A001'", 3065},
  };
  for (const auto& [sql, number] : wrong)
    EXPECT_EQ(errorOf([&, text = sql] { db_->Execute(text, dbFailOnError); }), number) << sql;
}

TEST_F(StoredQueries, ThatOnlySelectRowsLetThemBeChanged) {
  store("Di Abano",
        "PARAMETERS dove Text; SELECT r.* FROM ragioniere AS r WHERE r.cd_comune = [dove] OR cd_matr = 2");
  store("Nomi", "SELECT DISTINCT ds_cognome FROM ragioniere");
  const auto run = [&](const char* sql) {
    const auto query = db_->CreateQueryDef("", sql);
    query->Parameters("dove").setValue("A001");
    query->Execute(dbFailOnError);
    return query->RecordsAffected();
  };
  EXPECT_EQ(run("UPDATE [Di Abano] SET ds_cognome = UCase(ds_cognome) WHERE [Di Abano].cd_matr < 3"), 2);
  EXPECT_EQ(run("DELETE FROM [Di Abano] AS d WHERE d.cd_matr <> 1"), 2);
  EXPECT_EQ(read("ragioniere"), "1|ROSSI|A001");
  EXPECT_EQ(errorOf([&] { db_->Execute("UPDATE Nomi SET ds_cognome = 'x'", dbFailOnError); }), 3073);
  EXPECT_EQ(errorOf([&] { db_->Execute("DELETE FROM Nomi", dbFailOnError); }), 3073);
}

TEST_F(StoredQueries, AreRewrittenInPlace) {
  store("Elenco", "SELECT * FROM ragioniere");
  store("Altra", "SELECT 1");
  const auto id = [&] { return read("SELECT Id FROM MSysObjects WHERE Name = 'Elenco'"); };
  const std::string before = id();
  const auto query = db_->QueryDefs("ELENCO");
  EXPECT_EQ(query->SQL(), "SELECT *\r\nFROM ragioniere;\r\n");
  EXPECT_EQ(query->Type(), dbQSelect);

  // Rows whose meaning nobody knows survive.
  db_->Execute(
      "INSERT INTO MSysQueries (ObjectId, Attribute, [Order], Expression) SELECT ObjectId, 77, [Order], 'x' "
      "FROM MSysQueries WHERE Attribute = 0 AND ObjectId = " +
      before);
  query->setSQL("UPDATE nessuna SET a = 1 WHERE b = [p]");
  EXPECT_EQ(query->Type(), dbQUpdate);
  EXPECT_EQ(id(), before);
  EXPECT_GE(query->LastUpdated().toDouble(), query->DateCreated().toDouble());
  const std::string text = "UPDATE nessuna SET a = 1\r\nWHERE b = [p];\r\n";
  for (const char* wrong : {"SELECT FROM", "", "UPDATE T SET", "SELECT a FROM T WHERE ("}) {
    EXPECT_NE(errorOf([&] { query->setSQL(wrong); }), 0) << wrong;
    EXPECT_EQ(query->SQL(), text);
  }
  EXPECT_EQ(errorOf([&] { query->setName("Altra"); }), 3012);
  EXPECT_EQ(errorOf([&] { query->setName("ragioniere"); }), 3012);
  EXPECT_EQ(errorOf([&] { query->setName("a.b"); }), 3125);
  query->setName("elenco");
  query->setName("Modifica");
  reopen();
  EXPECT_EQ(names(), "Modifica Altra");
  EXPECT_EQ(db_->QueryDefs("Modifica")->SQL(), text);
  EXPECT_EQ(read("SELECT Expression FROM MSysQueries WHERE Attribute = 77"), "x");
}

TEST_F(StoredQueries, NamesAreTakenOnceAndFreedAgain) {
  store("Elenco", "SELECT * FROM nessuna");
  EXPECT_EQ(errorOf([&] { store("elenco", "SELECT 1"); }), 3012);
  EXPECT_EQ(errorOf([&] { store("Ragioniere", "SELECT 1"); }), 3012);
  EXPECT_EQ(errorOf([&] { store("Sbagliata", "SELECT a FROM T WHERE a ="); }), 3075);
  EXPECT_EQ(errorOf([&] { db_->Execute("CREATE TABLE Elenco (a LONG)"); }), 3012);
  EXPECT_EQ(errorOf([&] { db_->QueryDefs().Delete("Sbagliata"); }), 3265);
  const auto query = db_->QueryDefs("Elenco");
  db_->QueryDefs().Delete("ELENCO");
  EXPECT_EQ(errorOf([&] { query->SQL(); }), 3420);
  EXPECT_EQ(errorOf([&] { db_->QueryDefs("Elenco"); }), 3265);
  EXPECT_EQ(read("SELECT Count(*) FROM MSysQueries"), "0");
  db_->Execute("CREATE TABLE Elenco (a LONG)");
  EXPECT_EQ(read("Elenco"), "");
  workspace_.BeginTrans();
  store("Nuova", "SELECT 2");
  EXPECT_EQ(read("Nuova"), "2");
  workspace_.Rollback();
  EXPECT_EQ(names(), "");
  EXPECT_EQ(errorOf([&] { read("SELECT * FROM Nuova"); }), 3078);
  // A text that was read before is not taken for the one that is there now.
  store("Cambia", "SELECT 1 AS n");
  EXPECT_EQ(read("SELECT n FROM Cambia"), "1");
  db_->QueryDefs("Cambia")->setSQL("SELECT 2 AS n");
  EXPECT_EQ(read("SELECT n FROM Cambia"), "2");
  db_->Execute("UPDATE MSysQueries SET Expression = '3' WHERE Attribute = 6");
  EXPECT_EQ(read("SELECT n FROM Cambia"), "3");
  db_->QueryDefs("Cambia")->setName("Cambiata");
  EXPECT_EQ(errorOf([&] { read("SELECT n FROM Cambia"); }), 3078);
}

TEST_F(StoredQueries, NothingIsStoredInAReadOnlyDatabase) {
  store("Elenco", "SELECT * FROM ragioniere");
  db_->Close();
  db_ = workspace_.OpenDatabase(path_, false, true);
  EXPECT_EQ(errorOf([&] { store("Altra", "SELECT 1"); }), 3027);
  EXPECT_EQ(errorOf([&] { db_->QueryDefs("Elenco")->setSQL("SELECT 1"); }), 3027);
  EXPECT_EQ(errorOf([&] { db_->QueryDefs("Elenco")->setName("Altra"); }), 3027);
  EXPECT_EQ(errorOf([&] { db_->QueryDefs().Delete("Elenco"); }), 3027);
  EXPECT_EQ(read("SELECT Count(*) FROM Elenco"), "3");
}

TEST_F(StoredQueries, AreSeenByASecondReader) {
  store("somme",
        "SELECT r.cd_comune AS codice, Count(*) AS quanti FROM ragioniere r INNER JOIN comune ON "
        "r.cd_comune = comune.cd_comune WHERE r.cd_matr > 1 GROUP BY r.cd_comune HAVING Count(*) > 2 "
        "ORDER BY r.cd_comune DESC");
  db_->Close();
  EXPECT_EQ(office::complaints(path_), "");
  // It renders neither joins nor grouping, and bytes only up to a zero; the rows it reads like any.
  EXPECT_EQ(support::runCommand("mdb-queries " + office::system(path_) + " somme").output,
            "SELECT r.cd_comune,Count(*) FROM [ragioniere],[comune] WHERE r.cd_matr > 1 "
            "ORDER BY r.cd_comune DESCENDING\n");
  const auto rows = office::exported(path_, "MSysQueries");
  for (const char* row :
       {",7,,\"r\",\"comune\",\"r.cd_comune = comune.cd_comune\",1,", ",9,,,,\"r.cd_comune\",",
        ",10,,,,\"Count(*) > 2\",", ",6,,\"codice\",,\"r.cd_comune\",0,"})
    EXPECT_NE(rows.find(row), std::string::npos) << row << "\n" << rows;
}

/// Rows of the stored queries of a file as lines, as far as a text can tell them: the order of sources that
/// are joined, an options row without options, a start row's empty flag and the alias of a pivot's heading
/// are left out, and with them the pass-through queries, which are made with a connection and not from a
/// text.
std::set<std::string> storedRows(Database& db) {
  enum Column { Name, Flags, Attribute, Order, Name1, Name2, Expression, Flag };
  const auto found = db.OpenRecordset(
      "SELECT o.Name, o.Flags, q.Attribute, q.[Order], q.Name1, q.Name2, q.Expression, q.Flag "
      "FROM MSysQueries AS q INNER JOIN MSysObjects AS o ON q.ObjectId = o.Id ORDER BY q.Attribute DESC",
      dbOpenSnapshot);
  std::set<std::string> lines, joined;  // joins come before sources
  for (; !found->atEnd(); found->MoveNext()) {
    std::vector<std::string> fields;
    for (const auto& field : found->Fields()) fields.push_back(office::text(field.Value()));
    const std::string name = fields[Name], attribute = fields[Attribute], flag = fields[Flag];
    const int kind = std::stoi(fields[Flags]) & 0xF0;
    if (kind == dbQSQLPassThrough || attribute == "0" || (attribute == "3" && flag == "0")) continue;
    if (attribute == "7") joined.insert(name);
    if (attribute == "5" && joined.contains(name)) fields[Order].clear();
    // In crosstabs the value, the headings and the pivot may stand in any order.
    if (kind == dbQCrosstab && (attribute == "6" || attribute == "9")) fields[Order].clear();
    if (kind == dbQCrosstab && attribute == "6" && flag == "1") fields[Name1].clear();
    fields[Flags].clear();
    std::string line;
    for (const auto& field : fields) line += field + "|";
    lines.insert(line);
  }
  return lines;
}

std::vector<fs::path> corpusFiles() {
  std::vector<fs::path> files;
  for (const char* folder : {"/corpus/jet3", "/corpus/jet4"})
    for (const auto& entry : fs::directory_iterator(office::jetData() + folder))
      files.push_back(entry.path());
  return files;
}

/// The words of a query as the second reader renders it, in any order: joined sources may change places.
std::multiset<std::string> rendered(const std::string& path, const std::string& name) {
  std::string text =
      support::runCommand("mdb-queries " + office::system(path) + " " + support::shellWord(name)).output;
  std::ranges::replace(text, ',', ' ');
  std::istringstream in(text);
  return {std::istream_iterator<std::string>(in), {}};
}

/// Stores every query of the corpus anew, from the text that was put together of the engine's rows.
TEST(CorpusQueries, ComeBackRowForRow) {
  if (office::jetData().empty()) GTEST_SKIP() << "AGGNORVO_JET_DATA is not set";
  const support::TempFolder folder;
  std::size_t count = 0;
  for (const auto& file : corpusFiles()) {
    SCOPED_TRACE(file.string());
    Workspace workspace;
    const auto theirs = workspace.OpenDatabase(platform::fromSystemPath(file.string()), false, true);
    if (theirs->QueryDefs().Count() == 0) continue;
    const auto ours = workspace.CreateDatabase(folder.path(file.filename().string()));
    std::vector<std::string> names;
    for (const auto& query : theirs->QueryDefs()) {
      const std::string name = query->Name();
      if (query->Type() == dbQSQLPassThrough) continue;
      const std::string text = query->SQL();
      if (errorOf([&] { ours->CreateQueryDef(name, text); }) != 0) {
        ADD_FAILURE() << name << ": " << text;
        continue;
      }
      EXPECT_EQ(ours->QueryDefs(name)->Type(), query->Type()) << name;
      EXPECT_EQ(ours->QueryDefs(name)->SQL(), text) << name;
      names.push_back(name);
      ++count;
    }
    const auto before = storedRows(*theirs), after = storedRows(*ours);
    ours->Close();
    EXPECT_EQ(office::complaints(folder.path(file.filename().string())), "");
    // The second reader loses the rows of some queries of the older format.
    if (file.parent_path().filename() == "jet3") continue;
    for (const auto& name : names)
      EXPECT_EQ(rendered(folder.path(file.filename().string()), name),
                rendered(platform::fromSystemPath(file.string()), name))
          << name;
    for (const auto& line : before) EXPECT_TRUE(after.contains(line)) << "lost: " << line;
    for (const auto& line : after) EXPECT_TRUE(before.contains(line)) << "new: " << line;
  }
  EXPECT_GE(count, 38u);
}

}  // namespace
}  // namespace jet::dao
