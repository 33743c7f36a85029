#include "runtime/date.h"
#include "suite_office.h"

namespace office {
namespace {

class SuiteStatusQueries : public SuiteOffice {};

TEST_P(SuiteStatusQueries, GiveTheRowsOfTheOffice) {
  EXPECT_EQ(selected(), GetParam().result);
}

runtime::Variant day(int year, int month, int dayOfMonth) {
  return runtime::dateFromParts(year, month, dayOfMonth, 0, 0, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Status, SuiteStatusQueries,
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
    Register, SuiteStatusQueries,
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
