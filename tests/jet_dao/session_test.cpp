#include "session.h"

#include "support/case_file.h"

namespace jet::dao {
namespace {

struct Played {
  const char* file;
  std::vector<const char*> kinds = {""};
};

/// Sessions with databases and their recordsets, those that hold for several kinds with each of them.
TEST(Sessions, GoAsTheirLinesSay) {
  const Played all[] = {
      {"reading",
       {"exclusive ; rows = table t", "readonly ; rows = table t", "shared ; rows = dynaset SELECT * FROM t",
        "shared ; rows = snapshot SELECT * FROM t ORDER BY a", "readonly ; rows = forward t",
        "shared ; rows = forward SELECT * FROM t"}},
      {"moves", {"table", "dynaset", "snapshot"}},
      {"searches", {"dynaset", "snapshot"}},
      {"seeks", {"exclusive", "readonly"}},
      {"new_records", {"table p", "dynaset p", "dynaset SELECT id, nome, si FROM p"}},
      {"joins",
       {"exclusive",
        "exclusive ; CREATE INDEX i ON X (a) ; CREATE INDEX i ON Y (b) ; CREATE INDEX ip ON numeri (p) ; "
        "CREATE INDEX iq ON numeri (q) ; CREATE INDEX il ON numeri (l) ; CREATE INDEX ix ON numeri (x) ; "
        "CREATE INDEX i ON ragioniere (cd_classe, cd_matr) ; CREATE INDEX i ON componenti_associati "
        "(cd_matr)"}},
      {"cursors"},
      {"edits"},
      {"transactions"},
      {"integrity"},
      {"register"},
      {"refusals"},
      {"rules"},
      {"domains"},
      {"stored_queries"},
  };
  for (const auto& [file, kinds] : all)
    for (const char* kind : kinds) {
      SCOPED_TRACE(kind);
      office::Session session(kind);
      support::CaseFile(SESSIONS "/" + std::string(file) + ".cases")
          .expectResults([&](const support::Case& each) { return session.run(each.statement); });
      EXPECT_EQ(session.faults(), "") << file;
    }
}

}  // namespace
}  // namespace jet::dao
