"""Zenith: an application in the older form, with Custom1 to Custom4 and the shorter layout."""

from functools import partial
from pathlib import Path

from .app_file import AppFile
from .attributes import (ACCOUNT_COLUMNS, CUSTOM_COLUMNS, ENTITY_COLUMNS, LONGER_FORM, OPTIONS,
                         SCENARIO_COLUMNS, account_attributes, custom_attributes,
                         scenario_attributes)
from .lists import write_currencies, write_methods
from .model import Dimension
from .outline import Planter, read_outline, read_vocabularies
from .security import Security, classes_of
from .xml_file import XmlFile

HERE = Path(__file__).parent
LANGUAGES = ["English", "German"]
CUSTOMS = ["Custom1", "Custom2", "Custom3", "Custom4"]
CUSTOM_TOPS = {"m": ("EndBal", "[None]", "[None]", "TotAdj"),
               "p": ("[None]", "TotProd", "TotCust", "TotAdj"),
               "q": ("[None]", "TotProd", "[None]", "TotAdj"),
               "c": ("[None]", "[None]", "[None]", "TotAdj"),
               "-": ("[None]", "[None]", "[None]", "[None]")}


def older(attributes_of):
    """Leaves out what only the longer layout has, and writes an income account as INCOME."""
    def attributes(kind, options, is_parent):
        kind = kind.replace("income", "revenue")
        found = attributes_of(kind, options, is_parent)
        if found.get("AccountType") == "REVENUE":
            found["AccountType"] = "INCOME"
        return {name: value for name, value in found.items() if name not in LONGER_FORM}
    return attributes


def entity_attributes(kind, options, is_parent):
    if kind == "none":
        return {"AllowAdjs": "N", "IsICP": "N", "AllowAdjFromChildren": "N"}
    names = OPTIONS | {"cur": "DefCurrency", "h": "HoldingCompany"}
    return {"AllowAdjs": "N" if kind == "elim" else "Y", "IsICP": "Y" if kind == "company" else "N",
            "AllowAdjFromChildren": "Y" if is_parent else "N",
            } | {names[name]: value for name, value in options.items()}


def make_zenith(folder, twin_folder):
    """Writes Zenith.app into `folder` and the same as Zenith.xml into `twin_folder`, each with
    Zenith.sec; without a profile, so years and periods are the usual."""
    words = {name: [without_french(row) for row in rows] for name, rows in (
        read_vocabularies(HERE / "vocabularies.txt")
        | read_vocabularies(HERE / "meridian_group.txt")
        | read_vocabularies(HERE / "zenith_words.txt")).items()}
    words["method"] = [[row[0], row[1], row[2], *row[4:]] for row in
                       read_vocabularies(HERE / "meridian_group.txt")["method"]]
    dimensions = make_dimensions(words)
    for dimension in dimensions.values():
        dimension.check()
    for path, file in [(folder / "Zenith.app", AppFile(",", "cp1252", mark=False)),
                       (twin_folder / "Zenith.xml", XmlFile())]:
        path.parent.mkdir(parents=True, exist_ok=True)
        write_metadata(file, words, dimensions)
        path.write_bytes(file.bytes())
        path.with_suffix(".sec").write_bytes(security(dimensions))


def without_french(row):
    return row[:2] + row[3:]


def make_dimensions(words):
    kinds = {"Account": partial(account_attributes, CUSTOM_TOPS), "Entity": entity_attributes,
             "Scenario": scenario_attributes}
    dimensions = {}
    for name in ["Account", "Entity", "Scenario", *CUSTOMS]:
        dimension = dimensions[name] = Dimension(name)
        attributes = older(kinds.get(name, custom_attributes))
        Planter(dimension, LANGUAGES, words, attributes).plant(
            read_outline(HERE / f"zenith_{name.lower()}.txt"))
    return dimensions


def security(dimensions):
    """One department for each class, besides those that see everything."""
    security_ = Security(classes_of(dimensions))
    security_.add("admin@Native Directory", ["Application Administrator", "Load System"],
                  dict.fromkeys(security_.classes, "All"))
    security_.add("Rechnungswesen@ZENITH", ["Default", "Consolidate"],
                  dict.fromkeys(security_.classes, "Promote") | {"Personnel": "Metadata"})
    for department, name in [("Vertrieb", "Sales"), ("Fertigung Süd", "Production"),
                             ("Kasse", "Treasury"), ("Büro der Leitung", "Corporate"),
                             ("Personal", "Personnel")]:
        security_.add(f"{department}@ZENITH", ["Default"], {"[Default]": "Read", name: "All"})
    return security_.bytes(",", "cp1252")


def write_metadata(file, words, dimensions):
    file.section("FILE_FORMAT", "4.1")
    file.section("APPLICATION_SETTINGS")
    file.line("DefaultCurrency=EUR")
    file.line("ConsolidationRules=Y")
    columns = {"Account": ACCOUNT_COLUMNS, "Entity": ENTITY_COLUMNS, "Scenario": SCENARIO_COLUMNS}
    for name in ["Account", *CUSTOMS, "Entity", "Scenario"]:
        dimension = dimensions[name]
        shorter = [column for column in columns.get(name, CUSTOM_COLUMNS)
                   if column not in LONGER_FORM]
        file.members(dimension, shorter, with_comment=False)
        file.hierarchy(dimension, with_weights=name in CUSTOMS)
    write_methods(file, LANGUAGES, words)
    write_currencies(file, LANGUAGES, words)
