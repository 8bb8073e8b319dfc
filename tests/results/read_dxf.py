"""Prints what a CAD library finds in a DXF file, a line each. Ends with 1 if it finds a fault."""

import sys

import ezdxf

sys.stdout.reconfigure(encoding="utf-8")
drawing = ezdxf.readfile(sys.argv[1])
faults = drawing.audit()
for fault in faults.errors + faults.fixes:
    print("fault", fault.message)
print("version", drawing.dxfversion)
print("units", drawing.units)
for layer in drawing.layers:
    print("layer", layer.dxf.name, layer.color)


def coordinates(point):
    return f"{point[0]:.4f},{point[1]:.4f}"


for entity in drawing.modelspace():
    kind = entity.dxftype()
    if kind == "POLYLINE":
        what = " ".join(coordinates(point) for point in entity.points())
        what = ("closed " if entity.is_closed else "open ") + what
    elif kind == "POINT":
        what = coordinates(entity.dxf.location)
    elif kind == "TEXT":
        what = entity.dxf.text
    else:
        what = "not expected"
    print(kind, entity.dxf.layer, what)
sys.exit(1 if faults.has_errors or faults.has_fixes else 0)
