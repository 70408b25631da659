#!/usr/bin/env python3
"""Lays out the exports of an application from its files and compares them, cell for cell, with the
workbooks of a folder, which openpyxl reads. The workbooks' names say what they hold:

    attributes DIMENSION              the tree, its attributes shown and wanted
    unwanted DIMENSION                the tree, its attributes shown and not wanted
    labels DIMENSION                  the tree, its attributes hidden
    base list DIMENSION               the members without children
    class NAME                        who has what access to a security class
    role NUMBER, user NUMBER          who holds a role; what a user or group may do

the first four also with "below LABEL" behind it: from that top member down. Roles and users are
numbered from 0 as they appear in the security file.

    check_workbooks.py APPLICATION.app FOLDER NUMBER_OF_WORKBOOKS
"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True
TESTS = Path(__file__).resolve().parents[1]
sys.path[:0] = [str(TESTS / "samples"), str(TESTS / "support")]
from count_app import ALLOWED_DELIMITERS, Application, find_delimiter, read_sections  # noqa: E402
from print_workbook import rows as rows_of_workbook  # noqa: E402

TYPES = {"REVENUE": "Income", "INCOME": "Income", "EXPENSE": "Expense", "ASSET": "Asset",
         "LIABILITY": "Liability", "BALANCE": "Balance", "FLOW": "Flow",
         "NONFINANCIAL": "Non-Financial", "CURRENCYRATE": "CurrencyRate", "SYSTEM": "System",
         "TEXT": "Text", "GROUPLABEL": "GroupLabel", "BALANCERECURRING": "BalanceRecurring",
         "DYNAMIC": "Dynamic"}
ACCESS = {"none": "NONE", "metadata": "UNKNOWN", "read": "READONLY", "promote": "READANDPROMOTE",
          "all": "ALL"}
INTERCOMPANY = {"Y": "Yes", "N": "No", "R": "Restricted"}


class Records:
    """What the member records of the file say: fields by column, and the description in the file's
    first language. Currencies and consolidation methods are members of Custom1, the currencies of
    Custom2 too, and have records with a description alone."""

    def __init__(self, path):
        self._records = {}
        sections = list(read_sections(path))
        delimiter = find_delimiter(sections)
        customs, language = {}, None
        added = []
        for section, argument, lines in sections:
            if section in ("CURRENCIES", "CONSOLIDATION_METHODS"):
                words = ["Custom1", "Custom2"] if section == "CURRENCIES" else ["Custom1"]
                added += [(word, [field.strip() for field in line.split(delimiter)])
                          for word in words for line in lines if not line.startswith("'")]
            if section == "CUSTOM_ORDER":
                customs = {name.strip().casefold(): f"Custom{i}"
                           for i, name in enumerate(argument.split(delimiter), 1)}
            if section != "MEMBERS":
                continue
            word = customs.get(argument.casefold(), argument)
            columns = next(line for line in lines if line.startswith("'"))[1:].split(delimiter)
            for line in lines:
                fields = [field.strip() for field in line.split(delimiter)]
                if line.startswith("'"):
                    continue
                record = dict(zip(columns, fields))
                at = next((i for i, field in enumerate(fields)
                           if field.startswith("DefaultParent=")), len(fields))
                for field in fields[at + 1:]:
                    name, _, text = field.partition("=")
                    language = language or name
                    if name == language:
                        record["description"] = text
                self._records[word, fields[0].casefold()] = record
        for word, (label, *fields) in added:
            texts = dict(field.partition("=")[::2] for field in fields)
            self._records.setdefault((word, label.casefold()),
                                     {"description": texts.get(language, "")})

    def of(self, word, label):
        return self._records.get((word, label.casefold()), {})


class Security:
    """Who may do what, as the security file beside the application's file tells it."""

    def __init__(self, path):
        found = {name: [line.strip() for line in lines if not line.startswith("'")]
                 for name, _, lines in list(read_sections(path))}
        access = found["SECURITY_CLASS_ACCESS"]
        delimiter = next(mark for mark in ";" + ALLOWED_DELIMITERS
                         if all(line.count(mark) in (2, 3) for line in access))

        def records(lines):
            return [[field.strip() for field in line.split(delimiter)] for line in lines]

        self.users = [self._listed(identity) for identity in found["USERS_AND_GROUPS"]]
        self._classes = found["SECURITY_CLASSES"]
        holders = [(role, self._listed(user)) for role, user in records(found["ROLE_ACCESS"])]
        self.roles = list(dict.fromkeys(role for role, _ in holders))
        self._holders = set(holders)
        self._access = {(name, self._listed(user)): ACCESS[word.lower()]
                        for name, user, word, *_ in records(access)}

    @staticmethod
    def _listed(identity):
        name, at, directory = identity.rpartition("@")
        return f"{directory}\\{name}" if at else identity

    def of_class(self, name):
        return [f"User Access to {name}",
                *(user.rpartition("\\")[2] + "  -  " + self._access.get((name, user), "NONE")
                  for user in self.users)]

    def of_role(self, role):
        return [f"User/Group Access to {role}",
                *(user.rpartition("\\")[2] for user in self.users
                  if (role, user) in self._holders)]

    def of_user(self, user):
        first = [f"User/Group {user} Role Access:",
                 *(role for role in self.roles if (role, user) in self._holders)]
        second = [f"User/Group {user} Security Class Access:",
                  *(f"{name} - {self._access[name, user]}" for name in self._classes
                    if self._access.get((name, user), "NONE") != "NONE")]
        return first, second


