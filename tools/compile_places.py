#!/usr/bin/env python3
"""Compiles the list of places of resources/places/ to the database in which the programs search.

    compile_places.py PLACES_FOLDER OUTPUT.sqlite

A bad entry ends it with one line for each, "file:line: what is wrong", and no output. The same tables give
the same bytes. What the tables and the database hold stands in docs/places.md.
"""

import os
import re
import sqlite3
import sys
import unicodedata
from pathlib import Path
from typing import NamedTuple

LANGUAGES = ["en", "de", "pl", "nl", "fr", "es", "sv", "it", "ru"]
FEWEST_PLACES = 25000

SCHEMA = """
CREATE TABLE place (id INTEGER PRIMARY KEY, name TEXT NOT NULL, country TEXT NOT NULL, province TEXT,
    latitude REAL NOT NULL, longitude REAL NOT NULL, zone TEXT NOT NULL, inhabitants INTEGER NOT NULL);
CREATE INDEX place_latitude ON place (latitude, longitude);
CREATE TABLE translation (place INTEGER NOT NULL, language TEXT NOT NULL, name TEXT NOT NULL,
    PRIMARY KEY (place, language)) WITHOUT ROWID;
CREATE TABLE country (code TEXT NOT NULL, language TEXT NOT NULL, name TEXT NOT NULL,
    PRIMARY KEY (code, language)) WITHOUT ROWID;
CREATE TABLE folding (letters TEXT PRIMARY KEY, plain TEXT NOT NULL) WITHOUT ROWID;
CREATE TABLE spelling (position INTEGER PRIMARY KEY, place INTEGER NOT NULL, folded TEXT NOT NULL);
CREATE INDEX spelling_folded ON spelling (folded, position, place);
CREATE VIRTUAL TABLE word USING fts5 (name, area, content='', columnsize=0, prefix='1 2 3',
    tokenize='ascii');
"""


class Complaints:
    """Collects what is wrong, so that one run shows all of it."""

    def __init__(self):
        self.lines = []

    def add(self, path, number, what):
        self.lines.append(f"{path}:{number}: {what}")


class Place(NamedTuple):
    id: int
    name: str
    country: str
    province: str
    latitude: float
    longitude: float
    zone: str
    inhabitants: int


def read_table(path, fields, complaints):
    """Line number and fields of each line with one of these numbers of fields."""
    try:
        text = path.read_text(encoding="utf-8")
    except (OSError, UnicodeDecodeError) as error:
        complaints.add(path, 1, f"cannot be read: {error}")
        return
    if text != unicodedata.normalize("NFC", text):
        complaints.add(path, 1, "is not in the composed normal form (NFC)")
    for number, line in enumerate(text.split("\n"), start=1):
        if not line or line.startswith("#"):
            continue
        row = line.split("\t")
        if len(row) in fields:
            yield number, row
        else:
            complaints.add(path, number, f"has {len(row)} fields")


def place_from(row):
    return Place(int(row[0]), row[1], row[2], row[3], float(row[4]), float(row[5]), row[6], int(row[7]))


def place_fault(place, countries):
    """What is wrong with a place, or nothing."""
    if place.name != " ".join(place.name.split()) or not place.name:
        return "the name is empty or has stray blanks"
    if place.country not in countries:
        return f"there is no country '{place.country}'"
    if not (abs(place.latitude) <= 90 and abs(place.longitude) <= 180):
        return "the coordinates are not on earth"
    if place.inhabitants < 0 or place.id < 1:
        return "the id or the inhabitants are not possible"
    return "" if "/" in place.zone else f"'{place.zone}' is no zone"


def read_places(path, countries, complaints):
    places = {}
    for number, row in read_table(path, (8,), complaints):
        try:
            place = place_from(row)
        except ValueError as error:
            complaints.add(path, number, str(error))
            continue
        fault = place_fault(place, countries)
        if place.id in places:
            fault = f"{place.id} is there already"
        if fault:
            complaints.add(path, number, fault)
        places[place.id] = place
    if len(places) < FEWEST_PLACES:
        complaints.add(path, 1, f"has {len(places)} places, fewer than {FEWEST_PLACES}")
    return places


def read_countries(path, complaints):
    return {code: dict(zip(LANGUAGES, names))
            for _, (code, *names) in read_table(path, (10,), complaints)}


def read_provinces(path, complaints):
    return {(country, code): name for _, (country, code, name) in read_table(path, (3,), complaints)}


