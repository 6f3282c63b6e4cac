#!/usr/bin/env python3
"""Makes small PNG files for the target symbol_cache: one a kind of pixel, and some that are odd.

    png_seeds.py FOLDER
"""
import pathlib
import struct
import sys
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"
GREY, RGB, PALETTE, GREY_ALPHA, RGBA = 0, 2, 3, 4, 6
CHANNELS = {GREY: 1, RGB: 3, PALETTE: 1, GREY_ALPHA: 2, RGBA: 4}


def part(name, content):
    """A part of the file: length, name, content, checksum."""
    return (struct.pack(">I", len(content)) + name + content
            + struct.pack(">I", zlib.crc32(name + content)))


def png(kind, depth, side=4, extra=b"", pixels_of=None, interlaced=0):
    """A square picture with a gradient; `pixels_of` is the side of the pixels that are really there."""
    row = (side * CHANNELS[kind] * depth + 7) // 8
    rows = b"".join(b"\0" + bytes((x * 16 + y) % 256 for x in range(row))
                    for y in range(pixels_of or side))
    palette = part(b"PLTE", bytes(range(48))) if kind == PALETTE else b""
    return (SIGNATURE
            + part(b"IHDR", struct.pack(">IIBBBBB", side, side, depth, kind, 0, 0, interlaced))
            + palette + extra + part(b"IDAT", zlib.compress(rows)) + part(b"IEND", b""))


def seeds():
    yield "whole", png(RGBA, 8, extra=part(b"tEXt", b"Scale\x002"))
    yield "grey-1-bit", png(GREY, 1)
    yield "grey-16-bits", png(GREY, 16)
    yield "grey-alpha", png(GREY_ALPHA, 8)
    yield "rgb", png(RGB, 8)
    yield "palette", png(PALETTE, 4, extra=part(b"tRNS", bytes(range(16))))
    yield "interlaced", png(RGBA, 8, interlaced=1)
    yield "cut-off", png(RGBA, 8)[:-20]
    yield "too-few-rows", png(RGB, 8, side=8, pixels_of=3)
    yield "scale-zero", png(RGBA, 8, extra=part(b"tEXt", b"Scale\x000"))
    yield "scale-in-words", png(RGBA, 8, extra=part(b"tEXt", b"Scale\x00nan"))
    yield "broad", png(GREY, 1, side=4097)
    # Found by fuzzing: the codec made room for the gigabyte that the text's length claims.
    yield "text-of-a-gigabyte", png(RGBA, 8, extra=b"\x40\0\0\x07tEXtScale\x002")
    yield "compressed-text", png(RGBA, 8, extra=part(b"zTXt", b"Scale\x00\x00" + zlib.compress(b"3")))


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for name, content in seeds():
        (folder / f"{name}.png").write_bytes(content)


main()
