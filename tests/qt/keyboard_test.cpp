#include <QMenu>

#include "main_form.h"

namespace {

class Keyboard : public WindowTest {};

}  // namespace

TEST_F(Keyboard, TabWalksThroughTheWindowAndPassesWhatIsHiddenOrDisabled) {
  open();
  std::string walk;
  for (int i = 0; i < 8; ++i) {
    walk += focused() + " ";
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(
      walk,
      "lstDatabase txtAltroDB cmdSelezionaDB chkAltroDatabase chkAggiornaDescrizioni cmdAggiorna cmdEsci "
      "txtRiepilogo ");
  EXPECT_EQ(focused(), "lstDatabase");
  form.hideChoice();
  form.cmdAggiorna.setEnabled(false);
  QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(focused(), "cmdEsci");
}

TEST_F(Keyboard, StartsAtTheFirstControlInReach) {
  form.lstDatabase.setEnabled(false);
  form.txtAltroDB.setVisible(false);
  open();
  EXPECT_EQ(focused(), "cmdSelezionaDB");
}

TEST_F(Keyboard, LettersOfTheCaptionsReachTheirControls) {
  open();
  view("txtRiepilogo")->setFocus();
  struct Row {
    Qt::Key key;
    const char* log;
  };
  for (const Row& row :
       {Row{Qt::Key_A, "aggiorna "}, Row{Qt::Key_E, "esci "}, Row{Qt::Key_S, "seleziona "}}) {
    QTest::keyClick(window, row.key, Qt::AltModifier);
    // A button that is reached by its letter is pressed by it, after a moment in which it looks so.
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.log == row.log; }, 2000)) << form.log;
    takeLog();
  }
  QTest::keyClick(window, Qt::Key_P, Qt::AltModifier);
  EXPECT_EQ(focused(), "lstDatabase");
}

TEST_F(Keyboard, TheMenuOpensByItsLetter) {
  open();
  QTest::keyClick(window, Qt::Key_F, Qt::AltModifier);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_TRUE(menu);
  QTest::keyClick(menu, Qt::Key_A);
  EXPECT_EQ(takeLog(), "menu ");
}

TEST_F(Keyboard, ArrowsSelectInTheListAndEnterIsADoubleClick) {
  open();
  view<QListWidget>("lstDatabase")->setCurrentRow(0);
  takeLog();
  QTest::keyClick(view("lstDatabase"), Qt::Key_Down);
  QTest::keyClick(view("lstDatabase"), Qt::Key_Return);
  EXPECT_EQ(takeLog(), "lst1 lst1 dbl ");
  EXPECT_EQ(form.lstDatabase.listIndex(), 1);
}

TEST_F(Keyboard, EnterPressesTheDefaultButtonOnlyWhereItMeansNothingElse) {
  open();
  struct Row {
    const char* control;
    const char* log;
  };
  for (const Row& row : {Row{"txtAltroDB", "aggiorna "}, Row{"chkAltroDatabase", "aggiorna "},
                         Row{"cmdEsci", "esci "}, Row{"cmdAggiorna", "aggiorna "}, Row{"txtRiepilogo", ""}}) {
    view(row.control)->setFocus();
    QTest::keyClick(view(row.control), Qt::Key_Return);
    EXPECT_EQ(takeLog(), row.log) << row.control;
  }
  form.cmdAggiorna.setEnabled(false);
  QTest::keyClick(view("txtAltroDB"), Qt::Key_Return);
  EXPECT_EQ(takeLog(), "");
}

TEST_F(Keyboard, EscapeDoesNothing) {
  open();
  for (const char* control : {"lstDatabase", "txtAltroDB", "txtRiepilogo", "cmdEsci"})
    QTest::keyClick(view(control), Qt::Key_Escape);
  EXPECT_EQ(takeLog(), "");
  EXPECT_TRUE(window->isVisible());
}

TEST_F(Keyboard, SpaceTicksABox) {
  open();
  QTest::keyClick(view("chkAltroDatabase"), Qt::Key_Space);
  EXPECT_EQ(form.chkAltroDatabase.value(), controls::Checked);
  EXPECT_EQ(takeLog(), "altro ");
}

TEST_F(Keyboard, TheSummaryCanBeSelectedAndNotTypedInto) {
  open();
  form.append("prima\r\nseconda");
  auto* summary = view<QPlainTextEdit>("txtRiepilogo");
  QTest::keyClicks(summary, "x");
  QTest::keyClick(summary, Qt::Key_Delete);
  EXPECT_EQ(form.txtRiepilogo.text(), "prima\r\nseconda");
  QTest::keyClick(summary, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(qt::fromQt(summary->textCursor().selection().toPlainText()), "prima\nseconda");
}
