"""Meridian's entities: who owns whom, who manages whom, and where everyone is."""

from zlib import crc32

from .model import Dimension, Member


class Companies:
    """Plants the legal hierarchy, then the management and the regional one over the same members,
    and a list of all intercompany partners."""

    def __init__(self, languages, words):
        self.entities = Dimension("Entity")
        self._languages = languages
        self._words = words
        self._countries = {row[0]: row for row in words["country"]}
        self._named = dict(words["named"])
        self._by_activity = {}
        self._by_country = {}
        self._joint_ventures = []

    def plant(self):
        self._add("[None]", "", ["", "", ""], IsICP="N", AllowAdjFromChildren="Y")
        self._plant_legal_view()
        self._plant_management_view()
        self._plant_regional_view()
        self._plant_partner_list()
        return self.entities

    def _add(self, label, parent, texts, **attributes):
        attributes = {"AllowAdjs": "Y"} | attributes
        self.entities.add(Member(label, attributes, dict(zip(self._languages, texts))), parent)

    def _add_parent(self, label, parent, texts, currency="EUR", security="SC_CORP", **attributes):
        self._add(label, parent, texts, DefCurrency=currency, IsICP="N", AllowAdjFromChildren="Y",
                  SecurityClass=security, **attributes)

    def _add_company(self, label, parent, texts, country, **attributes):
        since = 1975 + crc32(label.encode()) % 48
        partner = {"SecurityAsPartner": "SC_ICP"} if attributes.get("IsICP", "Y") == "Y" else {}
        self._add(label, parent, texts, **{
            "DefCurrency": self._countries[country][4], "IsICP": "Y", "AllowAdjFromChildren": "N",
            "SecurityClass": f"SC_{country}", "UserDefined1": country,
            "UserDefined3": f"since {since}" if since % 4 else ""} | partner | attributes)

    def _plant_legal_view(self):
        self._add_parent("ALDERBROOK", "", ["Alderbrook Group", "Groupe Alderbrook",
                                            "Alderbrook-Konzern"], HoldingCompany="HOLDCO")
        for label, name in [("HOLDCO", "Alderbrook Holding N.V."),
                            ("FINCO", "Alderbrook Finance B.V."),
                            ("RE-CO", "Alderbrook Reinsurance B.V.")]:
            self._add_company(label, "ALDERBROOK", [name] * 3, "NL", UserDefined2="HQ")
            self._by_country.setdefault("NL", []).append(label)
        for number, division in enumerate(self._words["division"], start=1):
            self._plant_division(number, *division)

    def _plant_division(self, number, code, brand, label, _, countries):
        holding = f"{code}_HOLD"
        self._add_parent(label, "ALDERBROOK", [brand, brand, brand], HoldingCompany=holding,
                         UserDefined2=code)
        self._add_company(holding, label, [f"{brand} Holding B.V."] * 3, "NL", UserDefined2="HQ")
        self._by_country.setdefault("NL", []).append(holding)
        for country in countries.split():
            self._plant_subgroup(number, code, brand, label, country)

    def _plant_subgroup(self, number, code, brand, division, country):
        _, english, french, german, currency, form, _, cities = self._countries[country]
        cities = cities.split(", ")
        subgroup = f"{code}_{country}"
        count = min(4 + crc32(subgroup.encode()) % 6, 3 * len(cities))
        names = [self._company_label(country, number, i) for i in range(count)]
        self._add_parent(subgroup, division, [f"{brand}, {english}", f"{brand}, {french}",
                                              f"{brand}, {german}"],
                         currency, f"SC_{country}", HoldingCompany=names[0], UserDefined1=country,
                         UserDefined2=code)
        self._by_country.setdefault(country, []).append(subgroup)
        for i, label in enumerate(names):
            activity = self._words["activity"][(number - 1) * 3 + i % 3]
            city = cities[(i // 3 + number) % len(cities)]
            name = f"{brand.split()[0]} {activity[1]} {city} {form}"
            self._plant_company(label, subgroup, name, country, activity[0], i)

    def _company_label(self, country, division, position):
        code = f"{country}{division}{position + 1:02}"
        if (position + division) % 9 == 8:
            return f"{code}-JV"
        return self._named.pop(code, code)

    def _plant_company(self, label, subgroup, name, country, activity, position):
        self._by_activity.setdefault(activity, []).append(label)
        if label.endswith("-JV"):
            self._joint_ventures.append(label)
            self._add_company(label, subgroup, [f"{name} (50%)", f"{name} (50 %)",
                                                f"{name} (50 %)"], country, UserDefined2=activity)
        elif position and crc32(label.encode()) % 5 == 0:
            self._plant_units(label, subgroup, name, country, activity)
        else:
            self._add_company(label, subgroup, [name] * 3, country, UserDefined2=activity)

    def _plant_units(self, label, subgroup, name, country, activity):
        self._add_parent(label, subgroup, [name] * 3, self._countries[country][4],
                         f"SC_{country}", UserDefined1=country, UserDefined2=activity)
        for code, *texts in self._words["unit"][:3 + crc32(name.encode()) % 3]:
            is_partner = "N" if code == "WH" else "Y"
            self._add_company(f"{label}_{code}", label, [f"{name}, {text}" for text in texts],
                              country, UserDefined2=activity, IsICP=is_partner)

    def _plant_management_view(self):
        top = "Management View"
        self._add_parent(top, "", ["Management view", "Vue de gestion", "Führungssicht"])
        for code, *texts in self._words["area"]:
            self._add_parent(code, top, texts)
            for division in self._words["division"]:
                if division[3] == code:
                    self._plant_business_lines(division[0], code)
            self._add(f"ADJ-{code}", code,
                      [f"Management adjustments, {texts[0]}", f"Ajustements de gestion, {texts[1]}",
                       f"Führungsanpassungen, {texts[2]}"],
                      DefCurrency="EUR", IsICP="N", AllowAdjFromChildren="N",
                      SecurityClass="SC_CORP", UserDefined2="ADJ")
        self._add_parent("HEADOFFICE", top, ["Head office", "Siège", "Zentrale"])
        for label in ["HOLDCO", "FINCO", "RE-CO"] + [f"{division[0]}_HOLD"
                                                     for division in self._words["division"]]:
            self.entities.share(label, "HEADOFFICE")
        self._add_parent("JV & associates", top, ["Joint ventures, across the areas",
                                                  "Coentreprises, tous domaines",
                                                  "Gemeinschaftsunternehmen, alle Bereiche"])
        for label in self._joint_ventures:
            self.entities.share(label, "JV & associates")

    def _plant_business_lines(self, division, area):
        for code, *texts in self._words["activity"]:
            if code.startswith(division):
                self._add_parent(code, area, texts, UserDefined2=code)
                for label in self._by_activity[code]:
                    self.entities.share(label, code)

    def _plant_regional_view(self):
        self._add_parent("GEO", "", ["Regions", "Régions", "Regionen"])
        for region, *texts in self._words["region"]:
            self._add_parent(f"GEO_R{region}", "GEO", texts)
            for country in self._words["country"]:
                if country[6] == region:
                    self._plant_country(country, f"GEO_R{region}")

    def _plant_country(self, country, region):
        code, *texts = country[:4]
        self._add_parent(f"GEO_{code}", region, texts, country[4], f"SC_{code}", UserDefined1=code)
        for label in self._by_country[code]:
            self.entities.share(label, f"GEO_{code}")

    def _plant_partner_list(self):
        self._add_parent("IC-LIST", "", ["All intercompany partners",
                                         "Tous les partenaires intragroupe",
                                         "Alle Konzernpartner"], security="SC_ICP")
        for member in list(self.entities.members.values()):
            if member.attributes["IsICP"] == "Y":
                self.entities.share(member.label, "IC-LIST")
        if self._named:
            raise ValueError(f"no such companies: {self._named}")
