// Fields, indexes and relations of a target against its reference: what the summary and the plan say, what
// stands in the file afterwards, and that a second update finds nothing to do.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "platform/files.h"
#include "study.h"
#include "support/errors.h"

namespace {

using study::digitColumns;
using study::digits;
using study::droppedField;
using study::field;
using study::index;
using study::operator+;
using study::relation;
using study::Statements;
using study::Study;
using testing::StartsWith;

struct StructureCase {
  const char* name;
  Statements reference, target;
  std::string summary;  // where it ends in an error, up to the change that fails
  std::string file;     // afterwards; or the error's number
  bool settles = true;  // a second update changes nothing
  const char* application = "collgeometri";
};

const std::string Web = "INSERT INTO KepGenerali VALUES ('DataWeb', '1')";
const Statements Fees = {"CREATE TABLE soci (id LONG CONSTRAINT PK PRIMARY KEY, nome TEXT(10))",
                         "CREATE TABLE quote (n LONG CONSTRAINT PK PRIMARY KEY, socio LONG, id LONG)",
                         "INSERT INTO soci VALUES (7, 'Rossi')", "INSERT INTO quote VALUES (1, 7, 3)"};
const std::string SocioRelation =
    "ALTER TABLE quote ADD CONSTRAINT soci_quote FOREIGN KEY (socio) REFERENCES soci (id)";

// clang-format off
const StructureCase Fields[] = {
    {"missing table", {field("nuova", "b", {.type = "10", .size = 20, .defaultValue = "'\"N\"'", .position = 2}),
                       field("nuova", "a", {.required = true, .attributes = 16, .position = 1}),
                       field("nuova", "c", {.type = "12", .defaultValue = "''", .position = 3})}, {},
     "Tabella nuova in creazione\n- campo b in creazione...fatto.\n- campo a in creazione...fatto.\n"
     "- campo c in creazione...fatto.\nTabella nuova inserita.\n",
     "nuova(a 4 counter required, b 10(20) default \"N\", c 12)\n"},
    {"missing fields, with and without their default in the rows",
     {field("t", "a"), field("t", "b", {.type = "10", .size = 9, .defaultValue = "'\"N\"'", .update = true, .position = 1}),
      field("t", "c", {.defaultValue = "'5'", .update = true, .position = 2}),
      field("t", "d", {.defaultValue = "'5'", .position = 3}), field("t", "e", {.update = true, .position = 4})},
     {"CREATE TABLE t (a LONG)", "INSERT INTO t VALUES (1)", "INSERT INTO t VALUES (2)"},
     "Tabella t- campo b in creazione...fatto.\nTabella t- campo c in creazione...fatto.\n"
     "Tabella t- campo d in creazione...fatto.\nTabella t- campo e in creazione...fatto.\n",
     "t(a 4, b 10(9) default \"N\", c 4 default 5, d 4 default 5, e 4) : 1,\"N\",5,Null,Null / 2,\"N\",5,Null,Null\n"},
    {"a text grows and never shrinks", {field("T", "A", {.type = "10", .size = 30}), field("t", "b", {.type = "10", .size = 3})},
     {"CREATE TABLE t (a TEXT(10), b TEXT(10))", "INSERT INTO t VALUES ('Forlì', 'lungo')"},
     "Tabella T- campo A in modifica\nTabella T- campo A fatto.\n", "t(A 10(30), b 10(10)) : Forlì,lungo\n"},
    {"what is not compared", {field("t", "a", {.attributes = 32, .position = 9}), field("t", "n", {.defaultValue = "'1'", .attributes = 16}),
                              field("t", "m", {.type = "12", .size = 99, .zeroLength = true}), field("t", "d", {})},
     {"CREATE TABLE t (a LONG, n COUNTER, m MEMO, d LONG DEFAULT 3)"}, "",
     "t(a 4, n 4 counter, m 12, d 4 default 3)\n"},
    {"defaults and required", {field("t", "a", {.defaultValue = "'2'"}), field("t", "b", {.required = true}), field("t", "c"),
                               field("t", "d", {.defaultValue = "'DATE()'", .update = true})},
     {"CREATE TABLE t (a LONG DEFAULT 1, b LONG, c LONG NOT NULL, d LONG DEFAULT Date())", "INSERT INTO t VALUES (1, 2, 3, 4)"},
     "Tabella t- campo a in modifica\nTabella t- campo a fatto.\nTabella t- campo b in modifica\nTabella t- campo b fatto.\n"
     "Tabella t- campo c in modifica\nTabella t- campo c fatto.\n",
     "t(a 4 default 2, b 4 required, c 4, d 4 default Date()) : 1,2,3,4\n"},
    {"a changed type keeps data, place, indexes", {field("t", "b", {.type = "4", .position = 7})},
     {"CREATE TABLE t (a LONG, b TEXT(5), c LONG)", "CREATE UNIQUE INDEX i ON t (c, b DESC) WITH IGNORE NULL",
      "CREATE INDEX j ON t (a)", "CREATE INDEX k ON t (b) WITH PRIMARY", "INSERT INTO t VALUES (1, '12', 3)"},
     "Tabella t- campo b in modifica\nTabella t- campo b fatto.\n",
     "t(a 4, b 4, c 4) i[UI c -b] j[ a] k[PU b] : 1,12,3\n"},
    {"types that convert", {field("t", "a", {.type = "10", .size = 20}), field("t", "b", {.type = "5"}), field("t", "c", {.type = "8"}),
                            field("t", "d", {.type = "12"}), field("t", "e", {.type = "3"})},
     {"CREATE TABLE t (a LONG, b DOUBLE, c TEXT(20), d TEXT(5), e YESNO)", "INSERT INTO t VALUES (12, 1.5, '31/12/2010', 'x', True)",
      "INSERT INTO t (a) VALUES (NULL)"},
     "Tabella t- campo a in modifica\nTabella t- campo a fatto.\nTabella t- campo b in modifica\nTabella t- campo b fatto.\n"
     "Tabella t- campo c in modifica\nTabella t- campo c fatto.\nTabella t- campo d in modifica\nTabella t- campo d fatto.\n"
     "Tabella t- campo e in modifica\nTabella t- campo e fatto.\n",
     "t(a 10(20), b 5, c 8, d 12, e 3) : 12,1,5,31/12/2010,x,-1 / Null,Null,Null,Null,0\n"},
    {"relations over a rebuilt field come back, those with its name elsewhere too",
     {field("quote", "id", {.required = true}), field("quote", "socio", {.defaultValue = "'7'"})}, Fees + SocioRelation,
     "Tabella quote- campo id in modifica\nTabella quote- campo id fatto.\nTabella quote- campo socio in modifica\n"
     "Tabella quote- campo socio fatto.\n",
     "soci(id 4, nome 10(10)) PK[PU id] : 7,Rossi\nquote(n 4, socio 4 default 7, id 4 required) PK[PU n] : 1,7,3\n"
     "soci_quote: soci < quote id=socio\n"},
    {"a field listed twice is compared with what the first row made",
     {field("t", "a", {.type = "10", .size = 5}), field("t", "a", {.type = "10", .size = 9, .norvo = "COLLGEOMETRI"}),
      field("u", "a", {.type = "10", .size = 9}), field("u", "a", {.type = "10", .size = 5, .norvo = "collgeometri"}),
      field("v", "z", {}), field("v", "z", {.type = "3", .norvo = "collgeometri"})}, {"CREATE TABLE t (z LONG)"},
     "Tabella t- campo a in creazione...fatto.\nTabella t- campo a in modifica\nTabella t- campo a fatto.\n"
     "Tabella u in creazione\n- campo a in creazione...fatto.\nTabella u inserita.\n"
     "Tabella v in creazione\n- campo z in creazione...fatto.\nTabella v- campo z in modifica\nTabella v- campo z fatto.\n"
     "Tabella v inserita.\n",
     "t(z 4, a 10(9))\nu(a 10(9))\nv(z 3)\n", false},
    {"other applications", {field("t", "a", {.norvo = "ordmedici"})}, {}, "", ""},
    {"web tables of a database without them", {field("DataWebFoto", "a"), field("DataWebTutto", "a")}, {},
     "Tabella DataWebTutto in creazione\n- campo a in creazione...fatto.\nTabella DataWebTutto inserita.\n", "DataWebTutto(a 4)\n"},
    {"web tables", {field("datawebfoto", "a")}, {Web, "CREATE TABLE DataWebAnagrafica (x LONG)"},
     "Tabella datawebfoto in creazione\n- campo a in creazione...fatto.\nTabella datawebfoto inserita.\n",
     "DataWebAnagrafica(x 4)\ndatawebfoto(a 4)\n"},
    {"web tables of the protocol", Statements{field("DataWebFoto", "a")} + index("DataWebFoto", "i", "", {"a"}) +
     relation("r", "DataWebFoto", "enti", {"a=id"}), {Web}, "", "", true, "PROTOCOLLO"},
    {"dropped fields take indexes and relations along, the catalogue brings its own back",
     Statements{droppedField("quote", "id"), droppedField("manca", "x"), droppedField("quote", "manca"),
                droppedField("t", "b")} +
         index("t", "i", "", {"a"}),
     Fees + SocioRelation + Statements{"CREATE TABLE t (a LONG, b LONG)", "CREATE INDEX i ON t (a, b)", "INSERT INTO t VALUES (1, 2)"},
     "Tabella quote- campo id in eliminazione...fatto.\nTabella t- campo b in eliminazione...fatto.\n"
     "Creo indice i nella tabella t...fatto\n",
     "soci(id 4, nome 10(10)) PK[PU id] : 7,Rossi\nquote(n 4, socio 4) PK[PU n] : 1,7\nt(a 4) i[ a] : 1\n"},
    {"a dropped field that is still listed comes back in the next update", {field("t", "b", {}), droppedField("t", "b")},
     {"CREATE TABLE t (a LONG, b LONG)"}, "Tabella t- campo b in eliminazione...fatto.\n", "t(a 4)\n", false},
    {"a value that doesn't convert", {field("u", "x"), field("t", "a")},
     {"CREATE TABLE t (a TEXT(5), b LONG)", "CREATE INDEX i ON t (a)", "INSERT INTO t VALUES ('1', 1)", "INSERT INTO t VALUES ('Rossi', 2)"},
     "Tabella t- campo a in modifica\n", "3421"},
    {"a value that is too long", {field("t", "a", {.type = "10", .size = 4})}, {"CREATE TABLE t (a MEMO)", "INSERT INTO t VALUES ('Rossi')"},
     "Tabella t- campo a in modifica\n", "3163"},
    {"values come over as they are into what requires one or refuses empty texts",
     {field("t", "a", {.required = true}), field("t", "b", {.type = "10", .size = 9, .required = true}),
      field("t", "c", {.type = "12"}), field("t", "d", {.type = "4"})},
     {"CREATE TABLE t (a LONG, b TEXT(5), c TEXT(5), d TEXT(5))", "INSERT INTO t VALUES (NULL, '', '', NULL)",
      "INSERT INTO t VALUES (1, NULL, 'x', '2')"},
     "Tabella t- campo a in modifica\nTabella t- campo a fatto.\nTabella t- campo b in modifica\nTabella t- campo b fatto.\n"
     "Tabella t- campo c in modifica\nTabella t- campo c fatto.\nTabella t- campo d in modifica\nTabella t- campo d fatto.\n",
     "t(a 4 required, b 10(9) required, c 12, d 4) : Null,,,Null / 1,Null,x,2\n"},
    {"a required field without values grows", {field("t", "b", {.type = "10", .size = 9, .required = true})},
     {"CREATE TABLE t (a LONG)", "INSERT INTO t VALUES (1)", "ALTER TABLE t ADD COLUMN b TEXT(5) NOT NULL"},
     "Tabella t- campo b in modifica\nTabella t- campo b fatto.\n", "t(a 4, b 10(9) required) : 1,Null\n"},
    {"an empty text doesn't become a number", {field("t", "a", {.type = "4"})}, {"CREATE TABLE t (a TEXT(5))", "INSERT INTO t VALUES ('')"},
     "Tabella t- campo a in modifica\n", "3421"},
    {"a default that rows refuse",
     {field("t", "b", {.type = "10", .size = 1, .defaultValue = "'\"S\"'", .required = true, .update = true, .position = 1}),
      field("t", "c", {.type = "8", .defaultValue = "'Now()'", .update = true, .position = 2}),
      field("t", "d", {.type = "2", .defaultValue = "'300'", .update = true, .position = 3})},
     {"CREATE TABLE t (a LONG)", "INSERT INTO t VALUES (1)", "INSERT INTO t VALUES (2)"},
     "Tabella t- campo b in creazione...fatto.\nTabella t- campo c in creazione...fatto.\nTabella t- campo d in creazione...fatto.\n",
     "t(a 4, b 10(1) required default \"S\", c 8 default Now(), d 2 default 300) : 1,Null,Null,Null / 2,Null,Null,Null\n"},
    {"a table whose name has a blank",
     {field("due parole", "a", {.required = true}), field("due parole", "b", {.defaultValue = "'5'", .update = true, .position = 2})},
     {"CREATE TABLE [due parole] (a LONG)", "INSERT INTO [due parole] VALUES (1)"},
     "Tabella due parole- campo a in modifica\nTabella due parole- campo a fatto.\nTabella due parole- campo b in creazione...fatto.\n",
     "due parole(a 4 required, b 4 default 5) : 1,5\n"},
    {"a rebuilt Decimal keeps its digits, whatever the catalogue has",
     Statements{field("t", "a", {.type = "20", .required = true}), field("t", "b", {.type = "20", .defaultValue = "'1'"})} +
         digitColumns() + Statements{digits("t", "a", 12, 0)},
     {"CREATE TABLE t (a DECIMAL(10, 2), b DECIMAL(28, 6))", "INSERT INTO t VALUES (12.75, -0.000001)", "INSERT INTO t VALUES (99999999.99, NULL)"},
     "Tabella t- campo a in modifica\nTabella t- campo a fatto.\nTabella t- campo b in modifica\nTabella t- campo b fatto.\n",
     "t(a 20(10.2) required, b 20(28.6) default 1) : 12,75,-0,000001 / 99999999,99,Null\n"},
    {"a new Decimal and what becomes one have the catalogue's digits",
     Statements{field("n", "a", {.type = "20"}), field("n", "b", {.type = "20"}), field("t", "x", {.type = "20", .position = 9})} +
         Statements{field("t", "d", {.type = "20"}), field("t", "s", {.type = "20"}), field("t", "v", {.type = "20"}),
                    field("t", "l", {.type = "20"}), field("t", "z", {.type = "20"})} +
         digitColumns() +
         Statements{digits("n", "a", 28, 28), digits("t", "x", 5, 1), digits("t", "d", 10, 2), digits("t", "s", 6, 1),
                    digits("t", "v", 19, 4), digits("t", "z", 9, 3)},
     {"CREATE TABLE t (d DOUBLE, s SINGLE, v CURRENCY, l LONG, z TEXT(9))", "INSERT INTO t VALUES (12.75, 0.1, -922337203685477.5808, 7, '1,125')",
      "INSERT INTO t (d) VALUES (-0.3)"},
     "Tabella n in creazione\n- campo a in creazione...fatto.\n- campo b in creazione...fatto.\nTabella n inserita.\n"
     "Tabella t- campo x in creazione...fatto.\n"
     "Tabella t- campo d in modifica\nTabella t- campo d fatto.\nTabella t- campo s in modifica\nTabella t- campo s fatto.\n"
     "Tabella t- campo v in modifica\nTabella t- campo v fatto.\nTabella t- campo l in modifica\nTabella t- campo l fatto.\n"
     "Tabella t- campo z in modifica\nTabella t- campo z fatto.\n",
     "t(d 20(10.2), s 20(6.1), v 20(19.4), l 20(18.0), z 20(9.3), x 20(5.1)) : 12,75,0,1,-922337203685477,5808,7,1,125,Null / "
     "-0,3,Null,Null,Null,Null,Null\nn(a 20(28.28), b 20(18.0))\n"},
    {"a Decimal becomes another number that holds it",
     {field("t", "a", {.type = "4"}), field("t", "b", {.type = "5"}), field("t", "c", {.type = "7"}), field("t", "d", {.type = "10", .size = 9})},
     {"CREATE TABLE t (a DECIMAL(10, 2), b DECIMAL(10, 4), c DECIMAL(15, 15), d DECIMAL(6, 2))", "INSERT INTO t VALUES (12, 0.0001, 0.1, 12.75)"},
     "Tabella t- campo a in modifica\nTabella t- campo a fatto.\nTabella t- campo b in modifica\nTabella t- campo b fatto.\n"
     "Tabella t- campo c in modifica\nTabella t- campo c fatto.\nTabella t- campo d in modifica\nTabella t- campo d fatto.\n",
     "t(a 4, b 5, c 7, d 10(9)) : 12,0,0001,0,1,12,75\n"},
    {"a Double that a Decimal would round", {field("t", "a", {.type = "20"})}, {"CREATE TABLE t (a DOUBLE)", "INSERT INTO t VALUES (12)", "INSERT INTO t VALUES (12.75)"},
     "Tabella t- campo a in modifica\n", "3421"},
    {"a text that it would round", Statements{field("t", "a", {.type = "20"})} + digitColumns() + Statements{digits("t", "a", 9, 1)},
     {"CREATE TABLE t (a TEXT(5))", "INSERT INTO t VALUES ('12,75')"}, "Tabella t- campo a in modifica\n", "3421"},
    {"a time that it would round", {field("t", "a", {.type = "20"})}, {"CREATE TABLE t (a DATETIME)", "INSERT INTO t VALUES (#2010-12-31 12:00:00#)"},
     "Tabella t- campo a in modifica\n", "3421"},
    {"a Decimal that a whole number would round", {field("t", "a", {.type = "4"})}, {"CREATE TABLE t (a DECIMAL(10, 2))", "INSERT INTO t VALUES (12.75)"},
     "Tabella t- campo a in modifica\n", "3421"},
    {"a Decimal that a Double would round", {field("t", "a", {.type = "7"})}, {"CREATE TABLE t (a DECIMAL(20, 0))", "INSERT INTO t VALUES ('12345678901234567890')"},
     "Tabella t- campo a in modifica\n", "3421"},
    {"a number with more digits than the Decimal", Statements{field("t", "a", {.type = "20"})} + digitColumns() + Statements{digits("t", "a", 3, 1)},
     {"CREATE TABLE t (a LONG)", "INSERT INTO t VALUES (100)"}, "Tabella t- campo a in modifica\n", "6"},
    {"digits that no Decimal has", Statements{field("t", "b", {.type = "20"})} + digitColumns() + Statements{digits("t", "b", 3, 4)},
     {"CREATE TABLE t (a LONG)"}, "Tabella t- campo b in creazione...\n", "3259"},
    {"texts of fixed length",
     {field("n", "a", {.type = "10", .size = 3, .attributes = 33}), field("n", "b", {.type = "10", .size = 3, .attributes = 34}),
      field("t", "a", {.type = "10", .size = 4, .attributes = 33})}, {"CREATE TABLE t (a TEXT(2))", "INSERT INTO t VALUES ('è')"},
     "Tabella n in creazione\n- campo a in creazione...fatto.\n- campo b in creazione...fatto.\nTabella n inserita.\n"
     "Tabella t- campo a in modifica\nTabella t- campo a fatto.\n",
     "t(a 10(4) fixed) : è   \nn(a 10(3) fixed, b 10(3))\n"},
    {"places before the first one",
     {field("n", "a"), field("n", "b", {.position = -1}), field("t", "b", {.position = -1}), field("t", "c", {.position = -7})},
     {"CREATE TABLE t (a LONG)", "INSERT INTO t VALUES (1)"},
     "Tabella n in creazione\n- campo a in creazione...fatto.\n- campo b in creazione...fatto.\nTabella n inserita.\n"
     "Tabella t- campo b in creazione...fatto.\nTabella t- campo c in creazione...fatto.\n", "t(c 4, b 4, a 4) : Null,Null,1\nn(b 4, a 4)\n"},
    {"two counters", {field("n", "a", {.attributes = 17}), field("n", "b", {.attributes = 17})}, {},
     "Tabella n in creazione\n- campo a in creazione...fatto.\n- campo b in creazione...fatto.\n", "3090"},
    {"a type that the relation can't have", {field("soci", "id", {.type = "10", .size = 9})}, Fees + SocioRelation,
     "Tabella soci- campo id in modifica\n", "3368"},
    {"a unique index that the converted values break", {field("t", "a", {.type = "4"})},
     {"CREATE TABLE t (a DOUBLE)", "CREATE UNIQUE INDEX i ON t (a)", "INSERT INTO t VALUES (1.1)", "INSERT INTO t VALUES (1.2)"},
     "Tabella t- campo a in modifica\n", "3022"},
    {"a row of the catalogue without a name", {"INSERT INTO CampiTabella (Norvo, Tabella) VALUES ('Tutti', 't')"}, {"CREATE TABLE t (a LONG)"},
     "", "94"},
    {"a reference without its catalogue", {"DROP TABLE CampiDaEliminare"}, {}, "", "3078"},
};

const StructureCase Indexes[] = {
    {"missing, and others stay", index("t", "i", "UI", {"-b", "a"}) + index("t", "PrimaryKey", "PU", {"a"}),
     {"CREATE TABLE t (a LONG, b LONG)", "CREATE INDEX mio ON t (b)"},
     "Creo indice i nella tabella t...fatto\nCreo indice PrimaryKey nella tabella t...fatto\n",
     "t(a 4, b 4) i[UI -b a] mio[ b] PrimaryKey[PU a]\n"},
    {"differing flags, count, order of fields",
     index("t", "u", "U", {"a"}) + index("t", "n", "I", {"a"}) + index("t", "c", "", {"a", "b"}) + index("T", "O", "", {"B", "A"}) +
         index("t", "s", "", {"A"}),
     {"CREATE TABLE t (a LONG, b LONG)", "CREATE INDEX u ON t (a)", "CREATE INDEX n ON t (a)", "CREATE INDEX c ON t (a)",
      "CREATE INDEX o ON t (a, b)", "CREATE INDEX s ON t (a)"},
     "Cancello indice u nella tabella t...fatto\nCreo indice u nella tabella t...fatto\n"
     "Cancello indice n nella tabella t...fatto\nCreo indice n nella tabella t...fatto\n"
     "Cancello indice c nella tabella t...fatto\nCreo indice c nella tabella t...fatto\n"
     "Cancello indice O nella tabella T...fatto\nCreo indice O nella tabella T...fatto\n",
     "t(a 4, b 4) c[ a b] n[I a] O[ b a] s[ a] u[U a]\n"},
    {"another sort order ends the comparison", index("t", "i", "", {"a", "-b", "c"}) + index("t", "j", "", {"-a", "b"}),
     {"CREATE TABLE t (a LONG, b LONG, c LONG)", "CREATE INDEX i ON t (a, b, c)", "CREATE INDEX j ON t (a, c)"}, "", ""},
    {"fields in the order of their rows, whatever keys the catalogue has",
     Statements{"CREATE UNIQUE INDEX k ON CampiIndice (Tabella, Indice, Campo)", "CREATE INDEX l ON CampiIndice (Norvo, Campo)"} +
         index("t", "i", "", {"c", "a", "b"}), {"CREATE TABLE t (a LONG, b LONG, c LONG)"},
     "Creo indice i nella tabella t...fatto\n", "t(a 4, b 4, c 4) i[ c a b]\n"},
    {"no such table", index("manca", "i", "", {"a"}), {}, "", "3265"},
    {"no fields", index("t", "i", "", {}), {"CREATE TABLE t (a LONG)"}, "", "3021"},
    {"duplicates", Statements{field("t", "b", {.position = 1})} + index("t", "i", "U", {"a"}),
     {"CREATE TABLE t (a LONG)", "INSERT INTO t VALUES (1)", "INSERT INTO t VALUES (1)"},
     "Tabella t- campo b in creazione...fatto.\nCreo indice i nella tabella t...\n", "3022"},
    {"in use by a relation", index("soci", "PK", "PU", {"nome"}), Fees + SocioRelation, "Cancello indice PK nella tabella soci...\n", "3281"},
    {"a relation's index of the name counts as missing", index("quote", "soci_quote", "", {"socio"}), Fees + SocioRelation,
     "Creo indice soci_quote nella tabella quote...\n", "3284"},
};

const StructureCase Relations[] = {
    {"missing, differing, equal and unknown ones",
     relation("r", "soci", "quote", {"id=socio"}, 4096) + relation("s", "SOCI", "QUOTE", {"ID=N"}, 2) + relation("n", "soci", "quote", {"id=id"}, 2),
     Fees + Statements{SocioRelation, "ALTER TABLE quote ADD CONSTRAINT r FOREIGN KEY (socio) REFERENCES soci (id)"},
     "Cancello relazione r...fatto\nCreo relazione r...fatto\nCreo relazione s...fatto\nCreo relazione n...fatto\n",
     "soci(id 4, nome 10(10)) PK[PU id] : 7,Rossi\nquote(n 4, socio 4, id 4) PK[PU n] : 1,7,3\n"
     "soci_quote: soci < quote id=socio\nr: soci < quote id=socio 4096\ns: soci < quote id=n 2\nn: soci < quote id=id 2\n"},
    {"other fields, or another number of them", relation("r", "soci", "quote", {"id=n", "nome=id"}, 2) + relation("soci_quote", "soci", "quote", {"id=id"}, 2),
     Fees + Statements{SocioRelation},
     "Creo relazione r...fatto\nCancello relazione soci_quote...fatto\nCreo relazione soci_quote...fatto\n",
     "soci(id 4, nome 10(10)) PK[PU id] : 7,Rossi\nquote(n 4, socio 4, id 4) PK[PU n] : 1,7,3\n"
     "r: soci < quote id=n nome=id 2\nsoci_quote: soci < quote id=id 2\n"},
    {"only the table itself counts as a web table", relation("r", "soci", "DataWebFoto", {"id=id"}, 2) + relation("q", "DataWebFoto", "soci", {"id=id"}, 2),
     Fees + Statements{"CREATE TABLE DataWebFoto (id LONG)"}, "Creo relazione r...fatto\n",
     "soci(id 4, nome 10(10)) PK[PU id] : 7,Rossi\nquote(n 4, socio 4, id 4) PK[PU n] : 1,7,3\nDataWebFoto(id 4)\n"
     "r: soci < DataWebFoto id=id 2\n"},
    {"rows that violate it", Statements{field("soci", "x", {.position = 3})} + relation("r", "soci", "quote", {"id=id"}), Fees,
     "Tabella soci- campo x in creazione...fatto.\nCreo relazione r...\n", "3201"},
    {"no fields", relation("r", "soci", "quote", {}), Fees, "", "3021"},
};
// clang-format on

/// The lines by which a change begins, without what tells how it went.
std::string announced(const std::string& summary) {
  std::istringstream lines(summary);
  std::string plan;
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with(" fatto.") || line.ends_with(" inserita.")) continue;
    if (const auto dots = line.rfind("..."); dots != std::string::npos) line.resize(dots + 3);
    plan += line + "\n";
  }
  return plan;
}

