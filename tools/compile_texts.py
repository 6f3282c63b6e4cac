#!/usr/bin/env python3
"""Compiles the weather texts of resources/texts/ to the database that the panel reads.

    compile_texts.py TEXTS_FOLDER OUTPUT.sqlite

A bad entry ends it with one line for each, "file:line: what is wrong", and no output. The same tables give
the same bytes. How the tables work stands in docs/texts.md.
"""

import os
import sqlite3
import sys
import unicodedata
from pathlib import Path

MISSING = -9999
MOST_LETTERS = 40
CODES = [f"n{n}" for n in range(10)] + [f"ww{ww:02}" for ww in range(100)]

LATIN = "abcdefghijklmnopqrstuvwxyz"
CYRILLIC = "абвгдеёжзийклмнопрстуфхцчшщъыьэюя"

# language: number of its day set (the night's is one more), its letters, whether nouns may begin a
# text with a capital, and the stems of the words for the sun, which have no place in a text by night.
# Russian's number is irregular; it is the number under which the panel asks.
LANGUAGES = {
    "de": (2900, LATIN + "äöüß", True, ["sonn"]),
    "en": (2910, LATIN, False, ["sun"]),
    "pl": (2920, LATIN + "ąćęłńóśźż", False, ["słone", "słońc"]),
    "nl": (2930, LATIN + "ëïé", False, ["zon"]),
    "fr": (2940, LATIN + "àâçéèêëîïôûùœ’", False, ["soleil"]),
    "es": (2950, LATIN + "áéíóúüñ", False, ["solead"]),
    "sv": (2960, LATIN + "åäöé", False, ["soli", "sol "]),
    "it": (2970, LATIN + "àèéìòù’", False, ["soleggi"]),
    "ru": (2986, CYRILLIC, False, ["солн"]),
}
# "sonderbar", "zonder" and the like begin as the sun does and are something else.
NOT_THE_SUN = ["zonder", "sonder"]
# What several languages really write in the same way.
SHARED = {"virga"}


class Complaints:
    """Collects what is wrong, so that a translator sees all of it at once."""

    def __init__(self):
        self.lines = []

    def add(self, path, number, what):
        self.lines.append(f"{path}:{number}: {what}")


def entries(path, complaints):
    """The lines of a table: number and fields; comments and empty lines left out."""
    try:
        text = path.read_text(encoding="utf-8")
    except (OSError, UnicodeDecodeError) as error:
        complaints.add(path, 1, f"cannot be read: {error}")
        return
    for number, line in enumerate(text.split("\n"), start=1):
        if line and not line.startswith("#"):
            yield number, line.split("\t")


def read_table(path, fields, complaints):
    """code -> (line number, fields behind the code); each code exactly once."""
    table = {}
    for number, (code, *rest) in entries(path, complaints):
        if code not in CODES:
            complaints.add(path, number, f"unknown code '{code}'")
        elif code in table:
            complaints.add(path, number, f"'{code}' stands already in line {table[code][0]}")
        elif len(rest) not in fields:
            complaints.add(path, number, f"'{code}' has {len(rest)} fields behind the code")
        else:
            table[code] = (number, rest)
    for code in CODES:
        if code not in table:
            complaints.add(path, 1, f"'{code}' is missing")
    return table


def faults(text, letters, capitals):
    """What is wrong with one text in itself."""
    if not text or text != " ".join(text.split()):
        yield "is empty or has stray blanks"
        return
    if text != unicodedata.normalize("NFC", text):
        yield "is not in the composed normal form (NFC)"
    if len(text) > MOST_LETTERS:
        yield f"has {len(text)} letters; {MOST_LETTERS} are the most"
    if text[0].isupper() and not capitals:
        yield "begins with a capital"
    strange = sorted(set(text.lower()) - set(letters + " ,-"))
    if strange:
        yield f"has letters that the language does not: {' '.join(strange)}"


