#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "parametri.h"
#include "support/case_file.h"
#include "support/errors.h"

namespace parameters::test {
namespace {

using Kep = clsKepGenerali;
using runtime::Null;
using runtime::Variant;

/// "Integer 5", "Null", "error 6".
std::string mostra(const std::function<Variant()>& leggi) {
  return support::shown([&]() -> std::string {
    const Variant valore = leggi();
    switch (valore.kind()) {
      case Variant::Kind::Null:
        return "Null";
      case Variant::Kind::Integer:
        return "16: " + valore.toText();
      case Variant::Kind::Long:
        return "32: " + valore.toText();
      case Variant::Kind::Single:
        return "single: " + valore.toText();
      default:
        return valore.toText();
    }
  });
}

// clang-format off
#define LEGGE(proprieta) {#proprieta, [](Kep& kep) -> Variant { return kep.proprieta(); }}

const std::map<std::string, std::function<Variant(Kep&)>> Proprieta = {
    LEGGE(SanMarino), LEGGE(IndirizziMaiuscoli), LEGGE(ProtocolloRgpOggi), LEGGE(Tellaro), LEGGE(PecIngUD),
    LEGGE(SospensioniPerDecorrenza), LEGGE(CancellazioniPerDecorrenza), LEGGE(FaxServer),
    LEGGE(TipoPagamentoMav), LEGGE(TellaroDB), LEGGE(ProtocolloPercorsoI), LEGGE(Curriculum),
    LEGGE(ProtocolloUnitaOrganizzative), LEGGE(ProtocolloDataTmpBypass), LEGGE(DataWeb),
    LEGGE(AnnoProtocolloNumerazioneUnica), LEGGE(TitoloStudioDefault), LEGGE(EDFontSize),
    LEGGE(EDEtichetteOrizzontale), LEGGE(EDEtichetteVerticale), LEGGE(TipoNumeratoreParcella),
    LEGGE(CtrlCapComuneProv), LEGGE(BackColorPcy), LEGGE(BackColorNoPcy), LEGGE(ProtSviluppoListe),
    LEGGE(ProtocolloMailto), LEGGE(ProtocolloCaricaCorrispondenti), LEGGE(ProtocolloAnnotazioniExt),
    LEGGE(ProtocolloSicurezza), LEGGE(ProtocolloInformatico), LEGGE(ProtocolloScanner),
    LEGGE(ProtocolloArgomentiMultilivello), LEGGE(PubblicazioneDisciplina),
    LEGGE(SospensioniChiudiTerminate), LEGGE(RadiazioniChiudiTerminate),
    LEGGE(SospensioniNumeroProgressivo), LEGGE(EDAltezzaModulo), LEGGE(EDPassoVerticale),
    LEGGE(DataProtocolloInformatico), LEGGE(DataControlloComuniVariati),
    {"ProtocolloCfgImap 3", [](Kep& kep) -> Variant { return kep.ProtocolloCfgImap(3); }},
    {"InizialiMaiuscole Cognome", [](Kep& kep) -> Variant { return kep.InizialiMaiuscole("Cognome"); }}};
// clang-format on

TEST(Properties, ReadTheirRows) {
  Parametri p;
  p.desktop.answerRestByDefault();
  support::CaseFile(CASES "/readings.cases").expectResults([&](const support::Case& each) {
    const auto colon = each.statement.find(": ");
    const std::string row = colon == std::string::npos ? each.statement : each.statement.substr(colon + 2);
    const std::string parameter = row.substr(0, row.find(' '));
    p.db->Execute("DELETE FROM KepGenerali");
    if (const auto equals = row.find(" = "); equals != std::string::npos) {
      const auto fields = support::fieldsOf(row.substr(equals + 3));
      p.metti(parameter, fields[0] == "Null" ? Variant(Null{}) : Variant(fields[0]),
              fields.size() > 1 ? fields[1] : "");
    }
    p.desktop.boxes.clear();
    const auto& read = Proprieta.at(colon == std::string::npos ? parameter : each.statement.substr(0, colon));
    std::string found = mostra([&] { return read(p.kep); });
    for (const auto& box : p.desktop.boxes) {
      EXPECT_EQ(box.style, controls::vbOKOnly);
      found += ", " + box.text;
    }
    return found;
  });
}

/// Each write meets a row "vecchio|nota|dati", behind a read of another one: "altro|altra nota|altri dati".
TEST(Properties, AreWrittenWithWhatStandsInNoteAndDati) {
  const struct {
    const char* chiave;
    std::function<void(Kep&)> scrivi;
    const char* riga;
  } casi[] = {
      {"MorePercentuale", [](Kep& kep) { kep.MorePercentuale(1); }, "-1||"},
      {"ProtocolloRgpOggi", [](Kep& kep) { kep.ProtocolloRgpOggi(0); }, "0||"},
      {"ProtocolloWorkflow", [](Kep& kep) { kep.ProtocolloWorkflow(7); }, "7||"},
      {"NorvoUnicoPrat", [](Kep& kep) { kep.NorvoUnicoPrat(2); }, "2||"},
      {"ProtocolloSicurezza", [](Kep& kep) { kep.ProtocolloSicurezza(9); }, "9||"},
      {"ProtocolloSegnatura", [](Kep& kep) { kep.ProtocolloSegnatura("è"); }, "è||"},
      {"CambioPwdAutomatico", [](Kep& kep) { kep.CambioPwdAutomatico(3); }, "3|altra nota|"},
      {"AnagrafeTributariaParam", [](Kep& kep) { kep.AnagrafeTributariaParam("x"); }, "x|altra nota|"},
      {"ProtocolloAnnotazioniExt", [](Kep& kep) { kep.ProtocolloAnnotazioniExt(1); }, "1|altra nota|"},
      {"NorvoUnico", [](Kep& kep) { kep.NorvoUnico(1); }, "1|altra nota|altri dati"},
      {"ProtocolloCfgImap2", [](Kep& kep) { kep.ProtocolloCfgImap(2, "x"); }, "x|altra nota|altri dati"},
      {"ProtSviluppoListe", [](Kep& kep) { kep.ProtSviluppoListe(5); }, "5|Null|"},
      {"ProtocolloAccountNotifiche", [](Kep& kep) { kep.ProtocolloAccountNotifiche(5); }, "5|Null|"},
      {"TipoNumeratoreParcella", [](Kep& kep) { kep.TipoNumeratoreParcella(1); },
       "1|0=Automatico 1=Modificabile|"},
      {"PubblicazioneDisciplina", [](Kep& kep) { kep.PubblicazioneDisciplina(5); }, "5||"},
      {"ProtocolloInformatico", [](Kep& kep) { kep.ProtocolloInformatico(2); }, "2|nota|"},
      {"ProtocolloScanner", [](Kep& kep) { kep.ProtocolloScanner(1); }, "1|nota|"},
      {"ProtocolloInformatico", [](Kep& kep) { kep.DataProtocolloInformatico(runtime::Date{38717}); },
       "vecchio|31/12/2005|"},
      {"DataControlloComuniVariati", [](Kep& kep) { kep.DataControlloComuniVariati(runtime::Date{38717}); },
       "|31/12/2005|"},
      {"ControllaCongruenzaDatabase", [](Kep& kep) { kep.ControllaCongruenzaDatabase("ora"); }, "|ora|"},
      {"ProtocolloPercorsoI", [](Kep& kep) { kep.ProtocolloPercorsoI("P:\\"); }, ".|P:\\|"},
      {"ProtocolloUnitaOrganizzative", [](Kep& kep) { kep.ProtocolloUnitaOrganizzative(Null{}); },
       "Null|Data di partenza|"},
      {"ProtocolloDataTmpBypass", [](Kep& kep) { kep.ProtocolloDataTmpBypass("x"); },
       "x|Data di bypass temporaneo invio registro|"},
  };
  Parametri p;
  for (const auto& caso : casi) {
    SCOPED_TRACE(caso.chiave);
    p.db->Execute("DELETE FROM KepGenerali");
    p.metti("altro", "altro", "altra nota", "altri dati");
    p.metti(caso.chiave, "vecchio");
    ASSERT_TRUE(p.kep.LeggiByNome("altro"));
    caso.scrivi(p.kep);
    EXPECT_EQ(p.riga(caso.chiave), caso.riga);
  }
}

TEST(Properties, OfADisciplineThatEndsSwitchTheDateOn) {
  Parametri p;
  p.metti("PubblicazioneDisciplina", "4");
  EXPECT_EQ(p.kep.PubblicazioneDisciplina(), 4);
  EXPECT_EQ(p.riga("DataFinePubblicazione"), "-1||");
  p.desktop.expectBox("Parametro 'PubblicazioneDisciplina' errato!", controls::vbOK);
  p.kep.PubblicazioneDisciplina(6);
  EXPECT_EQ(p.riga("PubblicazioneDisciplina"), "4|nota|dati");
}

TEST(Properties, HandOverTheirNotes) {
  Parametri p;
  p.metti("SospensioniChiudiTerminate", "2", "da chiudere");
  EXPECT_EQ(p.kep.SospensioniChiudiTerminate(), 2);
  EXPECT_EQ(p.kep.NoteSospensioniChiudiTerminate, "da chiudere");
  p.db->Execute("DELETE FROM KepGenerali");
  EXPECT_EQ(p.kep.SospensioniChiudiTerminate(), 0);
  EXPECT_EQ(p.kep.NoteSospensioniChiudiTerminate, "");

  std::int16_t lunghezza = 9;
  EXPECT_EQ(p.kep.ProtocolloCampoPersonalizzato(lunghezza), "");
  EXPECT_EQ(lunghezza, 9);
  p.metti("ProtocolloCampoPersonalizzato", " campo ", "30 caratteri");
  EXPECT_EQ(p.kep.ProtocolloCampoPersonalizzato(lunghezza), "campo");
  EXPECT_EQ(lunghezza, 30);
}

TEST(Row, IsReadByPatternAndReadAgain) {
  Parametri p;
  EXPECT_FALSE(p.kep.LeggiByNome());
  p.metti("Alfa", "1", "n", "d");
  p.metti("Alba", "2");
  EXPECT_TRUE(p.kep.LeggiByNome("al?a"));
  EXPECT_EQ(p.kep.Valore() + p.kep.note + p.kep.dati, "1nd");
  EXPECT_EQ(p.kep.ValoreBool(), -1);
  p.db->Execute("UPDATE KepGenerali SET Valore = '5' WHERE Nome = 'Alfa'");
  EXPECT_TRUE(p.kep.LeggiByNome());
  EXPECT_EQ(p.kep.Valore(), "5");
  EXPECT_FALSE(p.kep.LeggiByNome("manca"));
  EXPECT_EQ(p.kep.Valore() + p.kep.note + p.kep.dati, "");
  EXPECT_EQ(p.kep.nome, "manca");
}

TEST(Row, IsWrittenUnderItsExactKey) {
  Parametri p;
  p.metti("Alfa", "1");
  EXPECT_TRUE(p.kep.ScriviByNome("", "x", "x"));
  EXPECT_TRUE(p.kep.ScriviByNome("Al*", "2", "n"));
  EXPECT_EQ(p.riga("Alfa"), "1|nota|dati");
  EXPECT_EQ(p.riga("Al*"), "2|n|");
  EXPECT_FALSE(p.kep.ScriviByNome("L'A", "1", ""));
  EXPECT_FALSE(p.kep.ScriviByNome("Alfa", std::string(51, 'x'), ""));
  EXPECT_EQ(p.riga("Alfa"), "1|nota|dati");
}

TEST(Row, OfABrokenTableIsItsError) {
  Parametri senzaTabella("CREATE TABLE altro (a LONG)");
  EXPECT_EQ(mostra([&] { return senzaTabella.kep.SanMarino(); }), "error 3078");
  EXPECT_EQ(mostra([&] { return senzaTabella.kep.EDFontSize(); }), "error 3078");
  EXPECT_EQ(mostra([&] { return senzaTabella.kep.AnnoProtocolloNumerazioneUnica(); }), "16: 2004");
  EXPECT_FALSE(senzaTabella.kep.ScriviByNome("a", "1", ""));
  Parametri senzaDati("CREATE TABLE KepGenerali (Nome TEXT(50), Valore TEXT(50))");
  EXPECT_EQ(mostra([&] { return senzaDati.kep.SanMarino(); }), "16: 0");
  senzaDati.db->Execute("INSERT INTO KepGenerali VALUES ('SanMarino', '1')");
  EXPECT_EQ(mostra([&] { return senzaDati.kep.SanMarino(); }), "error 3265");
  clsKepGenerali senzaDatabase;
  EXPECT_EQ(mostra([&] { return senzaDatabase.SanMarino(); }), "error 91");
}

}  // namespace
}  // namespace parameters::test
