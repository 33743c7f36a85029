#!/usr/bin/env python3
"""statements.py FOLDER FILE...: each text in C++ files as a statement, and each statement of case files and SQL scripts,
as one file of FOLDER."""
import hashlib, pathlib, re, sys

VERBS = re.compile(r"\s*(SELECT|INSERT|UPDATE|DELETE|CREATE|ALTER|DROP|PARAMETERS|TRANSFORM|\()", re.I)
ESCAPES = {"\\n": "\n", "\\t": "\t", '\\"': '"', "\\\\": "\\"}

folder = pathlib.Path(sys.argv[1])
for name in sys.argv[2:]:
    text = pathlib.Path(name).read_text(encoding="utf-8")
    if name.endswith(".sql"):
        statements = re.split(r";\s*\n", re.sub(r"^--.*\n", "", text, flags=re.M))
    elif name.endswith(".cases"):
        # What stands before the parameters, the look and the result of a case.
        statements = re.findall(r"^(?!# )[^?@=\s].*?(?=\n[?@] |\s=>)", text, re.M | re.S)
    else:
        joined = re.sub(r'"\s*\n\s*"', "", text)
        found = re.findall(r'"((?:[^"\\\n]|\\.)*)"', joined)
        statements = [re.sub(r"\\.", lambda e: ESCAPES.get(e[0], e[0]), each) for each in found]
    for statement in statements:
        if not VERBS.match(statement):
            statement = f"SELECT {statement} FROM soci"  # most texts of the tests are expressions
        if len(statement) < 2000:
            data = statement.strip().encode()
            (folder / hashlib.sha1(data).hexdigest()[:16]).write_bytes(data)
