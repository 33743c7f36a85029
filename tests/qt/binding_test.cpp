#include <QCheckBox>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "main_form.h"
#include "platform/paths.h"

namespace {

class Binding : public WindowTest {
 protected:
  void drop(QWidget* target, const QMimeData& data) {
    QDragEnterEvent enter(QPoint(3, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    accepted = enter.isAccepted();
    if (!accepted) return;
    QDropEvent event(QPointF(3, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
  }
  bool accepted = false;
};

}  // namespace

TEST_F(Binding, TypedTextReachesTheControlAndItsAnswerTheBox) {
  open();
  auto* box = view<QLineEdit>("txtAltroDB");
  form.txtAltroDB.change.connect([this] {
    if (form.txtAltroDB.text() == "abc") form.txtAltroDB.setText("\\dati\\è.mdb");
  });
  QTest::keyClicks(box, "ab");
  EXPECT_EQ(form.txtAltroDB.text(), "ab");
  QTest::keyClicks(box, "c");
  EXPECT_EQ(form.txtAltroDB.text(), "\\dati\\è.mdb");
  EXPECT_EQ(box->text(), QString("\\dati\\è.mdb"));
}

TEST_F(Binding, TypingInTheMiddleKeepsTheCaretThere) {
  form.txtAltroDB.setText("ad");
  open();
  auto* box = view<QLineEdit>("txtAltroDB");
  box->setCursorPosition(1);
  QTest::keyClicks(box, "bc");
  EXPECT_EQ(form.txtAltroDB.text(), "abcd");
  EXPECT_EQ(box->cursorPosition(), 3);
}

TEST_F(Binding, AListFollowsItsControlWithoutClicksOfItsOwn) {
  open();
  auto* list = view<QListWidget>("lstDatabase");
  EXPECT_TRUE(list->selectedItems().isEmpty());
  EXPECT_EQ(takeLog(), "");
  form.lstDatabase.addItem("PARCELLE ");
  form.lstDatabase.setListIndex(3);
  EXPECT_EQ(list->currentRow(), 3);
  EXPECT_EQ(takeLog(), "lst3 ");
  form.lstDatabase.setListIndex(-1);
  EXPECT_TRUE(list->selectedItems().isEmpty());
  form.lstDatabase.clear();
  form.lstDatabase.addItem("unica");
  ASSERT_EQ(list->count(), 1);
  EXPECT_EQ(list->item(0)->text(), "unica");
}

TEST_F(Binding, TheMouseClicksAndDoubleClicksRows) {
  open();
  auto* list = view<QListWidget>("lstDatabase");
  const QPoint second = list->visualItemRect(list->item(1)).center();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, second);
  EXPECT_EQ(takeLog(), "lst1 ");
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, second);
  EXPECT_EQ(takeLog(), "lst1 dbl ");
}

TEST_F(Binding, ACheckBoxShowsWhatItsControlMadeOfTheClick) {
  open();
  auto* box = view<QCheckBox>("chkAltroDatabase");
  form.chkAltroDatabase.click.connect([this] { form.chkAltroDatabase.setValue(controls::Unchecked); });
  box->click();
  EXPECT_FALSE(box->isChecked());
  form.chkAggiornaDescrizioni.setValue(controls::Grayed);
  EXPECT_EQ(view<QCheckBox>("chkAggiornaDescrizioni")->checkState(), Qt::PartiallyChecked);
}

TEST_F(Binding, MenuEntriesFollowTheirControls) {
  open();
  auto* entry = window->findChild<QAction*>("mnuFileAggiorna");
  form.mnuFileAggiorna.setEnabled(false);
  EXPECT_FALSE(entry->isEnabled());
  form.mnuFile.setVisible(false);
  EXPECT_FALSE(window->findChild<QAction*>("mnuFile")->isVisible());
  auto* line = window->findChild<QAction*>("mnuFileSep1");
  EXPECT_TRUE(line->isSeparator());
  EXPECT_EQ(qt::fromQt(line->text()), "") << "some styles would show it";
}

TEST_F(Binding, DroppedFilesArriveAsPathsOfTheProduct) {
  open();
  controls::DropData received;
  form.txtAltroDB.oleDragDrop.connect([&](const controls::DropData& data) { received = data; });
  QMimeData files;
  files.setUrls({QUrl::fromLocalFile("/dati/Città 1.MDB"), QUrl::fromLocalFile("/dati/b.mdb")});
  drop(view("txtAltroDB"), files);
  EXPECT_TRUE(received.getFormat(15));
  EXPECT_EQ(received.files, (std::vector<std::string>{platform::fromSystemPath("/dati/Città 1.MDB"),
                                                      platform::fromSystemPath("/dati/b.mdb")}));
  EXPECT_EQ(form.txtAltroDB.text(), "");  // the form decides what becomes of a drop

  QMimeData link;
  link.setUrls({QUrl("https://example.org/a.mdb")});
  drop(view("txtAltroDB"), link);
  EXPECT_FALSE(received.getFormat(15));
}

TEST_F(Binding, WhatIsNoDropTargetTakesNoFiles) {
  form.txtAltroDB.setDropTarget(false);
  open();
  QMimeData files;
  files.setUrls({QUrl::fromLocalFile("/dati/a.mdb")});
  for (const char* target : {"txtAltroDB", "txtRiepilogo"}) {
    drop(view(target), files);
    EXPECT_FALSE(view(target)->acceptDrops()) << target;
  }
  EXPECT_EQ(form.txtRiepilogo.text(), "");
}
