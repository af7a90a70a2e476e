"""Runs the installed duktores-batch as a user would. Usage: programa_test.py PROGRAM SAMPLES"""

import collections
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

import ezdxf

PROGRAM, SAMPLES = (pathlib.Path(p).resolve() for p in sys.argv[1:3])
GOOD = {"name": "good", "piece": "TransCR", "H": 300, "RS": 100, "LI": 400, "AI": "400", "AX": 0, "AY": 0,
        "Alfa": 0, "Divisions": 12, "Start": 1, "Pieces": 1}


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
            document = ezdxf.readfile(self.folder / "out" / (job["name"] + ".dxf"))
            auditor = document.audit()
            self.assertEqual((auditor.errors, auditor.fixes), ([], []), job["name"])
            counts = collections.Counter(e.dxftype() for e in document.modelspace())
            for outline in document.modelspace().query("LWPOLYLINE"):
                self.assertEqual(outline[0], outline[-1], job["name"])
            if "Pieces" not in job:  # a special piece: four corners, and a panel with four numbers and four dimensions a side
                panels = counts["LWPOLYLINE"] - 4
                self.assertEqual((0 <= panels <= 4, counts["TEXT"]), (True, 8 * panels), job["name"])
                continue
            whole, N = job["Pieces"] == 1, job["Divisions"]
            self.assertEqual([len(outline) for outline in document.modelspace().query("LWPOLYLINE")],
                             [N + 10] if whole else 2 * [N // 2 + 7], job["name"])
            self.assertEqual((counts["TEXT"], counts["LINE"]), (2 * N + 17, N + 7) if whole else (2 * N + 18, N + 6))
        hood = ezdxf.readfile(self.folder / "out/hood-400.dxf").modelspace()
        boxes = [[v[0] for v in p] for p in hood.query("LWPOLYLINE")]
        self.assertLess(max(boxes[0]), min(boxes[1]), "two pieces placed by the program lie apart")

    def test_same_bytes_from_one_thread_and_from_many(self):
        jobs = json.loads(SAMPLES.read_bytes())
        for threads in ("1", "4"):
            self.run_batch(jobs, "--jobs", threads, out=self.folder / threads)
        for job in jobs:
            first, second = ((self.folder / t / (job["name"] + ".dxf")).read_bytes() for t in ("1", "4"))
            self.assertEqual(first, second, job["name"])

    def test_picks_place_the_pieces(self):
        self.run_batch([{**GOOD, "Pieces": 2, "picks": [[1000, 0], [0, 2000]]}])
        first, second = ezdxf.readfile(self.folder / "out/good.dxf").modelspace().query("LWPOLYLINE")
        self.assertAlmostEqual(first[6][0], 1000)  # the top of the cut stands above the picked point
        self.assertAlmostEqual(second[0][0], 0)
        self.assertAlmostEqual(second[-3][1], 2000)

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
            self.assertIn("Fiber", result.stderr.decode())

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

    @unittest.skipIf(os.geteuid() != 0, "mounting a full disk needs root")
    def test_a_full_disk_leaves_no_part_of_a_file(self):
        disk = self.folder / "out"
        disk.mkdir()
        if subprocess.run(["mount", "-t", "tmpfs", "-o", "size=12k", "tmpfs", disk], capture_output=True).returncode:
            self.skipTest("no tmpfs here")
        self.addCleanup(subprocess.run, ["umount", disk])
        (disk / "good.dxf").write_text("old")
        result = self.run_batch([GOOD])
        self.assertEqual(result.returncode, 1)
        self.assertIn("good: refused name:", result.stdout.decode())
        self.assertEqual([(p.name, p.read_text()) for p in disk.glob("*")], [("good.dxf", "old")])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
