#!/usr/bin/env python3
"""Puts the images of a symbol set together from its fragments, one SVG file an image.

usage: compose.py TABLE ARRANGEMENTS FRAGMENTS OUTPUT

TABLE names the images and what they are made of (scheme.tsv); FRAGMENTS is a drawing whose direct
children with an id are the fragments and whose defs hold what they share; OUTPUT is the folder to
fill. What is drawn at a scale keeps the weight of its lines.
"""

import re
import sys
from pathlib import Path
from xml.etree import ElementTree

import tables

SVG = "http://www.w3.org/2000/svg"
XLINK = "http://www.w3.org/1999/xlink"
FRAME = (f'<svg xmlns="{SVG}" xmlns:xlink="{XLINK}" version="1.2" baseProfile="tiny" '
         'width="240" height="240" viewBox="0 0 240 240">\n')
SHADE = "shade"


def markup(element):
    text = ElementTree.tostring(element, encoding="unicode")
    return re.sub(r'\sxmlns(:\w+)?="[^"]*"', "", text).strip()


def read_fragments(path):
    """The markup that all fragments share, and the markup of each fragment."""
    ElementTree.register_namespace("", SVG)
    ElementTree.register_namespace("xlink", XLINK)
    root = ElementTree.parse(path).getroot()
    shared = "\n".join(markup(child) for child in root if child.tag == f"{{{SVG}}}defs")
    fragments = {child.get("id"): markup(child) for child in root if child.get("id")}
    return shared, fragments


def placed(fragment, place):
    x, y, scale, turn = place

    def keep_weight(match):
        return f'stroke-width="{float(match[1]) / abs(scale):.3g}"'

    steady = re.sub(r'stroke-width="([\d.]+)"', keep_weight, fragment)
    return f'<g transform="translate({x:g} {y:g}) rotate({turn:g}) scale({scale:g})">{steady}</g>'


def compose(parts, shared, fragments, arrangements):
    body = [placed(fragments[name], place)
            for name, arrangement in parts for place in arrangements[arrangement]]
    return FRAME + shared + "\n" + "\n".join(body) + "\n</svg>\n"


def main(table, arrangements_file, fragments_file, output):
    shared, fragments = read_fragments(fragments_file)
    arrangements = tables.read_arrangements(arrangements_file)
    output = Path(output)
    output.mkdir(parents=True, exist_ok=True)
    for image, parts in tables.read_art(table):
        drawings = {image: parts}
        if tables.has_noshadow(image):
            drawings[f"noshadow_{image}"] = [part for part in parts if part[0] != SHADE]
        for name, drawn in drawings.items():
            try:
                text = compose(drawn, shared, fragments, arrangements)
            except KeyError as missing:
                sys.exit(f"{table}: {image}: there is no {missing}")
            (output / f"{name}.svg").write_text(text, encoding="utf-8")


if __name__ == "__main__":
    if len(sys.argv) != 5:
        sys.exit(__doc__)
    main(*sys.argv[1:])
