"""The floors of src/: no include goes upwards or sideways, no Qt stands below paint/ and jobs/, and what computes pieces
knows neither the program's state nor a screen nor a file. Usage: pisos_test.py SRC"""

import pathlib
import re
import sys

FLOORS = {"platform": 1, "geometry": 1, "nest": 2, "piece": 2, "viewer": 2, "state": 3, "engines": 3, "special": 3,
          "check": 3, "cut": 4, "dxf": 5, "annotation": 6, "sheet": 7, "dialogs": 7, "shell": 8, "paint": 8, "jobs": 9,
          "batch": 10, "windows": 10}
QT = ("paint", "jobs", "batch", "windows")
PURE, IMPURE = ("geometry", "nest", "piece", "engines", "special", "check", "cut"), ("state", "viewer", "dxf")
NAME_STATE = ("state", "dxf", "annotation", "dialogs", "shell", "jobs", "batch", "windows")

src = pathlib.Path(sys.argv[1])
files = [f for f in src.glob("*/*") if f.suffix in (".h", ".cpp", ".inc")]
faults = [f"{folder}/ stands on no floor" for folder in {f.parent.name for f in files} - FLOORS.keys()]
for file in files:
    floor, text = file.parent.name, file.read_text()
    if floor not in NAME_STATE and re.search(r"\bestado\b", re.sub(r"//.*", "", text)):
        faults.append(f"{file.relative_to(src)} names the state")
    for name in re.findall(r'^\s*#\s*include\s*[<"]([^>"]+)', text, re.M):
        head = name.split("/")[0]
        if floor in PURE and head in IMPURE:
            faults.append(f"{file.relative_to(src)} includes {name}, but computes pieces")
        if head in FLOORS and "/" in name and head != floor and FLOORS[head] >= FLOORS.get(floor, 0):
            faults.append(f"{file.relative_to(src)} includes {name}, which doesn't stand below it")
        if re.match(r"Q[A-Z]|Qt", name) and floor not in QT:
            faults.append(f"{file.relative_to(src)} includes {name}: no Qt below paint/")
print("\n".join(faults) or f"{len(files)} files keep the floors")
sys.exit(bool(faults) or not files)