def account(label, record):
    kind = record.get("AccountType")
    if kind is None:
        kind = "BALANCERECURRING" if label == "[Active]" else "BALANCE"
    tops = [f"TopC{i}={record.get(f'Custom{i}TopMember', '')}" for i in range(1, 5)]
    return [f"Type={TYPES[kind]}", f"IsICP={INTERCOMPANY[record.get('IsICP', 'N')]}", *tops,
            f"Security={record.get('SecurityClass') or '[Default]'}",
            f"UD1={record.get('UserDefined1', '')}", "UD2=",
            f"UD3={record.get('UserDefined3', '')}"]


def entity(_, record):
    def truth(column):
        return "True" if record.get(column) == "Y" else "False"

    return [f"Currency={record.get('DefCurrency') or '[None]'}", f"Adjs={truth('AllowAdjs')}",
            f"ChildAdjs={truth('AllowAdjFromChildren')}",
            f"Security={record.get('SecurityClass') or '[Default]'}", f"ICP={truth('IsICP')}",
            *(f"UD{i}={record.get(f'UserDefined{i}') or '[None]'}" for i in range(1, 4))]


def custom(_, record):
    return [*(f"UD{i}={record.get(f'UserDefined{i}', '')}" for i in range(1, 4)),
            f"Security={record.get('SecurityClass') or '[Default]'}"]


class Tree:
    """A dimension as its occurrences in tree order: level from 1 and label."""

    def __init__(self, application, records, word):
        dimension = application.dimensions[word]
        self._labels, self._children = dimension._labels, {}
        self._word, self._records = word, records
        for parent, child in dimension._edges:
            self._children.setdefault(parent, []).append(child)

    def nodes(self, top=None):
        todo = [(1, top.casefold())] if top else [(1, m) for m in self._children[""][::-1]]
        while todo:
            level, member = todo.pop()
            yield level, member
            todo += [(level + 1, child) for child in self._children.get(member, ())[::-1]]

    def depth(self, top=None):
        return max(level for level, _ in self.nodes(top))

    def text(self, member, shows):
        label = self._labels[member]
        record = self._records.of(self._word, label)
        text = f"{label} - {record.get('description', '')}"
        if shows:
            items = {"Account": account, "Entity": entity}.get(self._word, custom)
            text += f" ({', '.join(items(label, record))})"
        return text

    def bases(self, top=None):
        """Each base member below the top member, once."""
        return [self._labels[member] for member in dict.fromkeys(m for _, m in self.nodes(top))
                if member not in self._children]


