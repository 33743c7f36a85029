// How the controls of the patch window are laid out.
#include "qt/patch_window.h"

#include <QVBoxLayout>
#include <algorithm>

#include "qt/button_view.h"
#include "qt/text.h"
#include "qt/text_box_view.h"

namespace qt {
namespace {

/// The window's captions have no letters of their own for the keyboard.
QString withLetter(const QString& caption) {
  constexpr const char* captions[][2] = {
      {"Aggiorna", "&Aggiorna"}, {"ESCI", "&ESCI"}, {"Annulla", "A&nnulla"}};
  for (const auto& [plain, lettered] : captions)
    if (caption == plain) return lettered;
  return caption;
}

class LetteredButton : public ButtonView {
 public:
  LetteredButton(controls::Button& button, QWidget* parent) : ButtonView(button, parent) {
    const auto refresh = [this, &button] { setText(withLetter(toQt(button.caption()))); };
    refresh();
    letter_ = button.changed.subscribe(refresh);
  }

 private:
  controls::Subscription letter_;
};

/// A label whose text, whatever a list holds, asks for a few lines of the width that there is and no more.
class WrappedLabel : public LabelView {
 public:
  WrappedLabel(controls::Label& label, QWidget* parent) : LabelView(label, parent) {
    setWordWrap(true);
    setAlignment(Qt::AlignTop | Qt::AlignLeft);
    setMaximumHeight(fontMetrics().lineSpacing() * lines);
    const auto refresh = [this, &label] { setText(toQt(label.caption()).left(characters)); };
    refresh();
    shortened_ = label.changed.subscribe(refresh);
  }
  QSize minimumSizeHint() const override { return {0, std::min(heightForWidth(width()), maximumHeight())}; }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    LabelView::resizeEvent(event);
    updateGeometry();
  }

 private:
  static constexpr int lines = 4, characters = 1000;  // more than the lines can show
  controls::Subscription shortened_;
};

}  // namespace

PatchWindow::PatchWindow(controls::Form& form) : FormWindow(form) {
  auto* page = new QWidget(this);
  auto* start = new LetteredButton(form.control<controls::Button>("cmd"), page);
  auto* leave = new LetteredButton(form.control<controls::Button>("cmdEsci"), page);
  auto* report = new TextEditView(form.control<controls::TextBox>("txt"), page);
  report->setAccessibleName("Resoconto della patch");
  setDefaultButton(start);
  setCancelButton(leave);

  auto* commands = new QHBoxLayout;
  commands->addStretch();
  commands->addWidget(start);
  commands->addWidget(leave);
  auto* column = new QVBoxLayout(page);
  column->addWidget(new WrappedLabel(form.control<controls::Label>("lblTop"), page));
  column->addWidget(report, 1);
  column->addLayout(commands);
  setPage(page);
}

}  // namespace qt