def names_the_sun(text, stems):
    lowered = text.lower()
    for word in NOT_THE_SUN:
        lowered = lowered.replace(word, "")
    return any(stem in lowered for stem in stems)


def read_language(path, language, complaints):
    """code -> (line number, text by day, text by night)."""
    _, letters, capitals, sun = LANGUAGES[language]
    texts = {}
    for code, (number, fields) in read_table(path, (1, 2), complaints).items():
        day, night = fields[0], fields[-1]
        for text in dict.fromkeys((day, night)):
            for fault in faults(text, letters, capitals):
                complaints.add(path, number, f"'{code}': \"{text}\" {fault}")
        if len(fields) == 2 and day == night:
            complaints.add(path, number, f"'{code}': the night's text is the day's: leave it out")
        if names_the_sun(night, sun):
            complaints.add(path, number, f"'{code}': \"{night}\" names the sun by night")
        texts[code] = (number, day, night)
    return texts


def read_weights(path, complaints):
    weights = {}
    for code, (number, (weight, _)) in read_table(path, (2,), complaints).items():
        if weight not in ("0", "1", "2"):
            complaints.add(path, number, f"'{code}': a weight is 0, 1 or 2, not '{weight}'")
        else:
            weights[code] = int(weight)
    return weights


def check_shared(folder, texts, complaints):
    """A sentence that stands for the same code in two languages was not translated."""
    for code in CODES:
        speakers = {}
        for language, table in texts.items():
            if code in table:
                number, day, _ = table[code]
                speakers.setdefault(day, []).append((language, number))
        for text, places in speakers.items():
            if len(places) < 2 or text in SHARED:
                continue
            named = ", ".join(language for language, _ in places)
            for language, number in places:
                complaints.add(folder / f"{language}.tsv", number,
                               f"'{code}': \"{text}\" stands in several languages: {named}")


def speaking_code(n, ww, weights):
    """Which of the two codes speaks; None where both are missing."""
    cloud = None if n == MISSING else f"n{n}"
    weather = None if ww == MISSING else f"ww{ww:02}"
    if cloud is None or weather is None:
        return cloud or weather
    heavier = weights[weather] > 0 and weights[weather] >= weights[cloud]
    return weather if heavier else cloud


def rows(texts, weights):
    for language, (day_set, *_) in LANGUAGES.items():
        for by_night in (0, 1):
            for n in [MISSING, *range(10)]:
                for ww in [MISSING, *range(100)]:
                    code = speaking_code(n, ww, weights)
                    if code:
                        yield day_set + by_night, n, ww, texts[language][code][1 + by_night]


def write_database(path, contents):
    part = path.with_name(path.name + ".part")
    part.unlink(missing_ok=True)
    connection = sqlite3.connect(part)
    connection.execute("PRAGMA page_size = 4096")
    connection.execute(
        "CREATE TABLE t_list_mapping (id_map INTEGER NOT NULL, n INTEGER NOT NULL,"
        " ww INTEGER NOT NULL, text TEXT, PRIMARY KEY (id_map, n, ww)) WITHOUT ROWID")
    connection.executemany("INSERT INTO t_list_mapping VALUES (?, ?, ?, ?)", sorted(contents))
    connection.commit()
    connection.close()
    os.replace(part, path)


def main():
    if len(sys.argv) != 3:
        sys.exit("usage: compile_texts.py TEXTS_FOLDER OUTPUT.sqlite")
    folder, output = Path(sys.argv[1]), Path(sys.argv[2])
    complaints = Complaints()
    weights = read_weights(folder / "codes.tsv", complaints)
    texts = {language: read_language(folder / f"{language}.tsv", language, complaints)
             for language in LANGUAGES}
    check_shared(folder, texts, complaints)
    if complaints.lines:
        sys.exit("\n".join(complaints.lines))
    write_database(output, rows(texts, weights))


if __name__ == "__main__":
    main()
