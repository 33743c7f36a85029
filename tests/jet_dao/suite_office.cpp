#include "suite_office.h"

#include <ostream>
#include <sstream>

namespace office {

namespace {

using namespace jet::dao;

const std::vector<std::string> tables = {
    "CREATE TABLE KEPGenerali (Nome TEXT(50), Valore TEXT(255), [Note] MEMO)",
    "CREATE TABLE italia_comuni (ISTAT TEXT(6), Comune TEXT(50), PROVINCIA TEXT(2), DataFine DATETIME)",
    "CREATE TABLE CampiTabella (Norvo TEXT(20), Tabella TEXT(50), Campo TEXT(50))",
    "CREATE TABLE CampiDaEliminare (Norvo TEXT(20), Tabella TEXT(50), Campo TEXT(50))",
    "CREATE TABLE Indici (Norvo TEXT(20), Tabella TEXT(50), Indice TEXT(50))",
    "CREATE TABLE CampiIndice (Norvo TEXT(20), Tabella TEXT(50), Indice TEXT(50), Campo TEXT(50))",
    "CREATE TABLE Relazioni (Norvo TEXT(20), Relazione TEXT(50))",
    "CREATE TABLE CampiRelazione (Norvo TEXT(20), Relazione TEXT(50), Nome TEXT(50))",
    "CREATE TABLE Descrizioni (Tabella TEXT(50), Campo TEXT(50), Descrizione TEXT(255))",
    "CREATE TABLE DescrizioniTabella (Tabella TEXT(50), Descrizione TEXT(255))",
    "CREATE TABLE tb_quote (n LONG, ip_quota_g DOUBLE, ip_quota_gEuro DOUBLE, ip_quota_sEuro DOUBLE, "
    "fl_nascita BIT, "
    "fl_iscrizione BIT)",
    "CREATE TABLE tb_quote_param (chiave TEXT(10))",
    "CREATE TABLE tb_quote_mora (quota CURRENCY)",
    "CREATE TABLE quote_pagate (quota CURRENCY)",
    "CREATE TABLE quote_param (quota CURRENCY)",
    "CREATE TABLE quote_dovute (cd_matr LONG, quota CURRENCY)",
    "CREATE TABLE tb_compenso (compenso CURRENCY)",
    "CREATE TABLE ragioniere (cd_matr LONG CONSTRAINT pk PRIMARY KEY, nr_norvo SHORT, nr_collegio LONG, "
    "nr_elenco "
    "LONG, ds_cognome TEXT(40), ds_cognome_ric TEXT(40), [Set] TEXT(1), nr_sezione LONG, Nr_SezioneB LONG, "
    "cd_classe "
    "TEXT(1), cd_stato_attuale TEXT(2), cd_stato_elenco TEXT(2), fl_iscritto_elenco BIT, dt_iscrizione "
    "DATETIME, "
    "dt_anzianita DATETIME, ds_anzianita TEXT(100), dt_prima_iscrizione DATETIME, cd_domanda LONG, "
    "cd_domanda_elenco "
    "LONG, dt_abilitazione DATETIME, ds_sessione_esame TEXT(4), DatiProfessionali MEMO, Settori MEMO, "
    "SettoriExt MEMO, "
    "fl_old_ordinamento BIT, fl_spedizione TEXT(1), fl_web BIT, fl_norvo_unico BIT, cd_norvo_unico LONG, "
    "note_norvo_unico MEMO, cd_fiscale TEXT(16), [legge494/96] BIT, fl_zona1 BIT, zona_pref1 SHORT, "
    "comune_pref1 "
    "TEXT(30), prov_pref1 TEXT(2), fl_zona2 BIT, zona_pref2 SHORT, comune_pref2 TEXT(30), prov_pref2 "
    "TEXT(2), fl_zona3 "
    "BIT, zona_pref3 SHORT, comune_pref3 TEXT(30), prov_pref3 TEXT(2))",
    "CREATE TABLE status_ragioniere (n LONG, cd_matr LONG, cd_evento TEXT(2), cd_tip_evento TEXT(2), "
    "cd_mot_evento "
    "TEXT(2), dt_evento DATETIME, dt_dec_canc DATETIME, dt_fine_sosp DATETIME, nr_evento LONG, nr_norvo "
    "SHORT, "
    "nr_sospensione LONG, fl_sosp_futura BIT, nr_protocollo TEXT(10), nr_collegio LONG, fl_iscritto_elenco "
    "BIT)",
    "CREATE TABLE stato_attuale (cd_matr LONG, nr_norvo SHORT, fl_iscritto_elenco BIT, cd_tip_evento_al "
    "TEXT(2), "
    "cd_mot_evento_al TEXT(2))",
    "CREATE TABLE tb_domande_rag (n LONG, cd_tipo_domanda TEXT(2), cd_mot_evento TEXT(2), dt_dec_canc "
    "DATETIME, "
    "dt_fine_sosp DATETIME, nr_protocollo TEXT(10), dt_protocollo DATETIME, nr_norvo SHORT, nr_collegio "
    "LONG, "
    "fl_iscritto_elenco BIT)",
    "CREATE TABLE praticante (cd_matr LONG, nr_sezione LONG, sezione TEXT(1), cd_stato_corr TEXT(2), "
    "nr_sezione_prof "
    "LONG, cd_nr_collegio LONG, dt_inizio_pratica DATETIME, dt_fine_pratica DATETIME, dt_iscrizione "
    "DATETIME, "
    "dt_scadenza_relazione DATETIME, cd_abilitazione LONG, fl_esito_esame BIT, fl_compiuto_tirocinio BIT)",
    "CREATE TABLE status_praticante (cd_prg LONG, cd_matr LONG, nr_sezione LONG, sezione TEXT(1), cd_evento "
    "TEXT(2), "
    "cd_tip_evento TEXT(2), dt_finale DATETIME, dt_delibera DATETIME, dt_evento DATETIME)",
    "CREATE TABLE stato_attuale_prat (cd_matr LONG, nr_sezione LONG, sezione TEXT(1), cd_tip_evento TEXT(2))",
    "CREATE TABLE tb_domande_prat (nr_collegio LONG, nr_sezione LONG, sezione TEXT(1), st_istruttoria "
    "TEXT(2))",
    "CREATE TABLE Status_Prof_Praticante (nr_collegio LONG, nr_sezione LONG, Data_Cambio DATETIME)",
    "CREATE TABLE prot_registrazione (anno SHORT, mese SHORT, id_prot LONG, tipo TEXT(3))",
    "CREATE TABLE prot_reg_contenuti (anno SHORT, mese SHORT, id_prot LONG, tipo TEXT(3))",
    "CREATE TABLE prot_interno (anno SHORT, mese SHORT)",
    "CREATE TABLE prot_int_contenuti (anno SHORT, mese SHORT)",
    "CREATE TABLE prot_sviluppo_liste (anno SHORT, mese SHORT)",
    "CREATE TABLE tb_altri_dati (tipo TEXT(2), cd_base LONG, cd_dettaglio LONG, descr TEXT(30))",
    "CREATE TABLE altri_dati (cd_matr LONG, tipo TEXT(2), cd_base LONG, cd_dettaglio LONG, ds_note TEXT(30))",
    "CREATE TABLE altri_dati2 (cd_matr LONG)",
    "CREATE TABLE Settori_Rag (cd_matr LONG, Settore TEXT(2), Sezione TEXT(1), DataIscr DATETIME, "
    "ProgressivoTS LONG)",
    "CREATE TABLE tb_Settori (AppName TEXT(20), Settore TEXT(2), Sezione TEXT(1), Descrizione TEXT(30), "
    "Titolo "
    "TEXT(10))",
    "CREATE TABLE titolo_studio_rag (cd_matr LONG, Progressivo LONG)",
    "CREATE TABLE lingue_rag (cd_matr LONG)",
    "CREATE TABLE tb_indirizzo (cd_matr LONG)",
    "CREATE TABLE altri_recapiti (cd_matr LONG, cd_classe TEXT(1), flg_invio_corr BIT, progressivo_recapito "
    "LONG)",
    "CREATE TABLE status_anzianita (cd_matr LONG, fl_iscritto_elenco BIT, dt_iscrizione DATETIME)",
    "CREATE TABLE tb_notifiche (cd_rep_nome TEXT(20))",
    "CREATE TABLE tb_certificati (cd_rep_nome TEXT(20), progressivo SHORT)",
    "CREATE TABLE Simpatizzante (cd_matr LONG, cd_classe TEXT(1), fl_spedizione TEXT(1))",
    "CREATE TABLE associati (cd_gruppo LONG, fl_spedizione TEXT(1), fl_norvo_unico BIT, cd_norvo_unico LONG, "
    "note_norvo_unico MEMO, cd_fiscale TEXT(16), nr_sezione LONG)",
    "CREATE TABLE componenti_associati (cd_gruppo LONG, cd_matr LONG, cd_classe TEXT(1))",
    "CREATE TABLE enti (n LONG, fl_spedizione TEXT(1))",
    "CREATE TABLE gruppi (n LONG, fl_spedizione TEXT(1))",
    "CREATE TABLE zone_comuni_preferenze (cd_matr LONG, fl_zona BIT, zona SHORT, comune TEXT(30), prov "
    "TEXT(2))",
    "CREATE TABLE Esame (codice_esame LONG)",
    "CREATE TABLE linkEsame (codice_esame LONG)",
    "CREATE TABLE collegio_provinciale (CodiceCliente TEXT(20), ds_collegio TEXT(80))",
    "CREATE TABLE privacy (aut_res BIT)",
    "CREATE TABLE tmp_morosi (n LONG)",
    "CREATE TABLE tmp_prat (n LONG)",
    "CREATE TABLE tmp_rag (n LONG)",
    "CREATE TABLE tmp_simp (n LONG)",
    "CREATE TABLE tb_tesserini (cd_classe TEXT(1))",
    "CREATE TABLE tb_tesserini_setup (Classe TEXT(1))",
    "CREATE TABLE motivo_evento (cd_evento TEXT(2), cd_tip_evento TEXT(2), cd_mot_evento TEXT(2), "
    "ds_mot_evento "
    "TEXT(60))",
    "CREATE TABLE FTPSend (IDFTPSend LONG, Server TEXT(30))",
    "CREATE TABLE Ordine (CodOrdine TEXT(4), Nome TEXT(30))",
    "CREATE TABLE Config (NtfVers LONG)",
    "CREATE TABLE Anagrafica (IdAnagrafica LONG, CodTipoIndirizzoPredefinito TEXT(1), flPraticante BIT, "
    "flEsterno BIT, "
    "flSTP BIT, CodOrdine TEXT(4), CodiceFiscale TEXT(16), NumIscrizione LONG)",
    "CREATE TABLE Indirizzo (IdAnagrafica LONG, CodTipoIndirizzo TEXT(1), Presso TEXT(9), Indirizzo "
    "TEXT(30), Frazione "
    "TEXT(9), Comune TEXT(30), Provincia TEXT(2), CAP TEXT(5), Tel1 TEXT(9), Tel2 TEXT(9), Cell TEXT(9), Fax "
    "TEXT(9))",
    "CREATE TABLE F24Dettaglio (IdAnagrafica LONG, DataVersamento DATETIME, Anno LONG, CodiceCausale "
    "TEXT(4))",
    "CREATE TABLE altri_norvi (norvo LONG, ds_norvo TEXT(30))",
    "CREATE TABLE ElencoOrdini (CodTipoOrdine TEXT(3), Sigla TEXT(2), Ordine TEXT(30))",
};

/// Rows of a table, each as the inside of VALUES.
struct Rows {
  const char* target;
  std::vector<const char*> values;
};

const Rows rowsOfTables[] = {
    {"KEPGenerali",
     {"'AppName', 'ORDCOMMEC', Null", "'DBVersione', '0014', 'prima'", "'Tellaro[1]', Null, Null"}},
    {"italia_comuni",
     {"'037006', 'Bologna', 'BO', #1/1/2001#", "'037006', 'Bologna', 'BO', Null",
      "'011001', 'Sant''Agata', 'SP', Null"}},
    {"CampiTabella",
     {"'Tutti', 'ragioniere', 'nr_elenco'", "'ORDCOMMEC', 'RAGIONIERE', 'Set'", "'ALTRO', 'enti', 'n'"}},
    {"CampiDaEliminare", {"'Tutti', 'enti', 'x'", "'ALTRO', 'gruppi', 'y'"}},
    {"Indici", {"'Tutti', 'enti', 'PrimaryKey'", "'ALTRO', 'gruppi', 'PrimaryKey'"}},
    {"CampiIndice", {"'Tutti', 'enti', 'PrimaryKey', 'n'", "'Tutti', 'gruppi', 'PrimaryKey', 'n'"}},
    {"Relazioni", {"'ALTRO', 'r0'", "'ordcommec', 'r1'"}},
    {"CampiRelazione", {"'Tutti', 'r1', 'cd_matr'", "'Tutti', 'r2', 'cd_gruppo'"}},
    {"Descrizioni", {"'ragioniere', 'Set', 'sezione'", "'enti', 'n', 'numero'"}},
    {"DescrizioniTabella", {"'enti', 'gli enti'"}},
    {"tb_quote",
     {"1, 100000, 0, Null, False, False", "2, 0, 0, 0, False, False", "3, 0, 51.65, 0, True, True",
      "4, Null, Null, 10, True, False"}},
    {"tb_quote_param", {"'01'", "'02'"}},
    {"quote_dovute", {"2, 51.6457"}},
    {"ragioniere (cd_matr, nr_norvo, nr_collegio, nr_elenco, ds_cognome, [Set], nr_sezione, Nr_SezioneB, "
     "cd_classe, "
     "cd_stato_attuale, dt_anzianita, cd_domanda, cd_domanda_elenco, dt_abilitazione, DatiProfessionali, "
     "Settori, "
     "zona_pref1, comune_pref1, prov_pref1, cd_fiscale)",
     {"1, 1, 101, 0, 'D''Amico', 'A', 0, Null, 'C', 'IS', #1/10/2000#, 0, 0, #11/20/1999#, 'Perito', '', 3, "
      "Null, "
      "'BO', 'DMC'"}},
    {"ragioniere (cd_matr, nr_norvo, nr_collegio, nr_elenco, ds_cognome, ds_cognome_ric, [Set], nr_sezione, "
     "Nr_SezioneB, cd_classe, cd_stato_attuale, cd_stato_elenco, fl_iscritto_elenco, dt_prima_iscrizione, "
     "cd_domanda, "
     "cd_domanda_elenco, ds_anzianita, fl_spedizione, [legge494/96], fl_zona2, zona_pref2, comune_pref2, "
     "prov_pref2)",
     {"2, 1, 102, 7, 'Bianchi', 'bianchi', 'B', 9, 12, 'C', 'CA', 'SO', True, #5/5/1995#, 0, 0, '', '1', "
      "True, True, "
      "0, 'Carpi', 'MO'",
      "3, 1, 102, 7, 'Verdi', ' ', 'A', 0, 0, 'C', 'IS', 'IS', False, Null, 5, 0, 'Iscritto', Null, False, "
      "False, "
      "Null, '', 'MO'"}},
    {"status_ragioniere (n, cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_dec_canc, "
     "nr_evento, "
     "nr_norvo, nr_sospensione, fl_sosp_futura, nr_protocollo, nr_collegio)",
     {"1, 1, 'AL', 'IS', 'IS', #1/10/2000#, Null, 1, 1, 0, False, 'p1', 101",
      "2, 1, 'AL', 'IS', 'SO', #3/1/2004#, #4/1/2004#, 2, 1, 1, False, Null, 101",
      "3, 1, 'AL', 'IS', 'RS', #6/1/2004#, Null, 3, 1, 1, False, Null, 101",
      "4, 1, 'AL', 'IS', 'PR', #1/1/2005#, Null, 4, 1, 0, False, Null, 101",
      "5, 1, 'AL', 'CA', 'TE', #1/1/2005#, Null, 4, 1, 0, False, Null, 101",
      "6, 2, 'EL', 'IS', 'IS', #1/1/2001#, Null, 1, 1, 0, False, Null, 7",
      "7, 2, 'AL', 'CA', 'TR', #2/2/2003#, #3/3/2006#, 1, 1, 0, False, Null, 102",
      "8, 2, 'AL', 'IS', 'SO', #5/5/2005#, #6/6/2005#, 2, 1, 2, True, Null, 102"}},
    {"stato_attuale",
     {"1, 1, False, 'IS', 'IS'", "2, 1, True, 'IS', 'SO'", "2, 2, False, 'CA', 'TE'",
      "3, 1, False, 'IS', 'SO'", "3, 1, True, 'IS', 'IS'"}},
    {"tb_domande_rag",
     {"1, 'IS', 'SO', #4/1/2004#, Null, 'p1', #1/2/2004#, 1, 101, False",
      "2, 'IS', 'IS', #4/1/2004#, Null, 'P1', #1/2/2004#, 2, 101, True"}},
    {"praticante",
     {"1, 0, Null, 'IS', 5, 0, #1/31/2005#, Null, #1/1/2005#, Null, 0, False, False",
      "2, Null, Null, Null, 0, 101, Null, #12/1/2006#, #2/1/2005#, Null, Null, True, False",
      "3, 0, Null, 'NI', 0, 0, Null, Null, Null, Null, 4, False, False",
      "0, 0, 'B', 'IS', 0, 0, Null, Null, Null, "
      "Null, 0, True, True"}},
    {"status_praticante",
     {"1, 1, 0, Null, 'PR', 'RE', #2/28/2006#, #3/1/2006#, #1/1/2006#",
      "2, 1, 4, Null, 'PR', 'IS', Null, Null, "
      "#1/31/2006#",
      "3, 1, Null, Null, 'PR', 'RE', #8/31/2006#, Null, #1/1/2006#",
      "4, 2, 0, Null, 'PR', 'RE', Null, Null, Null", "5, 2, 0, Null, 'PR', 'NI', #1/1/2007#, Null, Null"}},
    {"stato_attuale_prat", {"1, Null, Null, 'IS'", "2, 0, Null, 'NI'"}},
    {"tb_domande_prat", {"7, 0, Null, Null", "0, 0, Null, Null", "8, 3, 'B', 'NI'"}},
    {"Status_Prof_Praticante", {"101, 0, #12/31/2007#", "102, 0, #1/1/2008#", "103, 0, Null"}},
    {"prot_registrazione",
     {"2006, 0, 1, 'OUT'", "2006, 0, 2, 'OUT'", "2006, 0, 2, 'IN'", "2006, 1, 3, 'OUT'",
      "2007, 5, 1, 'OUT'"}},
    {"prot_reg_contenuti", {"2006, 0, 1, 'IN'", "2006, 0, 1, 'IN'", "2006, 0, 2, 'IN'", "2006, 1, 3, 'IN'"}},
    {"prot_interno", {"2006, 1", "2006, 2", "2007, 1"}},
    {"prot_int_contenuti", {"2006, 1", "2006, 1"}},
    {"prot_sviluppo_liste", {"2007, 1"}},
    {"tb_altri_dati",
     {"'DP', 1, 0, 'Albo'", "'DP', 1, 2, 'tecnico'", "'XX', 1, 0, 'no'", "'XX', 1, 2, 'no'"}},
    {"altri_dati", {"2, 'DP', 1, 2, 'nota'", "1, 'DP', 1, 2, Null", "1, 'XX', 1, 2, Null"}},
    {"altri_dati2", {"1"}},
    {"Settori_Rag",
     {"2, 'a', 'A', #1/1/2003#, 0", "1, 'b', 'A', #1/1/2002#, 0", "1, 'a', 'A', #1/1/2001#, 4"}},
    {"tb_Settori", {"'ORDCOMMEC', 'a', 'A', 'Civile', 'Ing.'", "'ALTRO', 'b', 'A', 'Altro', 'Dr.'"}},
    {"titolo_studio_rag", {"1, 1", "1, 2", "2, 1"}},
    {"lingue_rag", {"1", "2"}},
    {"tb_indirizzo", {"1", "1"}},
    {"altri_recapiti", {"1, 'C', True, 2", "1, 'C', True, 1", "1, 'C', False, 0", "1, 'A', True, 0"}},
    {"status_anzianita", {"1, False, #1/1/2004#", "1, False, #1/10/2000#", "1, True, #1/1/1990#"}},
    {"tb_notifiche", {"'MOD01.DOC'", "'mod1.doc'", "'mod02.docx'"}},
    {"tb_certificati", {"'cert1.doc', 1", "'cert2.doc', 40"}},
    {"Simpatizzante", {"1, 'S', Null", "2, 'S', '1'"}},
    {"associati (cd_gruppo, fl_spedizione, cd_fiscale, nr_sezione)",
     {"1, Null, 'AAA', 10", "2, '', 'BBB', 0"}},
    {"componenti_associati",
     {"1, 1, 'C'", "1, 9, 'C'", "1, 2, 'S'", "1, 8, 'S'", "5, 1, 'C'", "1, Null, 'C'"}},
    {"enti", {"1, Null", "2, '1'"}},
    {"gruppi", {"1, Null"}},
    {"Esame", {"4", "9"}},
    {"linkEsame", {"20", "21"}},
    {"collegio_provinciale", {"'ORDCOMMEC', 'Collegio'"}},
    {"privacy", {"False", "True"}},
    {"tmp_morosi", {"1"}},
    {"tmp_prat", {"1", "2"}},
    {"tmp_rag", {"1"}},
    {"tb_tesserini", {"Null", "' '", "'C'"}},
    {"tb_tesserini_setup", {"''", "'A'"}},
    {"motivo_evento",
     {"'AL', 'IS', 'TR', 'a'", "'EL', 'CA', 'TR', 'b'", "'AL', 'IS', 'RE', 'c'", "'PR', 'IN', '01', 'd'",
      "'AL', 'CA', "
      "'AL', 'e'"}},
    {"FTPSend", {"1, 'uno'", "2, 'due'"}},
    {"Ordine", {"'0037', 'Bologna'"}},
    {"Config", {"14"}},
    {"Anagrafica",
     {"1, 'S', False, False, False, '0037', 'DMC', 101", "2, 'L', False, False, True, '0037', 'STP', 5",
      "3, 'R', False, False, False, '0037', 'DMC', 99", "4, 'R', True, False, False, '0037', 'PRA', 200"}},
    {"Indirizzo (IdAnagrafica, CodTipoIndirizzo, Comune)",
     {"1, 'R', 'Carpi'", "1, 'S', 'Modena'", "2, 'L', 'Bologna'"}},
    {"F24Dettaglio", {"1, #1/2/2007#, 2006, 'B'", "1, #1/2/2007#, 2006, 'A'", "1, Null, 2005, 'A'"}},
    {"altri_norvi", {"7, 'Sette'"}},
    {"ElencoOrdini", {"'CDL', 'BO', 'Bologna'", "'ING', 'BO', 'altro'"}},
};

std::vector<std::string> script() {
  std::vector<std::string> statements = tables;
  // Twenty-three rights, as one table of numbers.
  std::string rights = "CREATE TABLE sicurezza (cd_utente TEXT(10)";
  for (const char* name : {"norvo",
                           "norvo_pratiche",
                           "praticanti",
                           "praticanti_pratiche",
                           "praticanti_scadenze",
                           "gruppi",
                           "connessioni",
                           "utilita",
                           "quote",
                           "studi_associati",
                           "esterni",
                           "protocollo",
                           "etichette",
                           "statistiche",
                           "ordine",
                           "commissioni_edilizie",
                           "sorteggi",
                           "parcelle",
                           "export",
                           "delibere",
                           "certificati",
                           "dichiarazioni",
                           "disciplinare"})
    rights += std::string(", fl_") + name + " BYTE";
  statements.push_back(rights + ")");
  for (const char* user : {"SYSADM", "ALTRO"})
    statements.push_back(std::string("INSERT INTO sicurezza (cd_utente) VALUES ('") + user + "')");
  for (const Rows& rows : rowsOfTables)
    for (const char* values : rows.values)
      statements.push_back(std::string("INSERT INTO ") + rows.target + " VALUES (" + values + ")");
  return statements;
}

std::string shown(Recordset& rows, const std::string& columns) {
  if (columns.empty()) return office::rows(rows);
  std::vector<std::string> names;
  std::istringstream list(columns);
  for (std::string name; list >> name;) names.push_back(name);
  std::string result;
  for (; !rows.atEnd(); rows.MoveNext()) {
    if (!result.empty()) result += " ";
    for (std::size_t i = 0; i < names.size(); ++i)
      result += (i ? "|" : "") + text(rows.Fields(names[i]).Value());
  }
  return result;
}

}  // namespace

struct SuiteOffice::Files {
  support::TempFolder folder;
  Workspace workspace;
  DatabasePtr db;
};

SuiteOffice::Files* SuiteOffice::files_ = nullptr;

void SuiteOffice::SetUpTestSuite() {
  files_ = new Files;
  const std::string path = files_->folder.path("office.mdb");
  make(path, script());
  files_->db = files_->workspace.OpenDatabase(path, true, false);
}

void SuiteOffice::TearDownTestSuite() {
  delete files_;
  files_ = nullptr;
}

QueryDefPtr SuiteOffice::query() const {
  const SuiteCase& row = GetParam();
  auto query = files_->db->CreateQueryDef("", row.sql);
  for (const auto& [name, value] : row.answers) query->Parameters(name).setValue(value);
  return query;
}

std::string SuiteOffice::selected() const {
  try {
    return shown(*query()->OpenRecordset(dbOpenDynaset), GetParam().look);
  } catch (const runtime::Error& error) {
    return "error " + std::to_string(error.number());
  }
}

std::string SuiteOffice::changed() const {
  files_->workspace.BeginTrans();
  std::string result;
  try {
    const auto change = query();
    change->Execute(dbFailOnError);
    result =
        std::to_string(change->RecordsAffected()) + ": " + rows(*files_->db->OpenRecordset(GetParam().look));
  } catch (const runtime::Error& error) {
    result = "error " + std::to_string(error.number());
  }
  files_->workspace.Rollback();
  return result;
}

void PrintTo(const SuiteCase& value, std::ostream* out) {
  *out << value.sql;
}

}  // namespace office
