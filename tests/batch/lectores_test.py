"""Opens the sample drawings, of the usual rules and the exact ones, in other programs: they must find every entity
where it was written. Usage: lectores_test.py PROGRAM SAMPLES"""

import collections
import itertools
import json
import math
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import zlib

import ezdxf

try:
    from osgeo import gdal, ogr
except ImportError:
    gdal = ogr = None

PROGRAM, SAMPLES = (pathlib.Path(p).resolve() for p in sys.argv[1:3])
JOBS = json.loads(SAMPLES.read_bytes())
PIECES = {job["piece"]: job["name"] for job in reversed(JOBS)}.values()  # a sample of each
CELL, SCALE = 16, (567 / 12 + 433 / 9) / 2  # dots; LibreCAD's page for the drawings is 567 by 433, or 12 by 9 mm
CONFIG = ("[LANGUAGE]\nLanguage=%s\n[UNIT]\nUnit=0\n[DUCT]\nThickness=2\nSizetxt=10\nFiber=2\nBendColour=3\n"
          "Dimensions=1\nBox=1\nDensity=7.85\nExact=%d\n")


def written(file):
    """The entities of a file by the plain pairs of its lines: handle, type, points (an arc's ends), text."""
    lines = file.read_bytes().decode("cp1252").split("\r\n")
    pairs = list(zip(map(str.strip, lines[::2]), lines[1::2]))
    start = pairs.index(("2", "ENTITIES")) + 1
    pairs = pairs[start:pairs.index(("0", "ENDSEC"), start)]
    starts = [i for i, (code, _) in enumerate(pairs) if code == "0"]
    for i, j in itertools.pairwise([*starts, len(pairs)]):
        values = collections.defaultdict(list)
        for code, value in pairs[i:j]:
            values[code].append(value)
        [kind], points = values["0"], [tuple(map(float, p)) for p in zip(values["10"], values["20"])]
        if kind == "LINE":
            points += [tuple(map(float, p)) for p in zip(values["11"], values["21"])]
        if kind == "ARC":
            (x, y), radius = points[0], float(values["40"][0])
            angles = [math.radians(float(values[code][0])) for code in ("50", "51")]
            points = [(x + radius * math.cos(a), y + radius * math.sin(a)) for a in angles]
        yield values["5"][0], kind, points, values["1"][0] if kind == "TEXT" else None


def plain(text):
    """A text with the characters that its codes stand for. The readers leave some of them as they are."""
    return text and re.sub(r"\\U\+(\w{4})", lambda code: chr(int(code[1], 16)), text).replace("^ ", "^")


def in_ezdxf(file):
    document = ezdxf.readfile(file)
    auditor = document.audit()
    assert not auditor.errors and not auditor.fixes, file
    points = {"LINE": lambda e: [e.dxf.start, e.dxf.end], "TEXT": lambda e: [e.dxf.insert], "LWPOLYLINE": list,
              "ARC": lambda e: [e.start_point, e.end_point]}
    for e in document.modelspace():
        kind = e.dxftype()
        yield e.dxf.handle, kind, points[kind](e), e.dxf.text if kind == "TEXT" else None


def in_gdal(file):
    kinds = {"AcDbLine": "LINE", "AcDbText": "TEXT", "AcDbPolyline": "LWPOLYLINE", "AcDbArc": "ARC"}
    gdal.ErrorReset()
    source = ogr.Open(str(file))
    for e in source.GetLayer():
        kind, points = kinds[e.GetField("SubClasses").split(":")[-1]], e.GetGeometryRef().GetPoints()
        points = [points[-1], points[0]] if kind == "ARC" else points
        yield e.GetField("EntityHandle"), kind, points, e.GetField("Text")
    assert not gdal.GetLastErrorMsg(), (file, gdal.GetLastErrorMsg())


def in_librecad(files, folder):
    """The straight strokes of each file's page, in dots, as they start in cells of the page."""
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "HOME": str(folder), "XDG_RUNTIME_DIR": str(folder)}
    subprocess.run(["librecad", "dxf2pdf", "-s", "1", "-t", folder, *files], env=environment, capture_output=True,
                   check=True, timeout=120)
    for file in files:
        pdf = (folder / (file.stem + ".pdf")).read_bytes()
        page = max((zlib.decompress(s) for s in re.findall(rb"(?<=stream\n)x.*?(?=endstream)", pdf, re.S)), key=len)
        strokes = collections.defaultdict(list)
        for stroke in re.findall(rb"(-?\d+) (-?\d+) m\n(-?\d+) (-?\d+) l\nS\n", page):
            x, y, *end = map(int, stroke)
            strokes[x // CELL, y // CELL].append((x, y, *end))
        yield strokes


class Readers(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        """Drawings of the usual rules in German, of the exact ones in Chinese: both write letters beyond ASCII."""
        cls.folder = pathlib.Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        for exact, language in enumerate(("GERMAN", "CHINESE")):
            (cls.folder / "ini").write_text(CONFIG % (language, exact))
            subprocess.run([PROGRAM, SAMPLES, "--config", cls.folder / "ini", "--out", cls.folder / language],
                           check=True, stdout=subprocess.DEVNULL, timeout=60)
        cls.files = sorted(cls.folder.glob("*/*.dxf"))
        assert len(cls.files) == 2 * len(JOBS)

    def expect_as_written(self, file, found):
        expected = list(written(file))
        self.assertEqual(len(found), len(expected), file)
        for (handle, kind, points, text), seen in zip(expected, found):
            self.assertEqual((*seen[:2], plain(seen[3])), (handle, kind, plain(text)), file)
            self.assertEqual(len(seen[2]), len(points), (file, handle))
            for p, q in zip(points, seen[2]):
                self.assertLess(max(abs(p[0] - q[0]), abs(p[1] - q[1])), 1e-9, (file, handle))

    def test_ezdxf(self):
        for file in self.files:
            self.expect_as_written(file, list(in_ezdxf(file)))

    @unittest.skipUnless(ogr, "not here: GDAL")
    def test_gdal(self):
        for file in self.files:
            self.expect_as_written(file, list(in_gdal(file)))

    @unittest.skipUnless(shutil.which("librecad"), "not here: LibreCAD")
    def test_librecad(self):
        """Its converter draws a sample of each piece: every line stands to scale among its strokes."""
        files = [self.folder / "GERMAN" / (name + ".dxf") for name in PIECES]
        for file, strokes in zip(files, in_librecad(files, self.folder)):
            shapes = [points for _, kind, points, _ in written(file) if kind in ("LINE", "LWPOLYLINE")]
            (x, y), (left, top, *_) = shapes[0][0], next(iter(strokes.values()))[0]
            for p, q in itertools.chain(*map(itertools.pairwise, shapes)):
                if math.dist(p, q) < 0.1:
                    continue  # less than a stroke
                line = [v for px, py in (p, q) for v in (left + SCALE * (px - x), top - SCALE * (py - y))]
                cells = itertools.product(*([int(v // CELL) + d for d in (-1, 0, 1)] for v in line[:2]))
                away = min((math.dist(stroke, line) for cell in cells for stroke in strokes[cell]), default=math.inf)
                self.assertLess(away, 4, (file, p, q))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
