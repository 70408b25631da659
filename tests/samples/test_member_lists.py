"""Meridian's member list file names nothing that the application does not have."""

import re
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
from count_app import Application, read_sections  # noqa: E402

MERIDIAN = Path(__file__).resolve().parents[2] / "samples" / "Alderbrook" / "Meridian"
CUSTOMS = {"Custom1": "Movement", "Custom2": "Product", "Custom3": "Market",
           "Custom4": "CostCenter"}
# What stands in quotes and is no label, "" and system lists aside.
OTHER_WORDS = {"Note 8", "EXPENSE", "EUR", ",", "FC-"}


def literals(line):
    """The strings in a line of the script; what follows an apostrophe outside them is a comment."""
    found = []
    for comment, string in re.findall(r"('.*$)|\"((?:[^\"]|\"\")*)\"", line):
        if comment:
            break
        found.append(string.replace('""', '"'))
    return found


class MemberLists(unittest.TestCase):
    def setUp(self):
        self.bytes = (MERIDIAN / "Meridian.lst").read_bytes()
        self.lines = self.bytes.decode("cp1252").split("\r\n")
        self.dimensions = Application(MERIDIAN / "Meridian.app").dimensions

    def sub(self, name):
        """The lines of a sub."""
        start = next(i for i, line in enumerate(self.lines)
                     if re.match(rf"Sub {name}\(", line))
        return self.lines[start:self.lines.index("End Sub", start)]

    def cases(self, sub):
        """What the sub has for each dimension: the names in its Case, and the lines below it."""
        found = {}
        for line in self.sub(sub):
            if line.startswith("\t\tCase "):
                found[tuple(literals(line))] = below = []
            elif found:
                below.append(line)
        return found

    def test_the_file_is_as_the_system_writes_text(self):
        self.assertNotIn(b"\n", self.bytes.replace(b"\r\n", b""))
        self.assertTrue(self.bytes.endswith(b"End Sub\r\n"))
        with self.assertRaises(UnicodeDecodeError):  # so that its code page shows
            self.bytes.decode("utf-8")

    def test_both_subs_know_the_same_dimensions(self):
        named = self.cases("EnumMemberLists")
        self.assertEqual(list(named), list(self.cases("EnumMembersInList")))
        for dimension, *names in named:
            self.assertEqual(names, [CUSTOMS[dimension]] if dimension in CUSTOMS else [])

    def test_every_list_has_a_name_and_its_members(self):
        adders = {dimension: below[0].split()[0]
                  for dimension, below in self.cases("EnumMembersInList").items()}
        for dimension, below in self.cases("EnumMemberLists").items():
            array = re.match(r"\t\t\tHS\.SetMemberLists (\w+)$",
                             next(line for line in below if "SetMemberLists" in line))[1]
            numbers = [int(number) for number in
                       re.findall(rf"{array}\((\d+)\) = \"", "\n".join(below))]
            self.assertEqual(numbers, list(range(1, len(numbers) + 1)), dimension)
            self.assertIn(f"\tDim {array}({len(numbers)})", self.lines)
            adder = "\n".join(self.sub(adders[dimension]))
            handled = re.findall(r"(?:\t\tCase |If ListID (?:=|<>) )(\d+)", adder)
            self.assertEqual([int(number) for number in handled], numbers, dimension)

    def test_every_label_is_a_member(self):
        for (dimension, *_), below in self.cases("EnumMembersInList").items():
            for line in self.sub(below[0].split()[0]):
                # A list of another dimension tells which one it is.
                other = re.search(r"HS\.(\w+)\.List", line)
                self.check(line, other[1] if other else dimension)
        for line in self.lines:
            if line.startswith("Const "):
                self.check(line, "Entity")

    def check(self, line, dimension):
        for literal in literals(line):
            if literal in OTHER_WORDS or re.fullmatch(r"(\[\w+\])?", literal):
                continue
            labels = literal.split(",") if "Split(" in line else [literal]
            if "& Number" in line:
                labels = [f"{literal}{number}" for number in range(1, 5)]
            for label in labels:
                self.assertTrue(self.dimensions[dimension].holds(label), f"{label!r} in {line!r}")

    def test_every_entity_stands_below_the_parent_it_is_added_with(self):
        edges = {tuple(edge.split(";")[:2])
                 for name, dimension, lines in list(read_sections(MERIDIAN / "Meridian.app"))
                 for edge in lines if (name, dimension) == ("HIERARCHIES", "Entity")}
        added = [literals(line) for line in self.sub("AddEntities") if "AddEntityToList \"" in line]
        self.assertEqual(len(added), 3)
        for parent, child in added:
            self.assertIn((parent, child), edges)


if __name__ == "__main__":
    unittest.main()