void check(const StructureCase& test) {
  SCOPED_TRACE(test.name);
  Study study(test.reference, test.target);
  const bool fails = !test.file.empty() && test.file.find_first_not_of("0123456789") == std::string::npos;
  const std::string before = study.bytes(), asItWas = study::described(study.office.target);

  const std::string plan = study.plan(test.application);
  const std::string expected = announced(test.summary);
  if (fails) {
    EXPECT_THAT(plan, StartsWith("1\n" + expected + "Aggiornamento annullato: errore " + test.file + ": "));
  } else {
    EXPECT_EQ(plan, (expected.empty() ? "0\n" : "3\n") + expected);
  }
  EXPECT_EQ(study.bytes(), before);
  EXPECT_EQ(study.office.dataFiles().size(), 1u) << "a plan leaves files behind";
  EXPECT_FALSE(platform::fileExists(study.office.log));

  const auto first = study.update(test.application);
  EXPECT_EQ(first.structure, test.summary);
  EXPECT_EQ(first.error, fails ? test.file : "");
  if (fails) {
    EXPECT_EQ(first.status, console::FailedUnchanged);
    EXPECT_EQ(study.bytes(), before);
    return;
  }
  EXPECT_EQ(study.faults(), "");
  EXPECT_EQ(first.status, console::Done) << first.errors;
  EXPECT_EQ(study::described(study.office.target), test.summary.empty() ? asItWas : test.file);
  const auto second = study.update(test.application);
  EXPECT_EQ(second.structure.empty(), test.settles) << second.structure;
  if (test.settles) {
    EXPECT_EQ(study.plan(test.application), "0\n");
  }
}

