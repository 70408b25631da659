"""Meridian: an application of real size, as an extract in the current layout writes it."""

from functools import partial
from pathlib import Path

from .app_file import AppFile, described
from .attributes import (ACCOUNT_COLUMNS, CUSTOM_COLUMNS, ENTITY_COLUMNS, SCENARIO_COLUMNS,
                         account_attributes, custom_attributes, scenario_attributes)
from .lists import write_currencies, write_methods
from .meridian_entities import Companies
from .meridian_security import meridian_security
from .model import Dimension
from .outline import Planter, read_outline, read_vocabularies
from .profile import profile_bytes

HERE = Path(__file__).parent
LANGUAGES = ["English", "French", "German"]
CUSTOMS = ["Movement", "Product", "Market", "CostCenter"]
CUSTOM_TOPS = {"m": ("CLO", "[None]", "[None]", "[None]"),
               "p": ("[None]", "ALL_PRODUCTS", "ALL_MARKETS", "[None]"),
               "q": ("[None]", "ALL_PRODUCTS", "[None]", "[None]"),
               "c": ("[None]", "[None]", "[None]", "ALL_CC"),
               "-": ("[None]", "[None]", "[None]", "[None]")}


def make_meridian(folder):
    """Writes Meridian.app, Meridian.profile and Meridian.sec into `folder`."""
    words = read_vocabularies(HERE / "vocabularies.txt") | read_vocabularies(
        HERE / "meridian_group.txt")
    dimensions = make_dimensions(words)
    for dimension in dimensions.values():
        dimension.check()
    folder.mkdir(parents=True, exist_ok=True)
    (folder / "Meridian.app").write_bytes(metadata(words, dimensions))
    (folder / "Meridian.sec").write_bytes(meridian_security(dimensions))
    (folder / "Meridian.profile").write_bytes(
        profile_bytes(HERE / "meridian_profile.txt", LANGUAGES, ";", "utf-16-le", mark=True))


def make_dimensions(words):
    dimensions = {"Entity": Companies(LANGUAGES, words).plant()}
    kinds = {"Account": partial(account_attributes, CUSTOM_TOPS), "Scenario": scenario_attributes}
    for name in ["Account", "Scenario", *CUSTOMS]:
        dimension = dimensions[name] = Dimension(name)
        planter = Planter(dimension, LANGUAGES, words, kinds.get(name, custom_attributes))
        planter.plant(read_outline(HERE / f"meridian_{name.lower()}.txt"))
    return dimensions


def metadata(words, dimensions):
    file = AppFile(";", "utf-8", mark=True)
    file.section("FILE_FORMAT", "11.12")
    file.section("VERSION", "11.1.5033")
    file.section("CUSTOM_ORDER", ";".join(CUSTOMS))
    write_settings(file)
    write_currencies(file, LANGUAGES, words)
    write_methods(file, LANGUAGES, words)
    columns = {"Account": ACCOUNT_COLUMNS, "Entity": ENTITY_COLUMNS, "Scenario": SCENARIO_COLUMNS}
    for name in ["Scenario", "Entity", *CUSTOMS, "Account"]:
        dimension = dimensions[name]
        file.members(dimension, columns.get(name, CUSTOM_COLUMNS))
        file.hierarchy(dimension, with_weights=name in CUSTOMS)
    write_value_and_icp(file)
    return file.bytes()


def write_settings(file):
    file.section("APPLICATION_SETTINGS")
    for setting in ["DefaultCurrency=EUR", "DefaultRateForBalanceAccounts=RATE CLO",
                    "DefaultRateForFlowAccounts=RATE AVG", "DefaultValueForActive=1",
                    "ConsolidationRules=Y", "OrgByPeriodApplication=N",
                    "UsePVAForBalanceAccounts=N", "UsePVAForFlowAccounts=Y",
                    "NodeSecurity=Entity", "ICPEntitiesAggregationWeight=1",
                    "EnableMetadataSecurityFiltering=N", "UseSecurityForAccounts=Y",
                    "UseSecurityForEntities=Y", "UseSecurityForScenarios=Y"]:
        file.line(setting)


def write_value_and_icp(file):
    file.section("MEMBERS", "Value")
    file.columns("Label", "Descriptions")
    for label, *texts in [
            ("<Entity Currency>", "Entity currency", "Devise de l'entité", "Währung der Einheit"),
            ("<Parent Currency>", "Parent currency", "Devise de la mère", "Währung der Mutter"),
            ("[Proportion]", "Proportion", "Quote-part", "Anteil"),
            ("[Elimination]", "Elimination", "Élimination", "Eliminierung"),
            ("[Contribution]", "Contribution", "Contribution", "Beitrag")]:
        file.record(label, *described(dict(zip(LANGUAGES, texts))))
    file.section("MEMBERS", "ICP")
    file.columns("Label", "SecurityClass", "Descriptions")
    for label, *texts in [
            ("[ICP Top]", "All partners", "Tous les partenaires", "Alle Partner"),
            ("[ICP None]", "No partner", "Sans partenaire", "Ohne Partner"),
            ("[ICP Entities]", "Entities", "Entités", "Einheiten")]:
        file.record(label, "SC_ICP", *described(dict(zip(LANGUAGES, texts))))
