#!/usr/bin/env python3
"""Compares the sheets that a spreadsheet program made of exported workbooks, as "NAME-Sheet2.csv",
with the application's file; check_workbooks.py tells the names.

    check_csv.py APPLICATION.app FOLDER
"""

import csv
import sys
from pathlib import Path

sys.dont_write_bytecode = True
from check_workbooks import difference, expected_rows, sources_of  # noqa: E402


def main():
    application_file, folder = sys.argv[1], Path(sys.argv[2])
    sources = sources_of(application_file)
    sheets = sorted(folder.glob("*-Sheet2.csv"))
    for sheet in sheets:
        with open(sheet, encoding="utf-8", newline="") as file:
            actual = [dict(enumerate(row, 1)) for row in csv.reader(file)]
        name = sheet.stem.removesuffix("-Sheet2")
        found = difference(actual, expected_rows(*sources, name))
        if found:
            print(f"{sheet.name}: {found}")
            return 1
    print(f"{len(sheets)} sheets, as the file tells them")
    return 0 if sheets else 1


if __name__ == "__main__":
    sys.exit(main())
