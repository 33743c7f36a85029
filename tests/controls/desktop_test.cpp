#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "controls/batch_desktop.h"
#include "controls/common_dialog.h"
#include "controls/form.h"
#include "runtime/error.h"
#include "support/case_file.h"
#include "support/scripted_desktop.h"

using namespace controls;
using Answer = BatchDesktop::Answer;

/// The constants of boxes that the cases name.
const std::map<std::string, int> Styles = {{"vbOKOnly", vbOKOnly},
                                           {"vbOKCancel", vbOKCancel},
                                           {"vbAbortRetryIgnore", vbAbortRetryIgnore},
                                           {"vbYesNoCancel", vbYesNoCancel},
                                           {"vbYesNo", vbYesNo},
                                           {"vbRetryCancel", vbRetryCancel},
                                           {"vbCritical", vbCritical},
                                           {"vbQuestion", vbQuestion},
                                           {"vbExclamation", vbExclamation},
                                           {"vbInformation", vbInformation},
                                           {"vbDefaultButton2", vbDefaultButton2},
                                           {"vbDefaultButton3", vbDefaultButton3}};
const std::map<std::string, Answer> Configured = {
    {"Default", Answer::Default}, {"Yes", Answer::Yes}, {"No", Answer::No}, {"Cancel", Answer::Cancel}};
const std::map<MessageAnswer, std::string> Answers = {
    {vbOK, "vbOK"}, {vbCancel, "vbCancel"}, {vbAbort, "vbAbort"}, {vbYes, "vbYes"}, {vbNo, "vbNo"}};

TEST(BatchDesktop, WritesBoxesAndAnswersThem) {
  support::CaseFile(CASES "/batch_boxes.cases").expectResults([](const support::Case& each) {
    const std::vector<std::string> fields = support::fieldsOf(each.statement);
    int style = 0;
    std::istringstream names(fields[0]);
    for (std::string name; names >> name;) style += Styles.at(name);
    std::ostringstream out;
    BatchDesktop desktop(out, Configured.at(fields[1]));
    const std::string answer = Answers.at(desktop.msgBox("Uno\r\ndue", style, "T"));
    return answer + "; " + support::inBraces(out.str());
  });
}

TEST(BatchDesktop, ABoxWithoutTitleIsTheProgramsOwn) {
  std::ostringstream out;
  BatchDesktop(out).msgBox("Database mancante");
  EXPECT_EQ(out.str(), "[messaggio] AggNorvo: Database mancante\n");
}

TEST(BatchDesktop, AnInputBoxTakesTheApplicationThenTheDefaultUnlessGivenUp) {
  struct Row {
    Answer configured;
    std::optional<std::string> application;
    const char* answer;
  };
  for (const Row& row : {Row{Answer::Default, std::nullopt, "albo"}, Row{Answer::Yes, std::nullopt, "albo"},
                         Row{Answer::No, std::nullopt, ""}, Row{Answer::Cancel, std::nullopt, ""},
                         Row{Answer::Default, "PROTOCOLLO", "PROTOCOLLO"}}) {
    std::ostringstream out;
    BatchDesktop desktop(out, row.configured, row.application);
    EXPECT_EQ(desktop.inputBox("Inserire il nome", "Nome applicazione", "albo"), row.answer);
    EXPECT_EQ(out.str(),
              std::string("[richiesta] Nome applicazione: Inserire il nome -> \"") + row.answer + "\"\n");
  }
}

TEST(BatchDesktop, ChoosesNoFileAndClosesModalWindows) {
  std::ostringstream out;
  BatchDesktop batch(out);
  DesktopScope scope(batch);
  CommonDialog dialog("cmdDlg");
  dialog.setFileName("\\dati\\prima.mdb");
  EXPECT_FALSE(dialog.showOpen());
  EXPECT_EQ(dialog.fileName(), "\\dati\\prima.mdb");
  Form form("frm", "");
  form.show(true);
  EXPECT_FALSE(form.loaded());
}

TEST(Desktop, IsMissedByItsOwnErrorAndRestoredAtTheEndOfAScope) {
  EXPECT_THROW(desktop(), runtime::Error);
  std::ostringstream out;
  BatchDesktop batch(out);
  {
    DesktopScope scope(batch);
    EXPECT_EQ(&desktop(), &batch);
  }
  EXPECT_FALSE(hasDesktop());
}

TEST(ScriptedDesktop, FailsOnWhatItsScriptDoesNotForesee) {
  support::ScriptedDesktop scripted;
  EXPECT_THROW(scripted.msgBox("sorpresa"), std::logic_error);
  scripted.expectBox("attesa", vbOK);
  EXPECT_THROW(scripted.msgBox("un'altra"), std::logic_error);
  scripted.expectBox("aperto", vbCancel);
  EXPECT_THROW(scripted.msgBox("aperto", vbYesNo), std::logic_error);
  scripted.expectBox("aperto", vbNo);
  EXPECT_EQ(scripted.msgBox("è aperto", vbYesNo), vbNo);
  EXPECT_EQ(scripted.left(), 0u);
}
