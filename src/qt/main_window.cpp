// How the controls of the main window are laid out.
#include "qt/main_window.h"

#include <QVBoxLayout>

#include "qt/button_view.h"
#include "qt/list_box_view.h"
#include "qt/text_box_view.h"

namespace qt {

template <typename View, typename Kind>
View* MainWindow::place(const char* name) {
  return new View(form().control<Kind>(name), page_);
}

MainWindow::MainWindow(controls::Form& form) : FormWindow(form), page_(new QWidget(this)) {
  layOut();
  setPage(page_);
  nameForReaders();
}

void MainWindow::layOut() {
  auto* label = place<LabelView, controls::Label>("lblDatabase");
  auto* list = place<ListBoxView, controls::ListBox>("lstDatabase");
  label->setBuddy(list);

  auto* path = new QHBoxLayout;
  path->addWidget(place<LineEditView, controls::TextBox>("txtAltroDB"), 1);
  path->addWidget(place<ButtonView, controls::Button>("cmdSelezionaDB"));

  auto* update = place<ButtonView, controls::Button>("cmdAggiorna");
  setDefaultButton(update);
  auto* commands = new QHBoxLayout;
  commands->addStretch();
  commands->addWidget(update);
  commands->addWidget(place<ButtonView, controls::Button>("cmdEsci"));

  auto* column = new QVBoxLayout(page_);
  column->addWidget(label);
  column->addWidget(list, 1);
  // The path of another database stands where the list was: the window shows the one or the other.
  column->addLayout(path);
  column->addWidget(place<CheckBoxView, controls::CheckBox>("chkAltroDatabase"));
  column->addWidget(place<CheckBoxView, controls::CheckBox>("chkAggiornaDescrizioni"));
  column->addWidget(place<TextEditView, controls::TextBox>("txtRiepilogo"), 3);
  column->addLayout(commands);
}

void MainWindow::nameForReaders() {
  constexpr struct {
    const char* control;
    const char* name;
  } names[] = {{"lstDatabase", "Percorso Database"},
               {"txtAltroDB", "Percorso di un altro database"},
               {"txtRiepilogo", "Riepilogo dell'aggiornamento"}};
  for (const auto& entry : names)
    page_->findChild<QWidget*>(entry.control)->setAccessibleName(QString::fromUtf8(entry.name));
  page_->findChild<QLineEdit*>("txtAltroDB")->setPlaceholderText("Scegliere o trascinare qui un file .mdb");
}

}  // namespace qt
