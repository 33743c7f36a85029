// The window of the file patch: the real form, a real patch, real keys.
#include <QLabel>
#include <QTimer>

#include "common/globale.h"
#include "main_form.h"
#include "patcher/frmPatch.h"
#include "platform/files.h"
#include "support/temp_folder.h"

namespace {

class PatchWindow : public ShownWindow {
 protected:
  PatchWindow() {
    common::DirProgramma = folder.path();
    form.Path(folder.path());
    list("");
  }
  ~PatchWindow() override { form.unload(); }

  void list(const std::string& content) { platform::writeWholeFile(folder.path("PatchList.txt"), content); }
  bool finished() const { return form.txt.text().ends_with("Aggiornamento terminato, puoi uscire."); }

  support::TempFolder folder;
  patcher::frmPatch form;
};

TEST_F(PatchWindow, IsWaitedForAndWorkedByTheKeyboardAlone) {
  std::string walk;
  bool ran = false;
  QTimer::singleShot(0, qApp, [&] {
    auto* modal = QApplication::activeModalWidget();
    ASSERT_TRUE(modal && QTest::qWaitForWindowActive(modal));
    for (int i = 0; i < 3; ++i) {
      walk += qt::fromQt(modal->focusWidget()->objectName()) + " ";
      QTest::keyClick(modal->focusWidget(), Qt::Key_Tab);
    }
    QTest::keyClick(modal->findChild<QWidget*>("txt"), Qt::Key_Return);
    EXPECT_FALSE(finished()) << "Enter means nothing while the report is read";
    QTest::keyClick(modal, Qt::Key_A, Qt::AltModifier);
    ran = QTest::qWaitFor([&] { return finished() && form.cmd.enabled(); }, 2000);
    QTest::keyClick(modal, Qt::Key_E, Qt::AltModifier);
  });
  form.show(true);
  EXPECT_EQ(walk, "cmd cmdEsci txt ");
  EXPECT_TRUE(ran);
  EXPECT_FALSE(form.loaded());
}

TEST_F(PatchWindow, EscapeStopsARunAndThenCloses) {
  list("Windows-SOST=manca");
  open(form);
  form.DirWindowsPatch = folder.path("copia-");
  QString duringRun;
  QTimer::singleShot(50, window, [&] {
    duringRun = view<QPushButton>("cmdEsci")->text();
    QTest::keyClick(view("txt"), Qt::Key_Escape);
    platform::writeWholeFile(folder.path("manca"), "x");  // what the run waits for
  });
  QTest::keyClick(view("cmd"), Qt::Key_Return);
  EXPECT_EQ(duringRun, "A&nnulla");
  EXPECT_TRUE(form.txt.text().ends_with("Esecuzione terminata dall'utente. \r\n")) << form.txt.text();
  EXPECT_TRUE(form.loaded());
  QTest::keyClick(view("txt"), Qt::Key_Escape);
  EXPECT_FALSE(form.loaded());
}

TEST_F(PatchWindow, NothingIsCutWhateverTheListSaysAndHoweverLargeTheFont) {
  std::string words;
  while (words.size() < (1 << 20)) words += "Prima chiudere tutto; ";
  list("Top-LBL=" + words + "\nCaption-LBL=Patch & prova");
  const QFont font = QApplication::font();
  for (const double factor : {1.0, 2.0, 3.0}) {
    QFont larger = font;
    larger.setPointSizeF(font.pointSizeF() * factor);
    QApplication::setFont(larger);
    qt::QtDesktop fresh;  // one that has shown its last window shows no other
    const controls::DesktopScope freshScope(fresh);
    patcher::frmPatch scaled;
    scaled.Path(folder.path());
    scaled.show();
    window = fresh.windowOf(scaled);
    ASSERT_TRUE(window->isVisible());
    for (const bool smallest : {false, true}) {
      if (smallest) window->resize(1, 1);
      QCoreApplication::processEvents();
      EXPECT_EQ(window->windowTitle(), "Patch & prova");
      for (const char* name : {"lblTop", "txt", "cmd", "cmdEsci"}) {
        const QWidget* widget = view(name);
        EXPECT_TRUE(window->centralWidget()->rect().contains(widget->geometry())) << name << factor;
        EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << name << factor;
      }
      for (const char* name : {"cmd", "cmdEsci"})
        EXPECT_GE(view(name)->width(), view(name)->sizeHint().width()) << name << factor;
      EXPECT_LE(view("lblTop")->height(), 4 * view("lblTop")->fontMetrics().lineSpacing());
      EXPECT_LE(window->minimumSizeHint().width(), view("txt")->minimumSizeHint().width() + 50);
    }
  }
  QApplication::setFont(font);
}

TEST_F(PatchWindow, HasNamesForReadersOfTheScreen) {
  list("Top-LBL=Patch del 10-12-2003");
  open(form);
  EXPECT_EQ(view<QLabel>("lblTop")->text(), "Patch del 10-12-2003");
  EXPECT_EQ(view("cmd")->accessibleName(), "Aggiorna");
  EXPECT_EQ(view("cmdEsci")->accessibleName(), "ESCI");
  EXPECT_FALSE(view("txt")->accessibleName().isEmpty());
}

}  // namespace
