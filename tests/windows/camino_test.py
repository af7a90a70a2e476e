"""Two roads through the installed program under an X server: choose, type, unfold in two pieces by clicks, save, leave;
and a piece of eight shapes with everything placed by one key, in six actions from its dialog to the file. The files must
be what duktores-batch makes of the same values. Usage: camino_test.py PROGRAM"""

import contextlib
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

import ezdxf

TOOLS = ("setpriv", "Xvfb", "openbox", "xdotool")
FIELDS = {"H": 300, "RS": 95.5, "LI": 400, "AI": 300, "AX": 0, "AY": 25, "Alfa": -10}
JOB = {"name": "pieza", "piece": "TransCR", **FIELDS, "Divisions": 24, "Start": 2, "Pieces": 2}
ROUNDED = {"H": 300, "r11": 40, "r12": 40, "r13": 40, "r14": 40, "r21": 80, "r22": 80, "r23": 80, "r24": 80,
           "LX1": 300, "LY1": 250, "LX2": 500, "LY2": 400, "AX": 0, "AY": 10, "Alfa": 0, "Beta": 0, "Divisions": 16}
JOB_ROUNDED = {"name": "rounded", "piece": "TransEsp1", **ROUNDED}
CONFIG = ("[LANGUAGE]\nLanguage=ENGLISH\n[UNIT]\nUnit=0\n[DUCT]\nPath=%s\nThickness=2\nSizetxt=10\nFiber=2\n"
          "BendColour=3\nDimensions=1\nDensity=7.85\nBox=1\n")
# Places in the windows at their design sizes.
UNFOLD, SAVE, LEAVE = (788, 33), (832, 33), (964, 33)
DIALOG, VIEWER = "Rect. Circ. Transf.", "Rect. Circ. Transf. 400x300 R95.5"
ROUNDED_VIEWER = "Round 4 Vert. Transf. 500x400 300x250"
MESSAGE = "duktores"  # what window managers show for an empty title
PICKS = (300, 400), (500, 150), (700, 430), (800, 200)  # each piece and its title block


def until(what, condition, seconds=15):
    limit = time.monotonic() + seconds
    while time.monotonic() < limit:
        if answer := condition():
            return answer
        time.sleep(0.02)
    raise TimeoutError(what)


class Screen:
    """An X server, its window manager and the programs on it. All end with it, even if this script is killed."""

    def __init__(self, folder, stack):
        self.folder, self.stack = folder, stack
        self.log = stack.enter_context(open(folder / "log", "w+"))
        self.environment = {"PATH": os.environ["PATH"], "HOME": str(folder), "LC_ALL": "C.UTF-8",
                            "QT_QPA_PLATFORM": "xcb", "XDG_RUNTIME_DIR": str(folder),
                            "DBUS_SESSION_BUS_ADDRESS": "disabled:"}
        reading, writing = os.pipe()
        self.start("Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset",
                   pass_fds=[writing])
        os.close(writing)
        with open(reading) as number:
            self.environment["DISPLAY"] = ":" + number.readline().strip()
        self.start("openbox")
        until("the window manager", self.manager_listens)

    def manager_listens(self):
        """While it starts it may lose what windows ask of it."""
        self.xdotool("set_desktop", 1)
        return self.xdotool("get_desktop") == ["1"]

    def start(self, *command, **options):
        process = subprocess.Popen(["setpriv", "--pdeathsig", "KILL", *command], env=self.environment,
                                   stdin=subprocess.DEVNULL, stdout=self.log, stderr=self.log, **options)

        def end():
            process.kill()
            process.wait()
        self.stack.callback(end)
        return process

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *map(str, arguments)], env=self.environment, stdin=subprocess.DEVNULL,
                              capture_output=True, text=True, timeout=10).stdout.split()

    def active(self, title):
        """The window that has the keyboard, if its title is this one."""
        window = "".join(self.xdotool("getactivewindow"))
        return window if " ".join(self.xdotool("getwindowname", window)) == title else None

    def window(self, title, but=None):
        return until(title, lambda: self.active(title) not in (None, but) and self.active(title))

    def click(self, window, place):
        self.xdotool("mousemove", "--window", window, *place, "click", 1)

    def click_until(self, title, window, place, then=None):
        """A click that comes too early does nothing: it is repeated until the window of that title comes."""
        for _ in range(20):
            self.click(window, place)
            if then:
                self.click(window, then)
            with contextlib.suppress(TimeoutError):
                return until(title, lambda: self.active(title), 0.5)
        raise TimeoutError(title)

    def answer(self, title):
        window = self.window(title)
        self.xdotool("key", "Return")
        until("the end of " + title, lambda: self.active(title) != window)


def second_of_list(screen):
    def windows():
        return screen.xdotool("search", "--onlyvisible", "--class", "duktores")
    before = windows()
    screen.xdotool("key", "F4")
    until("the list", lambda: len(windows()) > len(before))
    screen.xdotool("key", "--delay", 2, "Home", "Down", "Return")
    until("the end of the list", lambda: windows() == before)
    screen.xdotool("key", "Tab")


