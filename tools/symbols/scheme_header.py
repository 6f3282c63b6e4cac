#!/usr/bin/env python3
"""Writes the tables of resources/symbols/ as C++ constants.

usage: scheme_header.py FOLDER HEADER
"""

import sys
from pathlib import Path

import tables

ARRAYS = {
    "kCelestialImages": ("sun",),
    "kMoonImages": ("moon",),
    "kCloudImages": ("cloud",),
    "kPrecipitationImages": ("prec",),
    "kWarningImages": ("warn", "storm"),
}


def array(name, kind, lines):
    body = "\n".join(f"    {kind}{{{line}}}," for line in lines)
    return f"inline constexpr std::array<{kind}, {len(lines)}> {name}{{{{\n{body}\n}}}};\n"


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def image_line(image):
    texts = ", ".join(quoted(text) for text in (image.kind, image.strength, image.name))
    return f"{quoted(image.image)}, {image.value}, {texts}"


def sky_line(sky):
    choices = ", ".join(f"SkyChoice{{{cloud}, {str(body).lower()}}}" for cloud, body in sky.choices)
    return f"{quoted(sky.profile)}, {{{{{choices}}}}}"


def header(folder):
    images = tables.read_scheme(folder)
    skies = tables.read_sky(folder)
    order = [sky.profile for sky in skies]
    parts = ["// Made from resources/symbols/ by the build.\n#pragma once\n",
             '#include "symbolscheme/SymbolTypes.h"\n', "namespace zephyrix {\n"]
    for name, layers in ARRAYS.items():
        lines = [image_line(image) for image in images if tables.layer(image) in layers]
        parts.append(array(name, "LayerImage", lines))
    parts.append(array("kSkyProfiles", "SkyProfile", [sky_line(sky) for sky in skies]))
    weathers = [f"{w.ww}, {w.number}, {order.index(w.sky)}, {quoted(w.name)}"
                for w in tables.read_present_weather(folder)]
    parts.append(array("kPresentWeathers", "PresentWeather", weathers))
    return "\n".join(parts) + "\n}  // namespace zephyrix\n"


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    target = Path(sys.argv[2])
    target.parent.mkdir(parents=True, exist_ok=True)
    target.write_text(header(sys.argv[1]), encoding="utf-8")
