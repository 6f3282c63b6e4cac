#!/usr/bin/env python3
"""Writes the list of images that go inside the programs, below ":/zephyrix/images".

usage: catalogue.py LIST PREFIX=FOLDER...
"""

import sys
from pathlib import Path


def entries(prefix, folder):
    for path in sorted(Path(folder).glob("*.png")):
        yield f'<file alias="{prefix}{path.name}">{path}</file>'


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    lines = [line for argument in sys.argv[2:] for line in entries(*argument.split("=", 1))]
    Path(sys.argv[1]).write_text('<RCC><qresource prefix="/zephyrix/images">\n' + "\n".join(lines)
                                 + "\n</qresource></RCC>\n", encoding="utf-8")
