"""The world fails duktores-batch while it saves: each file stays whole, the old one or the new one.
A third argument is the number of kills."""

import json
import os
import random
import resource
import signal
import subprocess
import sys
import time
import unittest

from lote import CONFIG, JOBS as SAMPLES, PROGRAM, Batch

KILLS = int(sys.argv[3]) if len(sys.argv) > 3 else 40
JOBS = SAMPLES[:20]
NAME = JOBS[0]["name"] + ".dxf"
NOBODY = {"user": 65534} if os.geteuid() == 0 else {}


class Faults(Batch):
    def setUp(self):
        super().setUp()
        self.folder.chmod(0o755)
        self.out = self.folder / "out"
        (self.folder / "jobs").write_text(json.dumps(JOBS))
        for dimensions in (0, 1):
            (self.folder / f"ini{dimensions}").write_text(CONFIG % ("SPANISH", dimensions, 0))
        self.new = self.drawings(1)

    def command(self, dimensions=0):
        return [PROGRAM, self.folder / "jobs", "--out", self.out, "--config", self.folder / f"ini{dimensions}"]

    def drawings(self, dimensions):
        subprocess.run(self.command(dimensions), check=True, stdout=subprocess.DEVNULL, timeout=60)
        return self.standing()

    def standing(self):
        return {p.name: p.read_bytes() if p.is_file() else None for p in self.out.iterdir()}

    def expect_refused(self, names, **options):
        """These are refused for their names and stay what they were; nothing else has come."""
        before = self.standing()
        result = subprocess.run(self.command(), capture_output=True, text=True, timeout=60, **options)
        after = self.standing()
        self.assertEqual((result.returncode, result.stderr), (1, ""))
        refused = {line.split(":")[0] + ".dxf" for line in result.stdout.splitlines() if ": refused name: " in line}
        self.assertEqual(refused, set(names))
        self.assertEqual({name: after[name] for name in names}, {name: before[name] for name in names})
        self.assertEqual(after.keys(), before.keys())

    def test_killed_at_any_moment(self):
        started = time.monotonic()
        old, strays, cut = self.drawings(0), set(), 0
        seconds = time.monotonic() - started
        self.assertTrue(all(old[name] != self.new[name] for name in old))
        for i in range(KILLS):
            process = subprocess.Popen(self.command(i % 2), stdout=subprocess.DEVNULL)
            time.sleep(random.uniform(0, 1.2 * seconds))
            process.send_signal(signal.SIGKILL)
            cut += process.wait() == -signal.SIGKILL
            standing = self.standing()
            strays |= standing.keys() - old.keys()
            for name in old:
                self.assertIn(standing[name], (old[name], self.new[name]), name)
        print(f"{cut} of {KILLS} runs killed, {len(strays)} temporary files left", file=sys.stderr)
        self.assertGreater(cut, KILLS // 4)
        self.assertEqual([name for name in strays if not (name.startswith(".") and name.endswith(".tmp"))], [])

    def test_full_disk(self):
        smallest = min(map(len, self.new.values()))
        for room in (0, 1, 4096, smallest // 2):
            def limit():
                resource.setrlimit(resource.RLIMIT_FSIZE, (room, room))
            self.expect_refused(self.new, preexec_fn=limit)

    def test_read_only_file_and_folder_and_what_is_in_the_way(self):
        self.out.chmod(0o777)
        for file in self.out.iterdir():
            file.chmod(0o444 if file.name == NAME else 0o666)
        self.expect_refused([NAME], **NOBODY)
        self.out.chmod(0o555)
        self.expect_refused(self.new, **NOBODY)
        self.out.chmod(0o777)
        (self.out / NAME).unlink()
        (self.out / NAME).mkdir()
        self.expect_refused([NAME])
        (self.out / NAME).rmdir()
        os.mkfifo(self.out / NAME)
        self.expect_refused([NAME])

    def test_a_reader_of_the_old_file_keeps_it_whole_and_the_new_one_its_rights(self):
        (self.out / NAME).chmod(0o640)
        with open(self.out / NAME, "rb") as reader:
            start = reader.read(1000)
            self.assertNotEqual(self.drawings(0), self.new)
            self.assertEqual(start + reader.read(), self.new[NAME])
        self.assertEqual((self.out / NAME).stat().st_mode & 0o777, 0o640)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
