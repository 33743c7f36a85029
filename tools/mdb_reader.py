"""What mdbtools reads of a database: a reader that is not ours."""
import csv
import io
import re
import subprocess


def read(program, *arguments):
    result = subprocess.run([program, *arguments], check=True, capture_output=True)
    return result.stdout.decode("utf-8", "replace")


def rows(file, table):
    """The rows of a table without their binary columns, as dictionaries in file order."""
    return list(csv.DictReader(io.StringIO(read("mdb-export", "-b", "strip", file, table))))


def fields(file):
    """Table -> lines of its fields in their order."""
    schema = read("mdb-schema", "--not-null", "--default-values", file, "access")
    tables = re.findall(r"^CREATE TABLE \[([^]\n]*)\]\n \(\n(.*?)^\);", schema, re.MULTILINE | re.DOTALL)
    return {name: [re.sub(r",? *$", "", line.strip()) for line in lines.splitlines()] for name, lines in tables}


def indexes(file):
    """Table, in lower case as this dialect writes names, -> statements of its indexes."""
    schema = read("mdb-schema", "--indexes", "--no-relations", file, "postgres")
    found = {}
    for statement in re.findall(r"^(?:CREATE (?:UNIQUE )?INDEX|ALTER TABLE .* PRIMARY KEY).*;", schema, re.MULTILINE):
        table = re.search(r'(?:ON|TABLE) "([^"]*)"', statement).group(1)
        found.setdefault(table, []).append(statement)
    return {table: sorted(statements) for table, statements in found.items()}


def relations(file):
    """Relation -> its attributes and pairs of fields; those between the tables of an engine are left out."""
    found = {}
    for row in rows(file, "MSysRelationships"):
        if row["szObject"].startswith("MSys"):
            continue
        pair = "{szReferencedObject}.{szReferencedColumn} -> {szObject}.{szColumn} ({grbit})".format(**row)
        found.setdefault(row["szRelationship"], []).append((int(row["icolumn"]), pair))
    return {name: [pair for _, pair in sorted(pairs)] for name, pairs in found.items()}


def queries(file):
    """Query -> the rows that its text is kept in, by kind; an option that is off may be left out."""
    names = {row["Id"]: row["Name"] for row in rows(file, "MSysObjects") if row["Type"] == "5"}
    found = {name: [] for name in names.values()}
    for row in rows(file, "MSysQueries"):
        kept = [row[column] or "-" for column in ("Attribute", "Name1", "Name2", "Expression", "Flag")]
        if (row["Attribute"], row["Flag"]) != ("3", "0"):
            found[names[row["ObjectId"]]].append(" ".join(kept))
    return {name: sorted(lines) for name, lines in found.items()}
