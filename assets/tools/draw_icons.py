#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes assets/icons/*.svg and assets/icons.qrc. With --check it only tells what is out of date."""

import sys
from pathlib import Path

sys.dont_write_bytecode = True

from pictures import boxes, buttons, scenes  # noqa: E402
from pictures.style import document  # noqa: E402

ASSETS = Path(__file__).resolve().parent.parent


def all_files():
    """Relative path -> text of every generated file."""
    made = buttons.pictures() | boxes.pictures() | scenes.pictures()
    files = {f"icons/{name}.svg": document(*made[name]) for name in sorted(made)}
    rows = "".join(f'        <file alias="{Path(name).name}">{name}</file>\n' for name in files)
    files["icons.qrc"] = f'<RCC>\n    <qresource prefix="/icons">\n{rows}    </qresource>\n</RCC>\n'
    return files


def main():
    files = all_files()
    present = {str(p.relative_to(ASSETS)) for p in (ASSETS / "icons").glob("*.svg")}
    wrong = [name for name, text in files.items()
             if not (ASSETS / name).exists() or (ASSETS / name).read_text() != text]
    strangers = sorted(present - set(files))
    if "--check" in sys.argv:
        print("\n".join(f"out of date: {name}" for name in wrong + strangers) or "all up to date")
        return 1 if wrong or strangers else 0
    for name in wrong:
        (ASSETS / name).write_text(files[name])
    print(f"{len(files)} files, {len(wrong)} written", *[f"not drawn here: {s}" for s in strangers], sep="\n")
    return 0


if __name__ == "__main__":
    sys.exit(main())
