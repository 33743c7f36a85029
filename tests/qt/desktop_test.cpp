#include <gtest/gtest.h>

#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <QWindow>

#include "controls/common_dialog.h"
#include "main_form.h"
#include "qt/boxes.h"
#include "runtime/error.h"

using namespace controls;

namespace {

class Boxes : public WindowTest {
 protected:
  /// Does `action` with the box that is up when the event loop next runs.
  template <typename Box>
  void whenUp(std::function<void(Box&)> action) {
    QTimer::singleShot(0, qApp, [action = std::move(action)] {
      auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
      ASSERT_TRUE(box);
      action(*box);
    });
  }
};

QString captions(const QMessageBox& box) {
  QStringList texts;
  for (const auto* button : box.buttons()) texts << button->text();
  texts.sort();
  return texts.join(' ');
}

}  // namespace

TEST_F(Boxes, AreItalianAndAnsweredByTheirButtons) {
  struct Row {
    int style;
    const char* captions;
    const char* press;
    MessageAnswer answer;
    QMessageBox::Icon icon;
  };
  for (const Row& row :
       {Row{vbOKOnly + vbExclamation, "&OK", "&OK", vbOK, QMessageBox::Warning},
        Row{67, "&Annulla &No &Sì", "&Sì", vbYes, QMessageBox::Information},
        Row{67, "&Annulla &No &Sì", "&No", vbNo, QMessageBox::Information},
        Row{67, "&Annulla &No &Sì", "&Annulla", vbCancel, QMessageBox::Information},
        Row{vbRetryCancel + vbCritical, "&Annulla &Riprova", "&Riprova", vbRetry, QMessageBox::Critical},
        Row{vbYesNo + vbQuestion, "&No &Sì", "&Sì", vbYes, QMessageBox::Question}}) {
    whenUp<QMessageBox>([&](QMessageBox& box) {
      EXPECT_EQ(captions(box), QString(row.captions));
      EXPECT_EQ(box.text(), "Il <b> è\naperto");
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      EXPECT_EQ(box.icon(), row.icon);
      for (auto* button : box.buttons())
        if (button->text() == QString(row.press)) button->click();
    });
    EXPECT_EQ(desktop.msgBox("Il <b> è\r\naperto", row.style, "Titolo"), row.answer);
  }
}

TEST_F(Boxes, EnterTakesTheDefaultAndEscapeWhatChangesNothing) {
  struct Row {
    int style;
    Qt::Key key;
    MessageAnswer answer;
  };
  for (const Row& row :
       {Row{vbYesNoCancel, Qt::Key_Return, vbYes}, Row{vbYesNo + vbDefaultButton2, Qt::Key_Return, vbNo},
        Row{vbYesNoCancel, Qt::Key_Escape, vbCancel}, Row{vbYesNo, Qt::Key_Escape, vbNo},
        Row{vbOKOnly, Qt::Key_Escape, vbOK}, Row{vbAbortRetryIgnore, Qt::Key_Escape, vbAbort}}) {
    whenUp<QMessageBox>([&](QMessageBox& box) { QTest::keyClick(&box, row.key); });
    EXPECT_EQ(desktop.msgBox("?", row.style), row.answer) << row.style;
  }
}

