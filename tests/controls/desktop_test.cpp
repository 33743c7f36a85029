#include <gtest/gtest.h>

#include <sstream>

#include "controls/batch_desktop.h"
#include "controls/common_dialog.h"
#include "controls/form.h"
#include "runtime/error.h"
#include "support/scripted_desktop.h"

using namespace controls;
using Answer = BatchDesktop::Answer;

namespace {

struct BatchBox {
  const char* name;
  int style;
  Answer configured;
  MessageAnswer answer;
  const char* line;
};

class BatchBoxes : public testing::TestWithParam<BatchBox> {};

}  // namespace

TEST_P(BatchBoxes, AreWrittenAndAnswered) {
  const BatchBox& row = GetParam();
  std::ostringstream out;
  BatchDesktop desktop(out, row.configured);
  EXPECT_EQ(desktop.msgBox("Uno\r\ndue", row.style, "T"), row.answer);
  EXPECT_EQ(out.str(), row.line);
}

INSTANTIATE_TEST_SUITE_P(
    Table, BatchBoxes,
    testing::Values(
        BatchBox{"plain", vbOKOnly, Answer::Default, vbOK, "[messaggio] T: Uno / due\n"},
        BatchBox{"critical", vbCritical, Answer::No, vbOK, "[errore] T: Uno / due\n"},
        BatchBox{"warningSaysOkToCancel", vbExclamation, Answer::Cancel, vbOK, "[avviso] T: Uno / due\n"},
        BatchBox{"lockedYes", 67, Answer::Yes, vbYes, "[informazione] T: Uno / due -> Sì\n"},
        BatchBox{"lockedNo", 67, Answer::No, vbNo, "[informazione] T: Uno / due -> No\n"},
        BatchBox{"lockedCancel", 67, Answer::Cancel, vbCancel, "[informazione] T: Uno / due -> Annulla\n"},
        BatchBox{"lockedDefault", 67, Answer::Default, vbYes, "[informazione] T: Uno / due -> Sì\n"},
        BatchBox{"secondIsDefault", vbYesNo + vbQuestion + vbDefaultButton2, Answer::Default, vbNo,
                 "[domanda] T: Uno / due -> No\n"},
        BatchBox{"thirdIsDefault", vbYesNoCancel + vbDefaultButton3, Answer::Default, vbCancel,
                 "[domanda] T: Uno / due -> Annulla\n"},
        BatchBox{"noCancelToPress", vbYesNo + vbDefaultButton2, Answer::Cancel, vbNo,
                 "[domanda] T: Uno / due -> No\n"},
        BatchBox{"noYesToPress", vbOKCancel, Answer::Yes, vbOK, "[domanda] T: Uno / due -> OK\n"},
        BatchBox{"abort", vbAbortRetryIgnore, Answer::Yes, vbAbort, "[domanda] T: Uno / due -> Interrompi\n"},
        BatchBox{"retryCancel", vbRetryCancel, Answer::Cancel, vbCancel,
                 "[domanda] T: Uno / due -> Annulla\n"}),
    [](const auto& row) { return row.param.name; });

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
  dialog.setCancelError(true);
  EXPECT_THROW(dialog.showOpen(), runtime::Error);
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
