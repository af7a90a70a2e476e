"""The floors of src/: no include goes upwards or sideways, and no Qt stands below paint/. Usage: pisos_test.py SRC"""

import pathlib
import re
import sys

FLOORS = {"platform": 1, "geometry": 1, "piece": 2, "viewer": 2, "state": 3, "engines": 3, "special": 3, "check": 3,
          "dxf": 4, "annotation": 5, "sheet": 6, "dialogs": 6, "shell": 7, "paint": 7, "batch": 8, "windows": 8}
QT = ("paint", "batch", "windows")

src = pathlib.Path(sys.argv[1])
files = [f for f in src.glob("*/*") if f.suffix in (".h", ".cpp", ".inc")]
faults = []
for file in files:
    floor = file.parent.name
    for name in re.findall(r'^\s*#\s*include\s*[<"]([^>"]+)', file.read_text(), re.M):
        head = name.split("/")[0]
        if head in FLOORS and "/" in name and head != floor and FLOORS[head] >= FLOORS[floor]:
            faults.append(f"{file.relative_to(src)} includes {name}, which doesn't stand below it")
        if re.match(r"Q[A-Z]|Qt", name) and floor not in QT:
            faults.append(f"{file.relative_to(src)} includes {name}: no Qt below paint/")
print("\n".join(faults) or f"{len(files)} files keep the floors")
sys.exit(bool(faults) or not files)
