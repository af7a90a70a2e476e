"""What the tests of duktores-batch share. They are called as NAME_test.py PROGRAM SAMPLES LIBRARY, where
LIBRARY lets single calls fail; "none" if the build isn't the hardened one."""

import json
import pathlib
import shutil
import sys
import tempfile
import unittest

PROGRAM, SAMPLES = (pathlib.Path(p).resolve() for p in sys.argv[1:3])
LIBRARY = sys.argv[3]
JOBS = json.loads(SAMPLES.read_bytes())
CONFIG = ("[LANGUAGE]\nLanguage=%s\n[UNIT]\nUnit=0\n[DUCT]\nThickness=2\nSizetxt=10\nFiber=2\nBendColour=3\n"
          "Dimensions=%d\nBox=1\nDensity=7.85\nExact=%d\n")


class Batch(unittest.TestCase):
    """Each test has a folder of its own."""

    DISK = None

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(dir=self.DISK))
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
