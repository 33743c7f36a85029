#include <gtest/gtest.h>

#include <map>

#include "common/directories.h"
#include "common/error_log.h"
#include "common/files.h"
#include "common/globale.h"
#include "common/records.h"
#include "common/text.h"
#include "jet/dao/engine.h"
#include "platform/files.h"
#include "support/case_file.h"
#include "support/errors.h"
#include "support/temp_folder.h"

namespace {

runtime::Variant variant(const std::string& text) {
  if (text == "Null") return runtime::Null{};
  if (text == "Empty") return {};
  if (text == "True" || text == "False") return text == "True";
  return text;
}

std::string inBrackets(const std::vector<std::string>& parts) {
  std::string shown;
  for (const std::string& part : parts) shown += "[" + part + "]";
  return shown;
}

using Fields = std::vector<std::string>;

std::string closed(const Fields& f) {
  std::string path = f[1];
  common::AggiungiBarra(path);
  return path;
}

std::string tag(const Fields& f) {
  std::string value = "prima";
  return (common::LeggiTag(f[1], f[2], value) ? "True " : "False ") + value;
}

// clang-format off
const std::map<std::string, std::string (*)(const Fields&)> Functions = {
    {"Sostituisci", [](const Fields& f) {
       return common::Sostituisci(f[1], f[2], f[3], std::stoi(f[4]), std::stoi(f[5]), std::stoi(f[6])); }},
    {"SostituisciTutto", [](const Fields& f) { return common::SostituisciTutto(f[1], f[2], f[3]); }},
    {"InStrEx", [](const Fields& f) {
       return common::InStrEx(std::stoi(f[1]), std::stoi(f[2]), f[3], f[4], std::stoi(f[5])).toText(); }},
    {"ContaOccorrenze", [](const Fields& f) { return std::to_string(common::ContaOccorrenze(f[1], f[2])); }},
    {"SenzaAccenti", [](const Fields& f) { return common::SenzaAccenti(f[1]); }},
    {"SoloCifre", [](const Fields& f) { return common::SoloCifre(f[1]); }},
    {"Maiuscolo", [](const Fields& f) { return common::Maiuscolo(f[1]); }},
    {"Dividi", [](const Fields& f) {
       return inBrackets(common::Dividi(f[1], f[2], std::stoi(f[3]), std::stoi(f[4]))); }},
    {"LeggiTag", tag},
    {"DescriviVariazione", [](const Fields& f) {
       return common::DescriviVariazione("Via", variant(f[1]), variant(f[2]), variant(f[3]), f[4] == "True"); }},
    {"CodiceEventoEffettivo", [](const Fields& f) {
       return common::CodiceEventoEffettivo(variant(f[1]), variant(f[2])); }},
    {"AggiungiBarra", closed},
    {"TroncaAlNul", [](const Fields& f) { return common::TroncaAlNul(f[1]); }},
};
// clang-format on

TEST(Helpers, GiveWhatTheSuiteExpects) {
  support::CaseFile(CASES "/helpers.cases").expectResults([](const support::Case& each) {
    const Fields fields = support::fieldsOf(each.statement);
    return support::inBraces(support::shown([&] { return Functions.at(fields[0])(fields); }));
  });
}

TEST(Text, MayBeLong) {
  EXPECT_EQ(common::ContaOccorrenze(std::string(200'000, 'a'), "a"), 200'000);
  const std::string most(32767, '1');
  EXPECT_EQ(common::SoloCifre(most), most);
  EXPECT_EQ(support::shown([&] { return common::SoloCifre(most + "1"), "ok"; }), "error 6");
  EXPECT_EQ(support::shown([&] { return common::SenzaAccenti(most + "1"), "ok"; }), "error 6");
  std::string many;
  for (int i = 0; i < 250; ++i) many += "x--";
  EXPECT_EQ(common::Dividi(many, "--").size(), 250U);
}

TEST(Text, IsComparedWithoutRegardToCaseAlone) {
  EXPECT_FALSE(common::StessoTesto("à", "a"));
  EXPECT_TRUE(common::ValoreVuoto("x").isEmpty());
}

TEST(Files, AreThereWhenTheyCanBeRead) {
  support::TempFolder folder;
  platform::writeWholeFile(folder.path("a"), "");
  platform::File other = platform::openFile(folder.path("a"), platform::OpenMode::Read);
  ASSERT_TRUE(other.tryLock(platform::LockMode::Shared));
  EXPECT_TRUE(common::EsisteFile(folder.path("a")));
  ASSERT_TRUE(other.tryLock(platform::LockMode::Exclusive));
  EXPECT_FALSE(common::EsisteFile(folder.path("a"))) << "held exclusively";
  other.close();
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
  EXPECT_EQ(support::shown([&] { return common::EliminaTabella(*db, "KepGenerali"), "ok"; }), "error 3265");
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

}  // namespace
