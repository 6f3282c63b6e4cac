"""plain_png.py FILE RED GREEN BLUE: a picture of 2 x 1 pixels in one colour."""
import struct
import sys
import zlib


def chunk(kind: bytes, data: bytes) -> bytes:
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


colour = bytes(int(part) for part in sys.argv[2:5])
with open(sys.argv[1], "wb") as picture:
    picture.write(b"\x89PNG\r\n\x1a\n"
                  + chunk(b"IHDR", struct.pack(">IIBBBBB", 2, 1, 8, 2, 0, 0, 0))
                  + chunk(b"IDAT", zlib.compress(b"\0" + 2 * colour))
                  + chunk(b"IEND", b""))
