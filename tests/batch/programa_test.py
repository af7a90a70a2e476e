"""Runs the installed duktores-batch as a user would. Usage: programa_test.py PROGRAM SAMPLES"""

import collections
import itertools
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

import ezdxf
import ezdxf.bbox

PROGRAM, SAMPLES = (pathlib.Path(p).resolve() for p in sys.argv[1:3])
GOOD = {"name": "good", "piece": "TransCR", "H": 300, "RS": 100, "LI": 400, "AI": "400", "AX": 0, "AY": 0,
        "Alfa": 0, "Divisions": 12, "Start": 1, "Pieces": 1}
CONFIG = ("[LANGUAGE]\nLanguage={3}\n[UNIT]\nUnit={2[0]}\n[DUCT]\nThickness={2[1]}\nSizetxt=10\nFiber={4}\n"
          "BendColour=3\nDimensions={0}\nBox={1}\nDensity=7.85\n")
CASES = list(itertools.product((0, 1), (0, 1), ((0, 1, "mm"), (1, 0.04, "in")), (
    "SPANISH", "ENGLISH", "GERMAN", "FRENCH", "PORTUGUESE", "BASQUE", "CHINESE"), (1, 2, 3)))


def sizes(job):
    """Vertices, numbers and inner lines of the outlines of a job."""
    n = job["Divisions"]
    if "Pieces" not in job:
        panels = {"TransEsp2": 2, "TransEsp3": 3}.get(job["piece"], 4)
        return 4 * [(18 * n + 4, n // 4 + 1, n // 4 - 1)] + panels * [(6, 4, 0)]
    return [(n + 10, 2 * n + 17, n + 7)] if job["Pieces"] == 1 else 2 * [(n // 2 + 7, n + 9, n // 2 + 3)]


def in_inches(job):
    """The same shape at about the same size."""
    return {key: value if key in ("name", "piece", "Divisions", "Start", "Pieces", "Alfa", "Beta") else value / 25
            for key, value in job.items()}


def kind(entity):
    return entity.dxftype(), entity.dxf.color


def shapes(entities):
    """Outlines and frames of title blocks, each with what is drawn after it."""
    frame = "LINE", 7
    starts = [i for i, e in enumerate(entities)
              if e.dxftype() == "LWPOLYLINE" or kind(e) == frame != kind(entities[i - 1])]
    return [entities[i:j] for i, j in itertools.pairwise([*starts, None])]


class Batch(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)

    def run_batch(self, jobs, *options, program=PROGRAM, out=None):
        text = jobs if isinstance(jobs, bytes) else json.dumps(jobs).encode()
        command = [program, "-", "--out", out or self.folder / "out", *options]
        return subprocess.run(command, input=text, capture_output=True, timeout=120)

    def installation(self, template=None, config=None):
        """A copy of the installation whose data files may be spoiled (None: as they are; False: missing)."""
        root = self.folder / "root"
        shutil.copytree(PROGRAM.parent.parent, root, dirs_exist_ok=True)
        for file, content in (("Duct/Template/Template.dxf", template), ("Config/Config.ini", config)):
            if content is False:
                (root / file).unlink()
            elif content is not None:
                (root / file).write_bytes(content)
        return root / "Duct" / PROGRAM.name

    def written(self):
        return sorted(p.name for p in (self.folder / "out").glob("*"))

    def test_samples_open_in_an_outside_reader(self):
        jobs = json.loads(SAMPLES.read_bytes())
        result = self.run_batch(jobs)
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        self.assertEqual([line.split(":")[0] for line in result.stdout.decode().splitlines()], [j["name"] for j in jobs])
        for job in jobs:
            self.expect_sound(job)

    def expect_sound(self, job, dimensions=1, box=1, unit="mm"):
        """Without fault to an outside reader, side by side, and with a row in its title block for every number."""
        document = ezdxf.readfile(self.folder / "out" / (job["name"] + ".dxf"))
        auditor = document.audit()
        self.assertEqual((auditor.errors, auditor.fixes), ([], []), job)
        drawn = shapes(list(document.modelspace()))
        boxes = [ezdxf.bbox.extents([e for e in shape if e.dxftype() != "TEXT"], fast=True) for shape in drawn]
        for left, right in itertools.pairwise(boxes):
            self.assertLess(left.extmax.x, right.extmin.x, job)
        found = []
        for piece, block in zip(drawn[::1 + box], drawn[1::2] if box else itertools.repeat([])):
            outline, kinds, block_kinds = piece[0], *(collections.Counter(map(kind, s)) for s in (piece, block))
            numbers = [int(e.dxf.text) for e in piece if kind(e) == ("TEXT", 1)]
            rows = [re.fullmatch(rf"(\d+)  \d+(\.\d+)?( {unit})?", e.dxf.text) for e in block if kind(e) == ("TEXT", 7)]
            self.assertEqual(outline[0], outline[-1], job)
            self.assertEqual(numbers, list(range(1, len(numbers) + 1)), job)
            self.assertEqual([int(row[1]) for row in rows if row], box * numbers, job)
            self.assertEqual((kinds["LINE", 7], block_kinds["LINE", 7], block_kinds["LINE", 4]), (0, 7 * box, 0), job)
            self.assertEqual(min(kinds["LINE", 4], kinds["TEXT", 4], 1), dimensions, job)
            found.append((len(outline), len(numbers), kinds["LINE", 3] + kinds["LINE", 6]))
        self.assertEqual(sorted(found), sorted(sizes(job)), job)

    def test_every_configuration(self):
        """Draws every piece. The outside reader takes each with every mix of dimensions, block and unit."""
        jobs = {job["piece"]: job for job in reversed(json.loads(SAMPLES.read_bytes()))}.values()
        jobs = {"mm": list(jobs), "in": [in_inches(job) for job in jobs]}
        ini, drawings = self.folder / "any.ini", set()
        for i, (dimensions, box, unit, *words) in enumerate(CASES):
            ini.write_text(CONFIG.format(dimensions, box, unit, *words))
            result = self.run_batch(jobs[unit[2]], "--config", ini)
            self.assertEqual(result.returncode, 0, (CASES[i], result.stdout))
            for k, job in enumerate(jobs[unit[2]]):
                text = (self.folder / "out" / (job["name"] + ".dxf")).read_bytes()
                drawings |= {text} if box else set()
                counts = [text.count(mark) for mark in (b"AcDbPolyline", b" 62\r\n7\r\n100\r\nAcDbLine")]
                self.assertEqual(counts, [len(sizes(job)), 7 * box * len(sizes(job))], (CASES[i], job))
                self.assertEqual(b" 62\r\n4\r\n" in text, dimensions == 1, (CASES[i], job))
                if (i + k) % 16 == 0:
                    self.expect_sound(job, dimensions, box, unit[2])
        self.assertEqual(len(drawings), 8 * len(CASES) // 2, "every setting shows where there is a title block")

    def test_same_bytes_from_one_thread_and_from_many(self):
        jobs = json.loads(SAMPLES.read_bytes())
        for threads in ("1", "4"):
            self.run_batch(jobs, "--jobs", threads, out=self.folder / threads)
        for job in jobs:
            first, second = ((self.folder / t / (job["name"] + ".dxf")).read_bytes() for t in ("1", "4"))
            self.assertEqual(first, second, job["name"])

    def test_picks_place_the_pieces(self):
        self.run_batch([{**GOOD, "Pieces": 2, "picks": [[1000, 0], [3000, 40], [0, 2000], [4000, 50]]}])
        drawing = ezdxf.readfile(self.folder / "out/good.dxf").modelspace()
        first, second = drawing.query("LWPOLYLINE")
        self.assertAlmostEqual(first[6][0], 1000)  # the top of the cut stands above the picked point
        self.assertAlmostEqual(second[0][0], 0)
        self.assertAlmostEqual(second[-3][1], 2000)
        frames = drawing.query("LINE[color==7]")[::7]
        self.assertEqual([tuple(line.dxf.start) for line in frames], [(3000, 40, 0), (4000, 50, 0)])

    def test_refused_jobs_say_why_and_the_others_are_written(self):
        cases = [({"RS": -5}, 'RS: "-5" can'), ({"RS": 1.234}, 'RS: "1.234"'), ({"H": "3x"}, 'H: "3x"'),
                 ({"Color": 1}, 'Color: "Color" is no key'), ({"RI": 1}, "RI:"), ({"Divisions": 13}, "Divisions:"),
                 ({"Pieces": 3}, "Pieces:"), ({"H": ""}, "H: Introduzca todos los datos"),
                 ({"H": 0}, "H: Dato erróneo"), ({"Alfa": "3-"}, "Alfa: Dato erróneo"),
                 ({"H": "9" * 400}, "H: Dato erróneo"), ({"H": "9" * 300}, "piece:"),
                 ({"Pieces": 2, "picks": [[0, 0]]}, "picks: pick 2"), ({"piece": "Cube"}, "piece:")]
        jobs = [{**GOOD, "name": f"bad{i}", **change} for i, (change, _) in enumerate(cases)] + [GOOD]
        result = self.run_batch(jobs)
        self.assertEqual(result.returncode, 1)
        lines = result.stdout.decode().splitlines()
        self.assertEqual(len(lines), len(jobs))
        for i, (_, reason) in enumerate(cases):
            self.assertTrue(lines[i].startswith(f"bad{i}: refused {reason}"), lines[i])
        self.assertEqual(self.written(), ["good.dxf"])

    def test_nothing_done(self):
        blocker = self.folder / "file"
        blocker.write_text("")
        for result, reason in (
            (self.run_batch(b"[{"), "no job list"),
            (self.run_batch([GOOD], "--colour"), "--colour"),
            (self.run_batch([GOOD], "--config", "/nowhere/x.ini"), "/nowhere/x.ini"),
            (self.run_batch([GOOD], out=blocker / "out"), "output folder"),
            (self.run_batch([GOOD], program=self.installation(template=False)), "Template.dxf"),
            (self.run_batch([GOOD], program=self.installation(template=b"  0\r\nEOF\r\n")), "Template.dxf"),
        ):
            self.assertEqual(result.returncode, 2, reason)
            self.assertIn(reason, result.stderr.decode())
            self.assertEqual(result.stdout, b"")
        self.assertEqual(self.written(), [])

    def test_a_configuration_without_a_fibre_makes_no_drawing(self):
        for config in (False, os.urandom(5000), b"[DUCT]\r\nFiber=" + b"9" * 5000, b"\x00" * 100):
            result = self.run_batch([GOOD], program=self.installation(config=config))
            self.assertEqual((result.returncode, self.written()), (2, []))
            self.assertIn("Fiber" if config else "Config.ini", result.stderr.decode())

    def test_a_pattern_that_is_not_true_is_told_or_refused(self):
        """The usual rules spoil the sharp corners of this piece; developed exactly it is true."""
        jobs = [GOOD, {"name": "bad", "piece": "TransEsp3", "H": 320, "R": 90, "LX": 480, "LY": 300, "AX": 20, "AY": 10,
                       "Alfa": 0, "Beta": 0, "Divisions": 8}]
        out = self.folder / "out"
        config = self.folder / "exact.ini"
        config.write_text((PROGRAM.parent.parent / "Config/Config.ini").read_text().replace("Exact=0", "Exact=1"))
        for options, code, answer in (((), 0, f"bad: ok {out}/bad.dxf, warning: ATENCIÓN, desarrollo falso: Esquina 1"),
                                      (("--strict",), 1, "bad: refused pattern: ATENCIÓN, desarrollo falso: Esquina 1"),
                                      (("--strict", "--config", config), 0, f"bad: ok {out}/bad.dxf")):
            shutil.rmtree(out, ignore_errors=True)
            result = self.run_batch(jobs, *options)
            lines = result.stdout.decode().splitlines()
            self.assertEqual((result.returncode, lines[0]), (code, f"good: ok {out}/good.dxf"))
            self.assertTrue(lines[1].startswith(answer), lines[1])
            self.assertEqual("warning" in lines[1], options == ())
            self.assertEqual((out / "bad.dxf").exists(), code == 0)

    def test_check_writes_nothing(self):
        result = self.run_batch([GOOD, {**GOOD, "name": "bad", "H": 0}], "--check")
        self.assertEqual((result.returncode, result.stdout.decode().splitlines()[0]), (1, "good: ok"))
        self.assertEqual(self.written(), [])

    def test_pictures(self):
        result = self.run_batch([GOOD], "--png", "--svg", "--pdf")
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        out = self.folder / "out"
        self.assertEqual(self.written(), ["good.dxf", "good.pdf", "good.png", "good.svg"])
        self.assertTrue((out / "good.png").read_bytes().startswith(b"\x89PNG"))
        self.assertTrue((out / "good.pdf").read_bytes().startswith(b"%PDF"))
        self.assertIn(b"</svg>", (out / "good.svg").read_bytes())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