TEST_F(Boxes, AnInputBoxGivesItsTextOrNothing) {
  whenUp<QInputDialog>([](QInputDialog& box) {
    EXPECT_EQ(box.textValue(), "albo");
    EXPECT_EQ(box.windowTitle(), "Nome applicazione");
    box.setTextValue("PROTOCOLLO");
    QTest::keyClick(&box, Qt::Key_Return);
  });
  EXPECT_EQ(desktop.inputBox("Inserire il nome", "Nome applicazione", "albo"), "PROTOCOLLO");
  whenUp<QInputDialog>([](QInputDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_EQ(desktop.inputBox("Inserire il nome", "Nome applicazione", "albo"), "");
}

TEST_F(Boxes, ACancelledFileDialogLeavesTheNameAsItWas) {
  CommonDialog dialog("cmdDlg");
  dialog.setFilter("Database Access (*.mdb)|*.mdb");
  dialog.setFlags(4100);
  dialog.setDialogTitle("Seleziona database");
  dialog.setFileName("\\prima.mdb");
  whenUp<QFileDialog>([](QFileDialog& box) {
    EXPECT_EQ(box.windowTitle(), "Seleziona database");
    EXPECT_EQ(box.fileMode(), QFileDialog::ExistingFile);
    EXPECT_EQ(box.nameFilters(), QStringList("Database Access (*.mdb)"));
    box.reject();
  });
  EXPECT_FALSE(dialog.showOpen());
  EXPECT_EQ(dialog.fileName(), "\\prima.mdb");
}

TEST(NameFilters, ComeFromPairsOfDescriptionAndPatterns) {
  EXPECT_EQ(qt::nameFilters("Database Access (*.mdb)|*.mdb|Tutti i file|*.*;*"),
            (QStringList{"Database Access (*.mdb)", "Tutti i file (*.* *)"}));
  EXPECT_TRUE(qt::nameFilters("").isEmpty());
}

TEST_F(Boxes, AnErrorThatNobodyTrapsIsShownAndTheWindowLives) {
  open();
  form.cmdAggiorna.click.connect([] { throw runtime::Error(3356, "test", "File in uso"); });
  QString shown;
  whenUp<QMessageBox>([&](QMessageBox& box) {
    shown = box.text();
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  view<QPushButton>("cmdAggiorna")->click();
  EXPECT_EQ(shown, "Errore di esecuzione 3356:\nFile in uso");
  EXPECT_TRUE(window->isVisible());
}

TEST_F(WindowTest, ClosingTheFrameUnloadsUnlessRefused) {
  open();
  bool refuses = true;
  form.queryUnload.connect([&](bool& refuse) { refuse = refuses; });
  window->close();
  EXPECT_TRUE(window->isVisible());
  refuses = false;
  window->close();
  EXPECT_EQ(takeLog(), "unload ");
  EXPECT_FALSE(form.loaded());
  EXPECT_EQ(desktop.windowOf(form), nullptr);
}

TEST_F(WindowTest, AFrameClosedDuringARunClosesAfterIt) {
  open();
  bool aliveAtEnd = false;
  QPointer<qt::FormWindow> watched = window;
  form.cmdAggiorna.click.connect([&] {
    form.whileBusy([&] {
      QTimer::singleShot(0, window, &QWidget::close);
      for (int i = 0; i < 5; ++i) desktop.doEvents();
      EXPECT_EQ(qt::fromQt(window->statusBar()->currentMessage()),
                "La finestra si chiuderà al termine dell'operazione in corso.");
      form.append("ancora");
      aliveAtEnd = watched && watched->isVisible() && form.loaded();
    });
  });
  view<QPushButton>("cmdAggiorna")->click();
  EXPECT_TRUE(aliveAtEnd);
  EXPECT_EQ(takeLog(), "aggiorna unload ");
  EXPECT_FALSE(watched && watched->isVisible());
}

TEST_F(WindowTest, ClicksArriveWhileARunLetsEventsThrough) {
  open();
  form.cmdAggiorna.click.connect([&] {
    QTimer::singleShot(0, window, [&] { view<QPushButton>("cmdSelezionaDB")->click(); });
    desktop.doEvents();
    form.log += "fine ";
  });
  view<QPushButton>("cmdAggiorna")->click();
  EXPECT_EQ(takeLog(), "aggiorna seleziona fine ");
}

TEST_F(WindowTest, AModalFormIsWaitedForAndLaidOutWithoutALayoutOfItsOwn) {
  open();
  Form patch("frmAltra", "Patch");
  Label top("lblTop", "In corso");
  TextBox report("txt");
  report.setMultiLine(true);
  Button leave("cmdEsci", "ESCI");
  for (Control* control : std::initializer_list<Control*>{&report, &leave, &top}) patch.add(*control);
  leave.click.connect([&] { patch.unload(); });
  QString shown;
  QTimer::singleShot(0, qApp, [&] {
    auto* modal = QApplication::activeModalWidget();
    ASSERT_TRUE(modal);
    shown = modal->findChild<QLabel*>("lblTop")->text();
    EXPECT_EQ(modal->windowHandle()->transientParent(), window->windowHandle());
    modal->findChild<QPushButton*>("cmdEsci")->click();
  });
  patch.show(true);
  EXPECT_EQ(shown, "In corso");
  EXPECT_FALSE(patch.loaded());
  EXPECT_TRUE(form.loaded());
}

TEST_F(WindowTest, AFormPlacesItselfWhenItLoads) {
  form.loading.connect([this] {
    EXPECT_GT(form.width(), 0);
    form.setLeft((desktop.screenWidth() - form.width()) / 2);
    form.setTop((desktop.screenHeight() - form.height()) / 2);
  });
  open();
  EXPECT_EQ(window->pos(), QPoint(form.left(), form.top()));
  EXPECT_GE(form.left(), 0);
  EXPECT_LE(form.left() + form.width(), desktop.screenWidth());
}

TEST_F(WindowTest, IsPutBeforeOthersAndGivenBackWithoutLeavingTheScreen) {
  desktop.keepOnTop(form, true);  // nothing happens before there is a window
  open();
  for (const bool onTop : {true, false}) {
    desktop.keepOnTop(form, onTop);
    EXPECT_EQ(window->windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint), onTop);
    EXPECT_TRUE(window->isVisible());
  }
}

TEST_F(WindowTest, TheHourglassGivesWayToABoxAndComesBack) {
  open();
  desktop.setMousePointer(MousePointer::Hourglass);
  Qt::CursorShape overBox = Qt::WaitCursor;
  QTimer::singleShot(0, qApp, [&] {
    overBox = QApplication::overrideCursor()->shape();
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
  });
  desktop.msgBox("?");
  EXPECT_EQ(overBox, Qt::ArrowCursor);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  desktop.setMousePointer(MousePointer::Default);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(WindowTest, TheProgramEndsWithItsLastWindow) {
  open();
  QTimer::singleShot(0, window, &QWidget::close);
  EXPECT_EQ(desktop.run(), 0);
  EXPECT_EQ(desktop.run(), 0);  // nothing left to wait for
}
