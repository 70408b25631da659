#!/usr/bin/env python3
"""Writes cells to a workbook with XlsxWriter in its constant-memory mode and prints the
milliseconds of processor time that this takes, reading the cells left out.

    write_cells.py CELLS.json WORKBOOK.xlsx

The cells stand in the first file one row a line, as pairs of a column from 0 and a text.
"""

import json
import os
import sys
import time

import xlsxwriter


def read(path):
    with open(path, encoding="utf-8") as file:
        for line in file:
            yield json.loads(line)


def reading_time(path):
    start = time.process_time()
    for _ in read(path):
        pass
    return time.process_time() - start


def writing_time(path, workbook):
    start = time.process_time()
    with xlsxwriter.Workbook(workbook, {"constant_memory": True}) as book:
        book.add_worksheet()
        write_string = book.add_worksheet().write_string
        for number, row in enumerate(read(path)):
            for column, text in row:
                write_string(number, column, text)
    return time.process_time() - start


def main():
    cells, workbook = sys.argv[1:]
    print((writing_time(cells, workbook) - reading_time(cells)) * 1000)
    os.remove(workbook)


if __name__ == "__main__":
    main()