/// Makes nothing of the pages that hold a table's rows.
void destroyRows(const std::string& path, const std::string& table) {
  constexpr std::size_t PageSize = 4096;
  constexpr char DataPage = 1;
  const auto owner = std::stoul(office::ask(path, "SELECT Id FROM MSysObjects WHERE Name = '" + table + "'"));
  std::string bytes = platform::readWholeFile(path);
  for (std::size_t page = 0; page < bytes.size(); page += PageSize) {
    const auto part = [&](std::size_t at) { return static_cast<unsigned char>(bytes[page + at]); };
    if (bytes[page] == DataPage && (part(4) | part(5) << 8 | part(6) << 16) == static_cast<int>(owner))
      bytes.replace(page, PageSize, PageSize, '\xff');
  }
  platform::writeWholeFile(path, bytes);
}

TEST(Fields, ThatAreEqualAreFoundWithoutReadingARow) {
  Study study(
      Statements{field("t", "a"), field("t", "b", {.type = "10", .size = 9})} + index("t", "i", "PU", {"a"}),
      {"CREATE TABLE t (a LONG CONSTRAINT i PRIMARY KEY, b TEXT(9))", "INSERT INTO t VALUES (1, 'x')"});
  destroyRows(study.office.target, "t");
  EXPECT_THROW(jet::dao::Workspace().OpenDatabase(study.office.target)->OpenRecordset("SELECT b FROM t"),
               runtime::Error);
  EXPECT_EQ(study.plan(), "0\n");
}

