"""Reads and checks the tables of resources/symbols/, for the scripts beside this one."""

import re
import sys
from collections import namedtuple
from pathlib import Path

Image = namedtuple("Image", "image value kind strength name")
Art = namedtuple("Art", "image parts")  # parts: (fragment, arrangement or "")
Sky = namedtuple("Sky", "profile choices")  # choices: 11 pairs (cloud digit, body shown)
PresentWeather = namedtuple("PresentWeather", "ww number sky name")

STRENGTHS = {"-", "light", "moderate", "heavy", "severe"}
LIGHTNING_DIGITS = {2, 3, 4, 5}
QUIET_DIGITS = {0, 6, 7, 8}
LIGHTNING_WITHOUT_DIGIT = 9991


def stop(path, line, reason):
    sys.exit(f"{path}:{line}: {reason}")


def rows(path, columns=None):
    """The cells of each line that is neither empty nor a comment, with its line number."""
    for number, text in enumerate(Path(path).read_text(encoding="utf-8").splitlines(), start=1):
        if not text.strip() or text.startswith("#"):
            continue
        cells = text.split("\t")
        if columns and len(cells) != columns:
            stop(path, number, f"{len(cells)} columns instead of {columns}")
        yield number, cells


def check_precipitation(path, line, image):
    """The rules that the head of scheme.tsv gives for a precipitation number."""
    if image.image != f"prec{image.value:04d}" or not 1000 <= image.value <= 9999:
        stop(path, line, f"{image.image} does not ask for {image.value}")
    special = image.value % 10
    thunder = "thunder" in image.kind or image.kind == "lightning"
    if image.value in (LIGHTNING_WITHOUT_DIGIT, 9999):
        return
    if special not in (LIGHTNING_DIGITS if thunder else QUIET_DIGITS):
        stop(path, line, f"the last digit {special} is not for {image.kind}")


def read_scheme(folder):
    path = Path(folder) / "scheme.tsv"
    images = []
    for line, cells in rows(path, 6):
        image = Image(cells[0], int(cells[1]), *cells[2:5])
        if image.strength not in STRENGTHS:
            stop(path, line, f"unknown strength {image.strength}")
        if image.image in (known.image for known in images):
            stop(path, line, f"{image.image} is given twice")
        if layer(image) == "prec":
            check_precipitation(path, line, image)
        images.append(image)
    return images


def layer(image):
    """Which layer an image belongs to: sun, moon, cloud, prec, warn or storm."""
    return re.sub(r"\d+$", "", image.image)


def has_noshadow(name):
    """Whether a code can ask for the image without a cloud's shade: not where D4 is 9."""
    return re.fullmatch(r"prec.[0-8]..", name) is not None


def read_art(path):
    """What each image is made of: its name is in the first column, its parts in the last."""
    return [Art(cells[0], [part.partition("@")[::2] for part in cells[-1].split()])
            for _, cells in rows(path)]


def read_arrangements(path):
    """Name to places; a place is (x, y, scale, turn in degrees clockwise)."""
    arrangements = {"": [(0.0, 0.0, 1.0, 0.0)]}
    for line, (name, text) in rows(path, 2):
        places = [tuple(map(float, place.split(","))) for place in text.split()]
        if not all(2 <= len(place) <= 4 for place in places):
            stop(path, line, "a place is x,y[,scale[,turn]]")
        arrangements[name] = [place + (1.0, 0.0)[len(place) - 2:] for place in places]
    return arrangements


def read_sky(folder):
    path = Path(folder) / "sky.tsv"
    skies = []
    for line, cells in rows(path, 12):
        if not all(re.fullmatch(r"[0-9]\+?", cell) for cell in cells[1:]):
            stop(path, line, "a cloud digit, with + where the sun or moon is shown")
        skies.append(Sky(cells[0], [(int(cell[0]), cell.endswith("+")) for cell in cells[1:]]))
    return skies


def read_present_weather(folder):
    path = Path(folder) / "presentweather.tsv"
    numbers = {image.value for image in read_scheme(folder) if layer(image) == "prec"}
    profiles = [sky.profile for sky in read_sky(folder)]
    weathers = []
    for line, (ww, number, sky, name) in rows(path, 4):
        weather = PresentWeather(int(ww), 0 if number == "-" else int(number), sky, name)
        if weather.ww != len(weathers):
            stop(path, line, f"ww {ww} where {len(weathers)} is expected")
        if weather.number and weather.number not in numbers:
            stop(path, line, f"scheme.tsv has no prec{number}")
        if sky not in profiles:
            stop(path, line, f"sky.tsv has no profile {sky}")
        weathers.append(weather)
    if len(weathers) != 100:
        stop(path, line, "ww ends before 99")
    return weathers
