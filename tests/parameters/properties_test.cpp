#include <gtest/gtest.h>

#include <functional>

#include "parametri.h"

namespace parameters::test {
namespace {

using Kep = clsKepGenerali;
using runtime::Null;
using runtime::Variant;

/// "Integer 5", "Null", "error 6".
std::string mostra(const std::function<Variant()>& leggi) {
  try {
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
  } catch (const runtime::Error& errore) {
    return "error " + std::to_string(errore.number());
  }
}

struct Lettura {
  const char* chiave;
  std::optional<Variant> valore;  // nothing: no row
  const char* note;
  std::function<Variant(Kep&)> leggi;
  const char* atteso;
  const char* avviso = nullptr;  // the box that it shows
};

#define LEGGE(proprieta) [](Kep& kep) -> Variant { return kep.proprieta; }

const std::optional<Variant> Manca;

const Lettura Interruttori[] = {
    {"SanMarino", Manca, "", LEGGE(SanMarino()), "16: 0"},
    {"SanMarino", "1", "", LEGGE(SanMarino()), "16: -1"},
    {"SanMarino", "-1", "", LEGGE(SanMarino()), "16: -1"},
    {"SanMarino", "0", "", LEGGE(SanMarino()), "16: 0"},
    {"SanMarino", "2", "", LEGGE(SanMarino()), "16: 0"},
    {"SanMarino", "True", "", LEGGE(SanMarino()), "16: 0"},
    {"SanMarino", " 1", "", LEGGE(SanMarino()), "16: 0"},
    {"SanMarino", Null{}, "", LEGGE(SanMarino()), "16: 0"},
    {"IndirizziMaiuscoli", Manca, "", LEGGE(IndirizziMaiuscoli()), "16: -1"},
    {"IndirizziMaiuscoli", Null{}, "", LEGGE(IndirizziMaiuscoli()), "16: 0"},
    {"ProtocolloRgpOggi", Manca, "", LEGGE(ProtocolloRgpOggi()), "16: -1"},
    {"TellaroDB", "1", "", LEGGE(Tellaro()), "16: -1"},
    {"PecIngCT", "1", "", LEGGE(PecIngUD()), "16: -1"},
    {"PecIngUD", "1", "", LEGGE(PecIngUD()), "16: 0"},
    {"SospensioniPerDataDecorrenza", "1", "", LEGGE(SospensioniPerDecorrenza()), "16: -1"},
    {"CancellazioniPerDataDecorrenza", "1", "", LEGGE(CancellazioniPerDecorrenza()), "16: -1"},
    {"InizialiMaiuscolecognome", "1", "", LEGGE(InizialiMaiuscole("Cognome")), "16: -1"},
};

const Lettura Testi[] = {
    {"FaxServer", Manca, "", LEGGE(FaxServer()), ""},
    {"FaxServer", " a ", "n", LEGGE(FaxServer()), " a "},
    {"TipoPagamentoMav", Manca, "", LEGGE(TipoPagamentoMav()), "4"},
    {"TipoPagamentoMav", "", "", LEGGE(TipoPagamentoMav()), "4"},
    {"TipoPagamentoMav", "2", "", LEGGE(TipoPagamentoMav()), "2"},
    {"ProtocolloCfgImap3", "x", "", LEGGE(ProtocolloCfgImap(3)), "x"},
    {"TellaroDB", "v", "C:\\db", LEGGE(TellaroDB()), "C:\\db"},
    {"TellaroDB", Manca, "", LEGGE(TellaroDB()), ""},
    {"ProtocolloPercorsoI", ".", "P:\\", LEGGE(ProtocolloPercorsoI()), "P:\\"},
    {"Curriculum", "1", "C:\\cv", LEGGE(Curriculum()), "C:\\cv"},
    {"Curriculum", "-1", "", LEGGE(Curriculum()), "1"},
    {"Curriculum", "2", "", LEGGE(Curriculum()), ""},
    {"ProtocolloUnitaOrganizzative", "u", "", LEGGE(ProtocolloUnitaOrganizzative()), "u"},
    {"ProtocolloDataTmpBypass", Manca, "", LEGGE(ProtocolloDataTmpBypass()), "Null"},
};

const Lettura Numeri[] = {
    {"DataWeb", Manca, "", LEGGE(DataWeb()), "16: 0"},
    {"DataWeb", Null{}, "", LEGGE(DataWeb()), "16: 0"},
    {"DataWeb", "2,5", "", LEGGE(DataWeb()), "16: 2"},
    {"DataWeb", "3,5", "", LEGGE(DataWeb()), "16: 4"},
    {"DataWeb", "12abc", "", LEGGE(DataWeb()), "16: 0"},
    {"DataWeb", "40000", "", LEGGE(DataWeb()), "16: 0"},
    {"AnnoProtocolloNumerazioneUnica", "anno", "", LEGGE(AnnoProtocolloNumerazioneUnica()), "16: 2004"},
    {"AnnoProtocolloNumerazioneUnica", "99999", "", LEGGE(AnnoProtocolloNumerazioneUnica()), "16: 2004"},
    {"TitoloStudioDefault", "7", "", LEGGE(TitoloStudioDefault()), "32: 7"},
    {"TitoloStudioDefault", "40000", "", LEGGE(TitoloStudioDefault()), "32: 0"},
    {"EDFontSize", "-3", "", LEGGE(EDFontSize()), "16: 10"},
    {"EDFontSize", "0", "", LEGGE(EDFontSize()), "16: 0"},
    {"EDFontSize", "40000", "", LEGGE(EDFontSize()), "error 6"},
    {"EDEtichetteOrizzontale", "40000", "", LEGGE(EDEtichetteOrizzontale()), "error 6"},
    {"EDEtichetteVerticale", "40000", "", LEGGE(EDEtichetteVerticale()), "error 6"},
    {"TipoNumeratoreParcella", "40000", "", LEGGE(TipoNumeratoreParcella()), "error 6"},
    {"CtrlCapComuneProv", "40000", "", LEGGE(CtrlCapComuneProv()), "error 6"},
    {"CtrlCapComuneProv", "3", "", LEGGE(CtrlCapComuneProv()), "16: 2"},
    {"CtrlCapComuneProv", "-1", "", LEGGE(CtrlCapComuneProv()), "16: 2"},
    {"CtrlCapComuneProv", "1", "", LEGGE(CtrlCapComuneProv()), "16: 1"},
    {"BackColorPcy", Manca, "", LEGGE(BackColorPcy()), "32: 8421631"},
    {"BackColorNoPcy", "3000000000", "", LEGGE(BackColorNoPcy()), "32: 8454143"},
    {"BackColorNoPcy", "&HFF", "", LEGGE(BackColorNoPcy()), "32: 255"},
    {"ProtSviluppoListe", Manca, "", LEGGE(ProtSviluppoListe()), "32: -1"},
    {"ProtocolloMailto", "12abc", "", LEGGE(ProtocolloMailto()), "16: 12"},
    {"ProtocolloMailto", "parola", "", LEGGE(ProtocolloMailto()), "16: 0"},
    {"ProtocolloMailto", "40000", "", LEGGE(ProtocolloMailto()), "error 6"},
    {"ProtocolloCaricaCorrispondenti", Manca, "", LEGGE(ProtocolloCaricaCorrispondenti()), "16: 1"},
    {"ProtocolloCaricaCorrispondenti", "", "", LEGGE(ProtocolloCaricaCorrispondenti()), "16: 0"},
    {"ProtocolloAnnotazioniExt", "2.5", "", LEGGE(ProtocolloAnnotazioniExt()), "32: 2"},
    {"ProtocolloSicurezza", "2abc", "", LEGGE(ProtocolloSicurezza()), "32: 2"},
    {"ProtocolloSicurezza", "2.5", "", LEGGE(ProtocolloSicurezza()), "32: 0",
     "Parametro 'ProtocolloSicurezza' errato!"},
    {"ProtocolloSicurezza", Manca, "", LEGGE(ProtocolloSicurezza()), "32: 0"},
    {"ProtocolloInformatico", "3", "", LEGGE(ProtocolloInformatico()), "32: 0",
     "Parametro 'ProtocolloInformatico' errato!"},
    {"ProtocolloScanner", "-1", "", LEGGE(ProtocolloScanner()), "32: 0",
     "Parametro 'ProtocolloScanner' errato!"},
    {"ProtocolloArgomentiMultilivello", "3", "", LEGGE(ProtocolloArgomentiMultilivello()), "32: 3"},
    {"ProtocolloArgomentiMultilivello", "4", "", LEGGE(ProtocolloArgomentiMultilivello()), "32: 0",
     "Parametro 'ProtocolloArgomentiMultilivello' errato!"},
    {"PubblicazioneDisciplina", "6", "", LEGGE(PubblicazioneDisciplina()), "32: 0",
     "Parametro 'PubblicazioneDisciplina' errato!"},
    {"SospensioniChiudiTerminate", "0", "", LEGGE(SospensioniChiudiTerminate()), "32: 0",
     "Parametro 'SospensioniChiudiTerminate' errato!"},
    {"RadiazioniChiudiTerminate", Manca, "", LEGGE(RadiazioniChiudiTerminate()), "32: 0"},
    {"RadiazioniChiudiTerminate", "3", "", LEGGE(RadiazioniChiudiTerminate()), "32: 0",
     "Parametro 'RadiazioniChiudiTerminate' errato!"},
    {"SospensioniNumeroProgressivo", "0", "", LEGGE(SospensioniNumeroProgressivo()), "16: 1"},
    {"SospensioniNumeroProgressivo", Manca, "", LEGGE(SospensioniNumeroProgressivo()), "16: 0"},
};

const Lettura MisureEDate[] = {
    {"EDAltezzaModulo", Manca, "", LEGGE(EDAltezzaModulo()), "single: 17280"},
    {"EDAltezzaModulo", "", "", LEGGE(EDAltezzaModulo()), "single: 17280"},
    {"EDAltezzaModulo", "2.5cm", "", LEGGE(EDAltezzaModulo()), "single: 1417,5"},
    {"EDAltezzaModulo", "2,5 cm", "", LEGGE(EDAltezzaModulo()), "single: 1417,5"},
    {"EDAltezzaModulo", "1\"", "", LEGGE(EDAltezzaModulo()), "single: 1440"},
    {"EDAltezzaModulo", "720", "", LEGGE(EDAltezzaModulo()), "single: 720"},
    {"EDAltezzaModulo", "5 mm", "", LEGGE(EDAltezzaModulo()), "single: 0"},
    {"EDAltezzaModulo", "2CM", "", LEGGE(EDAltezzaModulo()), "single: 0"},
    {"EDPassoVerrticale", "10", "", LEGGE(EDPassoVerticale()), "single: 10"},
    {"EDPassoVerticale", "10", "", LEGGE(EDPassoVerticale()), "single: 2160"},
    {"ProtocolloInformatico", "1", "31/12/2005", LEGGE(DataProtocolloInformatico()), "31/12/2005"},
    {"ProtocolloInformatico", "1", "31/13/2005", LEGGE(DataProtocolloInformatico()), "Null"},
    {"DataControlloComuniVariati", Manca, "", LEGGE(DataControlloComuniVariati()), "Null"},
};

template <std::size_t N>
void controlla(const Lettura (&casi)[N]) {
  Parametri p;
  for (const auto& caso : casi) {
    SCOPED_TRACE(std::string(caso.chiave) + " = " +
                 (!caso.valore            ? "(manca)"
                  : caso.valore->isNull() ? "Null"
                                          : caso.valore->toText()));
    p.db->Execute("DELETE FROM KepGenerali");
    if (caso.valore) p.metti(caso.chiave, *caso.valore, caso.note);
    p.desktop.boxes.clear();
    if (caso.avviso) p.desktop.expectBox(caso.avviso, controls::vbOK);
    EXPECT_EQ(mostra([&] { return caso.leggi(p.kep); }), caso.atteso);
    EXPECT_EQ(p.desktop.left(), 0U);
    if (caso.avviso) {
      EXPECT_EQ(p.desktop.boxes.at(0).text, caso.avviso);
      EXPECT_EQ(p.desktop.boxes.at(0).style, controls::vbOKOnly);
    }
  }
}

TEST(Properties, ReadSwitches) {
  controlla(Interruttori);
}
TEST(Properties, ReadTexts) {
  controlla(Testi);
}
TEST(Properties, ReadNumbers) {
  controlla(Numeri);
}
TEST(Properties, ReadMeasuresAndDates) {
  controlla(MisureEDate);
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
