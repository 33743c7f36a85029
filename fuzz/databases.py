#!/usr/bin/env python3
"""databases.py FOLDER JETSQL: small databases of every kind of content, made with our own shell."""
import pathlib, subprocess, sys

folder, jetsql = pathlib.Path(sys.argv[1]), sys.argv[2]


def rows(table, values):
    return [f"INSERT INTO {table} VALUES ({value})" for value in values]


databases = {
    "vuoto": ["SELECT Count(*) FROM MSysObjects"],
    "tipi": [
        "CREATE TABLE tutti (id COUNTER CONSTRAINT k PRIMARY KEY, b YESNO, u BYTE, i SHORT, l LONG, c CURRENCY,"
        " s SINGLE, d DOUBLE, t DATETIME, bin BINARY(20), x TEXT(50), m MEMO, o LONGBINARY, g GUID, n DECIMAL(12,3))",
        "INSERT INTO tutti (b, u, i, l, c, s, d, t, x, m) VALUES"
        " (True, 200, -5, 70000, 12.34, 1.5, 2.5, #12/31/2001 10:20:30#, 'Forlì', 'nota breve')",
        "INSERT INTO tutti (b, x, m) VALUES (False, Null, Null)",
        "INSERT INTO tutti (l, m) VALUES (3, '" + "lunga nota " * 200 + "')",
        "INSERT INTO tutti (l, m) VALUES (4, '" + "catena di pagine " * 600 + "')",
        "INSERT INTO tutti (x, n) VALUES ('D''Agostino', 123.456)",
    ],
    "relazioni": [
        "CREATE TABLE comuni (istat TEXT(6) CONSTRAINT k PRIMARY KEY, nome TEXT(50))",
        "CREATE TABLE soci (id LONG CONSTRAINT k PRIMARY KEY, comune TEXT(6) CONSTRAINT del_comune REFERENCES comuni"
        " (istat) ON UPDATE CASCADE ON DELETE CASCADE, cognome TEXT(60) DEFAULT 'N', nome TEXT(60) NOT NULL)",
        "ALTER TABLE soci ADD COLUMN capo LONG CONSTRAINT del_capo REFERENCES soci (id)",
        "CREATE INDEX cognome ON soci (cognome, nome DESC)",
        "CREATE UNIQUE INDEX uno ON soci (id, comune) WITH IGNORE NULL",
        *rows("comuni", ["'066049', 'L''Aquila'", "'054039', 'Perugia'"]),
        *rows("soci (id, comune, cognome, nome)",
              [f"{i}, '{'066049' if i % 2 else '054039'}', 'Rossi {i}', 'Nicolò'" for i in range(40)]),
        ".query attivi SELECT soci.id, comuni.nome FROM soci INNER JOIN comuni ON soci.comune = comuni.istat",
        ".query tolti DELETE FROM soci WHERE id > 30",
        ".query tutti SELECT id FROM soci UNION ALL SELECT id FROM attivi WHERE id > 3 ORDER BY id",
        ".query incrocio TRANSFORM Count(*) SELECT nome FROM soci GROUP BY nome PIVOT comune IN ('066049', '054039')",
        ".query aggiunti PARAMETERS p Text (20); INSERT INTO comuni (istat, nome) SELECT TOP 2 cognome, p FROM soci",
        ".query cambiati UPDATE soci LEFT JOIN comuni ON soci.comune = comuni.istat SET soci.nome = comuni.nome",
    ],
    "albero": [
        "CREATE TABLE t (a TEXT(200) CONSTRAINT k PRIMARY KEY, b TEXT(200))",
        *rows("t", [f"'{i}{'x' * (150 + i % 40)}', '{'y' * (i % 200)}'" for i in range(120)]),
        "DELETE FROM t WHERE a LIKE '7*'",
    ],
    "tabelle": [
        *[f"CREATE TABLE t{i} (a LONG, b MEMO)" for i in range(8)],
        *rows("t1", ["1, 'x'"]),
        "DROP TABLE t3",
        "CREATE TABLE larga (" + ", ".join(f"colonna{i} TEXT(10)" for i in range(120)) + ")",
    ],
}

for name, statements in databases.items():
    file = folder / (name + ".mdb")
    file.unlink(missing_ok=True)
    lines = "".join(each + (";\n" if not each.startswith(".") else "\n") for each in statements)
    subprocess.run([jetsql, "--create", file], input=lines, text=True, check=True, stdout=subprocess.DEVNULL)
