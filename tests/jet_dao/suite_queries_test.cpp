#include "runtime/date.h"
#include "suite_office.h"

namespace office {
namespace {

class SuiteQueries : public SuiteOffice {};

TEST_P(SuiteQueries, GiveTheRowsOfTheOffice) {
  EXPECT_EQ(selected(), GetParam().result);
}

runtime::Variant day(int year, int month, int dayOfMonth) {
  return runtime::dateFromParts(year, month, dayOfMonth, 0, 0, 0);
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

INSTANTIATE_TEST_SUITE_P(
    Status, SuiteQueries,
    testing::Values(
        SuiteCase{"PARAMETERS parNrNorvo Short, parIscrittoElenco Bit, parCdMatr Long;SELECT * FROM "
                  "stato_attuale WHERE "
                  "nr_norvo = parNrNorvo And fl_iscritto_elenco = parIscrittoElenco And cd_matr = parCdMatr",
                  {{"parNrNorvo", 1}, {"parIscrittoElenco", true}, {"parCdMatr", 2}},
                  "cd_mot_evento_al",
                  "SO"},
        SuiteCase{
            "PARAMETERS parCdEvento Text, parTETA Text, parCdMatr Long; SELECT * FROM status_ragioniere  "
            "WHERE  "
            "cd_evento = parCdEvento AND cd_matr = parCdMatr ORDER BY cd_matr, IIF((cd_mot_evento = 'SO' OR "
            "cd_tip_evento = 'CA') AND dt_dec_canc IS NOT NULL, dt_dec_canc, dt_evento) DESC, nr_evento "
            "DESC, "
            "Switch(cd_tip_evento = 'CA' AND (cd_mot_evento = parTETA OR cd_mot_evento = 'TR'), 'AA', "
            "cd_tip_evento = 'IS' AND (cd_mot_evento = 'IS' OR cd_mot_evento = 'RE'), 'AB', cd_tip_evento = "
            "'IS' "
            "AND cd_mot_evento = 'RS', 'CB', 1 = 1, cd_tip_evento)",
            {{"parCdEvento", "AL"}, {"parTETA", "TE"}, {"parCdMatr", 1}},
            "n",
            "5 4 3 2 1"},
        SuiteCase{
            "PARAMETERS parCdEvento Text, parTETA Text; SELECT * FROM status_ragioniere  WHERE  cd_evento = "
            "parCdEvento AND IIF(dt_dec_canc Is Null, dt_evento, dt_dec_canc) <= #06/06/2005# AND "
            "IIF(dt_dec_canc "
            "Is Null, dt_evento, dt_dec_canc) >= #06/01/2004# ORDER BY cd_matr, dt_evento DESC, nr_evento "
            "DESC, "
            "Switch(cd_tip_evento = 'CA' AND (cd_mot_evento = parTETA OR cd_mot_evento = 'TR'), 'AA', "
            "cd_tip_evento = 'IS' AND (cd_mot_evento = 'IS' OR cd_mot_evento = 'RE'), 'AB', cd_tip_evento = "
            "'IS' "
            "AND cd_mot_evento = 'RS', 'CB', 1 = 1, cd_tip_evento)",
            {{"parCdEvento", "AL"}, {"parTETA", "TA"}},
            "n",
            "5 4 3 8"},
        SuiteCase{
            " PARAMETERS parCdMatr Long, parNrNorvo Byte, parCdEvento Text, parCdMotEvento Text, parOggi "
            "Date; "
            "SELECT * FROM status_ragioniere WHERE cd_matr = parCdMatr AND cd_evento = parCdEvento AND "
            "cd_tip_evento = 'IS' AND cd_mot_evento = parCdMotEvento AND nr_norvo = parNrNorvo AND "
            "nr_sospensione > 0 AND NOT (IIF(dt_dec_canc Is Null, dt_evento, dt_dec_canc) > parOggi AND "
            "fl_sosp_futura = True) ORDER BY Iif(IsNull(dt_dec_canc), dt_evento, dt_dec_canc) DESC, "
            "nr_sospensione DESC",
            {{"parCdMatr", 2},
             {"parNrNorvo", 1},
             {"parCdEvento", "AL"},
             {"parCdMotEvento", "SO"},
             {"parOggi", day(2005, 6, 6)}},
            "n",
            "8"},
        SuiteCase{
            " PARAMETERS parCdMatr Long, parNrNorvo Byte, parCdEvento Text, parCdMotEvento Text, parOggi "
            "Date; "
            "SELECT * FROM status_ragioniere WHERE cd_matr = parCdMatr AND cd_evento = parCdEvento AND "
            "cd_tip_evento = 'IS' AND cd_mot_evento = parCdMotEvento AND nr_norvo = parNrNorvo AND "
            "nr_sospensione > 0 AND IIF(dt_dec_canc Is Null, dt_evento, dt_dec_canc) <= parOggi ORDER BY "
            "Iif(IsNull(dt_dec_canc), dt_evento, dt_dec_canc) DESC, nr_sospensione DESC",
            {{"parCdMatr", 1},
             {"parNrNorvo", 256},
             {"parCdEvento", "AL"},
             {"parCdMotEvento", "SO"},
             {"parOggi", day(2005, 6, 6)}},
            "n",
            "error 6"},
        SuiteCase{
            " PARAMETERS parCdMatr Long, parNrNorvo Byte, parCdEvento Text, parCdMotEvento Text, "
            "parNrSospensione "
            "Long; SELECT * FROM status_ragioniere WHERE cd_matr = parCdMatr AND cd_evento = parCdEvento AND "
            "cd_tip_evento = 'IS' AND cd_mot_evento = parCdMotEvento AND nr_norvo = parNrNorvo AND "
            "nr_sospensione = parNrSospensione  ORDER BY Iif(IsNull(dt_dec_canc), dt_evento, dt_dec_canc) "
            "DESC, "
            "nr_sospensione DESC",
            {{"parCdMatr", 1},
             {"parNrNorvo", 1},
             {"parCdEvento", "AL"},
             {"parCdMotEvento", "RS"},
             {"parNrSospensione", 1}},
            "n",
            "3"},
        SuiteCase{" PARAMETERS parCdMatr Long, parNrNorvo Byte, parCdEvento Text, parCdMotEvento Text, "
                  "parOggi Date, "
                  "parNrSospensione Long; SELECT * FROM status_ragioniere WHERE cd_matr = parCdMatr AND "
                  "cd_evento = "
                  "parCdEvento AND cd_tip_evento = 'IS' AND cd_mot_evento = parCdMotEvento AND nr_norvo = "
                  "parNrNorvo AND "
                  "IIF(dt_dec_canc Is Null, dt_evento, dt_dec_canc) <= parOggi AND nr_sospensione = "
                  "parNrSospensione  "
                  "ORDER BY Iif(IsNull(dt_dec_canc), dt_evento, dt_dec_canc) DESC, nr_sospensione DESC",
                  {{"parCdMatr", 1},
                   {"parNrNorvo", 1},
                   {"parCdEvento", "AL"},
                   {"parCdMotEvento", "RS"},
                   {"parOggi", day(2004, 5, 31)},
                   {"parNrSospensione", 1}},
                  "n",
                  ""},
        SuiteCase{"SELECT * FROM status_ragioniere WHERE cd_evento = 'EL' ORDER BY cd_matr, dt_evento DESC ",
                  {},
                  "n",
                  "6"},
        SuiteCase{
            "PARAMETERS parCdMatr Long;SELECT * FROM status_ragioniere WHERE cd_evento = 'EL'  AND cd_matr = "
            "parCdMatr ORDER BY cd_matr, dt_evento DESC ",
            {{"parCdMatr", 1}},
            "n",
            ""},
        SuiteCase{"SELECT * FROM Settori_rag", {}, "Settore", "a b a"},
        SuiteCase{"PARAMETERS parCdMatr Long;SELECT * FROM status_ragioniere WHERE cd_matr = parCdMatr AND "
                  "cd_tip_evento "
                  "= 'IS' ORDER BY dt_evento",
                  {{"parCdMatr", 1}},
                  "n",
                  "1 2 3 4"},
        SuiteCase{"SELECT * FROM ragioniere WHERE dt_prima_iscrizione is null AND cd_domanda = 0 AND "
                  "cd_domanda_elenco = "
                  "0",
                  {},
                  "cd_matr",
                  "1"},
        SuiteCase{
            "PARAMETERS parNrProtocollo TEXT,parDtProtocollo DATETIME,parNrNorvo SINGLE,parNrCollegio "
            "LONG,parFlIscrittoElenco BIT;SELECT * FROM tb_domande_rag WHERE 1=1 AND nr_protocollo = "
            "parNrProtocollo AND dt_protocollo = parDtProtocollo AND nr_norvo = parNrNorvo AND nr_collegio = "
            "parNrCollegio AND fl_iscritto_elenco = parFlIscrittoElenco",
            {{"parNrProtocollo", "p1"},
             {"parDtProtocollo", day(2004, 1, 2)},
             {"parNrNorvo", 2.0F},
             {"parNrCollegio", 101},
             {"parFlIscrittoElenco", true}},
            "n",
            "2"},
        SuiteCase{"PARAMETERS parCdMatr LONG,parNrNorvo SINGLE,parNrCollegio LONG;SELECT * FROM ragioniere "
                  "WHERE 1=1 AND "
                  "cd_matr = parCdMatr AND nr_norvo = parNrNorvo AND nr_elenco = parNrCollegio",
                  {{"parCdMatr", 3}, {"parNrNorvo", 1}, {"parNrCollegio", 7}},
                  "ds_cognome",
                  "Verdi"},
        SuiteCase{
            "PARAMETERS parNrNorvo Short, parNrProtocollo Text, parFlIscrittoElenco Bit, parNrCollegio Long, "
            "parCdMotEvento Text; SELECT * FROM tb_domande_rag WHERE 1=1 AND nr_norvo = parNrNorvo AND "
            "nr_protocollo = parNrProtocollo AND fl_iscritto_elenco = parFlIscrittoElenco AND nr_collegio = "
            "parNrCollegio AND cd_mot_evento = parCdMotEvento",
            {{"parNrNorvo", 1},
             {"parNrProtocollo", "P1"},
             {"parFlIscrittoElenco", false},
             {"parNrCollegio", 101},
             {"parCdMotEvento", "so"}},
            "n",
            "1"},
        SuiteCase{
            "PARAMETERS parNrProtocollo Text, parFlIscrittoElenco Bit, parNrCollegio Long, parCdMotEvento "
            "Text, "
            "parCdMatr Long; SELECT * FROM status_ragioniere WHERE 1=1 AND nr_protocollo = parNrProtocollo "
            "AND "
            "fl_iscritto_elenco = parFlIscrittoElenco AND nr_collegio = parNrCollegio AND cd_mot_evento = "
            "parCdMotEvento AND cd_matr = parCdMatr",
            {{"parNrProtocollo", "p1"},
             {"parFlIscrittoElenco", false},
             {"parNrCollegio", 101},
             {"parCdMotEvento", "IS"},
             {"parCdMatr", 1}},
            "n",
            "1"},
        SuiteCase{"SELECT * from quote_dovute where cd_matr = 2", {}, "quota", "51,6457"}));

constexpr const char* firm =
    "SELECT Anagrafica.*, IndirizzoL.*, IndirizzoC.*  FROM ((Anagrafica LEFT JOIN (SELECT IdAnagrafica AS "
    "IdAnagraficaL, "
    "Presso AS S_Presso, Indirizzo AS S_Indirizzo, Frazione AS S_Frazione, Comune AS S_Comune, Provincia AS "
    "S_Provincia, "
    "CAP AS S_CAP, Tel1 AS S_Tel1, Tel2 AS S_Tel2, Cell AS S_Cell, Fax AS S_Fax FROM Indirizzo WHERE "
    "CodTipoIndirizzo='L') AS IndirizzoL ON Anagrafica.IDAnagrafica = IndirizzoL.IDAnagraficaL) LEFT JOIN "
    "(SELECT "
    "IdAnagrafica AS IdAnagraficaC, CodTipoIndirizzo AS CodTipoIndirizzoC, Presso AS C_Presso, Indirizzo AS "
    "C_Indirizzo, "
    "Frazione AS C_Frazione, Comune AS C_Comune, Provincia AS C_Provincia, CAP AS C_CAP, Tel1 AS C_Tel1, "
    "Tel2 AS C_Tel2, "
    "Cell AS C_Cell, Fax AS C_Fax FROM Indirizzo) AS IndirizzoC ON Anagrafica.IDAnagrafica = "
    "IndirizzoC.IDAnagraficaC AND "
    "Anagrafica.CodTipoIndirizzoPredefinito = IndirizzoC.CodTipoIndirizzoC) WHERE flPraticante = 0 AND "
    "flEsterno = 0 AND "
    "flSTP <> 0 AND CodOrdine = '0037' AND CodiceFiscale = 'STP' ORDER BY NumIscrizione DESC";

constexpr const char* person =
    "SELECT Anagrafica.*, IndirizzoS.*, IndirizzoR.*, IndirizzoC.* FROM (((Anagrafica LEFT JOIN (SELECT "
    "IdAnagrafica AS "
    "IdAnagraficaR, Presso AS R_Presso, Indirizzo AS R_Indirizzo, Frazione AS R_Frazione, Comune AS "
    "R_Comune, Provincia "
    "AS R_Provincia, CAP AS R_CAP, Tel1 AS R_Tel1, Tel2 AS R_Tel2, Cell AS R_Cell, Fax AS R_Fax FROM "
    "Indirizzo WHERE "
    "CodTipoIndirizzo='R') AS IndirizzoR ON Anagrafica.IDAnagrafica = IndirizzoR.IDAnagraficaR) LEFT JOIN "
    "(SELECT "
    "IdAnagrafica AS IdAnagraficaS, Presso AS S_Presso, Indirizzo AS S_Indirizzo, Frazione AS S_Frazione, "
    "Comune AS "
    "S_Comune, Provincia AS S_Provincia, CAP AS S_CAP, Tel1 AS S_Tel1, Tel2 AS S_Tel2, Cell AS S_Cell, Fax "
    "AS S_Fax FROM "
    "Indirizzo WHERE CodTipoIndirizzo='S') AS IndirizzoS ON Anagrafica.IDAnagrafica = "
    "IndirizzoS.IDAnagraficaS) LEFT JOIN "
    "(SELECT IdAnagrafica AS IdAnagraficaC, CodTipoIndirizzo AS CodTipoIndirizzoC, Presso AS C_Presso, "
    "Indirizzo AS "
    "C_Indirizzo, Frazione AS C_Frazione, Comune AS C_Comune, Provincia AS C_Provincia, CAP AS C_CAP, Tel1 "
    "AS C_Tel1, "
    "Tel2 AS C_Tel2, Cell AS C_Cell, Fax AS C_Fax FROM Indirizzo) AS IndirizzoC ON Anagrafica.IDAnagrafica = "
    "IndirizzoC.IDAnagraficaC AND Anagrafica.CodTipoIndirizzoPredefinito = IndirizzoC.CodTipoIndirizzoC) "
    "WHERE "
    "flPraticante = 0 AND flEsterno = 0 AND flSTP = 0 AND CodOrdine = '0037' AND CodiceFiscale = 'DMC' ORDER "
    "BY "
    "NumIscrizione DESC";

INSTANTIATE_TEST_SUITE_P(
    Register, SuiteQueries,
    testing::Values(
        SuiteCase{firm, {}, "NumIscrizione S_Comune C_Comune", "5|Bologna|Bologna"},
        SuiteCase{person,
                  {},
                  "NumIscrizione R_Comune S_Comune C_Comune",
                  "101|Carpi|Modena|Modena 99|Null|Null|Null"},
        SuiteCase{
            "SELECT * FROM F24Dettaglio WHERE IdAnagrafica=1 AND DataVersamento IS NOT NULL ORDER BY Anno, "
            "DataVersamento, CodiceCausale",
            {},
            "CodiceCausale",
            "A B"},
        SuiteCase{"SELECT * FROM Anagrafica WHERE flPraticante = 0 AND flEsterno = 0 AND flSTP = 0 AND "
                  "CodOrdine = '0037' "
                  "AND NumIscrizione = 99",
                  {},
                  "IdAnagrafica",
                  "3"},
        SuiteCase{"SELECT MAX(NumIscrizione) AS LastNumIscrizione FROM Anagrafica WHERE flEsterno = 0 AND "
                  "flSTP = 0 AND "
                  "CodOrdine = '0037'",
                  {},
                  "LastNumIscrizione",
                  "200"},
        SuiteCase{"SELECT MAX(NumIscrizione) AS LastNumIscrizione FROM Anagrafica WHERE flEsterno = 0 AND "
                  "flSTP <> 0 AND "
                  "CodOrdine = '0037'",
                  {},
                  "LastNumIscrizione",
                  "5"},
        SuiteCase{
            "SELECT NumIscrizione FROM Anagrafica WHERE flPraticante = 0 AND flEsterno = 0 AND flSTP = 0 AND "
            "NumIscrizione = 200 AND CodOrdine = '0037'",
            {},
            "",
            ""},
        SuiteCase{"SELECT * FROM Ordine WHERE CodOrdine = '0037'", {}, "Nome", "Bologna"},
        SuiteCase{"SELECT NtfVers FROM Config", {}, "", "14"},
        SuiteCase{"SELECT * FROM associati WHERE cd_gruppo = 2", {}, "cd_fiscale", "BBB"},
        SuiteCase{"SELECT * FROM altri_recapiti WHERE cd_classe = 'C' AND cd_matr = 1 AND flg_invio_corr = "
                  "True ORDER BY "
                  "progressivo_recapito",
                  {},
                  "progressivo_recapito",
                  "1 2"},
        SuiteCase{"SELECT * FROM altri_norvi WHERE norvo = 7", {}, "ds_norvo", "Sette"},
        SuiteCase{"SELECT * FROM ElencoOrdini WHERE CodTipoOrdine = 'CDL' AND Sigla = 'bo'",
                  {},
                  "Ordine",
                  "Bologna"},
        SuiteCase{"SELECT cd_gruppo AS cd_matr, fl_norvo_unico, cd_norvo_unico, note_norvo_unico, "
                  "cd_fiscale, nr_sezione "
                  "FROM associati WHERE nr_sezione > 0 AND cd_gruppo = 1",
                  {},
                  "",
                  "1|Falso|Null|Null|AAA|10"},
        SuiteCase{
            "SELECT cd_matr, fl_norvo_unico, cd_norvo_unico, note_norvo_unico, cd_fiscale, nr_sezione FROM "
            "ragioniere WHERE cd_matr = 1",
            {},
            "",
            "1|Falso|Null|Null|DMC|0"},
        SuiteCase{
            "SELECT cd_matr, fl_norvo_unico, cd_norvo_unico, note_norvo_unico, cd_fiscale, nr_sezione FROM "
            "ragioniere WHERE nr_collegio = 102",
            {},
            "cd_matr",
            "2 3"},
        SuiteCase{"SELECT SUM(IIF(nr_sospensione = 0, 1, 0)) AS Conta0 FROM status_ragioniere WHERE "
                  "cd_tip_evento = 'IS' "
                  "AND (cd_mot_evento = 'SO' OR cd_mot_evento = 'RS')",
                  {},
                  "Conta0",
                  "0"}));

}  // namespace
}  // namespace office
