#include "statements.h"

namespace bench {
namespace {

constexpr const char* Preparations[] = {
    "CREATE TABLE iscritti (cd_matr LONG CONSTRAINT PrimaryKey PRIMARY KEY, ds_cognome TEXT(50), fl_attivo "
    "YESNO)",
    "INSERT INTO iscritti SELECT DISTINCT cd_matr, 'Rossi ' & cd_matr AS ds_cognome, cd_matr Mod 2 = 0 AS "
    "fl_attivo FROM storico_quote WHERE cd_matr < 4500",
    "CREATE TABLE copia (cd_quota LONG CONSTRAINT PrimaryKey PRIMARY KEY, cd_matr LONG, ds_nominativo "
    "TEXT(100), "
    "dt_pagamento DATETIME, ip_quota CURRENCY, nr_aliquota DOUBLE, fl_pagata YESNO, ds_causale TEXT(255), "
    "ds_note MEMO)",
};

constexpr long Loop = 100'000;

constexpr TimedStatement Statements[] = {
    {"point update by key, in a loop",
     "PARAMETERS parQuota LONG; UPDATE storico_quote SET nr_aliquota = nr_aliquota + 1 WHERE cd_quota = "
     "parQuota",
     Loop},
    {"point select by key, in a loop",
     "PARAMETERS parQuota LONG; SELECT ds_nominativo, ip_quota FROM storico_quote WHERE cd_quota = parQuota",
     Loop},
    {"insert of values, in a loop",
     "PARAMETERS parQuota LONG; INSERT INTO copia (cd_quota, cd_matr, ds_nominativo) VALUES (parQuota, 7, "
     "'Neri')",
     Loop},
    {"update of a whole column", "UPDATE storico_quote SET ip_quota = ip_quota * 2"},
    {"update with join",
     "UPDATE storico_quote INNER JOIN iscritti ON storico_quote.cd_matr = iscritti.cd_matr SET "
     "storico_quote.ds_note = iscritti.ds_cognome WHERE iscritti.fl_attivo = True"},
    {"grouped count", "SELECT cd_matr, COUNT(*) AS conta FROM storico_quote GROUP BY cd_matr"},
    {"grouped sum by a text",
     "SELECT ds_nominativo, Sum(ip_quota) AS totale FROM storico_quote GROUP BY ds_nominativo HAVING "
     "COUNT(*) > 1"},
    {"sorted scan by a text",
     "SELECT cd_quota, ds_nominativo FROM storico_quote ORDER BY ds_nominativo, cd_quota"},
    {"sorted scan by a date", "SELECT cd_quota, dt_pagamento FROM storico_quote ORDER BY dt_pagamento DESC"},
    {"count of what is like a pattern",
     "SELECT COUNT(*) AS conta FROM storico_quote WHERE ds_causale LIKE '*n. 7?1*Forl[ìi]*'"},
    {"count by an expression of a date",
     "SELECT COUNT(*) AS conta FROM storico_quote WHERE Year(dt_pagamento) < 1970 AND Trim(ds_note & '') = "
     "''"},
    {"insert-select", "INSERT INTO copia SELECT * FROM storico_quote WHERE cd_quota <= 300000"},
    {"delete with left join",
     "DELETE storico_quote.* FROM storico_quote LEFT JOIN iscritti ON storico_quote.cd_matr = "
     "iscritti.cd_matr "
     "WHERE iscritti.cd_matr Is Null"},
    {"join of all rows, counted",
     "SELECT COUNT(*) AS conta FROM storico_quote INNER JOIN iscritti ON storico_quote.cd_matr = "
     "iscritti.cd_matr"},
};

}  // namespace

std::span<const char* const> preparations() {
  return Preparations;
}

std::span<const TimedStatement> timedStatements() {
  return Statements;
}

}  // namespace bench