def read_names(path, places, complaints):
    """place id -> language -> name, with the further names under ''."""
    names = {}
    for number, (key, listed, *row) in read_table(path, (12,), complaints):
        place = places.get(int(key)) if key.isdecimal() else None
        if place is None or place.name != listed:
            complaints.add(path, number, f"places.tsv has no {key} '{listed}'")
        elif place.id in names:
            complaints.add(path, number, f"'{listed}' is there already")
        elif listed in row[:-1]:
            complaints.add(path, number, f"'{listed}' is the list's own name: leave the field empty")
        else:
            names[place.id] = {key: name for key, name in zip([*LANGUAGES, ""], row) if name}
    return names


def read_folding(path, complaints):
    """The two ways to fold a name."""
    rows = [row for _, row in read_table(path, (2, 3), complaints)]
    return Folding({row[0]: row[1] for row in rows}), Folding({row[0]: row[-1] for row in rows})


class Folding:
    """Puts a text into plain lower-case words with one blank between them, as NameFolding does."""

    def __init__(self, table):
        self.table = table
        longest_first = sorted(table, key=len, reverse=True)
        self.letters = re.compile("|".join(re.escape(letters) for letters in longest_first))

    def __call__(self, text):
        text = " " + unicodedata.normalize("NFC", text.lower())
        plain = self.letters.sub(lambda found: self.table[found[0]], text)
        kinds = [(letter, unicodedata.category(letter)[0]) for letter in unicodedata.normalize("NFKD", plain)]
        return " ".join("".join(letter if kind in "LN" else " " for letter, kind in kinds if kind != "M")
                        .lower().split())


def spellings(place, names, foldings):
    """All that a place is found under, without repetition."""
    own = names.get(place.id, {})
    all_names = [place.name, *(name for key, name in own.items() if key), *own.get("", "").split(", ")]
    every_way = [folding(name) for name in all_names for folding in foldings]
    return list(dict.fromkeys(text for text in every_way if text))


def area(place, countries, provinces, folding):
    """The words that narrow a search: country, its code, and province."""
    texts = [place.country, *countries[place.country].values(),
             provinces.get((place.country, place.province), ""),
             place.province if place.province.isalpha() else ""]
    return " ".join(dict.fromkeys(" ".join(folding(text) for text in texts).split()))


def fill(connection, places, names, countries, provinces, foldings):
    connection.executemany("INSERT INTO place VALUES (?, ?, ?, ?, ?, ?, ?, ?)", sorted(
        place._replace(province=provinces.get((place.country, place.province))) for place in places.values()))
    connection.executemany("INSERT INTO translation VALUES (?, ?, ?)", sorted(
        (place, language, name) for place, row in names.items() for language, name in row.items() if language))
    connection.executemany("INSERT INTO country VALUES (?, ?, ?)", sorted(
        (code, language, name) for code, row in countries.items() for language, name in row.items()))
    connection.executemany("INSERT INTO folding VALUES (?, ?)", sorted(foldings[0].table.items()))
    position = 0
    # The order of the positions is the order of the answers: the larger place first.
    for place in sorted(places.values(), key=lambda place: (-place.inhabitants, place.id)):
        words = area(place, countries, provinces, foldings[0])
        for spelling in spellings(place, names, foldings):
            position += 1
            connection.execute("INSERT INTO spelling VALUES (?, ?, ?)", (position, place.id, spelling))
            connection.execute("INSERT INTO word (rowid, name, area) VALUES (?, ?, ?)", (position, spelling, words))
    connection.execute("INSERT INTO word (word) VALUES ('optimize')")


def write_database(path, *contents):
    part = path.with_name(path.name + ".part")
    part.unlink(missing_ok=True)
    connection = sqlite3.connect(part)
    connection.execute("PRAGMA page_size = 4096")
    connection.executescript(SCHEMA)
    fill(connection, *contents)
    connection.commit()
    connection.execute("VACUUM")
    connection.close()
    os.replace(part, path)


def main():
    if len(sys.argv) != 3:
        sys.exit("usage: compile_places.py PLACES_FOLDER OUTPUT.sqlite")
    folder, output = Path(sys.argv[1]), Path(sys.argv[2])
    complaints = Complaints()
    countries = read_countries(folder / "countries.tsv", complaints)
    provinces = read_provinces(folder / "provinces.tsv", complaints)
    places = read_places(folder / "places.tsv", countries, complaints)
    names = read_names(folder / "names.tsv", places, complaints)
    foldings = read_folding(folder / "folding.tsv", complaints)
    if complaints.lines:
        sys.exit("\n".join(complaints.lines))
    write_database(output, places, names, countries, provinces, foldings)


if __name__ == "__main__":
    main()
