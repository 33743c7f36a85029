#include <gtest/gtest.h>

#include "common/files.h"
#include "common/globale.h"
#include "common/records.h"
#include "common/text.h"
#include "jet/dao/engine.h"
#include "parameters/kep_generali.h"
#include "platform/files.h"
#include "support/scripted_desktop.h"
#include "support/temp_folder.h"

namespace {

TEST(Text, IsReplacedFromAPlaceANumberOfTimes) {
  const struct {
    const char *text, *sought, *fresh;
    std::int32_t start, count, mode;
    const char* result;
  } cases[] = {
      {"aaa", "a", "b", 2, -1, common::ConfrontoEsatto, "bb"},
      {"perché è così", "è", "E'", 9, 0, common::ConfrontoEsatto, " così"},
      {"D'Amico l'8", "'", "''", -3, -1, common::ConfrontoEsatto, "D''Amico l''8"},
      {"aXaxa", "x", "xx", 1, 1, common::ConfrontoEsatto, "aXaxxa"},
      {"CÀ cà Cà", "Cà", "casa", 1, 2, common::ConfrontoTesto, "casa casa Cà"},
      {"abc", "b", "", 9, -1, common::ConfrontoEsatto, ""},
  };
  for (const auto& test : cases)
    EXPECT_EQ(common::Sostituisci(test.text, test.sought, test.fresh, test.start, test.count, test.mode),
              test.result);
  EXPECT_THROW(common::SostituisciTutto("a", "", "b"), runtime::Error);
}

TEST(Text, HasCapitalsForAllLettersOfTheCodePage) {
  EXPECT_EQ(common::Maiuscolo("è àþÿš ÷ß œž 1a"), "È ÀÞŸŠ ÷ß ŒŽ 1A");
  EXPECT_FALSE(common::StessoTesto("à", "a"));
}

TEST(Files, AreThereWhenTheyCanBeRead) {
  support::TempFolder folder;
  platform::writeWholeFile(folder.path("a"), "");
  EXPECT_TRUE(common::EsisteFile(folder.path("a")));
  for (const std::string& path : {folder.path("b"), folder.path(), folder.path("b\\c"), std::string()})
    EXPECT_FALSE(common::EsisteFile(path)) << path;
}

TEST(Parameters, AreReadByNameAndErrorsAreShown) {
  support::TempFolder folder;
  support::ScriptedDesktop desktop;
  controls::DesktopScope scope(desktop);
  const auto db = jet::dao::DBEngine::Workspaces(0)->CreateDatabase(folder.path("a.mdb"));
  desktop.expectBox("Errore: 3078\r\n", controls::vbOK);
  const runtime::Variant error = parameters::EsisteInKepGenerali(*db, "X");
  EXPECT_EQ(error.kind(), runtime::Variant::Kind::Long);
  EXPECT_EQ(desktop.boxes.at(0).title, "Funzione EsisteInKepGenerali");

  db->Execute("CREATE TABLE KEPGENERALI (Nome TEXT(20), Valore TEXT(20))");
  db->Execute("INSERT INTO KEPGENERALI VALUES ('L''A', 'sì')");
  db->Execute("INSERT INTO KEPGENERALI VALUES ('vuoto', NULL)");
  EXPECT_TRUE(parameters::EsisteInKepGenerali(*db, "l'a").toBoolean());
  EXPECT_FALSE(parameters::EsisteInKepGenerali(*db, "altro").toBoolean());
  EXPECT_EQ(parameters::LeggiKepGenerali(*db, "L'A").toText(), "sì");
  EXPECT_TRUE(parameters::LeggiKepGenerali(*db, "vuoto").isNull());
  EXPECT_TRUE(parameters::LeggiKepGenerali(*db, "altro").isEmpty());

  common::DatabaseAperto = db;
  jet::dao::DatabasePtr none;
  EXPECT_TRUE(common::EsisteCampo("kepgenerali", "valore", none));
  EXPECT_EQ(none, db);
  EXPECT_FALSE(common::EsisteCampo("kepgenerali", "manca", none));
  EXPECT_FALSE(common::EsisteCampo("manca", "valore", none));
  common::DatabaseAperto = nullptr;
  db->Close();
}

}  // namespace
