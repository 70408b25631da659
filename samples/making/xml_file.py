"""Writes metadata in HFM's XML format, with the calls that AppFile takes."""

from xml.sax.saxutils import escape, quoteattr

MISC_NAMES = {"APPLICATION_SETTINGS": "AppSettings", "CURRENCIES": "Currencies",
              "CONSOLIDATION_METHODS": "ConsolMethods"}


def element(name, text, **attributes):
    written = "".join(f" {key}={quoteattr(value)}" for key, value in attributes.items())
    return f"<{name}{written}>{escape(text)}</{name}>"


class XmlFile:
    """Gathers the elements of one file."""

    def __init__(self):
        self._lines = ['<?xml version="1.0" encoding="UTF-8"?>', "<HFMMETADATA>"]
        self._open = None
        self._columns = []

    def bytes(self):
        self._close()
        return ("\r\n".join([*self._lines, "</HFMMETADATA>"]) + "\r\n").encode("utf-8")

    def section(self, header, _argument=None):
        """Begins a list; what XML has no list for is left out."""
        self._close()
        if header in MISC_NAMES:
            self._open = "MISC"
            self._lines.append(f'<MISC Name="{MISC_NAMES[header]}">')

    def _close(self):
        if self._open:
            self._lines.append(f"</{self._open}>")
        self._open = None

    def line(self, text):
        name, value = text.split("=", 1)
        self._entry("MISCENTRY", [element("LABEL", name), element("AT", value, Name="Value")])

    def columns(self, *names):
        self._columns = names

    def record(self, *fields):
        count = self._columns.index("Descriptions")
        parts = [element("LABEL", fields[0])]
        parts += [element("AT", text, Name=name)
                  for name, text in zip(self._columns[1:count], fields[1:count]) if text]
        parts += [element("DESCRIPTION", text, Language=language)
                  for language, text in (field.split("=", 1) for field in fields[count:])]
        self._entry("MISCENTRY", parts)

    def members(self, dimension, columns, with_comment=True):
        del columns, with_comment  # attributes go by name
        self._close()
        self._open = "DIMENSION"
        self._lines.append(f'<DIMENSION Name="{dimension.name}">')
        for member in dimension.in_tree_order():
            parts = [element("LABEL", member.label)]
            parts += [element("AT", text, Name=name)
                      for name, text in member.attributes.items() if text]
            parts.append(element("DEFAULTPARENT", member.default_parent or "#root"))
            parts += [element("DESCRIPTION", text, Language=language)
                      for language, text in member.descriptions.items() if text]
            self._entry("MEMBER", parts)

    def hierarchy(self, dimension, with_weights=False):
        """Goes on with the dimension whose members were written last."""
        for parent, child in dimension.edges():
            weight = [element("AT", dimension.members[child].weight, Name="AggrWeight")]
            self._entry("NODE", [element("PARENT", parent), element("CHILD", child),
                                 *(weight if with_weights else [])])

    def _entry(self, name, parts):
        self._lines.append(f"  <{name}>{''.join(parts)}</{name}>")
