// Text boxes on screen, of one line and of many.
#include "qt/text_box_view.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QUrl>

#include "platform/paths.h"
#include "qt/guard.h"
#include "qt/text.h"
#include "qt/view.h"

namespace qt {
namespace {

controls::DropData dropDataOf(const QMimeData& data) {
  controls::DropData drop;
  for (const QUrl& url : data.urls())
    if (url.isLocalFile()) drop.files.push_back(platform::fromSystemPath(fromQt(url.toLocalFile())));
  drop.hasFiles = !drop.files.empty();
  return drop;
}

/// The toolkit's line ends are LF; a CR LF may come in two pieces, so that the CR alone is dropped.
QString lines(std::string_view text) {
  return toQt(text).remove(u'\r');
}

}  // namespace

LineEditView::LineEditView(controls::TextBox& box, QWidget* parent) : QLineEdit(parent), box_(box) {
  properties_ = follow(box, *this, [this] {
    setReadOnly(box_.locked());
    setAcceptDrops(box_.dropTarget());
  });
  texts_[0] = box.replaced.subscribe([this] { refresh(); });
  texts_[1] = box.appended.subscribe([this](std::string_view) { refresh(); });
  refresh();
  connect(this, &QLineEdit::textEdited, this,
          [this](const QString& typed) { guarded([&] { box_.setText(fromQt(typed)); }); });
}

QSize LineEditView::minimumSizeHint() const {
  return QLineEdit::minimumSizeHint().expandedTo({fontMetrics().averageCharWidth() * 20, 0});
}

void LineEditView::refresh() {
  const QString wanted = toQt(box_.text());
  if (text() != wanted) setText(wanted);
}

void LineEditView::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void LineEditView::dragMoveEvent(QDragMoveEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void LineEditView::dropEvent(QDropEvent* event) {
  const controls::DropData drop = dropDataOf(*event->mimeData());
  event->acceptProposedAction();
  guarded([&] { box_.oleDragDrop.raise(drop); });
}

TextEditView::TextEditView(controls::TextBox& box, QWidget* parent) : QPlainTextEdit(parent), box_(box) {
  setTabChangesFocus(true);
  setAcceptDrops(false);
  properties_ = follow(box, *this, [this] {
    setReadOnly(box_.locked());
    setUndoRedoEnabled(!box_.locked());
    // A caret shows readers and keyboard users where they are, also where nothing can be typed.
    if (box_.locked()) setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  });
  texts_[0] = box.replaced.subscribe([this] { replace(); });
  texts_[1] = box.appended.subscribe([this](std::string_view text) { append(text); });
  replace();
  connect(this, &QPlainTextEdit::textChanged, this, [this] { takeTyped(); });
  // A change of the range is growth or another size of the box; a change of the value alone is the
  // operator's.
  connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this] { followEnd(); });
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
          [this](int value) { followsEnd_ = value == verticalScrollBar()->maximum(); });
}

void TextEditView::replace() {
  if (synchronizing_) return;
  const QScopedValueRollback guard(synchronizing_, true);
  setPlainText(lines(box_.text()));
  followsEnd_ = true;
}

void TextEditView::append(std::string_view text) {
  const QScopedValueRollback guard(synchronizing_, true);
  QTextCursor end(document());
  end.movePosition(QTextCursor::End);
  end.insertText(lines(text));
  followEnd();
}

void TextEditView::followEnd() {
  if (followsEnd_) verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void TextEditView::takeTyped() {
  if (synchronizing_) return;
  const std::string typed = fromQt(toPlainText().replace(u"\n"_qs, u"\r\n"_qs));
  {
    const QScopedValueRollback guard(synchronizing_, true);
    guarded([&] { box_.setText(typed); });
  }
  if (box_.text() != typed) replace();
}

void TextEditView::keyPressEvent(QKeyEvent* event) {
  QPlainTextEdit::keyPressEvent(event);
  // Enter means nothing while the text is read; it must not reach the window's default button.
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) event->accept();
}

QSize TextEditView::sizeOf(int columns, int rows) const {
  const int margin = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
  return {fontMetrics().averageCharWidth() * columns + margin, fontMetrics().lineSpacing() * rows + margin};
}

QSize TextEditView::sizeHint() const {
  return sizeOf(80, 14);
}

QSize TextEditView::minimumSizeHint() const {
  return sizeOf(30, 4);
}

}  // namespace qt
