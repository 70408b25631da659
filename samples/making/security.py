"""Writes security in HFM's format: who works with an application, in which roles, and what of it
he may see."""

from .app_file import AppFile


class Security:
    """Gathers identities, their roles and their access to classes."""

    def __init__(self, classes):
        self.classes = ["[Default]", *classes]
        self._roles = []
        self._access = []
        self._identities = []

    def add(self, identity, roles=(), access=None):
        """Adds an identity. `access` tells what it has to which classes."""
        self._identities.append(identity)
        self._roles += [(role, identity) for role in roles]
        for name, right in (access or {}).items():
            if name not in self.classes:
                raise ValueError(f"{identity!r} has access to {name!r}, which is no class")
            self._access.append((name, identity, right))

    def bytes(self, delimiter, encoding, mark=False):
        file = AppFile(delimiter, encoding, mark)
        file.section("FILE_FORMAT", "2.0")
        file.section("VERSION", "11.12")
        file.section("USERS_AND_GROUPS")
        for identity in self._identities:
            file.line(identity)
        file.section("SECURITY_CLASSES")
        for name in self.classes:
            file.line(name)
        file.section("ROLE_ACCESS")
        for role, identity in self._roles:
            file.record(role, identity)
        file.section("SECURITY_CLASS_ACCESS")
        for name in self.classes:
            for named, identity, right in self._access:
                if named == name:
                    file.record(name, identity, right, "Y" if right == "All" else "N")
        return file.bytes()


def classes_of(dimensions):
    """The classes that members have, in order of appearance."""
    names = {}
    for dimension in dimensions.values():
        for member in dimension.in_tree_order():
            for column in ["SecurityClass", "SecurityAsPartner"]:
                if member.attributes.get(column):
                    names[member.attributes[column]] = None
    return list(names)
