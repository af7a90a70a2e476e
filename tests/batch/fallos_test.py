"""The world fails duktores-batch while it saves: each file stays whole, the old one or the new one, and what is wrong
is told. A fourth argument tries every failure."""

import errno
import json
import os
import resource
import shutil
import signal
import subprocess
import sys
import time
import unittest

from lote import CONFIG, JOBS as SAMPLES, LIBRARY, PROGRAM, Batch

LONG = len(sys.argv) > 4
JOBS = [{**job, "name": f"p{i}"} for i, job in enumerate(SAMPLES[:3])]
CALLS = ("open", "read", "stat", "write", "fsync", "rename", "fchown", "fchmod", "xattr", "close")
ALICE, BOB, EVE, WORKSHOP = 1001, 1002, 1003, 2000


class Saves(Batch):
    def setUp(self):
        super().setUp()
        self.folder.chmod(0o755)
        self.out = self.folder / "out"
        self.list(JOBS)
        for dimensions in (0, 1):
            (self.folder / f"ini{dimensions}").write_text(CONFIG % ("ENGLISH", dimensions, 0))

    def list(self, jobs):
        (self.folder / "jobs").write_text(json.dumps(jobs))

    def command(self, dimensions=0):
        return [PROGRAM, self.folder / "jobs", "--jobs", "1", "--out", self.out, "--config",
                self.folder / f"ini{dimensions}"]

    def run_batch(self, dimensions=0, **how):
        return subprocess.run(self.command(dimensions), capture_output=True, text=True, timeout=120, **how)

    def drawings(self, dimensions):
        self.assertEqual(self.run_batch(dimensions).returncode, 0)
        return self.standing()

    def standing(self):
        return {p.name: p.read_bytes() if p.is_file() else None for p in self.out.iterdir()}


