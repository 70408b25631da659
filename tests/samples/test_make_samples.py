"""The sample applications in the tree are what make_samples.py makes, byte for byte."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SAMPLES = Path(__file__).resolve().parents[2] / "samples"
MADE = ["Alderbrook-XML/Zenith.sec", "Alderbrook-XML/Zenith.xml",
        "Alderbrook/Meridian/Meridian.app", "Alderbrook/Meridian/Meridian.profile",
        "Alderbrook/Meridian/Meridian.sec", "Alderbrook/Zenith.app", "Alderbrook/Zenith.sec"]


class MakeSamples(unittest.TestCase):
    def test_the_files_in_the_tree_are_those_the_script_makes(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, SAMPLES / "make_samples.py", folder], check=True)
            made = sorted(path.relative_to(folder).as_posix()
                          for path in Path(folder).rglob("*") if path.is_file())
            self.assertEqual(made, MADE)
            for name in MADE:
                # Not assertEqual: it would print both files.
                self.assertTrue((Path(folder) / name).read_bytes()
                                == (SAMPLES / name).read_bytes(), name)


if __name__ == "__main__":
    unittest.main()
