"""Makes a face of each cut file of the samples in FreeCAD: one closed outline each, with the area that the report
tells. Not in the usual tests, because that program is a large one."""

import json
import subprocess
import sys
import unittest

from lote import Batch, CONFIG, PROGRAM, SAMPLES

SCRIPT = """
import json, Import, Part
import FreeCAD
areas = {}
for name in json.load(open("names.json")):
    document = FreeCAD.newDocument()
    Import.readDXF(name, document.Name)
    edges = [edge for thing in document.Objects for edge in thing.Shape.Edges]
    wires = [Part.Wire(group) for group in Part.sortEdges(edges)]
    areas[name] = [Part.Face(wire).Area if wire.isClosed() and Part.Face(wire).isValid() else 0 for wire in wires]
    FreeCAD.closeDocument(document.Name)
json.dump(areas, open("areas.json", "w"))
"""


class Faces(Batch):
    def test_faces(self):
        for exact, machine in ((1, ""), (0, ""), (1, "Arcs=1\n")):
            (self.folder / "ini").write_text(CONFIG % ("ENGLISH", 0, exact) + "[MACHINE]\nBends=0\nMarks=0\n" + machine)
            subprocess.run([PROGRAM, SAMPLES, "--config", "ini", "--out", "cut", "--cut", "--report", "report.json"],
                           cwd=self.folder, stdout=subprocess.DEVNULL, timeout=120)
            rows = [row for row in json.loads((self.folder / "report.json").read_text())["shapes"] if row["file"]]
            (self.folder / "names.json").write_text(json.dumps(["cut/" + row["file"] for row in rows]))
            (self.folder / "faces.py").write_text(SCRIPT)
            subprocess.run(["freecadcmd", "faces.py"], cwd=self.folder, stdin=subprocess.DEVNULL, timeout=600,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)
            areas = json.loads((self.folder / "areas.json").read_text())
            self.assertGreater(len(rows), 80)
            for row in rows:
                (area,) = areas["cut/" + row["file"]]
                self.assertAlmostEqual(area / 100, row["area"], places=3, msg=row["file"])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
