#include <gtest/gtest.h>

#include <string>

#include "controls/button.h"
#include "controls/list_box.h"
#include "controls/menu_item.h"
#include "runtime/error.h"

namespace {

controls::ListBox& filled(controls::ListBox& list, std::string& log) {
  for (const char* text : {"Specificare l'applicazione:", "ALBO ", "PROTOCOLLO "}) list.addItem(text);
  list.click.connect([&] { log += "click" + std::to_string(list.listIndex()) + " "; });
  list.dblClick.connect([&] { log += "dblClick" + std::to_string(list.listIndex()) + " "; });
  return list;
}

}  // namespace

TEST(ListBox, SelectingInCodeClicksOnceForEachNewRow) {
  controls::ListBox list("lst");
  std::string log;
  filled(list, log);
  EXPECT_EQ(list.listIndex(), -1);
  list.setListIndex(2);
  list.setListIndex(2);
  list.setListIndex(-1);
  EXPECT_EQ(log, "click2 click-1 ");
}

TEST(ListBox, AnOperatorsClickAlwaysClicksAndADoubleClickFollowsIt) {
  controls::ListBox list("lst");
  std::string log;
  filled(list, log);
  EXPECT_TRUE(list.pick(1));
  EXPECT_TRUE(list.pick(1));
  EXPECT_TRUE(list.pickTwice(0));
  list.setEnabled(false);
  EXPECT_FALSE(list.pickTwice(2));
  EXPECT_EQ(log, "click1 click1 click0 dblClick0 ");
}

TEST(ListBox, RowsOutsideTheListAreRefusedAndReadAsEmpty) {
  controls::ListBox list("lst");
  std::string log;
  filled(list, log);
  EXPECT_THROW(list.setListIndex(3), runtime::Error);
  EXPECT_THROW(list.setListIndex(-2), runtime::Error);
  EXPECT_THROW(list.pick(3), runtime::Error);
  EXPECT_EQ(list.list(3), "");
  EXPECT_EQ(list.list(1), "ALBO ");
}

TEST(ListBox, ClearForgetsTheSelectionWithoutAClick) {
  controls::ListBox list("lst");
  std::string log;
  filled(list, log).setListIndex(1);
  list.clear();
  EXPECT_EQ(list.listIndex(), -1);
  EXPECT_EQ(list.listCount(), 0);
  EXPECT_EQ(log, "click1 ");
}

TEST(CheckBox, AChangeClicksWhoeverMakesIt) {
  controls::CheckBox box("chk", "Altro Database");
  int clicks = 0;
  box.click.connect([&] { ++clicks; });
  box.setValue(controls::Checked);
  box.setValue(controls::Checked);
  EXPECT_TRUE(box.toggle());
  EXPECT_EQ(box.value(), controls::Unchecked);
  EXPECT_EQ(clicks, 2);
  EXPECT_THROW(box.setValue(3), runtime::Error);
}

TEST(Commands, DoNothingWhileHiddenOrDisabled) {
  controls::Button button("cmd", "&Aggiorna");
  controls::MenuItem item("mnu", "&Aggiorna");
  controls::CheckBox check("chk", "");
  int clicks = 0;
  for (auto* event : {&button.click, &item.click, &check.click}) event->connect([&] { ++clicks; });
  button.setEnabled(false);
  item.setEnabled(false);
  check.setEnabled(false);
  EXPECT_FALSE(button.press() || item.choose() || check.toggle());
  EXPECT_EQ(clicks, 0);
  button.setEnabled(true);
  item.setEnabled(true);
  EXPECT_TRUE(button.press() && item.choose());
  button.setVisible(false);
  EXPECT_FALSE(button.press());
  EXPECT_EQ(clicks, 2);
}

TEST(Control, OnlyARealChangeTellsTheView) {
  controls::Button button("cmd", "&Esci");
  int changes = 0;
  button.changed.connect([&] { ++changes; });
  button.setVisible(true);
  button.setCaption("&Esci");
  EXPECT_EQ(changes, 0);
  button.setVisible(false);
  button.setCaption("&Fine");
  EXPECT_EQ(changes, 2);
}