class Faults(Saves):
    def failing(self, call, which, code):
        """A run in which this call fails for the n-th time; checks what it leaves and gives back its status."""
        for name, text in self.old.items():
            (self.out / name).write_bytes(text)
            self.dress(self.out / name)
        result = self.run_batch(env={**os.environ, "LD_PRELOAD": LIBRARY, "FALLA": f"{call} {which} {code}"})
        case = f"{call} {which} {code}: {result}"
        standing = self.standing()
        strays = standing.keys() - self.old.keys()
        if code:
            self.assertEqual(strays, set(), case)
        else:
            self.assertEqual(result.returncode, -signal.SIGKILL, case)
        for name in strays:
            self.assertRegex(name, r"^\.duktores-\d+\.tmp$")
            (self.out / name).unlink()
        for name, text in self.old.items():
            self.assertIn(standing[name], (text, self.new[name]), case)
        for line in result.stdout.splitlines():
            name = line.split(":")[0] + ".dxf"
            if ": ok " in line:
                self.assertEqual(standing[name], self.new[name], case)
                self.assertEqual(self.rights(name) != self.before, "not kept" in line, case)
            else:
                self.assertRegex(line, r": refused name: .*\((no room|system error|The template)", case)
        if result.returncode == 2:
            self.assertTrue(result.stdout == "" or "out of memory" in result.stderr, case)
            self.assertRegex(result.stderr, "^duktores-batch: ", case)
        elif "Fatal glibc error" in result.stderr:
            self.assertEqual((call, result.returncode, result.stdout), ("malloc", -signal.SIGABRT, ""), case)
        elif code:
            self.assertEqual(result.returncode, int(": refused " in result.stdout or result.stderr != ""), case)
        return result.returncode

    @staticmethod
    def dress(file):
        """Much that a save has to keep."""
        os.setxattr(file, "user.order", b"4711")
        if os.geteuid() == 0:
            os.chown(file, ALICE, WORKSHOP)
        file.chmod(0o640)

    def rights(self, name):
        now = os.stat(self.out / name)
        return now.st_mode, now.st_uid, now.st_gid, os.listxattr(self.out / name)

    def calls(self):
        counts = self.folder / "counts"
        self.run_batch(env={**os.environ, "LD_PRELOAD": LIBRARY, "FALLA_CUENTA": counts})
        return {name: int(count) for name, count in map(str.split, counts.read_text().splitlines())}

    @unittest.skipIf(LIBRARY == "none", "not with the sanitizers")
    def test_every_call_fails_once(self):
        """Told as a failure, or harmless; killed there, what stands is whole."""
        self.old, self.new = self.drawings(1), self.drawings(0)
        self.assertTrue(all(self.old[name] != self.new[name] for name in self.old))
        for name in self.old:
            self.dress(self.out / name)
        self.before = self.rights(name)
        counts, runs = self.calls(), []
        for call in CALLS:
            self.assertTrue(counts[call] > 0 or call == "fchown", call)
            for which in range(1, counts[call] + 1):
                for code in (errno.EIO, errno.ENOSPC, 0) if LONG else (errno.EIO,):
                    runs.append(self.failing(call, which, code))
        self.assertGreater(runs.count(1) + runs.count(2), 3 * len(JOBS))
        step = 1 if LONG else counts["malloc"] // 60
        statuses = [self.failing("malloc", which, errno.ENOMEM) for which in range(1, counts["malloc"], step)]
        print(f"{len(runs)} calls and {len(statuses)} allocations failed", file=sys.stderr)
        self.assertLess(len(statuses) // 2, statuses.count(2), "most of what fails is told as a lack of memory")

    def test_signals_end_the_list_after_what_is_begun(self):
        self.list([{**JOBS[0], "name": f"p{i}"} for i in range(2000)])
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            with subprocess.Popen(self.command(), stdout=subprocess.PIPE, text=True) as process:
                answers = [process.stdout.readline()]
                process.send_signal(number)
                answers += process.stdout.readlines()
            self.assertEqual(process.returncode, 128 + number)
            self.assertEqual([a.split(":")[0] for a in answers], [f"p{i}" for i in range(len(answers))])
            self.assertLess(len(answers), 2000)
            self.assertEqual({p.name for p in self.out.iterdir()}, {f"p{i}.dxf" for i in range(len(answers))})
            shutil.rmtree(self.out)
        waits = subprocess.Popen([PROGRAM, "-"], stdin=subprocess.PIPE)
        time.sleep(0.3)
        waits.terminate()
        self.assertEqual(waits.wait(timeout=10), 128 + signal.SIGTERM)
        waits.stdin.close()

    def test_what_stands_in_the_way(self):
        old = self.drawings(1)

        def refused(reason, name="p0.dxf", **how):
            result = self.run_batch(**how)
            self.assertIn(f"{name[:-4]}: refused name: The file could not be saved: {self.out}/{name} ({reason})",
                          result.stdout)
            self.assertEqual(self.standing().keys() - {"p0.dxf"}, old.keys() - {"p0.dxf"})

        def no_room():
            resource.setrlimit(resource.RLIMIT_FSIZE, (4096, 4096))
        refused("no room left on the disk", preexec_fn=no_room)
        self.assertEqual(self.standing(), old)
        place = self.out / "p0.dxf"
        place.unlink()
        place.mkdir()
        refused("what stands there is no file")
        place.rmdir()
        os.mkfifo(place)
        refused("what stands there is no file")
        place.unlink()
        place.symlink_to("p0.dxf")
        refused("system error: Too many levels of symbolic links")
        place.unlink()
        self.list([{**JOBS[0], "name": 60 * "long"}, {**JOBS[0], "name": 64 * "long"}])
        self.assertRegex(self.run_batch().stdout, r": ok .*\n.*\(name too long\)")


@unittest.skipUnless(os.geteuid() == 0, "only root can be several users")
class Users(Saves):
    """A folder of several users, on a disk with access lists."""

    DISK = "/dev/shm"

    def setUp(self):
        super().setUp()
        self.list(JOBS[:1])
        self.drawings(1)
        self.file = self.out / "p0.dxf"
        self.old = self.file.read_bytes()

    def share(self, folder_rights, rights, owner=ALICE):
        os.chown(self.out, ALICE, WORKSHOP)
        self.out.chmod(folder_rights)
        os.chown(self.file, owner, WORKSHOP)
        self.file.chmod(rights)

    def save(self, user, *groups):
        return self.run_batch(user=user, group=user, extra_groups=groups, umask=0).stdout

    def facl(self):
        return subprocess.run(["getfacl", "-cp", self.file], capture_output=True, text=True, check=True).stdout

    def test_rights_stay(self):
        self.share(0o2770, 0o660)
        os.setxattr(self.file, "user.order", b"4711")
        subprocess.run(["setfacl", "-m", f"u:{EVE}:r,m::rw", self.file], check=True)
        subprocess.run(["setfacl", "-d", "-m", "u:1005:rwx", self.out], check=True)
        before = self.facl()
        for user, warning in ((ALICE, ""), (BOB, ", warning: not kept of the former file: owner")):
            self.assertEqual(self.save(user, WORKSHOP), f"p0: ok {self.file}{warning}\n")
            self.assertNotEqual(self.file.read_bytes(), self.old)
            self.assertEqual((self.file.stat().st_uid, self.file.stat().st_gid), (user, WORKSHOP))
            self.assertEqual((self.facl(), os.getxattr(self.file, "user.order")), (before, b"4711"))
        subprocess.run(["setfacl", "-b", self.file], check=True)
        self.save(BOB, WORKSHOP)
        self.assertEqual(self.facl(), "user::rw-\ngroup::rw-\nother::---\n\n", "none of its folder")
        self.out.chmod(0o777)
        self.file.chmod(0o666)
        self.assertIn("owner, group", self.save(EVE))
        self.assertEqual(self.file.stat().st_mode & 0o777, 0o606, "a group of another name gets no rights")

    def test_what_is_locked_stays(self):
        for folder_rights, rights in ((0o777, 0o644), (0o755, 0o666)):
            self.share(folder_rights, rights)
            self.assertIn("(no right to write it)", self.save(BOB))
            self.assertEqual(self.file.read_bytes(), self.old)

    def test_links_of_strangers_are_not_followed(self):
        victim = self.folder / "victim"
        for owner, followed in ((BOB, True), (ALICE, True), (EVE, False)):
            for rights in (0o777, 0o1777, 0o775):
                victim.write_text("old")
                os.chown(victim, BOB, BOB)
                self.file.unlink()
                self.file.symlink_to("../victim")
                os.lchown(self.file, owner, owner)
                self.out.chmod(rights)
                os.chown(self.folder, BOB, BOB)
                os.chown(self.out, ALICE, BOB)
                self.save(BOB)
                case = owner, oct(rights)
                self.assertEqual(victim.read_bytes() == b"old", not followed and rights != 0o775, case)
                self.assertEqual(self.file.is_symlink(), followed or rights != 0o777, case)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
