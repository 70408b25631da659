"""Who works with Meridian: the group's departments, and each country's finance and controlling."""

from .security import Security, classes_of

EVERYBODY = {"[Default]": "Read"}
STATEMENTS = ["SC_BS", "SC_PNL", "SC_CF", "SC_NOTES", "SC_KPI"]


def meridian_security(dimensions):
    security = Security(classes_of(dimensions))
    add_group(security)
    for country in sorted(countries_of(dimensions["Entity"])):
        add_country(security, country)
    return security.bytes(";", "utf-16-le", mark=True)


def countries_of(entities):
    """A company's first text is its country."""
    return {member.attributes["UserDefined1"] for member in entities.in_tree_order()
            if member.attributes.get("SecurityClass") == "SC_" + member.attributes.get(
                "UserDefined1", "")}


def add_group(security):
    def all_with(right, **others):
        return dict.fromkeys(security.classes, right) | others

    security.add("admin@Native Directory",
                 ["Application Administrator", "Provisioning Manager"], all_with("All"))
    security.add("Group Consolidation@Native Directory",
                 ["Default", "Consolidate All", "Journals Administrator", "Review Supervisor"],
                 all_with("All"))
    security.add("interface@erp.alderbrook.example@Native Directory", ["Load System"],
                 EVERYBODY | dict.fromkeys(STATEMENTS, "All"))
    security.add("Everyone", ["Default"], {"[Default]": "Metadata"})
    security.add("Group Audit@Alderbrook", ["Default"], all_with("Read", SC_HR="None"))
    security.add("Group Tax@Alderbrook", ["Default", "Consolidate"],
                 EVERYBODY | dict.fromkeys(STATEMENTS, "Read") | {"SC_TAX": "All"})
    security.add("Treasury@Alderbrook", ["Default"],
                 EVERYBODY | {"SC_BS": "Read", "SC_CF": "Promote", "SC_TREASURY": "All"})
    security.add("Personnel@Alderbrook", ["Default"],
                 EVERYBODY | {"SC_PNL": "Metadata", "SC_HR": "All"})
    security.add("Investor Relations@Alderbrook", ["Default"],
                 EVERYBODY | dict.fromkeys(STATEMENTS, "Metadata") | {"SC_KPI": "Read"})


def add_country(security, country):
    """Finance enters the country's figures and promotes them; controlling reads them."""
    security.add(f"Finance {country}@Alderbrook", ["Default", "Intercompany Transaction User"],
                 EVERYBODY | dict.fromkeys(STATEMENTS, "Promote") | {"SC_ICP": "Promote",
                                                                     f"SC_{country}": "All"})
    security.add(f"Controlling {country}@Alderbrook", ["Default"],
                 EVERYBODY | dict.fromkeys(STATEMENTS, "Read") | {f"SC_{country}": "Read",
                                                                  "SC_HR": "None"})
