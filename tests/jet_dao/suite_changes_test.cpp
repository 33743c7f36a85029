#include "suite_office.h"

namespace office {
namespace {

class SuiteChanges : public SuiteOffice {};

TEST_P(SuiteChanges, LeaveTheOfficeAsTheyShould) {
  EXPECT_EQ(changed(), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Schema, SuiteChanges,
    testing::Values(
        SuiteCase{"PARAMETERS parDefaultValue TEXT;UPDATE enti SET [fl_spedizione]= parDefaultValue",
                  {{"parDefaultValue", "2"}},
                  "SELECT * FROM enti",
                  "2: 1|2 2|2"},
        SuiteCase{"PARAMETERS parDefaultValue TEXT;UPDATE prot_interno SET [mese]= parDefaultValue",
                  {{"parDefaultValue", "12"}},
                  "SELECT mese FROM prot_interno",
                  "3: 12 12 12"},
        SuiteCase{"PARAMETERS parDefaultValue TEXT;UPDATE prot_interno SET [mese]= parDefaultValue",
                  {{"parDefaultValue", "dodici"}},
                  "",
                  "error 3421"},
        SuiteCase{"UPDATE ragioniere SET [ds_sessione_esame]=[nr_collegio]",
                  {},
                  "SELECT ds_sessione_esame FROM ragioniere",
                  "3: 101 102 102"},
        SuiteCase{"DELETE * FROM Esame", {}, "SELECT * FROM Esame", "2: "},
        SuiteCase{"INSERT INTO Esame SELECT * FROM linkEsame", {}, "SELECT * FROM Esame", "2: 4 9 20 21"},
        SuiteCase{"CREATE TABLE tmpStampaNorvo ( ID Counter CONSTRAINT PrimaryKey PRIMARY KEY, CdMatr Long, "
                  "FlIscrittoElenco Bit, StatoAttuale Text(2), NrNorvo Short, SezioneStatus Text(1), "
                  "NrSezioneStatus "
                  "Long, FlSospTempoDet Bit, FlSospTempoInd Bit, ProvenienteDa_1 Text(255), "
                  "DsProvinciaPrimaIscrizione_1 "
                  "Text(255))",
                  {},
                  "SELECT * FROM tmpStampaNorvo WHERE 1=0",
                  "0: "},
        SuiteCase{"DROP TABLE tmp_rag", {}, "SELECT Count(*) FROM tmp_prat", "0: 2"}));

INSTANTIATE_TEST_SUITE_P(
    Parameters, SuiteChanges,
    testing::Values(
        SuiteCase{"PARAMETERS myNome Text, myValue Text; UPDATE KepGenerali SET  Valore = myValue WHERE Nome "
                  "= myNome",
                  {{"myNome", "dbversione"}, {"myValue", "0015"}},
                  "SELECT Valore, Note FROM KEPGenerali WHERE Nome LIKE 'DB*'",
                  "1: 0015|prima"},
        SuiteCase{
            "PARAMETERS myNome Text, myValue Text; INSERT INTO KepGenerali ( Nome, Valore ) VALUES ( myNome, "
            "myValue )",
            {{"myNome", "Nuovo"}, {"myValue", runtime::Null{}}},
            "SELECT * FROM KEPGenerali WHERE Nome = 'Nuovo'",
            "1: Nuovo|Null|Null"},
        SuiteCase{"PARAMETERS myNome Text, myValue Text, myNote Text; UPDATE KepGenerali SET  Valore = "
                  "myValue, [Note] = "
                  "myNote WHERE Nome = myNome",
                  {{"myNome", "AppName"}, {"myValue", "X"}, {"myNote", "l'altra"}},
                  "SELECT * FROM KEPGenerali WHERE Nome = 'AppName'",
                  "1: AppName|X|l'altra"},
        SuiteCase{"PARAMETERS myNome Text, myValue Text, myNote Text; INSERT INTO KepGenerali ( Nome, "
                  "Valore, [Note] ) "
                  "VALUES ( myNome, myValue, myNote )",
                  {{"myNome", "N"}, {"myValue", "V"}, {"myNote", ""}},
                  "SELECT * FROM KEPGenerali WHERE Nome = 'N'",
                  "1: N|V|"},
        SuiteCase{"INSERT INTO KEPGenerali (Nome, Valore) VALUES ('CopiaNrCollegioInNrSezione','16/11/2026 "
                  "17:16:00')",
                  {},
                  "SELECT Valore FROM KEPGenerali WHERE Nome LIKE 'Copia*'",
                  "1: 16/11/2026 17:16:00"},
        SuiteCase{
            "INSERT INTO KEPGenerali (Nome, Valore) VALUES ('AggiornaProfPraticanti','16/11/2026 17:16:00')",
            {},
            "SELECT Count(*) FROM KEPGenerali",
            "1: 4"}));

INSTANTIATE_TEST_SUITE_P(
    Numbering, SuiteChanges,
    testing::Values(
        SuiteCase{"UPDATE ragioniere SET Nr_SezioneB=0 WHERE Nr_SezioneB Is Null",
                  {},
                  "SELECT Nr_SezioneB FROM ragioniere",
                  "1: 0 12 0"},
        SuiteCase{"UPDATE ragioniere SET Nr_Sezione=nr_collegio WHERE Nr_SezioneB = 0",
                  {},
                  "SELECT nr_sezione FROM ragioniere",
                  "1: 0 9 102"},
        SuiteCase{"UPDATE ragioniere SET Nr_Sezione=Nr_SezioneB WHERE Nr_SezioneB <> 0",
                  {},
                  "SELECT nr_sezione FROM ragioniere",
                  "1: 0 12 0"},
        SuiteCase{"UPDATE ragioniere SET Nr_Sezione=nr_collegio WHERE nr_collegio > 0",
                  {},
                  "SELECT nr_sezione FROM ragioniere",
                  "3: 101 102 102"},
        SuiteCase{"UPDATE praticante SET nr_sezione = cd_matr, sezione = 'A' WHERE cd_matr > 0 AND "
                  "(nr_sezione = 0 OR "
                  "IsNull(nr_sezione)) AND (cd_stato_corr & '') <> 'NI'",
                  {},
                  "SELECT nr_sezione, sezione FROM praticante",
                  "2: 1|A 2|A 0|Null 0|B"},
        SuiteCase{
            "UPDATE tb_domande_prat SET nr_sezione = nr_collegio, sezione = 'A' WHERE nr_collegio > 0 AND "
            "(nr_sezione = 0 OR IsNull(nr_sezione)) AND (st_istruttoria & '') <> 'NI'",
            {},
            "SELECT nr_sezione, sezione FROM tb_domande_prat",
            "1: 7|A 0|Null 3|B"},
        SuiteCase{"UPDATE status_praticante SET nr_sezione = cd_matr, sezione = 'A' WHERE cd_matr > 0 AND "
                  "(nr_sezione = 0 "
                  "OR IsNull(nr_sezione)) AND (cd_tip_evento & '') <> 'NI'",
                  {},
                  "SELECT nr_sezione, sezione FROM status_praticante",
                  "3: 1|A 4|Null 1|A 2|A 0|Null"},
        SuiteCase{"UPDATE stato_attuale_prat SET nr_sezione = cd_matr, sezione = 'A' WHERE cd_matr > 0 AND "
                  "(nr_sezione = "
                  "0 OR IsNull(nr_sezione)) AND (cd_tip_evento & '') <> 'NI'",
                  {},
                  "SELECT nr_sezione, sezione FROM stato_attuale_prat",
                  "1: 1|A 0|Null"},
        SuiteCase{"UPDATE Status_prof_praticante SET nr_sezione = nr_collegio WHERE Year(Data_Cambio) < 2008",
                  {},
                  "SELECT nr_sezione FROM Status_Prof_Praticante",
                  "1: 101 0 0"},
        SuiteCase{"UPDATE ragioniere SET nr_elenco = nr_collegio WHERE nr_elenco = 0",
                  {},
                  "SELECT nr_elenco FROM ragioniere",
                  "1: 101 7 7"}));

INSTANTIATE_TEST_SUITE_P(
    Protocol, SuiteChanges,
    testing::Values(
        SuiteCase{
            "PARAMETERS parAnno Short;UPDATE prot_int_contenuti SET mese = 0 WHERE anno = parAnno And mese=1",
            {{"parAnno", 2006}},
            "SELECT mese FROM prot_int_contenuti",
            "2: 0 0"},
        SuiteCase{"PARAMETERS parAnno Short;UPDATE prot_interno SET mese = 0 WHERE anno = parAnno And mese=1",
                  {{"parAnno", 2006}},
                  "SELECT mese FROM prot_interno",
                  "1: 0 2 1"},
        SuiteCase{
            "PARAMETERS parAnno Short;UPDATE prot_reg_contenuti SET mese = 0 WHERE anno = parAnno And mese=1",
            {{"parAnno", 2006}},
            "SELECT mese FROM prot_reg_contenuti",
            "1: 0 0 0 0"},
        SuiteCase{
            "PARAMETERS parAnno Short;UPDATE prot_registrazione SET mese = 0 WHERE anno = parAnno And mese=1",
            {{"parAnno", 40000}},
            "",
            "error 6"},
        SuiteCase{"PARAMETERS parAnno Short;UPDATE prot_sviluppo_liste SET mese = 0 WHERE anno = parAnno And "
                  "mese=1",
                  {{"parAnno", 2006}},
                  "SELECT mese FROM prot_sviluppo_liste",
                  "0: 1"},
        SuiteCase{
            "UPDATE prot_reg_contenuti, prot_registrazione SET prot_reg_contenuti.tipo = 'OUT' WHERE "
            "prot_registrazione.mese = 0 AND prot_registrazione.tipo = 'OUT' AND prot_reg_contenuti.tipo= "
            "'IN' AND "
            "prot_registrazione.anno = prot_reg_contenuti.anno AND prot_registrazione.mese = "
            "prot_reg_contenuti.mese AND "
            "prot_registrazione.id_prot = prot_reg_contenuti.id_prot AND "
            "(Format(prot_registrazione.anno,'0000') & "
            "Format(prot_registrazione.mese,'00') & Format(prot_registrazione.id_prot,'0000000')) Not In "
            "(SELECT "
            "(Format(prot_registrazione.anno,'0000') & Format(prot_registrazione.mese,'00') & "
            "Format(prot_registrazione.id_prot,'0000000')) FROM prot_registrazione WHERE "
            "prot_registrazione.mese = 0 "
            "GROUP BY (Format(prot_registrazione.anno,'0000') & Format(prot_registrazione.mese,'00') & "
            "Format(prot_registrazione.id_prot,'0000000')) HAVING Count(Format(prot_registrazione.anno, "
            "'0000') & "
            "Format(prot_registrazione.mese, '00') & Format(prot_registrazione.id_prot, '0000000')) > 1)",
            {},
            "SELECT tipo FROM prot_reg_contenuti",
            "2: OUT OUT IN IN"}));

INSTANTIATE_TEST_SUITE_P(
    Repairs, SuiteChanges,
    testing::Values(
        SuiteCase{"UPDATE praticante SET praticante.dt_scadenza_relazione = dateadd('m',6,dt_inizio_pratica)",
                  {},
                  "SELECT dt_scadenza_relazione FROM praticante",
                  "4: 31/07/2005 Null Null Null"},
        SuiteCase{"UPDATE status_ragioniere SET dt_fine_sosp = dt_dec_canc WHERE cd_tip_evento = 'IS' And "
                  "cd_mot_evento = "
                  "'SO' And dt_dec_canc is Not Null",
                  {},
                  "SELECT n, dt_fine_sosp FROM status_ragioniere WHERE dt_fine_sosp Is Not Null",
                  "2: 2|01/04/2004 8|06/06/2005"},
        SuiteCase{"UPDATE status_ragioniere SET dt_dec_canc = Null WHERE cd_tip_evento = 'IS' And "
                  "cd_mot_evento = 'SO' And "
                  "dt_dec_canc is Not Null",
                  {},
                  "SELECT n FROM status_ragioniere WHERE dt_dec_canc Is Not Null",
                  "2: 7"},
        SuiteCase{"UPDATE tb_domande_rag SET dt_fine_sosp = dt_dec_canc WHERE cd_tipo_domanda = 'IS' And "
                  "cd_mot_evento = "
                  "'SO' And dt_dec_canc is Not Null ",
                  {},
                  "SELECT dt_fine_sosp FROM tb_domande_rag",
                  "1: 01/04/2004 Null"},
        SuiteCase{"UPDATE tb_domande_rag SET dt_dec_canc = Null WHERE cd_tipo_domanda = 'IS' And "
                  "cd_mot_evento = 'SO' And "
                  "dt_dec_canc is Not Null",
                  {},
                  "SELECT dt_dec_canc FROM tb_domande_rag",
                  "1: Null 01/04/2004"},
        SuiteCase{"UPDATE ragioniere SET ragioniere.DatiProfessionali = '' ",
                  {},
                  "SELECT Len(DatiProfessionali) FROM ragioniere",
                  "3: 0 0 0"},
        SuiteCase{"UPDATE ragioniere SET ragioniere.DatiProfessionali = [DatiProfessionali] + \"; Albo "
                  "\"\"A\"\"\" WHERE "
                  "ragioniere.cd_matr = 1",
                  {},
                  "SELECT DatiProfessionali FROM ragioniere WHERE cd_matr = 1",
                  "1: Perito; Albo \"A\""},
        SuiteCase{"UPDATE ragioniere SET ragioniere.Settori = '' WHERE (((ragioniere.cd_matr) = 2)) ",
                  {},
                  "SELECT Len(Settori) FROM ragioniere WHERE cd_matr > 1",
                  "1: 0 Null"},
        SuiteCase{"UPDATE ragioniere SET ragioniere.SettoriExt = '' ",
                  {},
                  "SELECT Len(SettoriExt) FROM ragioniere",
                  "3: 0 0 0"},
        SuiteCase{"UPDATE ragioniere SET ragioniere.Settori = [Settori] + \"a\", ragioniere.SettoriExt = "
                  "[SettoriExt] + "
                  "\"Civile\", ragioniere.fl_old_ordinamento = -1 , ragioniere.Set = 'B' WHERE "
                  "ragioniere.cd_matr = 1",
                  {},
                  "SELECT Settori, SettoriExt, fl_old_ordinamento, Set FROM ragioniere WHERE cd_matr = 1",
                  "1: a|Null|Vero|B"},
        SuiteCase{"DELETE * FROM tb_notifiche", {}, "SELECT * FROM tb_notifiche", "3: "},
        SuiteCase{
            "INSERT INTO zone_comuni_preferenze ( cd_matr, fl_zona, zona, comune, prov ) SELECT "
            "ragioniere.cd_matr, "
            "ragioniere.fl_zona1, ragioniere.zona_pref1, ragioniere.comune_pref1, ragioniere.prov_pref1 FROM "
            "ragioniere WHERE (zona_pref1 <> 0 OR Len(comune_pref1 & '') > 0) ",
            {},
            "SELECT * FROM zone_comuni_preferenze",
            "1: 1|Falso|3|Null|BO"},
        SuiteCase{
            "INSERT INTO zone_comuni_preferenze ( cd_matr, fl_zona, zona, comune, prov ) SELECT "
            "ragioniere.cd_matr, "
            "ragioniere.fl_zona2, ragioniere.zona_pref2, ragioniere.comune_pref2, ragioniere.prov_pref2 FROM "
            "ragioniere WHERE (zona_pref2 <> 0 OR Len(comune_pref2 & '') > 0) ",
            {},
            "SELECT * FROM zone_comuni_preferenze",
            "1: 2|Vero|0|Carpi|MO"},
        SuiteCase{
            "INSERT INTO zone_comuni_preferenze ( cd_matr, fl_zona, zona, comune, prov ) SELECT "
            "ragioniere.cd_matr, "
            "ragioniere.fl_zona3, ragioniere.zona_pref3, ragioniere.comune_pref3, ragioniere.prov_pref3 FROM "
            "ragioniere WHERE (zona_pref3 <> 0 OR Len(comune_pref3 & '') > 0) ",
            {},
            "SELECT * FROM zone_comuni_preferenze",
            "0: "},
        SuiteCase{"UPDATE associati SET fl_spedizione = '2' WHERE ISNULL(fl_spedizione)",
                  {},
                  "SELECT fl_spedizione FROM associati",
                  "1: 2 "},
        SuiteCase{"UPDATE enti SET fl_spedizione = '2' WHERE ISNULL(fl_spedizione)",
                  {},
                  "SELECT * FROM enti",
                  "1: 1|2 2|1"},
        SuiteCase{"UPDATE gruppi SET fl_spedizione = '2' WHERE ISNULL(fl_spedizione)",
                  {},
                  "SELECT * FROM gruppi",
                  "1: 1|2"},
        SuiteCase{"UPDATE ragioniere SET fl_spedizione = '2' WHERE ISNULL(fl_spedizione)",
                  {},
                  "SELECT fl_spedizione FROM ragioniere",
                  "2: 2 1 2"},
        SuiteCase{"UPDATE simpatizzante SET fl_spedizione = '2' WHERE ISNULL(fl_spedizione)",
                  {},
                  "SELECT fl_spedizione FROM Simpatizzante",
                  "1: 2 1"},
        SuiteCase{"UPDATE ragioniere SET ragioniere.ds_sessione_esame = Year([ragioniere].[dt_abilitazione])",
                  {},
                  "SELECT ds_sessione_esame FROM ragioniere",
                  "3: 1999 Null Null"},
        SuiteCase{"UPDATE collegio_provinciale SET collegio_provinciale.ds_collegio = 'COLLEGIO PERITI "
                  "INDUSTRIALI E "
                  "PERITI INDUSTRIALI LAUREATI' ",
                  {},
                  "SELECT ds_collegio FROM collegio_provinciale",
                  "1: COLLEGIO PERITI INDUSTRIALI E PERITI INDUSTRIALI LAUREATI"},
        SuiteCase{"UPDATE privacy SET aut_res = True", {}, "SELECT * FROM privacy", "2: Vero Vero"},
        SuiteCase{"DELETE  * FROM tmp_morosi", {}, "SELECT Count(*) FROM tmp_morosi", "1: 0"},
        SuiteCase{"DELETE  * FROM tmp_prat", {}, "SELECT Count(*) FROM tmp_prat", "2: 0"},
        SuiteCase{"DELETE  * FROM tmp_rag", {}, "SELECT Count(*) FROM tmp_rag", "1: 0"},
        SuiteCase{"DELETE  * FROM tmp_simp", {}, "SELECT Count(*) FROM tmp_simp", "0: 0"},
        SuiteCase{"DELETE componenti_associati.* FROM componenti_associati LEFT JOIN associati ON "
                  "componenti_associati.cd_gruppo = associati.cd_gruppo WHERE associati.cd_gruppo Is Null",
                  {},
                  "SELECT Count(*) FROM componenti_associati WHERE cd_gruppo = 1",
                  "1: 5"},
        SuiteCase{"DELETE componenti_associati.* FROM componenti_associati LEFT JOIN ragioniere ON "
                  "componenti_associati.cd_matr = ragioniere.cd_matr And componenti_associati.cd_classe = "
                  "ragioniere.cd_classe WHERE ragioniere.cd_matr Is Null And componenti_associati.cd_classe "
                  "= \"C\"",
                  {},
                  "SELECT cd_matr FROM componenti_associati",
                  "2: 1 2 8 1"},
        SuiteCase{"DELETE componenti_associati.* FROM componenti_associati LEFT JOIN simpatizzante ON "
                  "componenti_associati.cd_matr = simpatizzante.cd_matr And componenti_associati.cd_classe = "
                  "simpatizzante.cd_classe WHERE simpatizzante.cd_matr Is Null And "
                  "componenti_associati.cd_classe = \"S\"",
                  {},
                  "SELECT cd_matr FROM componenti_associati",
                  "1: 1 9 2 1 Null"},
        SuiteCase{"UPDATE sicurezza SET fl_norvo = 15, fl_norvo_pratiche = 15, fl_praticanti = 15, "
                  "fl_praticanti_pratiche = 15, "
                  "fl_praticanti_scadenze = 15, fl_gruppi = 15, fl_connessioni = 15, fl_utilita = 15, "
                  "fl_quote = 15, "
                  "fl_studi_associati = 15, fl_esterni = 15, fl_protocollo = 15, fl_etichette = 15, "
                  "fl_statistiche = 15, "
                  "fl_ordine = 15, fl_commissioni_edilizie = 15, fl_sorteggi = 15, fl_parcelle = 15, "
                  "fl_export = 15, fl_delibere "
                  "= 15, fl_certificati = 15, fl_dichiarazioni = 15, fl_disciplinare = 15 WHERE cd_utente = "
                  "'SYSADM'",
                  {},
                  "SELECT fl_norvo, fl_gruppi, fl_disciplinare FROM sicurezza",
                  "1: 15|15|15 Null|Null|Null"},
        SuiteCase{"PARAMETERS parMotivo Text;INSERT INTO motivo_evento ( cd_evento, cd_tip_evento, "
                  "cd_mot_evento ) VALUES "
                  "( parMotivo, 'CA', 'AL' )",
                  {{"parMotivo", "EL"}},
                  "SELECT * FROM motivo_evento WHERE cd_mot_evento = 'AL'",
                  "1: AL|CA|AL|e EL|CA|AL|Null"},
        SuiteCase{
            "UPDATE motivo_evento SET ds_motivo_evento = 'Reiscrizione' WHERE cd_evento In ('AL','EL') And "
            "cd_tip_evento = 'IS' And cd_mot_evento = 'RE'",
            {},
            "",
            "error 3061"},
        SuiteCase{
            "UPDATE motivo_evento SET ds_mot_evento = 'Servizio civile/militare' WHERE cd_evento = 'PR' And "
            "cd_tip_evento = 'IN' And cd_mot_evento = '01'",
            {},
            "SELECT ds_mot_evento FROM motivo_evento",
            "1: a b c Servizio civile/militare e"}));

/// The pairs of lists and states that the members' rows take over, in the order in which they run.
INSTANTIATE_TEST_SUITE_P(
    Status, SuiteChanges,
    testing::Values(
        SuiteCase{"UPDATE ragioniere SET fl_iscritto_elenco = False, cd_stato_elenco = Null, "
                  "cd_stato_attuale = Null WHERE "
                  "1=1",
                  {},
                  "SELECT fl_iscritto_elenco, cd_stato_elenco, cd_stato_attuale FROM ragioniere",
                  "3: Falso|Null|Null Falso|Null|Null Falso|Null|Null"},
        SuiteCase{"PARAMETERS parCdMatr Long;UPDATE ragioniere SET fl_iscritto_elenco = False, "
                  "cd_stato_elenco = Null, "
                  "cd_stato_attuale = Null WHERE 1=1 AND ragioniere.cd_matr = parCdMatr ",
                  {{"parCdMatr", 2}},
                  "SELECT cd_stato_attuale FROM ragioniere",
                  "1: IS Null IS"},
        SuiteCase{
            "UPDATE ragioniere, stato_attuale SET ragioniere.cd_stato_elenco = "
            "stato_attuale.cd_mot_evento_al, "
            "ragioniere.fl_iscritto_elenco = stato_attuale.fl_iscritto_elenco WHERE "
            "stato_attuale.cd_tip_evento_al = "
            "'IS' And stato_attuale.cd_mot_evento_al = 'SO' And stato_attuale.fl_iscritto_elenco = True And "
            "stato_attuale.cd_matr = ragioniere.cd_matr",
            {},
            "SELECT cd_stato_elenco, fl_iscritto_elenco FROM ragioniere",
            "1: Null|Falso SO|Vero IS|Falso"},
        SuiteCase{
            "UPDATE ragioniere, stato_attuale SET ragioniere.cd_stato_elenco = "
            "stato_attuale.cd_tip_evento_al, "
            "ragioniere.fl_iscritto_elenco = stato_attuale.fl_iscritto_elenco WHERE "
            "stato_attuale.cd_tip_evento_al = "
            "'IS' And stato_attuale.cd_mot_evento_al <> 'SO' And stato_attuale.fl_iscritto_elenco = True And "
            "stato_attuale.cd_matr = ragioniere.cd_matr",
            {},
            "SELECT cd_stato_elenco, fl_iscritto_elenco FROM ragioniere",
            "1: Null|Falso SO|Vero IS|Vero"},
        SuiteCase{"UPDATE ragioniere, stato_attuale SET ragioniere.cd_stato_elenco = "
                  "stato_attuale.cd_tip_evento_al WHERE "
                  "stato_attuale.cd_tip_evento_al = 'CA' And stato_attuale.fl_iscritto_elenco = True And "
                  "stato_attuale.cd_matr = ragioniere.cd_matr",
                  {},
                  "SELECT cd_stato_elenco FROM ragioniere",
                  "0: Null SO IS"},
        SuiteCase{
            "UPDATE ragioniere, stato_attuale SET ragioniere.cd_stato_attuale = "
            "stato_attuale.cd_mot_evento_al, "
            "ragioniere.fl_iscritto_elenco = stato_attuale.fl_iscritto_elenco WHERE "
            "stato_attuale.cd_tip_evento_al = "
            "'IS' And stato_attuale.cd_mot_evento_al = 'SO' And stato_attuale.fl_iscritto_elenco = False And "
            "stato_attuale.cd_matr = ragioniere.cd_matr",
            {},
            "SELECT cd_stato_attuale FROM ragioniere",
            "1: IS CA SO"},
        SuiteCase{"UPDATE ragioniere, stato_attuale SET ragioniere.cd_stato_attuale = "
                  "stato_attuale.cd_tip_evento_al, "
                  "ragioniere.fl_iscritto_elenco = stato_attuale.fl_iscritto_elenco WHERE "
                  "stato_attuale.cd_tip_evento_al = "
                  "'IS' And stato_attuale.cd_mot_evento_al <> 'SO' And stato_attuale.fl_iscritto_elenco = "
                  "False And "
                  "stato_attuale.cd_matr = ragioniere.cd_matr",
                  {},
                  "SELECT cd_stato_attuale FROM ragioniere",
                  "1: IS CA IS"},
        SuiteCase{"UPDATE ragioniere, stato_attuale SET ragioniere.cd_stato_attuale = "
                  "stato_attuale.cd_tip_evento_al WHERE "
                  "stato_attuale.cd_tip_evento_al = 'CA' And stato_attuale.fl_iscritto_elenco = False And "
                  "stato_attuale.cd_matr = ragioniere.cd_matr",
                  {},
                  "SELECT cd_stato_attuale FROM ragioniere",
                  "1: IS CA IS"},
        SuiteCase{
            "PARAMETERS parCdMatr Long; UPDATE ragioniere, stato_attuale SET ragioniere.cd_stato_attuale = "
            "stato_attuale.cd_tip_evento_al WHERE stato_attuale.cd_tip_evento_al = 'CA' And "
            "stato_attuale.fl_iscritto_elenco = False And stato_attuale.cd_matr = ragioniere.cd_matr And "
            "stato_attuale.nr_norvo = ragioniere.nr_norvo AND ragioniere.cd_matr = parCdMatr ",
            {{"parCdMatr", 2}},
            "SELECT cd_stato_attuale FROM ragioniere",
            "0: IS CA IS"},
        SuiteCase{"DELETE FROM altri_recapiti WHERE cd_matr = 1", {}, "SELECT * FROM altri_recapiti", "4: "},
        SuiteCase{"DELETE FROM tb_indirizzo WHERE cd_matr = 1", {}, "SELECT * FROM tb_indirizzo", "2: "},
        SuiteCase{"DELETE FROM settori_rag WHERE cd_matr = 1", {}, "SELECT cd_matr FROM Settori_Rag", "2: 2"},
        SuiteCase{"DELETE FROM titolo_studio_rag WHERE cd_matr = 1",
                  {},
                  "SELECT * FROM titolo_studio_rag",
                  "2: 2|1"},
        SuiteCase{"DELETE FROM status_ragioniere WHERE cd_matr = 2",
                  {},
                  "SELECT Count(*) FROM status_ragioniere",
                  "3: 5"},
        SuiteCase{"DELETE FROM lingue_rag WHERE cd_matr = 1", {}, "SELECT * FROM lingue_rag", "1: 2"},
        SuiteCase{"DELETE FROM altri_dati WHERE cd_matr = 1", {}, "SELECT cd_matr FROM altri_dati", "2: 2"},
        SuiteCase{"DELETE FROM altri_dati2 WHERE cd_matr = 1", {}, "SELECT * FROM altri_dati2", "1: "},
        SuiteCase{"UPDATE ragioniere SET fl_web = True WHERE cd_matr = 2",
                  {},
                  "SELECT fl_web FROM ragioniere",
                  "1: Falso Vero Falso"},
        SuiteCase{"UPDATE ragioniere SET fl_web = True WHERE nr_collegio = 102",
                  {},
                  "SELECT fl_web FROM ragioniere",
                  "2: Falso Vero Vero"},
        SuiteCase{"UPDATE ragioniere SET fl_norvo_unico = True WHERE cd_matr = 2",
                  {},
                  "SELECT fl_norvo_unico FROM ragioniere",
                  "1: Falso Vero Falso"},
        SuiteCase{"UPDATE ragioniere SET fl_norvo_unico = True WHERE nr_collegio = 102",
                  {},
                  "SELECT fl_norvo_unico FROM ragioniere",
                  "2: Falso Vero Vero"}));

}  // namespace
}  // namespace office
