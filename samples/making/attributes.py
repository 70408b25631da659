"""The columns of an extract, and what the kinds of members in the outlines have in them."""

# For each kind of account: type, consolidated, intercompany, top members of the customs.
ACCOUNT_KINDS = {
    "group": ("GROUPLABEL", "N", "N", "-"),
    "asset": ("ASSET", "Y", "N", "m"),
    "assetic": ("ASSET", "Y", "R", "m"),
    "liability": ("LIABILITY", "Y", "N", "m"),
    "liabilityic": ("LIABILITY", "Y", "R", "m"),
    "revenue": ("REVENUE", "Y", "N", "-"),
    "revenueic": ("REVENUE", "Y", "R", "-"),
    "sales": ("REVENUE", "Y", "N", "p"),
    "expense": ("EXPENSE", "Y", "N", "-"),
    "expenseic": ("EXPENSE", "Y", "R", "-"),
    "cogs": ("EXPENSE", "Y", "N", "q"),
    "cost": ("EXPENSE", "Y", "N", "c"),
    "flow": ("FLOW", "Y", "N", "-"),
    "flowic": ("FLOW", "Y", "R", "-"),
    "balance": ("BALANCE", "Y", "N", "-"),
    "check": ("BALANCE", "N", "N", "-"),
    "plug": ("ASSET", "Y", "Y", "m"),
    "nonfin": ("BALANCERECURRING", "Y", "N", "-"),
    "volume": ("FLOW", "Y", "N", "p"),
    "staff": ("BALANCERECURRING", "Y", "N", "c"),
    "ratio": ("DYNAMIC", "N", "N", "-"),
    "rate": ("CURRENCYRATE", "N", "N", "-"),
    "text": ("TEXT", "N", "N", "-"),
    "active": ("BALANCERECURRING", "N", "Y", "-"),
    "system": ("BALANCE", "N", "Y", "-"),
}
OPTIONS = {"sc": "SecurityClass", "u1": "UserDefined1", "u2": "UserDefined2",
           "u3": "UserDefined3", "x": "XBRLTags", "plug": "PlugAcct", "d": "NumDecimalPlaces"}

ACCOUNT_COLUMNS = (["Label", "AccountType", "IsCalculated", "IsConsolidated", "IsICP", "PlugAcct"]
                   + [f"Custom{k}TopMember" for k in range(1, 5)]
                   + ["NumDecimalPlaces", "UsesLineItems"]
                   + [f"EnableCustom{k}Aggr" for k in range(1, 5)]
                   + ["UserDefined1", "UserDefined2", "UserDefined3", "XBRLTags", "SecurityClass",
                      "ICPTopMember", "EnableDataAudit", "CalcAttribute", "SubmissionGroup"])
CUSTOM_COLUMNS = ["Label", "IsCalculated", "SwitchSignForFlow", "SwitchTypeForFlow",
                  "UserDefined1", "UserDefined2", "UserDefined3", "SecurityClass",
                  "SubmissionGroup"]
ENTITY_COLUMNS = ["Label", "DefCurrency", "AllowAdjs", "IsICP", "AllowAdjFromChildren",
                  "SecurityClass", "UserDefined1", "UserDefined2", "UserDefined3",
                  "HoldingCompany", "SecurityAsPartner"]
SCENARIO_COLUMNS = ["Label", "DefaultFreq", "DefaultView", "ZeroViewForNonadj", "ZeroViewForAdj",
                    "ConsolidateYTD", "UserDefined1", "UserDefined2", "UserDefined3",
                    "SupportsProcessManagement", "SecurityClass", "MaximumReviewLevel",
                    "UsesLineItems", "EnableDataAudit", "DefFreqForICTrans", "PhasedSubStartYear"]
LONGER_FORM = {"CalcAttribute", "SubmissionGroup", "DefFreqForICTrans", "PhasedSubStartYear"}


def account_attributes(custom_tops, kind, options, is_parent):
    """`custom_tops` gives the top members of Custom1 to Custom4 by the letter of a kind."""
    account_type, consolidated, partners, tops = ACCOUNT_KINDS[kind]
    attributes = {"AccountType": account_type, "IsConsolidated": consolidated, "IsICP": partners,
                  "IsCalculated": "Y" if is_parent or kind in ("ratio", "check") else "N",
                  "NumDecimalPlaces": "1" if kind == "ratio" else "6" if kind == "rate" else "0",
                  "UsesLineItems": "Y" if kind == "cost" else "N",
                  "ICPTopMember": "[ICP None]" if partners == "N" else "[ICP Top]",
                  "EnableDataAudit": "Y" if consolidated == "Y" and not is_parent else "N",
                  "SubmissionGroup": "0" if is_parent else "1"}
    for k, top in enumerate(custom_tops[tops], start=1):
        attributes[f"Custom{k}TopMember"] = top
        attributes[f"EnableCustom{k}Aggr"] = "N" if top == "[None]" else "Y"
    if kind == "ratio":
        attributes["CalcAttribute"] = "Calculated in Sub Dynamic"
    return attributes | {OPTIONS[name]: value for name, value in options.items()}


def custom_attributes(kind, options, is_parent):
    attributes = {"IsCalculated": "Y" if kind in ("sum", "calc") else "N",
                  "SwitchSignForFlow": "N", "SwitchTypeForFlow": "N",
                  "SubmissionGroup": "0" if is_parent else "1",
                  "weight": "0" if kind in ("", "memo") else "1"}
    return attributes | {OPTIONS[name]: value for name, value in options.items()}


def scenario_attributes(kind, options, is_parent):
    frequency, view, review = kind.split()
    return {"DefaultFreq": frequency, "DefaultView": view, "ZeroViewForNonadj": view,
            "ZeroViewForAdj": view, "ConsolidateYTD": "Y" if view == "YTD" else "N",
            "SupportsProcessManagement": "N" if review == "0" else "Y",
            "MaximumReviewLevel": review, "UsesLineItems": "Y", "EnableDataAudit": "Y",
            "DefFreqForICTrans": frequency, "PhasedSubStartYear": "2021",
            } | {OPTIONS[name]: value for name, value in options.items()}
