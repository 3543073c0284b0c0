"""Holds the includes of the library to its layers, and its public headers to themselves.

A folder of src/ includes only what stands above it in LAYERS; a public header counts as one of its folder's. Public
headers include no internal ones and hold no code but the small functions of marker.h; all.h includes every one.
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
PUBLIC = ROOT / "include" / "kavoratb1c"
LAYERS = ["platform", "kernels", "numerics", "core", "access", "sort", "stats", "algebra", "tables", "decomp", "missing",
          "sampling", "checks", "regression", "bridge"]
# Public headers that stand in no folder.
HEADERS = {"export.h": "platform", "marker.h": "platform", "matrix.h": "core", "Smatrix.h": "core"}
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.M)


def layer(path):
    """Of a source, or of a header as sources name it."""
    parts = path.split("/")
    if parts[0] == "kavoratb1c":
        return HEADERS[parts[1]] if len(parts) == 2 else parts[1]
    return parts[0]


def find(name):
    return next((p for p in (ROOT / "include" / name, ROOT / "src" / name) if p.exists()), None)


def faults():
    sources = [(p, p.relative_to(ROOT / "src").as_posix()) for p in sorted((ROOT / "src").rglob("*.[hc]*"))
               if p.suffix in (".h", ".cpp")]
    headers = [(p, p.relative_to(ROOT / "include").as_posix()) for p in sorted(PUBLIC.rglob("*.h"))]
    everything = {name for _, name in headers if name != "kavoratb1c/all.h"}
    for path, name in sources + headers:
        text = path.read_text()
        included = INCLUDE.findall(text)
        if name == "kavoratb1c/all.h":
            for missing in sorted(everything ^ set(included)):
                yield f"{name}: {missing} is not included, or does not exist"
            continue
        if layer(name) not in LAYERS:
            yield f"{name}: a folder without a layer"
            continue
        for other in included:
            if find(other) is None:
                yield f"{name}: includes {other} by another name than its path below include/ or src/"
            elif layer(other) not in LAYERS or LAYERS.index(layer(other)) > LAYERS.index(layer(name)):
                yield f"{name}: {layer(name)} does not know {layer(other)} ({other})"
            elif (path, name) in headers and not other.startswith("kavoratb1c/"):
                yield f"{name}: a public header includes the internal {other}"
        if (path, name) in headers and path.name != "marker.h" and re.search(r"^\s*(return|inline|template)\b", text, re.M):
            yield f"{name}: a public header holds code"


found = list(faults())
for fault in found:
    print(fault)
if found:
    sys.exit(1)
print("layers: every include goes up")
