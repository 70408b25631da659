#!/usr/bin/env python3
"""Prints what a workbook holds, one line each: the sheets' names, the name of the active one, then
of that sheet each cell that is not empty: its place, its kind ("s": a text) and its text. Texts are
as Python writes them between apostrophes, in ASCII; escapes of the file format are resolved.

    print_workbook.py WORKBOOK.xlsx
"""

import re
import sys

import openpyxl

ESCAPE = re.compile("_x([0-9A-Fa-f]{4})_")


def text_of(value):
    """openpyxl leaves the escapes as they stand in the file."""
    return ESCAPE.sub(lambda match: chr(int(match[1], 16)), value)


def rows(path):
    """The active sheet's rows, each a dictionary from column to text."""
    book = openpyxl.load_workbook(path, read_only=True)
    for row in book.active.iter_rows():
        yield {cell.column: text_of(cell.value) for cell in row if cell.value is not None}


def main():
    book = openpyxl.load_workbook(sys.argv[1])
    print(" ".join(book.sheetnames))
    print(book.active.title)
    for sheet in book:
        for row in sheet.iter_rows():
            for cell in row:
                if cell.value is not None:
                    assert sheet is book.active, f"{sheet.title} holds {cell.coordinate}"
                    text = text_of(cell.value) if cell.data_type == "s" else cell.value
                    print(cell.coordinate, cell.data_type, ascii(text))
    return 0


if __name__ == "__main__":
    sys.exit(main())
