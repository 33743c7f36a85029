#include <QScrollBar>
#include <QTextDocument>

#include "main_form.h"

namespace {

class Summary : public WindowTest {
 protected:
  void SetUp() override {
    open();
    box = view<QPlainTextEdit>("txtRiepilogo");
    bar = box->verticalScrollBar();
  }
  void appendLines(int count) {
    for (int i = 0; i < count; ++i) form.append("\r\nTabella ragioniere - campo " + std::to_string(i));
  }
  bool atEnd() const { return bar->value() == bar->maximum(); }

  QPlainTextEdit* box = nullptr;
  QScrollBar* bar = nullptr;
};

}  // namespace

TEST_F(Summary, TwentyThousandLinesAreAddedAtTheEndAlone) {
  form.append("Aggiornamento in data");
  long long removed = 0;
  int written = 0;
  QObject::connect(box->document(), &QTextDocument::contentsChange, box, [&](int, int gone, int added) {
    removed += gone;
    written += added;
  });
  appendLines(1);
  ASSERT_EQ(removed, 0);  // a text that is set anew shows as removed and written again
  appendLines(20000);
  EXPECT_EQ(box->blockCount(), 20002);
  QString shown = box->toPlainText();
  EXPECT_EQ(qt::fromQt(shown.replace("\n", "\r\n")), form.txtRiepilogo.text());
  EXPECT_EQ(removed, 0);
  EXPECT_LT(written, box->toPlainText().size() + 1);
  EXPECT_TRUE(atEnd());
}

TEST_F(Summary, ALineEndInTwoPiecesIsOne) {
  form.append("a\r");
  form.append("\nb");
  EXPECT_EQ(box->toPlainText(), "a\nb");
  EXPECT_EQ(form.txtRiepilogo.text(), "a\r\nb");
}

TEST_F(Summary, AnEmptyTextEmptiesIt) {
  appendLines(3);
  form.txtRiepilogo.setText("");
  EXPECT_EQ(box->toPlainText(), "");
  form.append("daccapo");
  EXPECT_EQ(box->toPlainText(), "daccapo");
}

TEST_F(Summary, TheEndStaysInViewWhenTheWindowShrinks) {
  appendLines(200);
  ASSERT_GT(bar->maximum(), 0);
  window->resize(window->width(), window->minimumSizeHint().height());
  QCoreApplication::processEvents();
  EXPECT_TRUE(atEnd());
  appendLines(1);
  EXPECT_TRUE(atEnd());
}

TEST_F(Summary, AnOperatorWhoReadsFurtherUpIsLeftThere) {
  appendLines(200);
  bar->setValue(10);
  appendLines(50);
  QCoreApplication::processEvents();
  EXPECT_EQ(bar->value(), 10);
  bar->setValue(bar->maximum());
  appendLines(1);
  EXPECT_TRUE(atEnd());
}

TEST_F(Summary, SelectedTextStaysSelectedWhileTheRunGoesOn) {
  form.append("prima riga");
  QTextCursor cursor = box->textCursor();
  cursor.setPosition(0);
  cursor.setPosition(5, QTextCursor::KeepAnchor);
  box->setTextCursor(cursor);
  appendLines(5);
  EXPECT_EQ(box->textCursor().selectedText(), "prima");
}

TEST(TextEdit, TypedLinesEndAsTheProductsDo) {
  controls::TextBox model("txt");
  model.setMultiLine(true);
  QWidget parent;
  qt::TextEditView editor(model, &parent);
  parent.show();
  QTest::keyClicks(&editor, "a");
  QTest::keyClick(&editor, Qt::Key_Return);
  QTest::keyClicks(&editor, "b");
  EXPECT_EQ(model.text(), "a\r\nb");
  model.setText("c\r\nd");
  EXPECT_EQ(editor.toPlainText(), "c\nd");
}
