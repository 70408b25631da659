#!/usr/bin/env python3
"""Counts an HFM application's dimensions straight from its files, independently of the program.

    count_app.py APPLICATION.app

prints a line for each of the twelve dimensions, as HFM shows them, that is with the members that
HFM adds of itself (system accounts, currencies, partners):

    dimension members nodes distinct basenodes bases parents depth rows

members    all members, once each
nodes      occurrences in the hierarchy: a shared member counts once for each way down to it
distinct   members that occur in the hierarchy
basenodes  occurrences of members without children
bases      members without children that occur in the hierarchy
parents    members with children
depth      generations on the longest way down
rows       lines of the metadata extract, which writes one for each occurrence

Years that a profile does not give depend on today's date; the line counts the eleven that HFM
offers then.
"""

import sys
from collections import namedtuple
from pathlib import Path

DIMENSIONS = ["Account", "Entity", "Scenario", "Year", "Period", "Custom1", "Custom2", "Custom3",
              "Custom4", "View", "Value", "ICP"]
ALLOWED_DELIMITERS = ",~@$%^&|:;?\\#"
SYSTEM_ACCOUNTS = ["Active", "PCON", "POWN", "DOWN", "PCTRL", "Method", "Consol1", "Consol2",
                   "Consol3", "SharesOwned", "VotingOwned", "SharesOutstanding",
                   "VotingOutstanding", "Shares%Owned", "Voting%Owned"]
VALUE_EDGES = [("", "[None]"), ("", "[Contribution Total]"),
               ("[Contribution Total]", "[Contribution]"),
               ("[Contribution Total]", "[Contribution Adjs]"),
               ("[Contribution]", "[Proportion]"), ("[Contribution]", "[Elimination]"),
               ("[Proportion]", "[Parent Total]"), ("[Parent Total]", "[Parent]"),
               ("[Parent Total]", "[Parent Adjs]"), ("[Parent]", "<Parent Curr Total>"),
               ("<Parent Curr Total>", "<Parent Currency>"),
               ("<Parent Curr Total>", "<Parent Curr Adjs>"),
               ("<Parent Currency>", "<Entity Curr Total>"),
               ("<Entity Curr Total>", "<Entity Currency>"),
               ("<Entity Curr Total>", "<Entity Curr Adjs>")]

Counts = namedtuple("Counts", "members nodes distinct basenodes bases parents depth rows")


def read_text(path):
    """The file's text, whatever it is encoded in."""
    data = Path(path).read_bytes()
    for mark, encoding in [(b"\xef\xbb\xbf", "utf-8"), (b"\xff\xfe", "utf-16-le"),
                           (b"\xfe\xff", "utf-16-be")]:
        if data.startswith(mark):
            return data[len(mark):].decode(encoding)
    if len(data) > 1 and 0 in data[:2]:
        return data.decode("utf-16-be" if data[0] == 0 else "utf-16-le")
    try:
        return data.decode("utf-8")
    except UnicodeDecodeError:
        return data.decode("cp1252", errors="replace")


def read_sections(path):
    """Pairs of a header and its lines, comments included, blank lines not."""
    text = read_text(path).replace("\r\n", "\n").replace("\r", "\n")
    for line in text.split("\n"):
        if line.startswith("!"):
            name, _, argument = line[1:].partition("=")
            lines = []
            yield name.strip().upper(), argument.strip(), lines
        elif line.strip():
            lines.append(line)


def find_delimiter(sections):
    for name, _, lines in sections:
        for line in lines:
            if name == "HIERARCHIES" and line[0] in ALLOWED_DELIMITERS:
                return line[0]
    everything = [line for _, _, lines in sections for line in lines]
    for line in everything:
        if line.startswith("'Label") and line[6:7] and line[6] in ALLOWED_DELIMITERS:
            return line[6]
    for line in everything:
        at = line.find("DefaultParent=")
        if at > 0 and not line.startswith("'"):
            return line[at - 1]
    return ";"


class Dimension:
    """Labels and edges; labels compare without case."""

    def __init__(self):
        self._labels = {}
        self._edges = {}

    def add(self, label):
        self._labels.setdefault(label.casefold(), label)

    def add_edge(self, parent, child):
        for label in filter(None, (parent, child)):
            self.add(label)
        self._edges[parent.casefold(), child.casefold()] = None

    def holds(self, label):
        return label.casefold() in self._labels

    def count(self):
        children, open_parents = {}, {}
        for parent, child in self._edges:
            children.setdefault(parent, []).append(child)
            open_parents[child] = open_parents.get(child, 0) + 1
        nodes, generation, passed = {"": 1}, {"": 0}, [""]
        for parent in passed:  # grows: a member is passed once all its parents are
            for child in children.get(parent, ()):
                nodes[child] = nodes.get(child, 0) + nodes[parent]
                generation[child] = max(generation.get(child, 0), generation[parent] + 1)
                open_parents[child] -= 1
                if open_parents[child] == 0:
                    passed.append(child)
        if any(open_parents.values()):
            raise ValueError("the hierarchy has a cycle")
        del nodes[""]
        bases = [label for label in nodes if label not in children]
        total = sum(nodes.values())
        return Counts(members=len(self._labels), nodes=total, distinct=len(nodes),
                      basenodes=sum(nodes[label] for label in bases), bases=len(bases),
                      parents=len(nodes) - len(bases), depth=max(generation.values()), rows=total)


