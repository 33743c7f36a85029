#include "controls/text_box.h"

#include <gtest/gtest.h>

#include "support/case_file.h"
#include "support/errors.h"

using controls::TextBox;

TEST(TextBox, ATextTakesThePlaceOfTheSelection) {
  support::CaseFile(CASES "/selections.cases").expectResults([](const support::Case& each) -> std::string {
    const std::vector<std::string> fields = support::fieldsOf(each.statement);
    TextBox box("txt");
    box.setText(fields[0]);
    const std::string refused = support::shown([&] {
      box.setSelStart(std::stoi(fields[1]));
      box.setSelLength(std::stoi(fields[2]));
      return "";
    });
    if (!refused.empty()) return refused;
    std::string told;
    int changes = 0;
    box.appended.connect([&](std::string_view text) {
      EXPECT_EQ(text, fields[3]);
      told += ", appended";
    });
    box.replaced.connect([&] { told += ", replaced"; });
    box.change.connect([&] { ++changes; });
    box.setSelText(fields[3]);
    EXPECT_EQ(box.selLength(), 0);
    EXPECT_EQ(changes, told.empty() ? 0 : 1);
    TextBox counted("txt");
    counted.setText(box.text());
    EXPECT_EQ(box.textLength(), counted.textLength()) << "the count that is kept is that of the text";
    return support::inBraces(box.text()) + " | " + std::to_string(box.selStart()) + told;
  });
}

TEST(TextBox, SelTextIsTheSelectedPart) {
  TextBox box("txt");
  box.setText("Città è\r\nqui");
  box.setSelStart(6);
  box.setSelLength(3);
  EXPECT_EQ(box.selText(), "è\r\n");
  EXPECT_EQ(box.textLength(), 12);
}

TEST(TextBox, ANewTextStartsWithTheSelectionAtItsBeginning) {
  TextBox box("txt");
  box.setText("abc");
  box.setSelStart(3);
  box.setText("xyz");
  box.setSelText("-");
  EXPECT_EQ(box.text(), "-xyz");
}

TEST(TextBox, TheSameTextIsNoChange) {
  TextBox box("txt");
  box.setText("abc");
  int changes = 0;
  box.change.connect([&] { ++changes; });
  box.setText("abc");
  EXPECT_EQ(changes, 0);
}
