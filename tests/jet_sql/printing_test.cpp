#include <gtest/gtest.h>

#include "small_image.h"

namespace jet::sql::test {
namespace {

TEST(Printing, GivesTheTreeBack) {
  const char* statements[] = {
      "PARAMETERS [p q] Text (255), n DECIMAL(10,2); SELECT DISTINCT TOP 5 PERCENT a.*, b![c d] AS [e f], "
      "`x]y` FROM (a INNER JOIN b ON a.x = b.x AND (a.y <> b.y OR a.z IS NOT NULL)) LEFT JOIN (SELECT * "
      "FROM c) AS d ON d.x = a.x, e WHERE NOT (x NOT IN (1, -2, 3) XOR y NOT BETWEEN #1/2/03 4:05# AND "
      "#12:00:01 AM#) GROUP BY x, y & z HAVING Count(*) > 1 AND f() ORDER BY 1 DESC, x ASC, Mid('a''b', 2);",
      "SELECT a - (b - c) - d, a = (b = c), (a AND b) OR (c AND (d OR e)), -(-a), -(a ^ b), (-a) ^ b FROM t",
      "SELECT ALL * FROM t UNION ALL SELECT DISTINCTROW t.* FROM t UNION SELECT 1 FROM u ORDER BY a",
      "DELETE DISTINCTROW t.* FROM t INNER JOIN [Select] ON t.Where = [Select].Order WHERE EXISTS (SELECT 1 "
      "FROM x)",
      "INSERT INTO t SELECT (SELECT Max(x) FROM u) AS y FROM t WHERE x IN (SELECT y FROM u)",
      "CREATE TABLE [a b] (Table COUNTER CONSTRAINT k PRIMARY KEY, Set TEXT(10) NOT NULL UNIQUE, d "
      "NUMERIC(5, 1), CONSTRAINT u UNIQUE (Set, d), PRIMARY KEY (Table))",
      "CREATE UNIQUE INDEX [i j] ON t (a DESC, b ASC) WITH DISALLOW NULL",
      "CREATE INDEX i ON t (a) WITH PRIMARY",
      "SELECT a.x INTO [n m] IN 'C:\\x.mdb' FROM a IN '' [;DATABASE=C:\\y.mdb] WHERE x >= ALL (SELECT y FROM "
      "b)",
      "INSERT INTO t IN 'C:\\x.mdb' (a, t.b) VALUES (1, 2)",
      "TRANSFORM Sum(x) SELECT y FROM t GROUP BY y PIVOT z IN ('a', 2, Null)",
      "PARAMETERS p Long; TRANSFORM Count(*) SELECT y FROM t GROUP BY y PIVOT z & 'q' WITH OWNERACCESS "
      "OPTION",
      "EXECUTE [una query] 1, 'b'",
      "EXEC altra",
      "DROP TABLE [x y]",
      "DROP TABLE [x[`y]",
      "DROP INDEX i ON [x y];",
  };
  for (const char* statement : statements) expectPrintsBack(statement);
  std::string chain = "SELECT * FROM t WHERE a = 0";
  for (int i = 1; i < 300; ++i) chain += " OR a = " + std::to_string(i);
  expectPrintsBack(chain);
}

}  // namespace
}  // namespace jet::sql::test
