"""The sections that are made of vocabularies alone."""

from .app_file import described


def write_currencies(file, languages, words):
    file.section("CURRENCIES")
    file.columns("Label", "Scale", "TranslationOperator", "DisplayInICT", "Descriptions")
    for label, *texts in words["currency"]:
        file.record(label, "0", "", "Y", *described(dict(zip(languages, texts))))


def write_methods(file, languages, words):
    file.section("CONSOLIDATION_METHODS")
    file.columns("Label", "UsedByCalcRoutine", "IsHoldingMethod", "ToPercentControlComp",
                 "ToPercentControl", "PercentConsol", "Control", "Descriptions")
    for label, fields, *texts in words["method"]:
        file.record(label, *fields.split(), *described(dict(zip(languages, texts))))
