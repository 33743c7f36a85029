#include <gtest/gtest.h>

#include <functional>

#include "common/files.h"
#include "common/globale.h"
#include "common/records.h"
#include "common/text.h"
#include "jet/dao/engine.h"
#include "platform/files.h"
#include "support/temp_folder.h"

namespace {

/// Number of the error that `work` raises; 0 without one.
int number(const std::function<void()>& work) {
  try {
    work();
    return 0;
  } catch (const runtime::Error& error) {
    return error.number();
  }
}

TEST(Text, IsReplacedFromAPlaceANumberOfTimes) {
  const struct {
    const char *text, *sought, *fresh;
    std::int32_t start, count, mode;
    const char* result;
  } cases[] = {
      {"aaa", "a", "b", 2, -1, common::ConfrontoEsatto, "bb"},
      {"perché è così", "è", "E'", 9, 0, common::ConfrontoEsatto, " così"},
      {"D'Amico l'8", "'", "''", -3, -1, common::ConfrontoEsatto, "D''Amico l''8"},
      {"aXaxa", "x", "xx", 1, 1, common::ConfrontoEsatto, "aXaxxa"},
      {"CÀ cà Cà", "Cà", "casa", 1, 2, common::ConfrontoTesto, "casa casa Cà"},
      {"abc", "b", "", 9, -1, common::ConfrontoEsatto, ""},
  };
  for (const auto& test : cases)
    EXPECT_EQ(common::Sostituisci(test.text, test.sought, test.fresh, test.start, test.count, test.mode),
              test.result);
  EXPECT_THROW(common::SostituisciTutto("a", "", "b"), runtime::Error);
}

TEST(Text, TellsTheChosenOccurrence) {
  const struct {
    std::int32_t which, start;
    const char *text, *sought;
    std::int32_t mode, position;
  } cases[] = {
      {1, 1, "C:\\è\\a", "\\", 0, 3}, {2, 1, "C:\\è\\a", "\\", 0, 5}, {-1, 1, "C:\\è\\a", "\\", 1, 5},
      {3, 1, "C:\\è\\a", "\\", 0, 0}, {-1, 1, "abc", "x", 0, 0},      {2, 1, "aaa", "aa", 0, 2},
      {1, 3, "aaa", "a", 0, 3},       {2, 3, "aaa", "a", 0, 0},       {1, 1, "aÈ", "è", 1, 2},
      {1, 1, "aÈ", "è", 0, 0},        {0, 1, "aaa", "a", 0, 0},       {-2, 1, "aaa", "a", 0, 0},
      {1, 9, "aaa", "a", 0, 0},       {2, 1, "abc", "", 0, 2},
  };
  for (const auto& test : cases)
    EXPECT_EQ(common::InStrEx(test.which, test.start, test.text, test.sought, test.mode).toLong(),
              test.position)
        << test.which << " da " << test.start << " in " << test.text;
}

TEST(Text, CountsOccurrencesThatOverlap) {
  EXPECT_EQ(common::ContaOccorrenze("aaa", "aa"), 2);
  EXPECT_EQ(common::ContaOccorrenze("perché È perché", "è"), 0);
  EXPECT_EQ(common::ContaOccorrenze("perché è perché", "é"), 2);
  EXPECT_EQ(common::ContaOccorrenze("", "a"), 0);
  EXPECT_EQ(common::ContaOccorrenze(std::string(200'000, 'a'), "a"), 200'000);
}

TEST(Text, LosesAccentsAndAllButLettersOrDigits) {
  EXPECT_EQ(common::SenzaAccenti("Forlì"), "FORLI");
  EXPECT_EQ(common::SenzaAccenti("L'Aquila 2"), "LAQUILA");
  EXPECT_EQ(common::SenzaAccenti("Perché ðŠžÿßæÇñ"), "PERCHEOSZYCN");
  EXPECT_EQ(common::SenzaAccenti(""), "");
  EXPECT_EQ(common::SoloCifre("N. 12/b-34, 5²"), "12345");
  const std::string most(32767, '1');
  EXPECT_EQ(common::SoloCifre(most), most);
  EXPECT_EQ(number([&] { common::SoloCifre(most + "1"); }), 6);
  EXPECT_EQ(number([&] { common::SenzaAccenti(most + "1"); }), 6);
}

TEST(Text, IsDividedAtADelimiter) {
  using Pieces = std::vector<std::string>;
  EXPECT_EQ(common::Dividi("a,b,", ","), (Pieces{"a", "b"}));
  EXPECT_EQ(common::Dividi("a,b,c", ",", 2), (Pieces{"a", "b"}));
  EXPECT_EQ(common::Dividi(",,è", ","), (Pieces{"", "", "è"}));
  EXPECT_EQ(common::Dividi("aXbxc", "x", -1, common::ConfrontoTesto), (Pieces{"a", "b", "c"}));
  EXPECT_EQ(common::Dividi("abc", ""), (Pieces{"abc"}));
  EXPECT_TRUE(common::Dividi("", ",").empty());
  EXPECT_TRUE(common::Dividi("a", ",", 0).empty());
  std::string many;
  for (int i = 0; i < 250; ++i) many += "x--";
  EXPECT_EQ(common::Dividi(many, "--").size(), 250U);
}

TEST(Text, GivesTheValueBehindATag) {
  std::string value = "prima";
  EXPECT_FALSE(common::LeggiTag("<a>1</a>", "b", value));
  EXPECT_FALSE(common::LeggiTag("<A>1</A>", "a", value));
  EXPECT_EQ(value, "prima");
  EXPECT_TRUE(common::LeggiTag("<x><a>1è</a>", "a", value));
  EXPECT_EQ(value, "1è");
  EXPECT_TRUE(common::LeggiTag("<a k='1'>2", "<a k='1'>", value));
  EXPECT_EQ(value, "2");
  EXPECT_TRUE(common::LeggiTag("<a>", "a", value));
  EXPECT_EQ(value, "");
  EXPECT_TRUE(common::ValoreVuoto("x").isEmpty());
}

TEST(Text, HasCapitalsForAllLettersOfTheCodePage) {
  EXPECT_EQ(common::Maiuscolo("è àþÿš ÷ß œž 1a"), "È ÀÞŸŠ ÷ß ŒŽ 1A");
  EXPECT_FALSE(common::StessoTesto("à", "a"));
}

TEST(Files, AreThereWhenTheyCanBeRead) {
  support::TempFolder folder;
  platform::writeWholeFile(folder.path("a"), "");
  EXPECT_TRUE(common::EsisteFile(folder.path("a")));
  for (const std::string& path : {folder.path("b"), folder.path(), folder.path("b\\c"), std::string()})
    EXPECT_FALSE(common::EsisteFile(path)) << path;
}

TEST(Records, TestAFieldOfTheOpenDatabase) {
  support::TempFolder folder;
  const auto db = jet::dao::DBEngine::Workspaces(0)->CreateDatabase(folder.path("a.mdb"));
  db->Execute("CREATE TABLE KEPGENERALI (Nome TEXT(20), Valore TEXT(20))");
  common::DatabaseAperto = db;
  jet::dao::DatabasePtr none;
  EXPECT_TRUE(common::EsisteCampo("kepgenerali", "valore", none));
  EXPECT_EQ(none, db);
  EXPECT_FALSE(common::EsisteCampo("kepgenerali", "manca", none));
  EXPECT_FALSE(common::EsisteCampo("manca", "valore", none));
  common::DatabaseAperto = nullptr;
  common::EliminaTabella(*db, "KepGenerali");
  EXPECT_EQ(number([&] { common::EliminaTabella(*db, "KepGenerali"); }), 3265);
  db->Close();
}

TEST(Records, CloseATransactionOnce) {
  support::TempFolder folder;
  const auto db = jet::dao::DBEngine::Workspaces(0)->CreateDatabase(folder.path("a.mdb"));
  std::int16_t flag = 0;
  common::ChiudiTrans(flag);
  common::IniziaTrans(flag);
  EXPECT_EQ(flag, 1);
  db->Execute("CREATE TABLE t (a LONG)");
  common::ChiudiTrans(flag);
  EXPECT_EQ(flag, 0);
  common::ChiudiTrans(flag);
  EXPECT_NO_THROW(db->TableDefs("t"));
  db->Close();
}

TEST(Records, HaveTheirReasonAsStateForTwoPairs) {
  using runtime::Null;
  const struct {
    runtime::Variant event, reason;
    const char* code;
  } cases[] = {{"IS", "SO", "SO"},   {"CA", "RA", "RA"}, {"IS", "RA", "IS"},
               {"CA", Null{}, "CA"}, {"is", "SO", "is"}, {"PR", "SO", "PR"}};
  for (const auto& test : cases) EXPECT_EQ(common::CodiceEventoEffettivo(test.event, test.reason), test.code);
  EXPECT_EQ(number([] { common::CodiceEventoEffettivo(Null{}, "SO"); }), 94);
}

}  // namespace