TEST(Fields, KeepToTheirRulesInWhatIsWrittenLater) {
  Study study({field("t", "a", {.required = true}), field("t", "b", {.type = "10", .size = 9})},
              {"CREATE TABLE t (k LONG, a LONG, b TEXT(5))", "INSERT INTO t VALUES (1, NULL, '')"});
  EXPECT_EQ(study.update().status, console::Done);
  const auto db = jet::dao::DBEngine::OpenDatabase(study.office.target, true);
  const auto error = [&](const char* sql) {
    return support::errorOf([&] { db->Execute(sql, jet::dao::dbFailOnError); });
  };
  EXPECT_EQ(error("UPDATE t SET a = NULL"), 3314);
  EXPECT_EQ(error("UPDATE t SET b = ''"), 3315);
  EXPECT_EQ(error("INSERT INTO t VALUES (2, NULL, 'x')"), 3314);
  EXPECT_EQ(error("INSERT INTO t VALUES (2, 1, '')"), 3315);
  EXPECT_EQ(error("UPDATE t SET k = 2"), 0);
  db->Close();
}

TEST(Fields, FollowTheReference) {
  for (const StructureCase& test : Fields) check(test);
}

TEST(Indexes, FollowTheReference) {
  for (const StructureCase& test : Indexes) check(test);
}

TEST(Relations, FollowTheReference) {
  for (const StructureCase& test : Relations) check(test);
}

}  // namespace
