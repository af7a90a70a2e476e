"""Sheets of the sample lists, read back and held against cut files and report by an outside library."""

import itertools
import json
import signal
import subprocess
import sys
import time
import unittest

import ezdxf
from osgeo import ogr

from lote import Batch, CONFIG, JOBS, PROGRAM, SAMPLES

GAP, MARGIN, DIGITS = 5, 10, 1e-5  # millimetres; what coordinates of a file are rounded by


def polygons(file, layer="CUT"):
    for e in ezdxf.readfile(file).modelspace().query(f'LWPOLYLINE[layer=="{layer}"]'):
        ring = ogr.Geometry(ogr.wkbLinearRing)
        points = [p[:2] for p in e]
        for p in points + points[:1]:
            ring.AddPoint_2D(*p)
        polygon = ogr.Geometry(ogr.wkbPolygon)
        polygon.AddGeometry(ring)
        yield polygon


class Sheets(Batch):
    def command(self, jobs, *options):
        config, file = self.folder / "ini", self.folder / "jobs.json"
        config.write_text(CONFIG % ("ENGLISH", 0, 1))
        file.write_text(json.dumps(jobs))
        report = self.folder / "report.json"
        return [PROGRAM, file, "--config", config, "--out", self.folder, "--report", report, *options]

    def lay(self, jobs, *options):
        run = subprocess.run(self.command(jobs, "--rounds", "2", *options), capture_output=True, text=True, timeout=120)
        report = self.folder / "report.json"
        return run, json.loads(report.read_text()) if report.exists() else {}

    def test_all_parts_lie_on_sheets_apart_from_each_other(self):
        jobs = json.loads((SAMPLES.parent / "nest-everyday-20.json").read_text())
        jobs[0]["thickness"] = 3
        run, report = self.lay(jobs, "--sheet", "3000x1500", "--sheet", "2500x1250", "--cut")
        self.assertEqual(run.returncode, 0, run.stderr + run.stdout)
        quantity = {j["name"]: j["quantity"] for j in jobs}
        wanted = sorted(round(p.GetArea(), 2) for s in report["shapes"]
                        for p in polygons(self.folder / s["file"]) for _ in range(quantity[s["piece"]]))
        laid = []
        for sheet in report["sheets"]:
            file = self.folder / sheet["file"]
            document = ezdxf.readfile(file)
            self.assertFalse(document.audit().errors or document.audit().fixes, file)
            self.assertEqual((document.layers.get("SHEET").dxf.color, document.header["$INSUNITS"]), (8, 4))
            self.assertTrue(document.modelspace().query('LINE[layer=="MARK"]'))
            self.assertTrue(document.modelspace().query('LINE[layer=="BEND_UP" | layer=="BEND_DOWN"]'))
            rim, = polygons(file, "SHEET")
            self.assertEqual(rim.GetEnvelope(), (0, 2500, 0, 1250))
            parts = list(polygons(file))
            for part in parts:
                x0, x1, y0, y1 = part.GetEnvelope()
                self.assertTrue(min(x0, y0) >= MARGIN - DIGITS and x1 <= 2490 + DIGITS and y1 <= 1240 + DIGITS)
            for one, other in itertools.combinations(parts, 2):
                self.assertGreater(one.Distance(other), GAP - DIGITS)
            areas = [p.GetArea() for p in parts]
            self.assertAlmostEqual(sheet["use"], 100 * sum(areas) / rim.GetArea(), 2)
            self.assertAlmostEqual(sheet["cut_length"], sum(p.Boundary().Length() for p in parts), 2)
            self.assertEqual(sheet["parts"], len(parts))
            self.assertTrue(file.with_suffix(".png").read_bytes().startswith(b"\x89PNG"))
            laid += [round(a, 2) for a in areas]
        self.assertEqual(sorted(laid), wanted)
        self.assertEqual({s["thickness"] for s in report["sheets"]}, {2, 3})
        first = [(self.folder / s["file"]).read_bytes() for s in report["sheets"]]
        (self.folder / "sheet-99.dxf").touch()
        run, _ = self.lay(jobs, "--sheet", "2500x1250", "--jobs", "1")
        self.assertTrue(run.stderr.strip().endswith(": sheet-99.dxf"), run.stderr)
        self.assertEqual([(self.folder / s["file"]).read_bytes() for s in report["sheets"]], first)

    def test_stock_and_what_finds_no_sheet(self):
        stock = self.folder / "stock.json"
        stock.write_text('[{"size": "1200x1000", "count": 1, "thickness": 2}, {"size": "1000x800", "count": 2}]')
        big = dict(JOBS[6], name="big")
        run, report = self.lay([dict(JOBS[0], quantity=3), big, dict(JOBS[4], thickness=3, quantity=9)],
                               "--stock", stock)
        self.assertEqual(run.returncode, 1, run.stderr)
        sizes = {(s["width"], s["height"], s["thickness"]) for s in report["sheets"]}
        self.assertLessEqual(sizes, {(1200, 1000, 2), (1000, 800, 2), (1000, 800, 3)})
        self.assertLessEqual(sum(s["width"] == 1000 for s in report["sheets"]), 2)
        self.assertEqual({f["reason"] for f in report["left_out"] if f["piece"] == "big"}, {"larger than any sheet"})
        self.assertIn("big: left out 1 of ", run.stdout)
        laid, lost = sum(s["parts"] for s in report["sheets"]), sum(f["quantity"] for f in report["left_out"])
        self.assertEqual(laid + lost, sum({"hood-400": 3, "big": 1}.get(s["piece"], 9) for s in report["shapes"]))
        stock.write_text('[{"size": "1200x"}]')
        run, _ = self.lay(JOBS[:1], "--stock", stock)
        self.assertEqual((run.returncode, run.stdout), (2, ""))
        self.assertIn("entry 1 size must be", run.stderr)

    def test_bad_jobs_and_options_are_told(self):
        jobs = [dict(JOBS[0], quantity=0), dict(JOBS[1], quantity=1.5), dict(JOBS[2], thickness=-1),
                dict(JOBS[3], name="Sheet-7"), dict(JOBS[4], thickness="0.8")]
        (self.folder / "sheet-1.dxf").mkdir()
        run, report = self.lay(jobs, "--sheet", "2500x1250")
        answers = [line.split(": ")[1].split(" (")[0] for line in run.stdout.splitlines()]
        self.assertEqual(answers[:4], ["refused quantity"] * 2 + ["refused thickness", "refused name"])
        self.assertEqual([answers[4].split()[0], *answers[5:]], ["ok", "refused sheet"])
        left = report["left_out"]
        self.assertEqual([f["reason"].split(": ")[0] for f in left[:4]], answers[:4])
        self.assertEqual([f["shape"] for f in left], [""] * 4 + [s["shape"] for s in report["shapes"] if "shape" in s])
        for options in (["--sheet", "2500"], ["--turn", "77"], ["--check"], ["--shard", "1/2"], ["--gap", "-1"],
                        ["--margin", "nan"], ["--seconds", "nan"]):
            self.assertEqual(self.lay(jobs, "--sheet", "9x9", *options)[0].returncode, 2, options)
        self.assertIn("--gap requires --sheet", self.lay(jobs, "--gap", "5")[0].stderr)

    def interrupted(self, command, after, seconds):
        with subprocess.Popen(command, stdout=subprocess.PIPE, text=True) as run:
            next(line for line in run.stdout if line.startswith(after))
            time.sleep(seconds)
            run.send_signal(signal.SIGINT)
            answers = run.stdout.read()
            self.assertEqual(run.wait(60), 128 + signal.SIGINT)
        return answers, json.loads((self.folder / "report.json").read_text())

    def test_an_interrupt_keeps_the_best(self):
        jobs = [dict(job, thickness=1 + i % 3) for i, job in enumerate(JOBS[:6])]
        command = self.command(jobs, "--sheet", "2500x1250", "--seconds", "600")
        answers, report = self.interrupted(command, jobs[-1]["name"], 1)
        self.assertIn("sheet-1: ok", answers)
        self.assertEqual(sum(s["parts"] for s in report["sheets"]), len(report["shapes"]))
        self.assertEqual({s["thickness"] for s in report["sheets"]}, {1, 2, 3})

    def test_an_interrupt_ends_the_writing(self):
        command = self.command([dict(JOBS[0], quantity=300)], "--sheet", "1200x1000", "--rounds", "0")
        answers, report = self.interrupted(command, "sheet-2: ok", 0)
        self.assertIn("refused sheet: stopped before\n", answers)
        files = sorted(p.name for p in self.folder.glob("sheet-*.dxf"))
        self.assertEqual(files, sorted(s["file"] for s in report["sheets"]))
        laid, lost = sum(s["parts"] for s in report["sheets"]), sum(f["quantity"] for f in report["left_out"])
        self.assertEqual(laid + lost, 300 * len(report["shapes"]))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
