#include <gtest/gtest.h>

#include "parameters/kep_generali.h"
#include "parametri.h"

namespace parameters::test {
namespace {

using Kind = runtime::Variant::Kind;

TEST(Accessors, ReadByNameAndTellAbsentFromNull) {
  Parametri p;
  p.metti("L'A*", "sì");
  p.metti("vuoto", runtime::Null{});
  EXPECT_TRUE(EsisteInKepGenerali(*p.db, "l'a*").toBoolean());
  EXPECT_FALSE(EsisteInKepGenerali(*p.db, "L*").toBoolean());  // no pattern here
  EXPECT_EQ(LeggiKepGenerali(*p.db, "L'A*").toText(), "sì");
  EXPECT_TRUE(LeggiKepGenerali(*p.db, "vuoto").isNull());
  EXPECT_TRUE(LeggiKepGenerali(*p.db, "altro").isEmpty());
}

TEST(Accessors, WriteOneRowAKeyAndKeepANoteThatIsNotGiven) {
  Parametri p;
  EXPECT_EQ(ScriviKepGenerali(*p.db, "L'A", 1.5), 0);
  EXPECT_EQ(p.riga("L''A"), "1,5|Null|Null");
  EXPECT_EQ(ScriviKepGenerali(*p.db, "l'a", "due", runtime::Variant("nota")), 0);
  EXPECT_EQ(ScriviKepGenerali(*p.db, "l'a", "tre"), 0);
  EXPECT_EQ(p.riga("L''A"), "tre|nota|Null");
  EXPECT_EQ(ScriviKepGenerali(*p.db, "nuovo", runtime::Null{}, runtime::Variant(runtime::Null{})), 0);
  EXPECT_EQ(p.riga("nuovo"), "Null|Null|Null");
}

TEST(Accessors, AnswerAnErrorWithItsBoxAndItsNumber) {
  const struct {
    const char* tabella;
    std::function<runtime::Variant(jet::dao::Database&)> chiama;
    int numero;
    const char* titolo;
  } casi[] = {
      {"CREATE TABLE t (Nome TEXT(9))", [](auto& db) { return EsisteInKepGenerali(db, "x"); }, 3078,
       "Funzione EsisteInKepGenerali"},
      {"CREATE TABLE t (Nome TEXT(9))", [](auto& db) { return LeggiKepGenerali(db, "x"); }, 3078,
       "Funzione LeggiKepGenerali"},
      {"CREATE TABLE t (Nome TEXT(9))", [](auto& db) { return ScriviKepGenerali(db, "x", ""); }, 3078,
       "Funzione EsisteInKepGenerali"},  // and no second box
      {"CREATE TABLE KepGenerali (Valore TEXT(9))", [](auto& db) { return EsisteInKepGenerali(db, "x"); },
       3061, "Funzione EsisteInKepGenerali"},
      {"CREATE TABLE KepGenerali (Nome TEXT(9))", [](auto& db) { return ScriviKepGenerali(db, "x", "1"); },
       3127, "Funzione ScriviKepGenerali"},
      {"CREATE TABLE KepGenerali (Nome TEXT(9), Valore TEXT(9))",
       [](auto& db) { return ScriviKepGenerali(db, "x", std::string(300'000, 'x')); }, 3163,
       "Funzione ScriviKepGenerali"},
  };
  for (const auto& caso : casi) {
    SCOPED_TRACE(std::string(caso.tabella) + ": " + caso.titolo);
    support::TempFolder folder;
    support::ScriptedDesktop desktop;
    controls::DesktopScope scope(desktop);
    desktop.answerRestByDefault();
    const auto db = jet::dao::DBEngine::Workspaces(0)->CreateDatabase(folder.path("a.mdb"));
    db->Execute(caso.tabella);
    const runtime::Variant esito = caso.chiama(*db);
    EXPECT_EQ(esito.kind(), Kind::Long);
    EXPECT_EQ(esito.toText(), std::to_string(caso.numero));
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes[0].title, caso.titolo);
    EXPECT_EQ(desktop.boxes[0].style, controls::vbExclamation);
    EXPECT_TRUE(desktop.boxes[0].text.starts_with("Errore: " + esito.toText() + "\r\n"));
    db->Close();
  }
}

TEST(Accessors, TakeLongValuesWhereTheColumnHoldsThem) {
  Parametri p("CREATE TABLE KepGenerali (Nome TEXT(50), Valore MEMO, [Note] MEMO, Dati MEMO)");
  const std::string lungo(300'000, 'x');
  EXPECT_EQ(ScriviKepGenerali(*p.db, "a", lungo), 0);
  EXPECT_EQ(LeggiKepGenerali(*p.db, "a").toText(), lungo);
  EXPECT_TRUE(p.kep.ScriviByNome("b", lungo, lungo));
  EXPECT_TRUE(p.kep.LeggiByNome("b"));
  EXPECT_EQ(p.kep.note, lungo);
}

}  // namespace
}  // namespace parameters::test
