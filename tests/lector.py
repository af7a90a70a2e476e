#!/usr/bin/python3
"""lector.py FILE... [TYPE=COUNT...]: reads DXF files with an independent reader and audits them.

For each file the counts of its entities go out as one line of JSON. Exit 1 if a file can't be read strictly, if the
reader finds or mends anything in it, or if a count given is not that of the file (a type without a count is not asked).
"""
import collections
import json
import logging
import sys

import ezdxf


class Avisos(logging.Handler):
    """What the reader mends while it loads it only tells its log."""
    lista = []

    def emit(self, record):
        self.lista.append(record.getMessage())


def faltas(ruta, pedidos):
    Avisos.lista.clear()
    try:
        doc = ezdxf.readfile(ruta)
    except Exception as error:  # bad files raise all kinds
        return [repr(error)]
    auditor = doc.audit()
    cuentas = collections.Counter(e.dxftype() for e in doc.modelspace())
    print(json.dumps(cuentas, sort_keys=True))
    return (Avisos.lista + [e.message for e in auditor.errors + auditor.fixes] +
            [f"{tipo}: {cuentas[tipo]} instead of {n}" for tipo, n in pedidos.items() if cuentas[tipo] != n])


logging.getLogger("ezdxf").addHandler(Avisos(logging.WARNING))
pedidos = {tipo: int(n) for tipo, n in (a.split("=") for a in sys.argv[1:] if "=" in a)}
rutas = [a for a in sys.argv[1:] if "=" not in a]
quejas = [f"{ruta}: {falta}" for ruta in rutas for falta in faltas(ruta, pedidos)]
sys.exit("\n".join(quejas) or None if rutas else __doc__)