class Application:
    """An application's dimensions by name, from its metadata and its profile."""

    def __init__(self, path):
        self.dimensions = {name: Dimension() for name in DIMENSIONS}
        self._currencies = []
        self._methods = []
        self._partners = []
        self._with_section = set()
        profile = Path(path).with_suffix(".profile")
        for file in [path, *([profile] if profile.exists() else [])]:
            self._read(list(read_sections(file)))
        self._add_what_hfm_adds()

    def _read(self, sections):
        delimiter = find_delimiter(sections)
        names = {name.casefold(): name for name in DIMENSIONS}
        for section, argument, _ in sections:
            if section == "CUSTOM_ORDER":
                for number, custom in enumerate(argument.split(delimiter)[:4], start=1):
                    names[custom.strip().casefold()] = f"Custom{number}"
        for section, argument, lines in sections:
            records = [[field.strip() for field in line.split(delimiter)]
                       for line in lines if not line.startswith("'")]
            if section in ("CURRENCIES", "CONSOLIDATION_METHODS"):
                kept = self._currencies if section == "CURRENCIES" else self._methods
                kept += [record[0] for record in records]
            elif argument.casefold() in names:
                self._read_dimension(section, names[argument.casefold()], records)

    def _read_dimension(self, section, name, records):
        dimension = self.dimensions[name]
        self._with_section.add(name)
        for record in records:
            if section == "MEMBERS":
                dimension.add(record[0])
                if name == "Entity":
                    self._read_entity(record)
            elif section == "HIERARCHIES":
                dimension.add_edge("" if record[0] == "#root" else record[0], record[1])

    def _read_entity(self, record):
        label, currency, _, is_partner = (record + [""] * 4)[:4]
        if is_partner == "Y":
            self._partners.append(label)
        if currency and currency not in self._currencies:
            self._currencies.append(currency)

    def _add_what_hfm_adds(self):
        accounts = self.dimensions["Account"]
        for label in SYSTEM_ACCOUNTS:
            if not accounts.holds(label) and not accounts.holds(f"[{label}]"):
                accounts.add_edge("", f"[{label}]")
        with_currencies = ["[None]", *self._currencies]
        for name, labels in [("Custom1", [*with_currencies, *self._methods]),
                             ("Custom2", with_currencies), ("Custom3", ["[None]"]),
                             ("Custom4", ["[None]"])]:
            for label in labels:
                if not self.dimensions[name].holds(label):
                    self.dimensions[name].add_edge("", label)
        self._add_value_and_partners()
        self._add_calendar()

    def _add_value_and_partners(self):
        value = self.dimensions["Value"]
        for parent, child in VALUE_EDGES:
            value.add_edge(parent, child)
        for currency in self._currencies:
            value.add_edge("", f"{currency} Total")
            value.add_edge(f"{currency} Total", currency)
            value.add_edge(f"{currency} Total", f"{currency} Adjs")
        partners = self.dimensions["ICP"]
        partners.add_edge("", "[ICP Top]")
        partners.add_edge("[ICP Top]", "[ICP None]")
        partners.add_edge("[ICP Top]", "[ICP Entities]")
        for label in self._partners:
            partners.add_edge("[ICP Entities]", label)

    def _add_calendar(self):
        quarters = [f"Q{number}" for number in range(1, 5)]
        months = "Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec".split()
        usual = {"Year": [("", f"Year {number}") for number in range(11)],
                 "Period": [("", "[Year]"), *(("[Year]", quarter) for quarter in quarters),
                            *((quarters[i // 3], month) for i, month in enumerate(months))],
                 "View": [("", view) for view in ["<Scenario View>", "YTD", "QTD", "MTD",
                                                  "Periodic"]]}
        for name in usual.keys() - self._with_section:
            for parent, child in usual[name]:
                self.dimensions[name].add_edge(parent, child)

    def counts(self):
        return {name: dimension.count() for name, dimension in self.dimensions.items()}


def main():
    print("dimension", *Counts._fields)
    for name, counts in Application(sys.argv[1]).counts().items():
        print(name, *counts)


if __name__ == "__main__":
    main()
