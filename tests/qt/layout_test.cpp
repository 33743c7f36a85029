#include <QAbstractButton>
#include <QLabel>

#include "main_form.h"

namespace {

class Layout : public WindowTest {
 protected:
  void TearDown() override { QApplication::setFont(font_); }

  /// Captions that do not fit into their widget, and widgets that reach out of the window.
  std::string cut() {
    QCoreApplication::processEvents();
    std::string names;
    for (QWidget* widget : window->centralWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      if (!widget->isVisible()) continue;
      const bool captioned = qobject_cast<QAbstractButton*>(widget) || qobject_cast<QLabel*>(widget);
      const QSize needed = captioned ? widget->sizeHint() : widget->minimumSizeHint();
      const bool fits = widget->width() >= needed.width() && widget->height() >= needed.height();
      if (!fits || !window->centralWidget()->rect().contains(widget->geometry()))
        names += qt::fromQt(widget->objectName()) + " ";
    }
    return names;
  }

  QFont font_ = QApplication::font();
};

}  // namespace

TEST_F(Layout, NothingIsCutAtAnySizeOfTheFontEvenInTheSmallestWindow) {
  for (const double factor : {1.0, 1.5, 2.0, 3.0}) {
    QFont larger = font_;
    larger.setPointSizeF(font_.pointSizeF() * factor);
    QApplication::setFont(larger);
    qt::QtDesktop fresh;  // one that has shown its last window shows no other
    const controls::DesktopScope freshScope(fresh);
    MainForm scaled;
    scaled.show();
    window = fresh.windowOf(scaled);
    ASSERT_TRUE(window->isVisible());
    EXPECT_EQ(cut(), "") << factor;
    window->resize(1, 1);
    EXPECT_EQ(cut(), "") << factor << ", smallest";
  }
}

TEST_F(Layout, RoomToSpareGoesMostlyToTheSummary) {
  form.hideChoice();
  open();
  QCoreApplication::processEvents();
  const int summary = view("txtRiepilogo")->height();
  const int button = view("cmdAggiorna")->height();
  window->resize(window->width(), window->height() + 400);
  QCoreApplication::processEvents();
  EXPECT_GT(view("txtRiepilogo")->height(), summary + 250);
  EXPECT_EQ(view("cmdAggiorna")->height(), button);
  EXPECT_EQ(cut(), "");
}

TEST_F(Layout, HiddenControlsTakeNoRoom) {
  open();
  QCoreApplication::processEvents();
  const int full = window->minimumSizeHint().height();
  form.hideChoice();
  QCoreApplication::processEvents();
  const int without = window->minimumSizeHint().height();
  EXPECT_GE(full - without, view("txtAltroDB")->sizeHint().height());
  form.lstDatabase.setVisible(false);
  form.lblDatabase.setVisible(false);
  QCoreApplication::processEvents();
  EXPECT_LT(window->minimumSizeHint().height(), without);
  EXPECT_FALSE(view("lstDatabase")->isVisible());
}

TEST_F(Layout, EveryControlHasANameForReadersOfTheScreen) {
  open();
  for (const controls::Control* control : form.controlList()) {
    auto* widget = view(control->name().c_str());
    ASSERT_TRUE(widget) << control->name();
    auto* label = qobject_cast<QLabel*>(widget);
    const QString name = label ? label->text() : widget->accessibleName();
    EXPECT_FALSE(name.isEmpty()) << control->name();
    EXPECT_TRUE(label || !name.contains(u'&')) << control->name();
  }
}
