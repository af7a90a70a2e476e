"""Opens the sample drawings, of the usual rules and the exact ones, in other programs: they must find every entity
where it was written."""

import itertools
import math
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

import ezdxf
from osgeo import gdal, ogr

from lote import CONFIG, JOBS, PROGRAM, SAMPLES


def plain(text):
    """A text with the characters that its codes stand for. GDAL replaces them itself."""
    return text and re.sub(r"\\U\+(\w{4})", lambda code: chr(int(code[1], 16)), text).replace("^ ", "^")


def in_ezdxf(file):
    document = ezdxf.readfile(file)
    auditor = document.audit()
    assert not auditor.errors and not auditor.fixes, file
    points = {"LINE": lambda e: [e.dxf.start, e.dxf.end], "TEXT": lambda e: [e.dxf.insert], "LWPOLYLINE": list,
              "ARC": lambda e: [e.start_point, e.end_point]}
    low, high = document.header["$EXTMIN"], document.header["$EXTMAX"]
    for e in document.modelspace():
        kind = e.dxftype()
        places = points[kind](e)
        assert all(low[i] - 1e-9 <= p[i] <= high[i] + 1e-9 for p in places for i in (0, 1)), (file, e)
        yield e.dxf.handle, kind, places, e.dxf.text if kind == "TEXT" else None


def in_gdal(file):
    kinds = {"AcDbLine": "LINE", "AcDbText": "TEXT", "AcDbPolyline": "LWPOLYLINE", "AcDbArc": "ARC"}
    gdal.ErrorReset()
    source = ogr.Open(str(file))
    for e in source.GetLayer():
        kind, points = kinds[e.GetField("SubClasses").split(":")[-1]], e.GetGeometryRef().GetPoints()
        points = [points[-1], points[0]] if kind == "ARC" else points
        yield e.GetField("EntityHandle"), kind, points, e.GetField("Text")
    assert not gdal.GetLastErrorMsg(), (file, gdal.GetLastErrorMsg())


class Readers(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        """Drawings of the usual rules in German, of the exact ones in Chinese: both write letters beyond ASCII."""
        cls.folder = pathlib.Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        for exact, language in enumerate(("GERMAN", "CHINESE")):
            (cls.folder / "ini").write_text(CONFIG % (language, 1, exact))
            subprocess.run([PROGRAM, SAMPLES, "--config", cls.folder / "ini", "--out", cls.folder / language],
                           check=True, stdout=subprocess.DEVNULL, timeout=60)
        cls.files = sorted(cls.folder.glob("*/*.dxf"))
        assert len(cls.files) == 2 * len(JOBS)

    def test_ezdxf_and_gdal(self):
        """Both find every entity, and each the same."""
        for file in self.files:
            found = list(in_ezdxf(file))
            entities = file.read_bytes().split(b"ENTITIES")[1]
            handles = [str(500 + i) for i in range(entities.count(b"AcDbEntity"))]
            self.assertEqual([handle for handle, *_ in found], handles, file)
            for (*head, points, text), (*other_head, other_points, other_text) in zip(
                    found, in_gdal(file), strict=True):
                self.assertEqual((*head, plain(text)), (*other_head, plain(other_text)), file)
                for p, q in zip(points, other_points, strict=True):
                    self.assertLess(max(abs(p[0] - q[0]), abs(p[1] - q[1])), 1e-9, (file, head))

    def test_template(self):
        """Its handles are below those of the drawing, and every pointer has its object."""
        lines = list(map(str.strip, (PROGRAM.parent / "Template/Template.dxf").read_text("cp1252").split("\n")))
        pairs = list(zip(lines[::2], lines[1::2]))
        header, body = (pairs[i:j] for i, j in itertools.pairwise((0, pairs.index(("2", "TABLES")), None)))
        self.assertGreater(int(header[header.index(("9", "$HANDSEED")) + 1][1], 16), 0x32767)
        handles = [int(value, 16) for code, value in body if code in ("5", "105")]
        self.assertEqual(len(handles), len(set(handles)))
        self.assertTrue(0 < min(handles) and max(handles) < 0x500)
        pointers = {int(value, 16) for code, value in body if code in ("330", "340", "350", "360", "390")}
        self.assertLessEqual(pointers, {0, *handles})


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
