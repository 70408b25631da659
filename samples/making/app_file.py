"""Writes metadata in HFM's APP format."""


class AppFile:
    """Gathers the sections of one file. Whatever would not read back as it was given is refused."""

    def __init__(self, delimiter, encoding, mark):
        self._delimiter = delimiter
        self._encoding = encoding
        self._mark = "\ufeff" if mark else ""
        self._lines = []

    def bytes(self):
        return (self._mark + "\r\n".join(self._lines) + "\r\n").encode(self._encoding)

    def section(self, header, argument=None):
        self._lines.append(f"!{header}" if argument is None else f"!{header}={argument}")

    def line(self, text):
        self._lines.append(text)

    def record(self, *fields):
        for text in fields:
            if self._delimiter in text or "\r" in text or "\n" in text or text != text.strip():
                raise ValueError(f"no field: {text!r}")
        self._lines.append(self._delimiter.join(fields))

    def columns(self, *names):
        """The comment that an extract writes above the records of a section."""
        self._lines.append("'" + self._delimiter.join(names))

    def members(self, dimension, columns, with_comment=True):
        """The member section of a dimension, with `columns` before the default parent."""
        self.section("MEMBERS", dimension.name)
        if with_comment:
            self.columns(*columns, "DefaultParent", "Descriptions")
        for member in dimension.in_tree_order():
            attributes = {"Label": member.label} | member.attributes
            unknown = attributes.keys() - set(columns)
            if unknown:
                raise ValueError(f"{member.label!r} has {unknown}, of which the file has no column")
            self.record(*(attributes.get(column, "") for column in columns),
                        f"DefaultParent={member.default_parent or '#root'}",
                        *described(member.descriptions))

    def hierarchy(self, dimension, with_weights=False):
        """The hierarchy section; a custom dimension's has weights."""
        self.section("HIERARCHIES", dimension.name)
        for parent, child in dimension.edges():
            self.record(parent, child, *([dimension.members[child].weight] if with_weights else []))


def described(descriptions):
    """The description fields of a record."""
    return [f"{language}={text}" for language, text in descriptions.items() if text]
