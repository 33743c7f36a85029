// The window from its start to the moment when the update can begin.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "office.h"
#include "platform/files.h"
#include "support/case_file.h"

namespace {

using office::Office;
using office::Window;
using testing::ElementsAre;

std::vector<std::string> rowsOf(const controls::ListBox& list) {
  std::vector<std::string> rows;
  for (int row = 0; row < list.listCount(); ++row) rows.push_back(list.list(row));
  return rows;
}

TEST(StartUp, ListsWhatIsInstalledAndSelectsTheApplicationOfThePatch) {
  support::CaseFile(CASES "/start_up.cases").expectResults([](const support::Case& each) {
    Office office;
    std::string settings = each.one("settings");
    for (const std::string& name : each.all("installed"))
      settings += name.starts_with('-') ? Office::registered(name.substr(1), office.file("manca.mdb"))
                                        : Office::registered(name, office.target);
    office.writeSettings(settings);
    if (const std::string list = each.one("patch list"); !list.empty()) office.writePatchList(list);
    Window window(office);
    std::string found;
    for (std::string row : rowsOf(window.form.lstDatabase)) {
      if (const auto place = row.find(office.target); place != std::string::npos)
        row.replace(place, office.target.size(), "%");
      found += "[" + row + "]";
    }
    const int selected = window.form.lstDatabase.listIndex();
    EXPECT_EQ(window.form.cmdAggiorna.enabled(), selected > 0);
    EXPECT_EQ(window.form.mnuFileAggiorna.enabled(), selected > 0);
    const bool hand = window.form.txtAltroDB.visible();
    EXPECT_EQ(window.form.lstDatabase.enabled(), !hand);
    EXPECT_EQ(window.form.cmdSelezionaDB.visible(), hand);
    EXPECT_FALSE(window.form.chkAltroDatabase.visible());
    EXPECT_FALSE(window.form.chkAggiornaDescrizioni.visible());
    return found + " selected " + std::to_string(selected) + (hand ? ", by hand" : "");
  });
}

TEST(StartUp, SelectsTheLaterOfTwoRowsThatDifferInCase) {
  Office office;
  office.makeReference({"CREATE TABLE Norvi (norvo TEXT(30))", "INSERT INTO Norvi VALUES ('collgeometri')",
                        "INSERT INTO Norvi VALUES ('CollGeometri')"});
  office.writePatchList("Norvo-Prg=COLLGEOMETRI");
  Window window(office);
  EXPECT_EQ(window.form.lstDatabase.listIndex(), 2);
}

TEST(StartUp, WithoutAUsableReferenceDatabaseOffersNothing) {
  for (const bool damaged : {false, true}) {
    Office office;
    platform::removeFile(office.program + "\\AggNorvo.mdb");
    if (damaged) platform::writeWholeFile(office.program + "\\AggNorvo.mdb", "non è un database");
    Window window(office);
    EXPECT_TRUE(window.form.loaded());
    EXPECT_EQ(window.desktop.boxes.size(), damaged ? 0u : 1u);
    for (const auto& box : window.desktop.boxes) EXPECT_EQ(box.text, "Database mancante");
    EXPECT_EQ(window.form.lstDatabase.listCount(), 0);
    for (const controls::Control* control :
         {static_cast<const controls::Control*>(&window.form.cmdAggiorna),
          static_cast<const controls::Control*>(&window.form.lstDatabase),
          static_cast<const controls::Control*>(&window.form.mnuFileAggiorna)})
      EXPECT_FALSE(control->reachable()) << control->name();
    window.form.lstDatabase_DblClick();
    EXPECT_EQ(window.form.UltimaCorsa.esito, console::Esito::NonScelta);
  }
}

TEST(Choice, ByHandIsOfferedBySettingAndKeepsItsText) {
  Office office;
  office.writeSettings("[AggNorvo\\DU]\nOTHERDB = KEP\nANALISIDB = " + office.target + "\n" +
                       Office::registered("collgeometri", office.target));
  const std::string other = office.file("altro.mdb");
  platform::writeWholeFile(other, "x");
  Window window(office);
  auto& form = window.form;
  EXPECT_TRUE(form.chkAltroDatabase.visible());
  EXPECT_TRUE(form.chkAggiornaDescrizioni.visible());
  form.chkAltroDatabase.toggle();
  EXPECT_FALSE(form.lstDatabase.visible());
  EXPECT_TRUE(form.txtAltroDB.visible());
  EXPECT_FALSE(form.cmdAggiorna.enabled());
  form.txtAltroDB.setText(other);
  EXPECT_FALSE(form.cmdAggiorna.enabled()) << "typing enables nothing";
  form.chkAltroDatabase.toggle();
  form.lstDatabase.pick(1);
  EXPECT_TRUE(form.cmdAggiorna.enabled());
  form.LeggiDatabaseScelto();
  EXPECT_EQ(form.PercorsoDatabase, other) << "the text counts before the list";
  form.chkAltroDatabase.toggle();
  EXPECT_TRUE(form.cmdAggiorna.enabled());
  form.txtAltroDB.setText("  ");
  EXPECT_EQ(form.LeggiDatabaseScelto().applicazione, "collgeometri");
  EXPECT_EQ(form.PercorsoDatabase, office.target);
  form.lstDatabase.setListIndex(0);
  EXPECT_EQ(form.LeggiDatabaseScelto().applicazione, "");
  EXPECT_EQ(form.PercorsoDatabase, "");
  EXPECT_FALSE(form.mnuFileAggiorna.enabled());
}

TEST(Choice, TakesADroppedDatabaseAndNothingElse) {
  struct {
    controls::DropData drop;
    const char* text;
    bool enabled;
  } const cases[] = {{{true, {"\\a\\b.MDB", "\\a\\c.txt"}}, "\\a\\b.MDB", true},
                     {{true, {"\\a\\c.txt", "\\a\\b.mdb"}}, "", false},
                     {{true, {"db"}}, "", false},
                     {{false, {"\\a\\b.mdb"}}, "prima", true}};
  Office office;
  for (const auto& test : cases) {
    Window window(office);
    window.form.txtAltroDB.setText("prima");
    window.form.cmdAggiorna.setEnabled(true);
    window.form.mnuFileAggiorna.setEnabled(false);
    window.form.txtAltroDB.oleDragDrop.raise(test.drop);
    EXPECT_EQ(window.form.txtAltroDB.text(), test.text);
    EXPECT_EQ(window.form.cmdAggiorna.enabled(), test.enabled);
    EXPECT_FALSE(window.form.mnuFileAggiorna.enabled());
  }
}

TEST(Choice, TakesAnExistingFileOfTheDialog) {
  Office office;
  for (const char* name : {"", "manca.mdb", "studio.mdb"}) {
    Window window(office);
    window.form.cmdSelezionaDB.setVisible(true);
    if (*name) {
      window.desktop.expectOpen(office.file(name));
    } else {
      window.desktop.expectOpen(std::nullopt);
    }
    window.form.cmdSelezionaDB.press();
    const bool taken = name == std::string("studio.mdb");
    EXPECT_EQ(window.form.PercorsoDatabase, taken ? office.target : "");
    EXPECT_EQ(window.form.txtAltroDB.text(), window.form.PercorsoDatabase);
    EXPECT_EQ(window.form.cmdAggiorna.enabled(), taken);
    EXPECT_EQ(window.form.cmdDlg.flags(), 4100);
    EXPECT_EQ(window.form.cmdDlg.filter(), "Database Access (*.mdb)|*.mdb");
  }
}

TEST(Exit, WarnsWhenNothingWasUpdated) {
  Office office;
  Window window(office);
  window.form.mnuFileEsci.choose();
  ASSERT_EQ(window.desktop.boxes.size(), 1u);
  EXPECT_EQ(window.desktop.boxes[0].text,
            "Non è stato eseguito nessun aggiornamento al database. Operazione annullata!");
  EXPECT_FALSE(window.form.loaded());
  EXPECT_TRUE(window.patches.empty());
}

TEST(Exit, AfterAGoodUpdateGoesThroughThePatchEvenIfALaterOneFailed) {
  Office office;
  for (const bool fails : {false, true}) {
    Window window(office);
    window.update();
    if (fails) {
      const std::string good = platform::readWholeFile(office.target);
      platform::writeWholeFile(office.target, "non è un database");
      window.update();
      EXPECT_EQ(window.form.UltimaCorsa.esito, console::Esito::NonDatabase);
      platform::writeWholeFile(office.target, good);
    }
    const auto boxes = window.desktop.boxes.size();
    window.duringPatch = [&] {
      EXPECT_TRUE(window.form.loaded()) << "it stays behind the patch's window";
      if (fails) throw runtime::Error(75, "prova", "Accesso negato");
    };
    window.form.cmdEsci.press();
    EXPECT_THAT(window.patches, ElementsAre(office.program));
    EXPECT_FALSE(window.form.loaded());
    EXPECT_EQ(window.desktop.boxes.size(), boxes);
  }
}

TEST(Exit, DuringARunWaitsForItsEndAndThenSaysWhatCameOfIt) {
  for (const bool good : {true, false}) {
    Office office;
    if (!good) {
      auto statements = office::oldInstallation();
      statements.push_back("DROP TABLE ragioniere");
      office.makeTarget(statements);
    }
    Window window(office);
    bool left = false, delayed = false;
    window.form.unloadDelayed.connect([&] { delayed = true; });
    window.desktop.setEventsHook([&] {
      if (left || !window.form.busy() || !window.form.DbDestinazione()) return;
      left = true;
      window.form.cmdEsci.press();
      window.form.cmdSelezionaDB.setVisible(true);
      window.form.cmdSelezionaDB.press();
      EXPECT_TRUE(window.desktop.boxes.empty()) << "nothing holds the run inside its transaction";
      EXPECT_EQ(window.form.cmdDlg.dialogTitle(), "");
      EXPECT_TRUE(window.patches.empty());
    });
    window.duringPatch = [&] { EXPECT_EQ(window.form.UltimaCorsa.esito, console::Esito::Completata); };
    window.update();
    EXPECT_TRUE(left && delayed);
    EXPECT_EQ(window.patches.size(), good ? 1u : 0u);
    ASSERT_EQ(window.desktop.boxes.size(), good ? 0u : 1u);
    for (const auto& box : window.desktop.boxes)
      EXPECT_THAT(box.text, testing::HasSubstr("nessun aggiornamento"));
    EXPECT_FALSE(window.form.loaded());
  }
}

TEST(Summary, TakesPathsApart) {
  using Form = console::frmAggMain;
  EXPECT_EQ(Form::EstraiCartella("\\srv\\db\\a.mdb"), "\\srv\\db\\");
  EXPECT_EQ(Form::EstraiNomeFile("\\srv\\db\\a.mdb"), "a.mdb");
  EXPECT_EQ(Form::EstraiCartella("a.mdb"), "");
  EXPECT_EQ(Form::EstraiNomeFile("a.mdb"), "a.mdb");
  EXPECT_EQ(Form::EstraiCartella(runtime::Null{}), "");
  EXPECT_EQ(Form::EstraiNomeFile(std::int32_t{5}), "");
}

TEST(Wait, GoesOverMidnight) {
  Office office;
  Window window(office);
  office.clock.seconds = 86398;
  window.form.WaitFor(5);
  EXPECT_NEAR(office.clock.seconds, 2.5, 0.2) << "4.5 seconds round to the 4 that are even, 4.6 to 5";
}

}  // namespace
