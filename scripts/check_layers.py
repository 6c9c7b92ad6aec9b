# SPDX-License-Identifier: MIT
"""Holds every include of the sources against the order of the layers, and every file against the size limit."""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent / "src"
# Which folders the rules of a folder may use. Windows may use everything.
ALLOWED = {
    "runtime": {"runtime"},
    "tile": {"runtime", "tile", "editor/slots.h"},
    "palette": {"runtime", "palette", "tile"},
    "browser": {"runtime", "tile", "palette", "browser"},
    "editor": {"runtime", "tile", "palette", "editor"},
    "exchange": {"runtime", "tile", "palette", "editor", "exchange"},
    "importers": {"runtime", "palette", "importers"},
    "filetools": {"runtime", "tile", "filetools"},
    "shell": {"runtime", "tile", "browser", "shell"},
    "forms": {"runtime", "forms"},
}
MOST_LINES = 600
INCLUDE = re.compile(r'#include "([a-z]+)/([a-z_0-9/]+\.h)"')


def problems(path):
    lines = path.read_text(encoding="utf-8").splitlines()
    name = path.relative_to(ROOT)
    if len(lines) > MOST_LINES:
        yield f"{name}: {len(lines)} lines, at most {MOST_LINES}"
    folder = name.parts[0]
    if folder not in ALLOWED or "windows" in name.parts:
        return
    for number, line in enumerate(lines, 1):
        found = INCLUDE.match(line)
        if not found:
            continue
        target = f"{found.group(1)}/{found.group(2)}"
        if "windows/" in target or (found.group(1) not in ALLOWED[folder] and target not in ALLOWED[folder]):
            yield f"{name}:{number}: {folder} must not use {target}"


def main():
    found = [text for path in sorted(ROOT.rglob("*")) if path.suffix in (".h", ".cpp") for text in problems(path)]
    print("\n".join(found) if found else "the layers hold")
    return 1 if found else 0


sys.exit(main())
