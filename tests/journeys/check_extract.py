#!/usr/bin/env python3
"""Makes the extract of a dimension from the .app file itself, with the indicators "Dynamic" and
"Store" and a header row in the file's first language, and compares it with a saved one byte for
byte.

    check_extract.py APPLICATION.app DIMENSION SAVED.txt
"""

import sys
from pathlib import Path


def sections(path):
    data = path.read_bytes()
    for mark, encoding in ((b"\xff\xfe", "utf-16"), (b"\xfe\xff", "utf-16"), (b"\xef\xbb\xbf", "utf-8-sig")):
        if data.startswith(mark):
            text = data.decode(encoding)
            break
    else:
        text = data.decode("cp1252")
    found = {}
    records = None
    for line in text.splitlines():
        if line.startswith("!"):
            records = found.setdefault(line.strip().lower(), [])
        elif records is not None and line.strip() and not line.startswith("'"):
            records.append(line)
    return found


def main():
    application, dimension, saved = Path(sys.argv[1]), sys.argv[2], Path(sys.argv[3])
    found = sections(application)
    edges = found["!hierarchies=" + dimension.lower()]
    delimiter = edges[0][0]

    language = None
    descriptions = {}
    for record in found["!members=" + dimension.lower()]:
        fields = [field.strip() for field in record.split(delimiter)]
        default_parent = next(i for i, f in enumerate(fields) if f.lower().startswith("defaultparent="))
        for field in fields[default_parent + 1:]:
            name, _, text = field.partition("=")
            language = language or name
            if name == language:
                descriptions[fields[0]] = text

    children = {}
    for edge in edges:
        parent, child = (field.strip() for field in edge.split(delimiter)[:2])
        children.setdefault(parent, []).append(child)

    rows = ["PARENT_LABEL,PARENT_DESCRIPTION,CHILD_LABEL,CHILD_DESCRIPTION,INDICATOR"]
    todo = [("", child) for child in reversed(children[""])]
    while todo:
        parent, child = todo.pop()
        below = children.get(child, [])
        fields = (parent, descriptions.get(parent, ""), child, descriptions.get(child, ""),
                  "Dynamic" if below else "Store")
        rows.append(",".join(f'"{field}"' for field in fields))
        todo.extend((child, grandchild) for grandchild in reversed(below))

    expected = "".join(row + "\r\n" for row in rows).encode("cp1252", "replace")
    actual = saved.read_bytes()
    if actual == expected:
        print(f"{len(rows) - 1} rows, as the file tells them")
        return 0
    for number, (is_line, should) in enumerate(zip(actual.splitlines(), expected.splitlines()), 1):
        if is_line != should:
            print(f"line {number}: {is_line!r}\n  should be {should!r}")
            break
    print(f"{len(actual)} bytes, should be {len(expected)}")
    return 1


if __name__ == "__main__":
    sys.exit(main())
