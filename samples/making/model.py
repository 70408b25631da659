"""The dimensions of an application, before they are written to a file."""

from dataclasses import dataclass, field

ROOT = ""
LONGEST_TEXT = 80


@dataclass
class Member:
    """A member, its attributes by column name, its descriptions by language, and its weight in a
    custom dimension's hierarchy."""

    label: str
    attributes: dict = field(default_factory=dict)
    descriptions: dict = field(default_factory=dict)
    default_parent: str = ROOT
    weight: str = "1"


class Dimension:
    """Members in the order in which they were added, and their hierarchy."""

    def __init__(self, name):
        self.name = name
        self.members = {}
        self.children = {ROOT: []}
        self._folded = set()

    def add(self, member, parent=ROOT):
        """Adds a new member as the last child of `parent`, its default parent."""
        folded = member.label.casefold()
        if folded in self._folded:
            raise ValueError(f"{self.name}: {member.label!r} is there already")
        self._folded.add(folded)
        member.default_parent = parent
        self.members[member.label] = member
        self.children[member.label] = []
        self.children[parent].append(member.label)

    def share(self, label, parent, as_default=False):
        """Places a member that is there already below a further parent."""
        if label not in self.members or label in self.children[parent]:
            raise ValueError(f"{self.name}: {label!r} cannot be shared below {parent!r}")
        self.children[parent].append(label)
        if as_default:
            self.members[label].default_parent = parent

    def is_parent(self, label):
        return bool(self.children[label])

    def edges(self):
        """Pairs of parent and child in tree order, the children of a shared parent once."""
        written = set()
        waiting = [(ROOT, label) for label in reversed(self.children[ROOT])]
        while waiting:
            parent, label = waiting.pop()
            yield parent, label
            if label not in written:
                written.add(label)
                waiting += [(label, child) for child in reversed(self.children[label])]

    def in_tree_order(self):
        """Every member once."""
        return [self.members[label] for label in dict.fromkeys(child for _, child in self.edges())]

    def check(self):
        """Raises ValueError for what a reader of the file would have to warn of."""
        if len(self.in_tree_order()) != len(self.members):
            raise ValueError(f"{self.name}: a cycle, or members that nothing leads to")
        for member in self.members.values():
            if member.label not in self.children[member.default_parent]:
                raise ValueError(f"{self.name}: {member.label!r} has a wrong default parent")
            for text in [member.label, *member.descriptions.values()]:
                if len(text) > LONGEST_TEXT:
                    raise ValueError(f"{self.name}: too long: {text!r}")
            if member.label[0] in "'!":
                raise ValueError(f"{self.name}: {member.label!r} would be no record")
