"""Reads a metadata file in APP format into dictionaries, the way one would write it down.

    open_dictionaries.py FILE.app

Prints the seconds of processor time that it took and the number of members. Only the standard library is used.
"""

import sys
import time


def read(path):
    columns = {}
    members = {}
    children = {}
    kind, dimension = "", ""
    with open(path, encoding="utf-8-sig", newline="") as file:
        for line in file:
            line = line.rstrip("\r\n")
            if not line:
                continue
            if line.startswith("!"):
                kind, _, dimension = line[1:].partition("=")
                continue
            if line.startswith("'"):
                columns[dimension] = line[1:].split(";")
                continue
            fields = line.split(";")
            if kind == "MEMBERS":
                names = columns[dimension]
                end = names.index("DefaultParent")
                member = dict(zip(names, fields[:end]))
                member["DefaultParent"] = fields[end].partition("=")[2]
                descriptions = {}
                for field in fields[end + 1 :]:
                    language, _, text = field.partition("=")
                    descriptions[language] = text
                member["Descriptions"] = descriptions
                members.setdefault(dimension, {})[fields[0]] = member
            elif kind == "HIERARCHIES":
                children.setdefault(dimension, {}).setdefault(fields[0], []).append(fields[1])
    return members, children


started = time.process_time()
members, children = read(sys.argv[1])
seconds = time.process_time() - started
print(f"{seconds:.3f} {sum(len(of_dimension) for of_dimension in members.values())}")
