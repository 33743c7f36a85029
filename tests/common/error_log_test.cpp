#include "common/error_log.h"

#include <gtest/gtest.h>

#include "common/globale.h"
#include "common/text.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "support/fixed_clock.h"
#include "support/scripted_desktop.h"
#include "support/temp_folder.h"

namespace {

class ErrorLog : public testing::Test {
 protected:
  ErrorLog() { common::DirProgramma = folder.path(); }
  ~ErrorLog() override { common::DirProgramma.clear(); }
  std::string log() const { return platform::readWholeFile(folder.path("error.log")); }

  support::FixedClock clock;
  support::TempFolder folder;
  support::ScriptedDesktop desktop;
  controls::DesktopScope scope{desktop};
  const runtime::Error error{76, "Patch", "Cartella inesistente: è"};
};

TEST_F(ErrorLog, GetsARecordForEachErrorAndABoxTellsIt) {
  desktop.answerRestByDefault();
  common::GestisciErrore(error, "GetPaths", false, "Errore nel setting dei percorsi");
  common::GestisciErrore(error, "Start", false, "");
  const std::string lines = "Errore N° 76\r\nSorgente: Patch\r\nDescrizione: Cartella inesistente: è";
  const auto record = [&](const std::string& procedure) {
    return platform::toCodePage1252("Procedura: " + procedure + "\r\nData: 16/11/2026\r\nOra: 17:16:00\r\n" +
                                    lines + "\r\n\r\n");
  };
  EXPECT_EQ(log(), record("GetPaths") + record("Start"));
  ASSERT_EQ(desktop.boxes.size(), 2U);
  EXPECT_EQ(desktop.boxes[0].text, "GetPaths\r\nErrore nel setting dei percorsi\r\n" + lines);
  EXPECT_EQ(desktop.boxes[0].style, controls::vbExclamation);
  EXPECT_EQ(desktop.boxes[0].title, "AggNorvo");
  EXPECT_EQ(desktop.boxes[1].text, "Start\r\n" + lines);
  EXPECT_EQ(desktop.pointers.back(), controls::MousePointer::Default);
  EXPECT_FALSE(desktop.ended);
}

TEST_F(ErrorLog, EndsTheProgramAfterAFatalError) {
  desktop.answerRestByDefault();
  EXPECT_THROW(common::GestisciErrore(error, "GetKeys", true, "x"), controls::ProgramEnded);
  ASSERT_EQ(desktop.boxes.size(), 2U);
  EXPECT_EQ(desktop.boxes[1].text, "Errore irreversibile.\r\nIl programma verrà terminato.");
  EXPECT_EQ(desktop.boxes[1].style, controls::vbCritical);
  EXPECT_TRUE(desktop.ended);
  EXPECT_TRUE(desktop.pointers.empty());
}

TEST_F(ErrorLog, IsLeftAloneWithoutAnError) {
  common::GestisciErrore(runtime::Error(0, "", ""), "Start", true, "x");
  EXPECT_FALSE(platform::fileExists(folder.path("error.log")));
  EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(ErrorLog, RaisesItsOwnErrorWhereItCantBeWritten) {
  common::DirProgramma = folder.path("manca");
  try {
    common::GestisciErrore(error, "Start", false, "x");
    ADD_FAILURE();
  } catch (const runtime::Error& fault) {
    EXPECT_EQ(fault.number(), runtime::PathNotFound);
    EXPECT_TRUE(fault.description().ends_with(" - Start: x: errore 76: " + error.description()))
        << fault.description();
  }
  EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(ErrorLog, HearsOfASearchThatFailed) {
  desktop.expectBox("InStrEx\r\nErrore N° 5\r\n", controls::vbOK);
  EXPECT_EQ(common::InStrEx(1, 0, "a", "a", 0).toLong(), 0);
  desktop.expectBox("InStrEx\r\nErrore N° 5\r\n", controls::vbOK);
  EXPECT_EQ(common::InStrEx(1, 1, "a", "a", 7).toLong(), 0);
  EXPECT_NE(log().find("Procedura: InStrEx\r\n"), std::string::npos);
}

TEST_F(ErrorLog, OfUnattendedUpdatesLiesBesideTheDatabase) {
  desktop.expectBox("detto", controls::vbOK);
  common::ScriviLogAggiornamenti("detto", controls::vbInformation);
  EXPECT_EQ(desktop.boxes[0].style, controls::vbInformation);
  EXPECT_EQ(desktop.boxes[0].title, "AggNorvo");

  common::ModoAutomatico = true;
  common::PercorsoLog = folder.path("Altro\\a.mdb");
  common::ScriviLogAggiornamenti("perso", 0);
  EXPECT_EQ(common::LogAutomatico, "");
  common::PercorsoLog = folder.path("DB\\a.mdb");
  common::ScriviLogAggiornamenti("è fatto", 0);
  common::ScriviLogAggiornamenti("ancora", 0);
  const std::string first = "16/11/26 17:16 - è fatto\r\n", second = "16/11/26 17:16 - ancora\r\n";
  EXPECT_EQ(platform::readWholeFile(folder.path("AggiornamentiAutomaticiLog.txt")),
            platform::toCodePage1252(first + "\r\n" + second + "\r\n"));
  EXPECT_EQ(common::LogAutomatico, first + "\r\n" + second + "\r\n");
  common::PercorsoLog = "\\manca\\dove\\db\\a.mdb";
  EXPECT_NO_THROW(common::ScriviLogAggiornamenti("perso", 0));
  common::ModoAutomatico = false;
  common::LogAutomatico.clear();
  common::PercorsoLog.clear();
}

}  // namespace
