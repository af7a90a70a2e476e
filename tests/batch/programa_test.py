"""Runs the installed duktores-batch as a user would."""

import itertools
import json
import os
import resource
import shutil
import subprocess
import sys
import unittest
import xml.etree.ElementTree

import ezdxf

from lote import JOBS, LIBRARY, PROGRAM, Batch

GOOD = {"name": "good", "piece": "TransCR", "H": 300, "RS": 100, "LI": 400, "AI": "400", "AX": 0, "AY": 0,
        "Alfa": 0, "Divisions": 12, "Start": 1, "Pieces": 1}
CONFIG = ("[LANGUAGE]\nLanguage={3}\n[UNIT]\nUnit={2[0]}\n[DUCT]\nThickness={2[1]}\nSizetxt=10\nFiber={4}\n"
          "BendColour=3\nDimensions={0}\nBox={1}\nDensity=7.85\n")
CASES = list(itertools.product((0, 1), (0, 1), ((0, 1), (1, 0.04)), (
    "SPANISH", "ENGLISH", "GERMAN", "FRENCH", "PORTUGUESE", "BASQUE", "CHINESE"), (1, 2, 3)))


class Program(Batch):
    def run_batch(self, jobs, *options, program=PROGRAM, out=None, **how):
        text = jobs if isinstance(jobs, bytes) else json.dumps(jobs).encode()
        command = [program, "-", "--out", out or self.folder / "out", *options]
        return subprocess.run(command, input=text, capture_output=True, timeout=120, **how)

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

    def test_every_configuration(self):
        """Draws every piece; each setting shows."""
        jobs = list({job["piece"]: job for job in reversed(JOBS)}.values())
        ini, drawings = self.folder / "any.ini", set()
        for dimensions, box, *words in CASES:
            ini.write_text(CONFIG.format(dimensions, box, *words))
            result = self.run_batch(jobs, "--config", ini)
            self.assertEqual(result.returncode, 0, (words, result.stdout))
            for job in jobs:
                text = (self.folder / "out" / (job["name"] + ".dxf")).read_bytes()
                drawings |= {text} if box else set()
                frames = 7 * box * text.count(b"AcDbPolyline")
                self.assertEqual(text.count(b" 62\r\n7\r\n100\r\nAcDbLine"), frames, (words, job))
                self.assertEqual(b" 62\r\n4\r\n" in text, dimensions == 1, (words, job))
        self.assertEqual(len(drawings), 8 * len(CASES) // 2, "every setting shows where there is a title block")

    def test_same_bytes_from_one_thread_and_from_many(self):
        for threads in ("1", "4"):
            self.run_batch(JOBS, "--jobs", threads, "--svg", "--png", out=self.folder / threads)
        for job in JOBS:
            for end in (".dxf", ".png", ".svg"):
                first, second = ((self.folder / t / (job["name"] + end)).read_bytes() for t in ("1", "4"))
                self.assertEqual(first, second, job["name"] + end)

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
                 ({"H": "9" * 33}, "H: H takes at most 32"),
                 ({"Pieces": 2, "picks": [[0, 0]]}, "picks: pick 2"), ({"piece": "Cube"}, "piece:")]
        jobs = [{**GOOD, "name": f"bad{i}", **change} for i, (change, _) in enumerate(cases)] + [GOOD]
        result = self.run_batch(jobs)
        self.assertEqual(result.returncode, 1)
        lines = result.stdout.decode().splitlines()
        self.assertEqual(len(lines), len(jobs))
        for i, (_, reason) in enumerate(cases):
            self.assertTrue(lines[i].startswith(f"bad{i}: refused {reason}"), lines[i])
        self.assertEqual(self.written(), ["good.dxf"])
        result = self.run_batch(jobs, "--check", out=self.folder / "none")
        self.assertEqual((result.returncode, result.stdout.decode().splitlines()[-1]), (1, "good: ok"))
        self.assertEqual(list(self.folder.glob("none/*")), [])

    def test_answers_are_lines_and_go_nowhere_else(self):
        jobs = [{**GOOD, "name": "a"}, {**GOOD, "name": "a-3d"}, {**GOOD, "name": "b", "X\nc: ok": 1}]
        lines = self.run_batch(jobs, "--png", "--svg", "--pdf", "--solid").stdout.decode().splitlines()
        self.assertEqual([": ".join(line.split(": ")[:2]) for line in lines],
                         [f"a: ok {self.folder}/out/a.dxf", "a-3d: refused name", "b: refused X c"])
        self.assertEqual(self.written(), [
            "a-3d.pdf", "a-3d.png", "a-3d.svg", "a.dxf", "a.pdf", "a.png", "a.svg"])
        for end, start in ((".png", b"\x89PNG"), (".pdf", b"%PDF"), (".svg", b"<?xml")):
            self.assertTrue((self.folder / "out" / ("a" + end)).read_bytes().startswith(start), end)
        drawing = (self.folder / "out/a.dxf").read_bytes()
        jobs = [{**GOOD, "name": str(i)} for i in range(100)]
        for stream, code in ((None, 0), ("/dev/full", 1)):
            def spoil():
                os.dup2(os.open(stream, os.O_WRONLY), 1) if stream else os.close(1)
            result = self.run_batch(jobs, out=self.folder / "spoilt", preexec_fn=spoil)
            self.assertEqual((result.returncode, b"answers" in result.stderr), (code, code == 1))
            for job in jobs:
                self.assertEqual((self.folder / "spoilt" / (job["name"] + ".dxf")).read_bytes(), drawing)

    def test_nothing_done(self):
        blocker = self.folder / "file"
        blocker.write_text("")
        for result, reason in (
            *((self.run_batch(text), "no job list") for text in (b"", b"[{", b"{}", b"[1,]")),
            (self.run_batch([GOOD], "--colour"), "--colour"),
            (self.run_batch([GOOD], "--config", "/nowhere/x.ini"), "/nowhere/x.ini"),
            (self.run_batch([GOOD], out=blocker / "out"), "output folder"),
            (self.run_batch([GOOD], program=self.installation(template=False)), "Template.dxf"),
            (self.run_batch([GOOD], program=self.installation(template=b"  0\r\nEOF\r\n")), "Template.dxf"),
            (self.run_batch([GOOD], "--max-list", "100b"), "--max-list"),
            (self.run_batch([GOOD], "--shard", "3/2"), "--shard"),
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

    def test_a_misspelt_key_is_told_and_no_start_for_the_strict(self):
        config = (PROGRAM.parent.parent / "Config/Config.ini").read_bytes().replace(b"Thickness", b"Thicknes")
        program = self.installation(config=config)
        for options, code in ((), 0), (("--strict",), 2):
            result = self.run_batch([GOOD], *options, program=program)
            self.assertEqual((result.returncode, bool(result.stdout)), (code, code == 0))
            self.assertIn("DUCT Thicknes=1: clave desconocida, vale: Thickness=0", result.stderr.decode())

    def test_a_template_with_a_hole_makes_no_drawing_that_does_not_open(self):
        program = self.installation()
        file = program.parent / "Template/Template.dxf"
        template = file.read_bytes()
        for start in range(0, len(template) - 512, len(template) // 48):
            for hole in (b"", bytes(512)):
                file.write_bytes(template[:start] + hole + template[start + 512:])
                result = self.run_batch([GOOD], program=program)
                if result.returncode == 2:
                    self.assertRegex(result.stderr.decode(), r"Template\.dxf: (line \d+: |no line ENTITIES|cut short)")
                    self.assertEqual(self.written(), [])
                    continue
                auditor = ezdxf.readfile(self.folder / "out/good.dxf").audit()
                self.assertFalse(auditor.errors or hole, (start, auditor.errors))
                (self.folder / "out/good.dxf").unlink()

    @unittest.skipIf(LIBRARY == "none", "the sanitizers have costs of their own")
    def test_cost_grows_with_the_list_and_not_faster(self):
        job = '{"name": "a", "piece": "TransCR", %s}'
        lists = (lambda n: ",".join(["{}"] * 50 * n), lambda n: job % ",".join(f'"k{i}": 1' for i in range(100 * n)),
                 lambda n: job % ('"H": "%s"' % ("9" * 2000 * n)), lambda n: job % ('"H": %s1' % ("[" * 300 * n)),
                 lambda n: ",".join(job % "" for i in range(10 * n)).replace(", }", "}"))
        for make in lists:
            def seconds(n):
                before = resource.getrusage(resource.RUSAGE_CHILDREN)
                self.run_batch(f"[{make(n)}]".encode(), "--check", "--shard", "1/1000000")
                after = resource.getrusage(resource.RUSAGE_CHILDREN)
                return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
            # By turns, and again while a busy machine spoils it: the least is what it costs without other work.
            once, twice = seconds(2000), seconds(4000)
            for _ in range(10):
                if twice < 2.5 * once:
                    break
                once, twice = min(once, seconds(2000)), min(twice, seconds(4000))
            self.assertLess(twice, 2.5 * once)
        self.assertLess(resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss, 200_000)

    def test_parts_of_a_list_make_the_whole(self):
        """As a cluster works it, and as parallel does on one machine."""
        file = self.folder / "jobs"
        file.write_text(json.dumps([*JOBS, JOBS[0]]))  # its first name is there twice
        whole = subprocess.run([PROGRAM, file, "--out", self.folder / "whole"], capture_output=True, timeout=120).stdout
        parts = subprocess.run(["parallel", PROGRAM, "--shard", "{}/3", "--out", self.folder / "parts", file, ":::",
                                "1", "2", "3"], capture_output=True, timeout=120,
                               env={**os.environ, "HOME": self.folder})
        self.assertEqual(sorted(whole.replace(b"/whole/", b"/parts/").splitlines()), sorted(parts.stdout.splitlines()))
        self.assertEqual(*({p.name: p.read_bytes() for p in (self.folder / out).iterdir()}
                           for out in ("whole", "parts")))

    @unittest.skipIf(LIBRARY == "none", "they are in the release build")
    def test_binaries_are_hardened(self):
        for name in ("duktores", "duktores-batch"):
            told = subprocess.run(["readelf", "-hldWs", PROGRAM.parent / name], capture_output=True, text=True).stdout
            marks = "(Position-Independent Executable file)", "GNU_RELRO", "BIND_NOW", "__stack_chk_fail"
            self.assertEqual([mark for mark in marks if mark not in told], [], name)
        self.assertTrue("_chk@" in told, "fortified calls")

    def test_a_pattern_that_is_not_true_is_told_or_refused(self):
        """The usual rules spoil the sharp corners of this piece; developed exactly it is true."""
        jobs = [GOOD, {"name": "bad", "piece": "TransEsp3", "H": 320, "R": 90, "LX": 480, "LY": 300, "AX": 20, "AY": 10,
                       "Alfa": 0, "Beta": 0, "Divisions": 8}]
        out = self.folder / "out"
        config = self.folder / "exact.ini"
        config.write_text((PROGRAM.parent.parent / "Config/Config.ini").read_text().replace("Exact=0", "Exact=1"))
        for options, code, answer in (((), 0, f"bad: ok {out}/bad.dxf, warning: ATENCIÓN, desarrollo falso: Esquina 2"),
                                      (("--strict",), 1, "bad: refused pattern: ATENCIÓN, desarrollo falso: Esquina 2"),
                                      (("--strict", "--check"), 1, "bad: refused pattern: ATENCIÓN, desarrollo falso"),
                                      (("--strict", "--exact"), 0, f"bad: ok {out}/bad.dxf"),
                                      (("--strict", "--config", config), 0, f"bad: ok {out}/bad.dxf")):
            shutil.rmtree(out, ignore_errors=True)
            result = self.run_batch(jobs, *options)
            lines, written = result.stdout.decode().splitlines(), "--check" not in options
            self.assertEqual((result.returncode, lines[0]), (code, "good: ok" + (f" {out}/good.dxf" if written else "")))
            self.assertTrue(lines[1].startswith(answer), lines[1])
            self.assertEqual("warning" in lines[1], options == ())
            self.assertEqual("Las reglas usuales" in lines[1], code == 1 or options == ())
            self.assertEqual((out / "bad.dxf").exists(), code == 0)

    def test_pictures_of_any_name_and_without_fonts(self):
        out = self.folder / "out"
        name = "<a> & \"b\" ]]>\ufffe\U0001f600"
        self.assertEqual(self.run_batch([{**GOOD, "name": name}], "--svg").returncode, 0)
        title = xml.etree.ElementTree.parse(out / (name + ".svg")).find("{*}title")
        self.assertEqual(title.text, name.replace("\ufffe", " "))
        (self.folder / "fonts").write_text("<fontconfig/>")
        result = self.run_batch([GOOD], "--png", env={"FONTCONFIG_FILE": self.folder / "fonts", "HOME": self.folder})
        self.assertEqual(result.stdout.decode(), "good: refused name: No se pudo guardar el archivo: "
                         f"{out}/good.png (no hay letra para sus textos). El dibujo está guardado: {out}/good.dxf\n")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
