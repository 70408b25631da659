#!/usr/bin/env python3
"""Makes the larger applications of the sample cluster: Meridian and Zenith.

    make_samples.py [FOLDER]

writes them into FOLDER/Alderbrook, and Zenith in XML format into FOLDER/Alderbrook-XML. FOLDER is
samples where none is given. The same script always writes the same bytes. Comma, the small one, and Meridian's member lists are written by hand.
"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True

from making.meridian import make_meridian  # noqa: E402
from making.zenith import make_zenith  # noqa: E402

if __name__ == "__main__":
    FOLDER = Path(sys.argv[1] if sys.argv[1:] else Path(__file__).parent)
    make_meridian(FOLDER / "Alderbrook" / "Meridian")
    make_zenith(FOLDER / "Alderbrook", FOLDER / "Alderbrook-XML")
