#!/usr/bin/env python3
"""Counts, compares and lists an application's members straight from its files, and compares that
with what the program finds.

    check_analyses.py PRINT_ANALYSES APPLICATION.app
"""

import subprocess
import sys
from collections import Counter
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "samples"))
from count_app import SYSTEM_ACCOUNTS, Application  # noqa: E402

WORDS = ["Account", "Entity", "Custom1", "Custom2", "Custom3", "Custom4"]
THRESHOLD = 7


class Tree:
    """A dimension's members as the tree that its lines draw."""

    def __init__(self, dimension):
        self.labels = dimension._labels
        self.children = {}
        for parent, child in dimension._edges:
            self.children.setdefault(parent, []).append(child)
        self.parents = [member for member in self.labels if member in self.children]

    def occurrences(self, top):
        """Pairs of a parent and a member, in tree order."""
        found, todo = [], [(top, child) for child in reversed(self.children.get(top, []))]
        while todo:
            parent, member = todo.pop()
            found.append((parent, member))
            todo += [(member, child) for child in reversed(self.children.get(member, []))]
        return found

    def bases(self, top):
        return [member for _, member in self.occurrences(top) if member not in self.children]

    def lines(self, members):
        return "".join(self.labels[member] + "\r\n" for member in members)


def once(members):
    return list(dict.fromkeys(members))


def statistics(tree, section):
    members = [member for _, member in tree.occurrences("")]
    parents = [member for member in members if member in tree.children]
    bases = tree.bases("")
    generation = {"": 0}
    for parent, member in tree.occurrences(""):
        generation[member] = max(generation.get(member, 0), generation[parent] + 1)
    counts = [("Total Members", len(members)),
              ("Total Distinct Members", len(set(members))),
              ("Total Base Members", len(bases)),
              ("Total Distinct Base Members", len(set(bases))),
              ("Total Parent Members", len(parents)),
              ("Total Distinct Parent Members", len(set(parents))),
              ("Duplicate Base Members", len(bases) - len(set(bases))),
              ("Duplicate Parent Members", len(parents) - len(set(parents))),
              ("Maximum Hierarchy Generation Depth", max(generation.values()))]
    return "\r\n\r\n".join([f"{label}:  {count}" for label, count in counts] + section)


def section_of(application, word, tree):
    currencies = f"Currency Members: {len(once(application._currencies))}"
    if word == "Account":
        names = [name.casefold() for name in SYSTEM_ACCOUNTS]
        system = [label for label in tree.labels if label.strip("[]") in names]
        return [f"System Account Members: {len(system)}"]
    if word == "Entity":
        wide = [parent for parent in tree.parents if len(tree.children[parent]) > THRESHOLD]
        return [f"Parents with more than {THRESHOLD} Children: " +
                "".join("\r\n\t" + tree.labels[parent] for parent in wide)]
    if word == "Custom1":
        return [currencies, f"ConsolMethod Members: {len(once(application._methods))}"]
    return [currencies] if word == "Custom2" else []


def shared(tree):
    occurrences = tree.occurrences("")
    last = {member: position for position, (_, member) in enumerate(occurrences)}
    text = ""
    for position, (parent, member) in enumerate(occurrences):
        if position < last[member]:
            text += f"{tree.labels[member]} ({tree.labels.get(parent, '<DimRoot>')})"
            text += " **\r\n" if member in tree.children else "\r\n"
    return text or "No Shared Members Detected"


def parent_sections(tree, word):
    yield f"parents {word}", "\n".join(tree.labels[parent] for parent in tree.parents)
    for parent, following in zip(tree.parents, tree.parents[1:] + tree.parents[:1]):
        label, next_label = tree.labels[parent], tree.labels[following]
        members = [member for _, member in tree.occurrences(parent)]
        counts = Counter(members)
        yield (f"duplicates {word} {label}",
               tree.lines(member for member in members if counts[member] > 1))
        other = set(tree.bases(following))
        yield (f"missing {word} {label} {next_label}",
               tree.lines(member for member in tree.bases(parent) if member not in other))
        bases = once(tree.bases(parent))
        yield (f"list {word} list  {label.upper()}  -  {len(bases)} members",
               "\n".join(tree.labels[member] for member in bases))


def expected_of(path):
    application = Application(path)
    text = ""
    for word in WORDS:
        tree = Tree(application.dimensions[word])
        sections = [(f"statistics {word}", statistics(tree, section_of(application, word, tree))),
                    (f"shared {word}", shared(tree)), *parent_sections(tree, word)]
        text += "".join(f"== {heading}\n{body}\n" for heading, body in sections)
    return text


def main():
    program, application = sys.argv[1:3]
    printed = subprocess.run([program, application], check=True, capture_output=True).stdout
    actual, expected = printed.decode("utf-8"), expected_of(application)
    if actual == expected:
        print(f"{expected.count('== ')} reports in {expected.count(chr(10))} lines, "
              "as the file tells them")
        return 0
    heading = ""
    for is_line, should in zip(actual.split("\n"), expected.split("\n")):
        heading = should if should.startswith("== ") else heading
        if is_line != should:
            print(f"{heading}: {is_line!r}\n  should be {should!r}")
            break
    return 1


if __name__ == "__main__":
    sys.exit(main())
