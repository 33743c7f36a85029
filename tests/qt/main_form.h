#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTextDocumentFragment>
#include <string>

#include "controls/button.h"
#include "controls/form.h"
#include "controls/list_box.h"
#include "controls/text_box.h"
#include "qt/form_window.h"
#include "qt/qt_desktop.h"
#include "qt/text.h"
#include "qt/text_box_view.h"

/// The main window's controls without its procedures: each event writes its name into a log.
struct MainForm : controls::Form {
  MainForm() : Form("frmAggMain", "Aggiornamento Database Norvo") {
    for (controls::Control* control : std::initializer_list<controls::Control*>{
             &chkAltroDatabase, &cmdSelezionaDB, &txtAltroDB, &cmdEsci, &chkAggiornaDescrizioni,
             &txtRiepilogo, &cmdAggiorna, &lstDatabase, &lblDatabase})
      add(*control);
    int tab = 0;
    for (controls::Control* control : std::initializer_list<controls::Control*>{
             &lblDatabase, &lstDatabase, &txtAltroDB, &cmdSelezionaDB, &chkAltroDatabase,
             &chkAggiornaDescrizioni, &cmdAggiorna, &cmdEsci, &txtRiepilogo})
      control->setTabIndex(tab++);
    addMenu(mnuFile);
    for (auto* item : {&mnuFileAggiorna, &mnuFileSep1, &mnuFileEsci}) mnuFile.add(*item);
    txtRiepilogo.setMultiLine(true);
    txtRiepilogo.setLocked(true);
    txtAltroDB.setDropTarget(true);
    for (const char* row : {"Specificare l'applicazione:", "ALBO ", "PROTOCOLLO "}) lstDatabase.addItem(row);

    lstDatabase.click.connect([this] { log += "lst" + std::to_string(lstDatabase.listIndex()) + " "; });
    lstDatabase.dblClick.connect([this] { log += "dbl "; });
    cmdAggiorna.click.connect([this] { log += "aggiorna "; });
    cmdEsci.click.connect([this] { log += "esci "; });
    cmdSelezionaDB.click.connect([this] { log += "seleziona "; });
    chkAltroDatabase.click.connect([this] { log += "altro "; });
    mnuFileAggiorna.click.connect([this] { log += "menu "; });
    unloading.connect([this] { log += "unload "; });
  }

  void append(std::string_view text) {
    txtRiepilogo.setSelStart(txtRiepilogo.textLength());
    txtRiepilogo.setSelText(text);
  }
  void hideChoice() {
    for (controls::Control* control : std::initializer_list<controls::Control*>{
             &txtAltroDB, &cmdSelezionaDB, &chkAltroDatabase, &chkAggiornaDescrizioni})
      control->setVisible(false);
  }

  controls::CheckBox chkAltroDatabase{"chkAltroDatabase", "Altro Database"};
  controls::Button cmdSelezionaDB{"cmdSelezionaDB", "&Seleziona Database..."};
  controls::TextBox txtAltroDB{"txtAltroDB"};
  controls::Button cmdEsci{"cmdEsci", "&Esci"};
  controls::CheckBox chkAggiornaDescrizioni{"chkAggiornaDescrizioni", "Aggiorna le Descrizioni"};
  controls::TextBox txtRiepilogo{"txtRiepilogo"};
  controls::Button cmdAggiorna{"cmdAggiorna", "&Aggiorna"};
  controls::ListBox lstDatabase{"lstDatabase"};
  controls::Label lblDatabase{"lblDatabase", "&Percorso Database"};
  controls::MenuItem mnuFile{"mnuFile", "&File"};
  controls::MenuItem mnuFileAggiorna{"mnuFileAggiorna", "&Aggiorna"};
  controls::MenuItem mnuFileSep1{"mnuFileSep1", "-"};
  controls::MenuItem mnuFileEsci{"mnuFileEsci", "&Esci"};
  std::string log;
};

/// A shown and active window of any form.
class ShownWindow : public testing::Test {
 protected:
  void open(controls::Form& form) {
    form.show();
    window = desktop.windowOf(form);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  }
  template <typename Widget = QWidget>
  Widget* view(const char* name) {
    return window->findChild<Widget*>(name);
  }

  qt::QtDesktop desktop;
  controls::DesktopScope scope{desktop};
  qt::FormWindow* window = nullptr;
};

/// A shown and active main window.
class WindowTest : public ShownWindow {
 protected:
  void open() { ShownWindow::open(form); }
  std::string focused() {
    return qt::fromQt(window->focusWidget() ? window->focusWidget()->objectName() : "-");
  }
  std::string takeLog() { return std::exchange(form.log, {}); }

  MainForm form;
};
