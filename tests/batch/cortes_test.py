"""Cut files, lists of bends and the report of the sample pieces, read back and held against the drawings: by the usual
rules and exactly, in millimetres and inches, as polylines and as lines and arcs."""

import csv
import itertools
import json
import math
import pathlib
import subprocess
import sys
import unittest

import ezdxf
import numpy
from osgeo import ogr

from lote import Batch, CONFIG, JOBS, PROGRAM, SAMPLES

STEP, TOLERANCE = 0.05, 0.02  # millimetres


def edges(ring):
    return zip(ring, ring[1:] + ring[:1])


def distances(points, ring):
    """From each point to the nearest of the closed ring."""
    points, a, b = (numpy.array(p, float) for p in (points, ring, ring[1:] + ring[:1]))
    u, v = b - a, points[:, None] - a
    t = numpy.clip((v * u).sum(2) / numpy.maximum((u * u).sum(1), 1e-300), 0, 1)
    return numpy.hypot(*numpy.moveaxis(v - t[:, :, None] * u, 2, 0)).min(1)


def arc_points(arc):
    angles = numpy.linspace(arc.dxf.start_angle, arc.dxf.end_angle + (arc.dxf.end_angle < arc.dxf.start_angle) * 360, 90)
    return [tuple(p)[:2] for p in arc.vertices(angles)]


def joined(steps):
    """One ring of lines and arcs that meet end to end, whatever their order and sense."""
    steps = [list(s) for s in steps]
    ring = steps.pop(0)
    while steps:
        near = [(math.dist(ring[-1], s[i]), s, i) for s in steps for i in (0, -1)]
        gap, step, end = min(near, key=lambda n: n[0])
        assert gap < 1e-5, gap
        steps.remove(step)
        ring += step[1:] if end == 0 else step[-2::-1]
    assert math.dist(ring[0], ring[-1]) < 1e-5
    return ring[:-1]


def outlines(drawing):
    """Those of a drawing, each moved to the corner of its box."""
    for e in ezdxf.readfile(drawing).modelspace().query("LWPOLYLINE"):
        points = [p[:2] for p in e]
        low = [min(p[i] for p in points) for i in (0, 1)]
        yield [(x - low[0], y - low[1]) for x, y in points]


