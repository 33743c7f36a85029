#include "runtime/date.h"
#include "suite_office.h"

namespace office {
namespace {

class SuiteQueries : public SuiteOffice {};

TEST_P(SuiteQueries, GiveTheRowsOfTheOffice) {
  EXPECT_EQ(selected(), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Reference, SuiteQueries,
    testing::Values(
        SuiteCase{
            "PARAMETERS parNorvo TEXT; SELECT DISTINCT Tabella FROM CampiTabella WHERE Norvo = 'Tutti' OR "
            "Norvo=parNorvo",
            {{"parNorvo", "ORDCOMMEC"}},
            "",
            "ragioniere"},
        SuiteCase{
            "PARAMETERS parNorvo TEXT, parTabella TEXT; SELECT * FROM CampiTabella WHERE (Norvo='Tutti' OR "
            "Norvo=parNorvo) AND Tabella=parTabella",
            {{"parNorvo", "ordcommec"}, {"parTabella", "Ragioniere"}},
            "Campo",
            "nr_elenco Set"},
        SuiteCase{"PARAMETERS parNorvo TEXT; SELECT DISTINCT Tabella FROM CampiDaEliminare WHERE Norvo = "
                  "'Tutti' OR "
                  "Norvo=parNorvo",
                  {{"parNorvo", "X"}},
                  "",
                  "enti"},
        SuiteCase{"PARAMETERS parNorvo TEXT, parTabella TEXT; SELECT * FROM CampiDaEliminare WHERE "
                  "(Norvo='Tutti' OR "
                  "Norvo=parNorvo) AND Tabella=parTabella",
                  {{"parNorvo", "ALTRO"}, {"parTabella", "gruppi"}},
                  "",
                  "ALTRO|gruppi|y"},
        SuiteCase{"PARAMETERS parNorvo TEXT; SELECT * FROM Indici WHERE Norvo = 'Tutti' OR Norvo=parNorvo",
                  {{"parNorvo", "X"}},
                  "",
                  "Tutti|enti|PrimaryKey"},
        SuiteCase{"PARAMETERS parNorvo TEXT, parTabella TEXT, parIndice TEXT; SELECT * FROM CampiIndice "
                  "WHERE (Norvo "
                  "= 'Tutti' OR Norvo=parNorvo) AND Tabella=parTabella AND Indice=parIndice",
                  {{"parNorvo", "X"}, {"parTabella", "gruppi"}, {"parIndice", "primarykey"}},
                  "",
                  "Tutti|gruppi|PrimaryKey|n"},
        SuiteCase{"PARAMETERS parNorvo TEXT; SELECT * FROM Relazioni WHERE Norvo = 'Tutti' OR Norvo=parNorvo",
                  {{"parNorvo", "ORDCOMMEC"}},
                  "",
                  "ordcommec|r1"},
        SuiteCase{"PARAMETERS parNorvo TEXT, parRelazione TEXT; SELECT * FROM CampiRelazione WHERE (Norvo = "
                  "'Tutti' OR "
                  "Norvo=parNorvo) AND Relazione=parRelazione",
                  {{"parNorvo", "X"}, {"parRelazione", "r2"}},
                  "Nome",
                  "cd_gruppo"},
        SuiteCase{"SELECT Descrizione AS Descr,Tabella AS Tabl FROM DescrizioniTabella",
                  {},
                  "Descr Tabl",
                  "gli enti|enti"},
        SuiteCase{
            "SELECT * FROM Descrizioni ORDER BY Tabella", {}, "Tabella Campo", "enti|n ragioniere|Set"}));

INSTANTIATE_TEST_SUITE_P(
    Parameters, SuiteQueries,
    testing::Values(
        SuiteCase{"SELECT * FROM KEPGenerali WHERE Nome IN ('AppName')", {}, "Valore", "ORDCOMMEC"},
        SuiteCase{"SELECT * FROM KEPGenerali WHERE Nome = 'AppName'", {}, "", "AppName|ORDCOMMEC|Null"},
        SuiteCase{"SELECT * FROM KEPGenerali WHERE Nome = 'DBVersione'", {}, "Valore", "0014"},
        SuiteCase{"SELECT * FROM KEPGenerali WHERE Nome = 'DataAggNorvo'", {}, "", ""},
        SuiteCase{"SELECT * FROM KEPGenerali WHERE Nome = 'TellaroFaxServerIP'", {}, "", ""},
        SuiteCase{"SELECT * FROM KEPGenerali WHERE Nome='CopiaNrCollegioInNrSezione'", {}, "", ""},
        SuiteCase{"SELECT * FROM KEPGenerali WHERE Nome = 'NumerazioneUnicaPratODC'", {}, "", ""},
        SuiteCase{"SELECT * FROM KEPGenerali WHERE Nome = 'AggiornaProfPraticanti'", {}, "", ""},
        SuiteCase{"SELECT * FROM KEPGenerali WHERE Nome = 'AssegnazioneLegge8108'", {}, "", ""},
        SuiteCase{"PARAMETERS parNome Text;SELECT * FROM KepGenerali WHERE Nome Like parNome",
                  {{"parNome", "*e"}},
                  "Nome",
                  "AppName DBVersione"},
        SuiteCase{"PARAMETERS myNome Text; SELECT Count(*) AS Totale FROM KepGenerali WHERE Nome = myNome ",
                  {{"myNome", "tellaro[1]"}},
                  "Totale",
                  "1"},
        SuiteCase{"PARAMETERS myNome Text; SELECT * FROM KepGenerali WHERE Nome = myNome ",
                  {{"myNome", "dbversione"}},
                  "Note",
                  "prima"},
        SuiteCase{"SELECT count(*) AS CountRecords FROM ragioniere", {}, "", "3"},
        SuiteCase{"SELECT CodiceCliente FROM collegio_provinciale", {}, "", "ORDCOMMEC"},
        SuiteCase{"SELECT * FROM FTPSend WHERE IDFTPSend = 1", {}, "Server", "uno"}));

INSTANTIATE_TEST_SUITE_P(
    Repairs, SuiteQueries,
    testing::Values(
        SuiteCase{
            "SELECT ISTAT, Comune, PROVINCIA, COUNT(*) AS Conta FROM italia_comuni GROUP BY ISTAT, Comune, "
            "PROVINCIA HAVING COUNT(*) > 1",
            {},
            "",
            "037006|Bologna|BO|2"},
        SuiteCase{
            "SELECT * FROM italia_comuni WHERE ISTAT = '037006' AND Comune = 'Bologna' AND PROVINCIA = 'BO' "
            "ORDER BY DataFine",
            {},
            "DataFine",
            "Null 01/01/2001"},
        SuiteCase{"SELECT * FROM italia_comuni WHERE ISTAT = '011001' AND Comune = 'Sant''Agata' AND "
                  "PROVINCIA = 'SP' "
                  "ORDER BY DataFine",
                  {},
                  "Comune",
                  "Sant'Agata"},
        SuiteCase{"SELECT * FROM tb_quote", {}, "n", "1 2 3 4"},
        SuiteCase{"SELECT * FROM tb_quote_param", {}, "", "01 02"},
        SuiteCase{"SELECT * FROM tb_quote_mora", {}, "", ""},
        SuiteCase{"SELECT * FROM quote_pagate", {}, "", ""},
        SuiteCase{"SELECT * FROM quote_param", {}, "", ""},
        SuiteCase{"SELECT * FROM quote_dovute", {}, "", "2|51,6457"},
        SuiteCase{"SELECT * FROM tb_compenso", {}, "", ""},
        SuiteCase{
            "SELECT * FROM tb_quote WHERE (ip_quota_gEuro > 0 OR ip_quota_g > 0 OR ip_quota_sEuro > 0) AND "
            "(fl_nascita = False OR fl_iscrizione = False)",
            {},
            "n",
            "1 4"},
        SuiteCase{
            "SELECT COUNT(*) FROM ragioniere GROUP BY nr_norvo, nr_collegio HAVING COUNT(*)>1", {}, "", "2"},
        SuiteCase{
            "SELECT COUNT(*) FROM ragioniere GROUP BY nr_norvo, nr_elenco HAVING COUNT(*)>1", {}, "", "2"},
        SuiteCase{"SELECT * FROM praticante WHERE cd_matr > 0 AND (nr_sezione = 0 OR IsNull(nr_sezione)) AND "
                  "(cd_stato_corr & '') <> 'NI'",
                  {},
                  "cd_matr",
                  "1 2"},
        SuiteCase{"SELECT TOP 1 * FROM ragioniere WHERE Set = 'A'", {}, "cd_matr", "1"},
        SuiteCase{"SELECT * FROM praticante WHERE cd_matr > 0 AND nr_sezione_prof > 0", {}, "cd_matr", "1"},
        SuiteCase{
            "SELECT * FROM praticante WHERE cd_nr_collegio > 0 AND nr_sezione_prof = 0", {}, "cd_matr", "2"},
        SuiteCase{"SELECT * FROM ragioniere WHERE nr_collegio = 101 AND ds_cognome = \"d'amico\"",
                  {},
                  "cd_matr",
                  "1"},
        SuiteCase{"SELECT * FROM praticante", {}, "cd_matr", "1 2 3 0"},
        SuiteCase{
            "PARAMETERS parCognome Text, parNrCollegio Long;SELECT * FROM ragioniere WHERE ds_cognome = "
            "parCognome AND nr_collegio = parNrCollegio",
            {{"parCognome", "VERDI"}, {"parNrCollegio", 102}},
            "cd_matr",
            "3"},
        SuiteCase{"SELECT * FROM Status_Prof_Praticante", {}, "nr_collegio", "101 102 103"},
        SuiteCase{"PARAMETERS parAnno Short;SELECT Count(*) As Totale FROM prot_registrazione WHERE (anno = "
                  "parAnno And "
                  "(mese Between 2 And 12)) Or (anno > parAnno And mese > 0)",
                  {{"parAnno", 2006}},
                  "Totale",
                  "1"},
        SuiteCase{"PARAMETERS parAnno Short;SELECT Count(*) As Totale FROM prot_registrazione WHERE anno = "
                  "parAnno And "
                  "mese = 1 ",
                  {{"parAnno", 2006}},
                  "Totale",
                  "1"},
        SuiteCase{"SELECT status_praticante.cd_matr, status_praticante.cd_evento, "
                  "Max(status_praticante.dt_finale) AS "
                  "MaxDataFinale, Max(DateAdd('m',6,status_praticante.dt_finale)) AS DataScadenza FROM "
                  "status_praticante WHERE (((status_praticante.cd_tip_evento) = 'RE')) GROUP BY "
                  "status_praticante.cd_matr, status_praticante.cd_evento HAVING ((Not "
                  "(Max(status_praticante.dt_finale)) Is Null)) ORDER BY status_praticante.cd_matr, "
                  "Max(status_praticante.dt_finale) ",
                  {},
                  "cd_matr cd_evento MaxDataFinale DataScadenza",
                  "1|PR|31/08/2006|28/02/2007"},
        SuiteCase{"SELECT dt_scadenza_relazione FROM Praticante WHERE cd_matr = 1", {}, "", "Null"},
        SuiteCase{"SELECT * FROM Praticante WHERE cd_stato_corr = 'IS' AND fl_compiuto_tirocinio = False AND "
                  "fl_esito_esame = False",
                  {},
                  "cd_matr",
                  "1"},
        SuiteCase{"SELECT * FROM Praticante WHERE (praticante.cd_abilitazione = 0 OR "
                  "IsNull(praticante.cd_abilitazione)) AND fl_esito_esame = False",
                  {},
                  "cd_matr",
                  "1"},
        SuiteCase{
            "SELECT status_praticante.*, IIF(IsNull(praticante.dt_inizio_pratica), praticante.dt_iscrizione, "
            "praticante.dt_inizio_pratica) AS DataInizio, praticante.dt_fine_pratica AS DataFine, "
            "IIF(cd_tip_evento = 'RE',dt_delibera,dt_evento) as DataEvento FROM status_praticante INNER JOIN "
            "praticante ON status_praticante.cd_matr = praticante.cd_matr WHERE status_praticante.cd_matr = "
            "1 "
            "ORDER BY  IIf(cd_tip_evento='RE', status_praticante.dt_delibera, status_praticante.dt_evento), "
            "status_praticante.cd_prg ",
            {},
            "cd_prg DataInizio DataFine DataEvento",
            "3|31/01/2005|Null|Null 2|31/01/2005|Null|31/01/2006 1|31/01/2005|Null|01/03/2006"},
        SuiteCase{
            "SELECT status_ragioniere.cd_matr, MAX(status_ragioniere.dt_evento) AS MaxDtEvento FROM "
            "status_ragioniere INNER JOIN ragioniere ON status_ragioniere.cd_matr = ragioniere.cd_matr WHERE "
            "(status_ragioniere.cd_evento='AL') AND (status_ragioniere.cd_tip_evento='IS') AND "
            "(status_ragioniere.cd_mot_evento='IS' OR status_ragioniere.cd_mot_evento='RE' OR "
            "status_ragioniere.cd_mot_evento='TE' OR status_ragioniere.cd_mot_evento='TR' OR "
            "status_ragioniere.cd_mot_evento='PR' OR status_ragioniere.cd_mot_evento='PC') GROUP BY "
            "status_ragioniere.cd_matr",
            {},
            "",
            "1|01/01/2005"},
        SuiteCase{"SELECT * FROM ragioniere WHERE cd_matr=2", {}, "ds_cognome", "Bianchi"}));

INSTANTIATE_TEST_SUITE_P(
    DerivedTexts, SuiteQueries,
    testing::Values(
        SuiteCase{
            "SELECT altri_dati.cd_matr, t1.descr+' '+t2.descr AS dext, altri_dati.ds_note FROM tb_altri_dati "
            "AS "
            "t1, tb_altri_dati AS t2, altri_dati WHERE (((t1.tipo)=[t2].[tipo] And (t1.tipo)='DP') AND "
            "((t1.cd_base)=[t2].[cd_base]) AND ((t1.cd_dettaglio)=0) AND ((t2.tipo)=[altri_dati].[tipo]) AND "
            "((t2.cd_base)=[altri_dati].[cd_base]) AND ((t2.cd_dettaglio)=[altri_dati].[cd_dettaglio])) "
            "ORDER BY "
            "altri_dati.cd_matr",
            {},
            "cd_matr dext ds_note",
            "1|Albo tecnico|Null 2|Albo tecnico|nota"},
        SuiteCase{"SELECT Settori_Rag.*, tb_Settori.Descrizione, tb_Settori.Titolo FROM Settori_Rag LEFT "
                  "JOIN tb_Settori "
                  "ON (Settori_Rag.Settore = tb_Settori.Settore) AND (Settori_Rag.Sezione = "
                  "tb_Settori.Sezione) WHERE "
                  "((tb_Settori.AppName) = 'ORDCOMMEC') ORDER BY Settori_Rag.cd_matr, Settori_Rag.DataIscr, "
                  "Settori_Rag.Sezione, Settori_Rag.Settore",
                  {},
                  "cd_matr Descrizione",
                  "1|Civile 2|Civile"},
        SuiteCase{
            "SELECT Settori_Rag.*, tb_Settori.Descrizione, tb_Settori.Titolo FROM Settori_Rag LEFT JOIN "
            "tb_Settori "
            "ON (Settori_Rag.Settore = tb_Settori.Settore) AND (Settori_Rag.Sezione = tb_Settori.Sezione) "
            "WHERE "
            "((tb_Settori.AppName) = 'ALTRO')  AND ((Settori_Rag.cd_matr) = 1) ORDER BY Settori_Rag.cd_matr, "
            "Settori_Rag.DataIscr, Settori_Rag.Sezione, Settori_Rag.Settore",
            {},
            "Settore Titolo",
            "b|Dr."},
        SuiteCase{"SELECT * FROM ragioniere WHERE ((cd_stato_attuale = 'IS' OR cd_stato_attuale = 'SO')  OR "
                  "(cd_stato_elenco = 'IS' OR cd_stato_elenco = 'SO')) AND (ds_anzianita & '') = ''",
                  {},
                  "cd_matr",
                  "1 2"},
        SuiteCase{"SELECT dt_anzianita, cd_stato_attuale, fl_iscritto_elenco, cd_stato_elenco FROM "
                  "ragioniere WHERE "
                  "cd_matr = 1",
                  {},
                  "",
                  "10/01/2000|IS|Falso|Null"},
        SuiteCase{"SELECT * FROM status_anzianita WHERE cd_matr = 1 AND fl_iscritto_elenco = False ORDER BY "
                  "dt_iscrizione",
                  {},
                  "dt_iscrizione",
                  "10/01/2000 01/01/2004"},
        SuiteCase{"SELECT * FROM status_anzianita WHERE cd_matr = 1 AND fl_iscritto_elenco = True ORDER BY "
                  "dt_iscrizione",
                  {},
                  "dt_iscrizione",
                  "01/01/1990"},
        SuiteCase{"SELECT * FROM tb_notifiche WHERE cd_rep_nome LIKE 'mod??.doc'", {}, "", "MOD01.DOC"},
        SuiteCase{
            "PARAMETERS parCdRepNome Text;SELECT * FROM tb_certificati WHERE cd_rep_nome = parCdRepNome",
            {{"parCdRepNome", "CERT2.DOC"}},
            "",
            "cert2.doc|40"},
        SuiteCase{
            "PARAMETERS parProgressivo SHORT; SELECT progressivo FROM tb_certificati WHERE progressivo = "
            "parProgressivo",
            {{"parProgressivo", 41}},
            "",
            ""},
        SuiteCase{"SELECT max(progressivo) AS MaxProgr FROM tb_certificati", {}, "MaxProgr", "40"},
        SuiteCase{"SELECT * FROM Simpatizzante", {}, "cd_matr", "1 2"},
        SuiteCase{"SELECT Max(codice_esame) as Massimo FROM Esame", {}, "Massimo", "9"},
        SuiteCase{"SELECT * FROM Esame", {}, "", "4 9"},
        SuiteCase{"SELECT ds_cognome, ds_cognome_ric FROM ragioniere WHERE Trim(ds_cognome_ric & '') = ''",
                  {},
                  "ds_cognome",
                  "D'Amico Verdi"},
        SuiteCase{"SELECT Classe FROM tb_tesserini_setup WHERE Trim(Classe & '') = ''", {}, "", ""},
        SuiteCase{"SELECT cd_classe FROM tb_tesserini WHERE Trim(cd_classe & '') = ''", {}, "", "Null  "},
        SuiteCase{"SELECT * FROM settori_rag WHERE settori_rag.ProgressivoTS = 0",
                  {},
                  "cd_matr Settore",
                  "2|a 1|b"},
        SuiteCase{"SELECT * FROM titolo_studio_rag WHERE cd_matr = 1", {}, "Progressivo", "1 2"},
        SuiteCase{"SELECT * FROM ragioniere WHERE [legge494/96] = True", {}, "cd_matr", "2"},
        SuiteCase{
            "PARAMETERS parEvento Text;SELECT Count(*) FROM motivo_evento WHERE cd_evento = parEvento And "
            "cd_tip_evento = 'CA' And cd_mot_evento = 'AL'",
            {{"parEvento", "al"}},
            "",
            "1"},
        SuiteCase{"SELECT * FROM motivo_evento WHERE (cd_evento = 'AL' OR cd_evento = 'EL') AND "
                  "(cd_tip_evento = 'IS' OR "
                  "cd_tip_evento = 'CA') AND cd_mot_evento = 'TR'",
                  {},
                  "ds_mot_evento",
                  "a b"},
        SuiteCase{"SELECT * FROM motivo_evento WHERE cd_evento = 'PR' AND cd_tip_evento = 'IN' AND "
                  "cd_mot_evento = '04'",
                  {},
                  "",
                  ""}));

}  // namespace
}  // namespace office