def fill(screen):
    for value in FIELDS.values():
        screen.xdotool("type", "--delay", 2, "--", value)
        screen.xdotool("key", "Return")
    second_of_list(screen)
    second_of_list(screen)
    screen.xdotool("key", "Return")  # on an option button: accepts


def above_host(screen, program):
    """Starts the program while another window is active, and tries in vain to get back to that one."""
    screen.start(program)
    host = screen.window("Duktors")
    process = screen.start(program)
    catalogue = screen.window("Duktors", but=host)
    screen.xdotool("windowactivate", host)
    screen.xdotool("set_num_desktops", 2)  # answered after what was asked before
    until("the window manager", lambda: screen.xdotool("get_num_desktops") == ["2"])
    assert screen.active("Duktors") == catalogue, "the host's window came to the front"
    return process, host


def road(screen, program, file):
    process, host = above_host(screen, str(program))
    screen.xdotool("key", "Down", "Down", "Return")
    screen.window(DIALOG)
    fill(screen)
    viewer = screen.window(VIEWER)
    screen.click(viewer, UNFOLD)
    for place in PICKS[:-1]:
        screen.answer(MESSAGE)
        screen.click_until(MESSAGE, viewer, place)
    screen.answer(MESSAGE)
    screen.click_until("Save the DXF", viewer, PICKS[-1], then=SAVE)
    screen.xdotool("type", "--delay", 2, file.stem)
    screen.xdotool("key", "Return")
    screen.answer(MESSAGE)
    screen.click(viewer, LEAVE)
    assert process.wait(15) == 0, "exit status"
    screen.xdotool("windowactivate", host)
    until("the host's window", lambda: screen.active("Duktors") == host)


def short_road(screen, program, file):
    """Everything placed by Enter. An Enter that is still held from the prompt's box doesn't place."""
    host = screen.active("Duktors")
    process = screen.start(str(program))
    screen.window("Duktors", but=host)
    screen.xdotool("key", *["Down"] * 8, "Return")
    screen.window("Round 4 Vert. Transf.")
    for value in ROUNDED.values():
        screen.xdotool("type", "--delay", 2, "--", value)
        screen.xdotool("key", "Return")
    screen.xdotool("key", "Return")
    viewer = screen.window(ROUNDED_VIEWER)

    screen.click(viewer, UNFOLD)  # 1
    screen.window(MESSAGE)
    screen.xdotool("keydown", "Return")  # 2
    until("the end of the prompt", lambda: screen.active(ROUNDED_VIEWER) == viewer)
    time.sleep(1.2)  # the key repeats itself after 0.66 s
    screen.xdotool("keyup", "Return")
    screen.click(viewer, SAVE)  # nothing to save yet
    assert screen.active(ROUNDED_VIEWER) == viewer, "placed by the key that has closed the prompt"
    screen.xdotool("key", "Return")  # 3
    screen.click_until("Save the DXF", viewer, SAVE)  # 4
    screen.xdotool("type", "--delay", 2, file.stem)
    screen.xdotool("key", "Return")  # 5
    screen.answer(MESSAGE)  # 6
    screen.click(viewer, LEAVE)
    assert process.wait(15) == 0, "exit status"


def seen(file):
    """What is drawn, without its places: the lengths stand in the tables."""
    return [(e.dxftype(), e.dxf.color, e.dxf.text if e.dxftype() == "TEXT" else "")
            for e in ezdxf.readfile(file).modelspace()]


def main():
    program = pathlib.Path(sys.argv[1]).resolve()
    if missing := [tool for tool in TOOLS if not shutil.which(tool)]:
        print("not here:", *missing)
        return 77
    with contextlib.ExitStack() as stack:
        folder = pathlib.Path(stack.enter_context(tempfile.TemporaryDirectory()))
        shutil.copytree(program.parent.parent, folder / "root")
        (folder / "root/Config/Config.ini").write_text(CONFIG % folder)
        duct = folder / "root/Duct"
        screen = Screen(folder, stack)
        file = folder / "pieza.dxf"
        try:
            road(screen, duct / program.name, file)
            short_road(screen, duct / program.name, folder / "rounded.dxf")
        except Exception:
            screen.log.seek(0)
            print(screen.log.read())
            raise
        subprocess.run([duct / "duktores-batch", "-", "--out", folder / "batch"], input=json.dumps([JOB, JOB_ROUNDED]).encode(),
                       check=True, stdout=subprocess.DEVNULL, timeout=60)
        assert seen(file) == seen(folder / "batch/pieza.dxf"), "another drawing than the batch's"
        rounded = [(where / "rounded.dxf").read_bytes() for where in (folder, folder / "batch")]
        assert rounded[0] == rounded[1], "not placed as the batch program does"
    return 0


if __name__ == "__main__":
    sys.exit(main())