class Cuts(Batch):
    def make(self, exact, *options, unit=0, machine=""):
        config = self.folder / "ini"
        config.write_text((CONFIG % ("ENGLISH", 0, exact)).replace("Unit=0", f"Unit={unit}") + "[MACHINE]\n" + machine)
        run = subprocess.run([PROGRAM, SAMPLES, "--config", config, "--out", self.folder, "--cut", "--bends", *options],
                             capture_output=True, text=True, timeout=120)
        self.assertIn(run.returncode, (0, 1), run.stderr)
        return dict(line.split(": ", 1) for line in run.stdout.splitlines())

    def parts(self, file, unit):
        """Rings, area and length of each, and its folds, all that there is in a file."""
        document = ezdxf.readfile(file)
        self.assertFalse(document.audit().errors or document.audit().fixes, file)
        self.assertEqual([document.header[n] for n in ("$INSUNITS", "$MEASUREMENT")], [1, 0] if unit else [4, 1])
        colours = {layer.dxf.name: (layer.dxf.color, layer.dxf.linetype.upper()) for layer in document.layers
                   if layer.dxf.name != "Defpoints"}  # the reader's own
        self.assertEqual(colours, {"0": (7, "CONTINUOUS"), "CUT": (7, "CONTINUOUS"), "BEND_UP": (3, "DASHED"),
                                   "BEND_DOWN": (3, "DASHED"), "MARK": (1, "CONTINUOUS")}, file)
        rings, steps, folds, marks = [], [], [], []
        for e in document.modelspace():
            kind, layer = e.dxftype(), e.dxf.layer
            self.assertIn((kind, layer), {("LWPOLYLINE", "CUT"), ("ARC", "CUT"), ("LINE", "CUT"), ("LINE", "MARK"),
                                          ("LINE", "BEND_UP"), ("LINE", "BEND_DOWN")}, file)
            if kind == "LWPOLYLINE":
                self.assertTrue(e.closed)
                rings.append([p[:2] for p in e])
            elif kind == "ARC" or layer == "CUT":
                steps.append(arc_points(e) if kind == "ARC" else [tuple(e.dxf.start)[:2], tuple(e.dxf.end)[:2]])
            else:
                line = (tuple(e.dxf.start)[:2], tuple(e.dxf.end)[:2])
                (marks if layer == "MARK" else folds).append((*line, layer))
        return rings + ([joined(steps)] if steps else []), folds, marks, document

    def check(self, file, true, row, bends, unit, polyline=True):
        millimetre, self.unit = (1 / 25.4, " in") if unit else (1, " mm")
        (ring,), folds, marks, document = self.parts(file, unit)
        polygon = ogr.CreateGeometryFromWkt("POLYGON((" + ",".join(f"{x} {y}" for x, y in ring + ring[:1]) + "))")
        self.assertTrue(polygon.IsValid(), file)
        area = sum(p[0] * q[1] - p[1] * q[0] for p, q in edges(ring)) / 2
        length = sum(math.dist(p, q) for p, q in edges(ring))
        self.assertGreater(area, 0)
        for i in (0, 1):
            self.assertAlmostEqual(min(p[i] for p in ring), 0, places=6 if polyline else 2)
            self.assertAlmostEqual(document.header["$EXTMAX"][i], max(p[i] for p in ring), places=6 if polyline else 2)
            self.assertAlmostEqual(max(p[i] for p in ring), max(p[i] for p in true), delta=TOLERANCE * millimetre)
        self.assertLess(max(distances(true, ring)), TOLERANCE * millimetre + 2e-6, file)
        self.assertLess(max(distances(ring, true)), 2e-6 if polyline else TOLERANCE * millimetre + 2e-6, file)
        scale = 1 if unit else 100
        self.assertAlmostEqual(row["area"] * scale, area, delta=1e-3 if polyline else 1e-4 * area)
        self.assertAlmostEqual(row["cut_length"], length, delta=1e-3 if polyline else 1e-3 * length)
        self.assertEqual(row["folds"], len(bends))
        box = sorted((row["width"], row["height"]))
        self.assertTrue(area < 1.000001 * box[0] * box[1] < 1.000002 * numpy.ptp(numpy.array(true), axis=0).prod(), file)
        if polyline:
            self.assertGreaterEqual(min(math.dist(p, q) for p, q in edges(ring)), STEP * millimetre, file)
            for p, q, layer in folds:
                self.assertTrue(p in ring and q in ring and p != q, file)
            self.assertEqual(len({frozenset(f[:2]) for f in folds}), len(folds), file)
            for (p, q, layer), line in zip(folds, bends, strict=True):
                numbers = [float(line[c + self.unit]) for c in ("x1", "y1", "x2", "y2")]
                self.assertEqual([*p, *q], numbers)
                self.assertEqual(layer, "BEND_" + line["direction"].upper())
                self.assertAlmostEqual(float(line["length" + self.unit]), math.dist(p, q), places=5)
        if marks:
            mark, fold = (ogr.CreateGeometryFromWkt("MULTILINESTRING(" + ",".join(
                f"({p[0]} {p[1]},{q[0]} {q[1]})" for p, q, _ in lines or [ring[:2] + [0]]) + ")") for lines in (marks, folds))
            self.assertTrue(polygon.Contains(mark), file)
            self.assertGreater(min(mark.Distance(fold), mark.Distance(polygon.Boundary())), 1.9 * millimetre, file)
        return len(marks) > 0

    def all_samples(self, exact, unit=0, machine="", polyline=True):
        """How many shapes bear a name, of how many."""
        answers = self.make(exact, "--report", self.folder / "report.json", unit=unit, machine=machine)
        report = json.loads((self.folder / "report.json").read_text())
        rows = {name: list(group) for name, group in itertools.groupby(report["shapes"], lambda row: row["piece"])}
        marked = 0
        for job in JOBS:
            name = job["name"]
            if "warning" in answers[name]:
                self.assertIn("No cut file", answers[name])
                self.assertEqual(list(self.folder.glob(name + "-[0-9]of[0-9].dxf")), [])
                continue
            true = list(outlines(self.folder / (name + ".dxf")))
            with open(self.folder / (name + "-bends.csv"), encoding="utf-8-sig", newline="") as file:
                bends = {key: list(group) for key, group in itertools.groupby(csv.DictReader(file), lambda b: b["file"])}
            for i, (row, outline) in enumerate(zip(rows[name], true, strict=True)):
                self.assertEqual(row["file"], f"{name}-{i + 1}of{len(true)}.dxf")
                marked += self.check(self.folder / row["file"], outline, row, bends.get(row["file"], []), unit,
                                     polyline)
        for sum_, column in (("area", "area"), ("cut_length", "cut_length"), ("weight", "weight"), ("folds", "folds")):
            self.assertAlmostEqual(report["sums"][sum_], sum(row[column] for row in report["shapes"]), delta=1e-3)
        return marked, len(report["shapes"])

    def test_exact_in_millimetres(self):
        marked, shapes = self.all_samples(1)
        self.assertGreater(marked, 0.9 * shapes)

    def test_usual_in_inches(self):
        self.all_samples(0, unit=1)

    def test_lines_and_arcs(self):
        self.all_samples(1, machine="Arcs=1\nBends=2\n", polyline=False)
        arcs = [sum(e.dxftype() == "ARC" for e in ezdxf.readfile(f).modelspace()) for f in self.folder.glob("*[0-9]of[0-9].dxf")]
        self.assertGreater(sum(arcs), 50)

    def batch(self, jobs, *options, machine=""):
        (self.folder / "jobs").write_text(json.dumps(jobs))
        (self.folder / "ini").write_text(CONFIG % ("ENGLISH", 0, 0) + "[MACHINE]\n" + machine)
        run = subprocess.run([PROGRAM, "jobs", "--config", "ini", "--out", "out", *options], cwd=self.folder,
                             capture_output=True, text=True, timeout=60)
        files = {f.name for f in self.folder.glob("out/*")}
        return run.returncode, run.stdout.splitlines(), files

    def test_bends_known_in_closed_form(self):
        """A square tube with rounded corners, four strips to each: a fold every 22.5 degrees, as long as it is high."""
        tube = {f"r{mouth}{corner}": 50 for mouth in (1, 2) for corner in (1, 2, 3, 4)}
        sides = dict.fromkeys(("LX1", "LY1", "LX2", "LY2"), 300)
        job = {"name": "tube", "piece": "TransEsp1", "H": 250, **tube, **sides, "AX": 0, "AY": 0, "Alfa": 0, "Beta": 0,
               "Divisions": 16}
        self.assertEqual(self.batch([job], "--exact", "--bends", "--comma")[0], 0)
        lines = (self.folder / "out/tube-bends.csv").read_text("utf-8-sig").splitlines()
        self.assertEqual(lines[0], "file;shape;number;length mm;angle;direction;x1 mm;y1 mm;x2 mm;y2 mm")
        self.assertEqual(len(lines), 1 + 4 * 3)
        for line in lines[1:]:
            self.assertEqual(line.split(";")[3:6], ["250", "22,5", "down"], line)

    def test_names(self):
        """Portable ones in the cut files, and no two files of one name."""
        def job(name):
            return {**JOBS[0], "name": name}
        status, answers, files = self.batch([job("H\u00f6he & so"), job("con"), job("tail."), job("=1")], "--cut", "--bends")
        self.assertEqual(status, 0)
        self.assertEqual(["system can store" in a for a in answers], [False, True, True, False])
        self.assertLessEqual({"Hohe___so-1of2.dxf", "_con-2of2.dxf", "tail.-1of2.dxf", "_1-bends.csv"}, files)
        clashes = [job("x"), job("X-1of2"), job("a b"), job("a_b"), job("y-cut"), job("z-3of2")]
        status, answers, _ = self.batch(clashes, "--cut")
        self.assertEqual([": refused name: " in a for a in answers], [False, True, True, True, False, False])
        self.assertEqual(self.batch(clashes)[0], 0)

    def test_false_patterns_and_parts_together(self):
        false = next(job for job in JOBS if job["piece"] == "TransEsp3")
        status, answers, files = self.batch([false], "--cut", "--report", "report.csv")
        self.assertTrue(status == 1 and files == {false["name"] + ".dxf"} and "No cut file" in answers[0])
        self.assertIn("WARNING", (self.folder / "report.csv").read_text("utf-8-sig"))
        status, answers, files = self.batch([false, JOBS[0]], "--cut", "--force", machine="Together=1\n")
        cut = JOBS[0]["name"] + "-cut.dxf"
        self.assertLessEqual({cut, false["name"] + "-cut.dxf"}, files)
        self.assertEqual(status, 0)
        rings, _, _, _ = self.parts(self.folder / "out" / cut, 0)
        self.assertGreater(min(p[0] for p in rings[1]), max(p[0] for p in rings[0]) + 9)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