def tree_rows(tree, top, shows, writes):
    levels, gap_and_description = tree.depth(top), 2
    first_attribute = tree.depth() + 3
    header = {level: f"Level {level}" for level in range(1, levels + 1)}
    header[levels + gap_and_description] = "Description"
    rows, above = [header], [0]
    for level, member in tree.nodes(top):
        text = tree.text(member, shows)
        hyphen = text.index("-")
        start, attributes = hyphen + 2, ""
        description = text[start:]
        if shows:
            opening = text.index("(", hyphen) if top else text.rindex("(")
            description = text[start:max(opening - 1, start)]
            attributes = text[opening + 1:-1]
        del above[level:]
        column = above[level - 1] + 1 + text.count("\\")
        above.append(column)
        row = {column: text[:hyphen - 1]}
        row[levels + gap_and_description] = description
        for number, piece in enumerate(attributes.split(",") if writes else []):
            if len(rows) == 1:
                header[first_attribute + number] = piece.split("=")[0]
            row[first_attribute + number] = piece
        rows.append(row)
    return rows


def list_rows(tree, word, top):
    members = tree.bases(top)
    rows = [{1: f"{word} list  [BASE]  -  {len(members)} members (** denotes parent member)"}]
    if top:
        rows.append({1: "Top Member Set To:  " + top.upper()})
    return rows + [{}] + [{1: member} for member in members]


def columns_as_rows(first, second=()):
    rows = [{1: line} for line in first] + [{} for _ in second[len(first):]]
    for row, line in zip(rows, second):
        row[3] = line
    return rows


def security_rows(security, kind, which):
    if kind == "class":
        return columns_as_rows(security.of_class(which))
    if kind == "role":
        return columns_as_rows(security.of_role(security.roles[int(which)]))
    return columns_as_rows(*security.of_user(security.users[int(which)]))


def expected_rows(application, records, security, name):
    kind, _, which = name.partition(" ")
    if kind in ("class", "role", "user"):
        return security_rows(security, kind, which)
    what, _, top = name.partition(" below ")
    kind, _, word = what.rpartition(" ")
    tree = Tree(application, records, word)
    if kind == "base list":
        return list_rows(tree, word, top or None)
    return tree_rows(tree, top or None, shows=kind != "labels", writes=kind == "attributes")


def difference(actual, expected):
    """The first cell that differs, as text; empty where none does."""
    def cells(row):
        return {column: text for column, text in row.items() if text}

    for number in range(max(len(actual), len(expected))):
        is_row = cells(actual[number]) if number < len(actual) else {}
        should = cells(expected[number]) if number < len(expected) else {}
        for column in sorted(is_row.keys() | should.keys()):
            if is_row.get(column) != should.get(column):
                return (f"row {number + 1}, column {column}: {is_row.get(column)!r}\n"
                        f"  should be {should.get(column)!r}")
    return ""


def sources_of(application_file):
    return (Application(application_file), Records(application_file),
            Security(Path(application_file).with_suffix(".sec")))


def main():
    application_file, folder, expected_count = sys.argv[1], Path(sys.argv[2]), int(sys.argv[3])
    sources = sources_of(application_file)
    workbooks = sorted(folder.glob("*.xlsx"))
    cells = 0
    for workbook in workbooks:
        actual = list(rows_of_workbook(workbook))
        found = difference(actual, expected_rows(*sources, workbook.stem))
        if found:
            print(f"{workbook.name}: {found}")
            return 1
        cells += sum(len(row) for row in actual)
    print(f"{len(workbooks)} workbooks with {cells} cells, as the file tells them")
    if len(workbooks) != expected_count:
        print(f"there should be {expected_count} workbooks")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
