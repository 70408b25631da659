"""Dimensions written as indented text.

A line is a member, two blanks of indentation to the level:

    LABEL | kind | text | text | text | option: value, option: value

The kind names a set of attributes, the texts are the descriptions, one for each language and in
their order, and the options set single attributes. All may be left out from the right. An option
holds for the members below as well, unless it begins with a dot.

    = LABEL               places a member again, which makes it a shared one
    == LABEL              the same, and makes this its default parent
    ~ a=words : LINE      stands for a line for each entry of the vocabulary `words`, with all that
                          is indented below it. {a} is the entry's code in the label and its text
                          in the descriptions; where only the first text is given and it
                          holds nothing but such entries, the other languages use it too.

A vocabulary is a section of a text file: `[words]`, then lines `code | text | text | text`.
"""

import re
from dataclasses import dataclass, field

from .model import ROOT, Member


@dataclass
class Line:
    text: str
    below: list = field(default_factory=list)


def read_vocabularies(path):
    """The sections of a vocabulary file: for each name its rows of code and texts."""
    vocabularies = {}
    for line in content(path):
        if line.startswith("["):
            rows = vocabularies.setdefault(line.strip("[]"), [])
        else:
            rows.append([part.strip() for part in line.split("|")])
    return vocabularies


def read_outline(path):
    """The lines of the outermost level, each with those below it."""
    top = []
    levels = [top]
    for line in content(path):
        level = (len(line) - len(line.lstrip())) // 2
        entry = Line(line.strip())
        levels[level].append(entry)
        del levels[level + 1:]
        levels.append(entry.below)
    return top


def content(path):
    for line in path.read_text(encoding="utf-8").splitlines():
        if line.strip() and not line.startswith("//"):
            yield line.rstrip()


class Planter:
    """Adds the members of an outline to a dimension. `attributes` makes, of a kind, the options in
    force and whether it is a parent, the attributes of a member; "weight" is one of them."""

    def __init__(self, dimension, languages, vocabularies, attributes):
        self._dimension = dimension
        self._languages = languages
        self._vocabularies = vocabularies
        self._attributes = attributes

    def plant(self, lines, parent=ROOT, entries=None, options=None):
        for line in lines:
            self._plant_line(line, line.text, parent, entries or {}, options or {})

    def _plant_line(self, line, text, parent, entries, options):
        if text.startswith("~"):
            loop, rest = text[1:].split(":", 1)
            name, vocabulary = loop.strip().split("=")
            for row in self._vocabularies[vocabulary]:
                self._plant_line(line, rest.strip(), parent, entries | {name: row}, options)
        elif text.startswith("="):
            label = self._fill(text.lstrip("= "), entries, 0)
            self._dimension.share(label, parent, as_default=text.startswith("=="))
        else:
            self._plant_member(line, text, parent, entries, options)

    def _plant_member(self, line, text, parent, entries, options):
        parts = [part.strip() for part in text.split("|")]
        count = len(self._languages)
        parts += [""] * (3 + count - len(parts))
        label = self._fill(parts[0], entries, 0)
        own, inherited = self._options(parts[2 + count], entries, options)
        texts = self._texts(parts[2:2 + count], entries)
        attributes = self._attributes(parts[1], own, bool(line.below))
        weight = attributes.pop("weight", "1")
        member = Member(label, attributes, dict(zip(self._languages, texts)), weight=weight)
        self._dimension.add(member, parent)
        self.plant(line.below, label, entries, inherited)

    def _options(self, text, entries, inherited):
        own = dict(inherited)
        handed_on = dict(inherited)
        for option in filter(None, text.split(", ")):
            name, value = option.split(":", 1)
            value = self._fill(value.strip(), entries, 0)
            own[name.lstrip(".")] = value
            if not name.startswith("."):
                handed_on[name] = value
        return own, handed_on

    def _texts(self, patterns, entries):
        if entries and not re.search(r"\w", re.sub(r"\{\w+\}", "", patterns[0])):
            patterns = [pattern or patterns[0] for pattern in patterns]
        return [self._fill(pattern, entries, 1 + i) for i, pattern in enumerate(patterns)]

    @staticmethod
    def _fill(pattern, entries, part):
        def entry(match):
            row = entries[match.group(1)]
            return row[int(match.group(2) or part)]
        return re.sub(r"\{(\w+)(?::(\d+))?\}", entry, pattern)
