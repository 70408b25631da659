"""The counting script, on an application counted by hand and on small files of every kind."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
from count_app import Application, find_delimiter, read_sections  # noqa: E402

SAMPLES = Path(__file__).resolve().parents[2] / "samples"

SMALL = """!FILE_FORMAT=11.12
!MEMBERS=Entity
'Label;DefCurrency;AllowAdjs;IsICP;DefaultParent;Descriptions
TOP;;Y;N;DefaultParent=#root;French=Société
A;EUR;Y;Y;DefaultParent=TOP
B;EUR;Y;Y;DefaultParent=TOP
LONELY;EUR;Y;N;DefaultParent=#root
!HIERARCHIES=Entity
;TOP
TOP;A
A;B
TOP;B
TOP;B
"""


class CountApp(unittest.TestCase):
    def counts_of(self, text, encoding="utf-8", mark=False, profile=None):
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "Small.app"
            path.write_bytes((("\ufeff" if mark else "") + text).encode(encoding))
            if profile:
                path.with_suffix(".profile").write_text(profile, encoding="utf-8")
            return Application(path).counts()

    def test_comma_as_counted_by_hand(self):
        counts = Application(SAMPLES / "Alderbrook" / "Comma.app").counts()
        # members, nodes, distinct, base nodes, bases, parents, depth, rows
        self.assertEqual(counts["Entity"], (19, 30, 19, 21, 11, 8, 4, 30))
        # 35 accounts of the file, of which two once more below NET DEBT; 15 system accounts
        self.assertEqual(counts["Account"], (50, 52, 50, 41, 39, 11, 5, 52))
        # 6 movements, 4 currencies, 3 consolidation methods
        self.assertEqual(counts["Custom1"], (13, 13, 13, 12, 12, 1, 2, 13))
        # 6 products, 4 currencies
        self.assertEqual(counts["Custom2"], (10, 10, 10, 9, 9, 1, 2, 10))
        self.assertEqual(counts["Custom3"], (4, 4, 4, 3, 3, 1, 2, 4))
        self.assertEqual(counts["Custom4"], (1, 1, 1, 1, 1, 0, 1, 1))
        self.assertEqual(counts["Scenario"], (3, 3, 3, 3, 3, 0, 1, 3))
        self.assertEqual(counts["Year"], (4, 4, 4, 4, 4, 0, 1, 4))
        self.assertEqual(counts["Period"], (17, 17, 17, 12, 12, 5, 3, 17))
        self.assertEqual(counts["View"], (3, 3, 3, 3, 3, 0, 1, 3))
        self.assertEqual(counts["Value"], (27, 27, 27, 15, 15, 12, 9, 27))
        # [ICP Top], [ICP None], [ICP Entities] and nine partners
        self.assertEqual(counts["ICP"], (12, 12, 12, 10, 10, 2, 3, 12))

    def test_a_member_without_a_place_and_an_edge_written_twice(self):
        self.assertEqual(self.counts_of(SMALL)["Entity"], (4, 4, 3, 2, 1, 2, 3, 4))

    def test_every_encoding_counts_alike(self):
        expected = self.counts_of(SMALL)
        for encoding, mark in [("utf-8", True), ("utf-16-le", True), ("utf-16-le", False),
                               ("utf-16-be", True), ("utf-16-be", False), ("cp1252", False)]:
            self.assertEqual(self.counts_of(SMALL, encoding, mark), expected, encoding)

    def test_every_line_end_counts_alike(self):
        expected = self.counts_of(SMALL)
        for line_end in ["\r\n", "\r"]:
            self.assertEqual(self.counts_of(SMALL.replace("\n", line_end)), expected)

    def test_every_delimiter_is_found(self):
        for delimiter in ",~@$%^&|:?\\":
            with tempfile.TemporaryDirectory() as folder:
                path = Path(folder) / "Small.app"
                path.write_text(SMALL.replace(";", delimiter), encoding="utf-8")
                self.assertEqual(find_delimiter(list(read_sections(path))), delimiter)

    def test_custom_dimensions_go_by_their_order(self):
        text = ("!HIERARCHIES=Product\n;P;1\nP;Q;1\n!CUSTOM_ORDER = Movement;Product\n"
                "!CURRENCIES\nEUR;0\n!CONSOLIDATION_METHODS\nGLOBAL;Y;N;<=;100;100;No\n")
        counts = self.counts_of(text)
        self.assertEqual(counts["Custom1"].members, 3)  # [None], EUR, GLOBAL
        self.assertEqual(counts["Custom2"].members, 4)  # P, Q, [None], EUR

    def test_what_the_file_has_already_is_not_added(self):
        text = ("!MEMBERS=Account\n[Active];BALANCERECURRING;DefaultParent=#root\n"
                "PCON;BALANCE;DefaultParent=#root\n!HIERARCHIES=Account\n;[Active]\n;PCON\n"
                "!HIERARCHIES=Custom1\n;[NONE];1\n;eur;1\n!CURRENCIES\nEUR;0\n")
        counts = self.counts_of(text)
        self.assertEqual(counts["Account"].members, 15)
        self.assertEqual(counts["Custom1"].members, 2)

    def test_a_profile_replaces_the_usual_calendar(self):
        counts = self.counts_of(SMALL, profile="!MEMBERS=Year\n2024;DefaultParent=#root\n"
                                               "!HIERARCHIES=Year\n;2024\n")
        self.assertEqual(counts["Year"].members, 1)
        self.assertEqual(counts["Period"], (17, 17, 17, 12, 12, 5, 3, 17))

    def test_a_shared_parent_brings_its_subtree_along(self):
        edges = "!HIERARCHIES=Entity\n;T\nT;P\nP;A\nP;B\nT;Q\nQ;P\n"
        self.assertEqual(self.counts_of(edges)["Entity"], (5, 8, 5, 4, 2, 3, 4, 8))

    def test_a_deep_chain_is_counted_without_recursion(self):
        edges = "!HIERARCHIES=Entity\n;M0\n" + "".join(f"M{i};M{i + 1}\n" for i in range(20000))
        self.assertEqual(self.counts_of(edges)["Entity"].depth, 20001)

    def test_a_cycle_is_refused(self):
        with self.assertRaisesRegex(ValueError, "cycle"):
            self.counts_of("!HIERARCHIES=Entity\n;A\nA;B\nB;A\n")


if __name__ == "__main__":
    unittest.main()
