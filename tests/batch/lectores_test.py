"""Opens the sample drawings, of the usual rules and the exact ones, in other programs: they must find every entity
where it was written; and measures drawings on paper."""

import itertools
import json
import math
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree

import ezdxf
from osgeo import gdal, ogr

from lote import CONFIG, JOBS, PROGRAM, SAMPLES, Batch


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


def on_paper(file):
    """Width and height of an SVG picture, and the lengths of all lines in it, in millimetres."""
    svg = xml.etree.ElementTree.parse(file).getroot()
    width, unit = re.fullmatch(r"([\d.]+)(\w+)", svg.get("width")).groups()
    _, _, *box = map(float, svg.get("viewBox").split())
    scale, lengths = {"mm": 1, "in": 25.4, "pt": 25.4 / 72}[unit] * float(width) / box[0], []
    for group, line in ((group, line) for group in svg.iter() for line in group):
        numbers = [float(n) for n in re.findall(r"-?[\d.]+(?:e-?\d+)?", line.get("points") or line.get("d") or "")]
        points = [complex(x, y) for x, y in zip(numbers[::2], numbers[1::2])]
        turns = [re.match(r"matrix\(([^, ]+)", e.get("transform") or "matrix(1") for e in (group, line)]
        lengths += [scale * math.prod(float(t[1]) for t in turns) * abs(q - p) for p, q in zip(points, points[1:])]
    return [scale * side for side in box], lengths


class Paper(Batch):
    def test_as_large_as_the_drawing_is(self):
        """Sides of 400 mm, far from the origin too, where a page outgrows the 14,400 points that PDF has."""
        job = {"piece": "TransCR", "AX": 0, "AY": 0, "Alfa": 0, "Divisions": 12, "Start": 1, "Pieces": 2}
        far = [[0, 0], [2000, 0], [9000.125, 20000.375], [12000, 30000]]
        for unit, inch, bar in ((0, 25.4, 100), (1, 1, 101.6)):
            (self.folder / "ini").write_text((CONFIG % ("ENGLISH", 1, 0)).replace("Unit=0", f"Unit={unit}"))
            side = round(800 * inch / 25.4 + 2, 3)  # less the sheet's thickness
            sizes = {"H": 20, "RS": 10, "LI": side, "AI": side}
            picks = [[x * inch / 25.4, y * inch / 25.4] for x, y in far]
            (self.folder / "jobs").write_text(json.dumps([
                {**job, **sizes, "name": "near"}, {**job, **sizes, "name": "far", "picks": picks}]))
            subprocess.run([PROGRAM, self.folder / "jobs", "--config", self.folder / "ini", "--out", self.folder,
                            "--svg", "--pdf"], check=True, stdout=subprocess.DEVNULL, timeout=60)
            for name in ("near", "far"):
                svg, pdf, seen = (self.folder / (name + end) for end in (".svg", ".pdf", "-seen.svg"))
                subprocess.run(["pdftocairo", "-svg", "-noshrink", pdf, seen], check=True, timeout=60)
                user_unit = float(re.search(rb"/UserUnit ([\d.]+)", pdf.read_bytes())[1])
                self.assertEqual(user_unit > 1, unit == 1 or name == "far")
                (page, in_svg), (points, in_pdf) = on_paper(svg), on_paper(seen)
                for want in (400, bar, 670 * 25.4 / inch, 750 * 25.4 / inch):
                    self.assertLess(min(abs(v - want) for v in in_svg), 2e-3 + 1e-5 * want, (name, want))
                    # pdftocairo has a few digits only.
                    slack = 0.008 * user_unit + 1e-5 * want
                    self.assertLess(min(abs(user_unit * v - want) for v in in_pdf), slack, (name, want))
                for a, b in zip(page, points):
                    self.assertAlmostEqual(user_unit * b, a, delta=2)
                self.assertLessEqual(max(points), 14400 * 25.4 / 72 + 0.01)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
