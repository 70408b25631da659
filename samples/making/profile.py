"""Writes the application profile: languages, years, periods and views."""

from .app_file import AppFile
from .model import Dimension
from .outline import Planter, read_outline


def profile_bytes(outline, languages, delimiter, encoding, mark):
    """`outline` is a file whose outermost lines are the names of the dimensions."""
    file = AppFile(delimiter, encoding, mark)
    file.section("LANGUAGES")
    for language in languages:
        file.line(language)
    for line in read_outline(outline):
        dimension = Dimension(line.text)
        Planter(dimension, languages, {}, lambda *_: {}).plant(line.below)
        dimension.check()
        file.members(dimension, ["Label"])
        file.hierarchy(dimension)
    return file.bytes()
