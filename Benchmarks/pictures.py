"""Portraits as browsers download them for accounts, made without any library for pictures."""

import struct
import zlib
from random import Random


def portrait(random: Random, size: int) -> bytes:
    """A square PNG that compresses as a photograph does: a gradient under fine noise."""
    rows = b"".join(b"\0" + _row(random, y, size) for y in range(size))
    header = struct.pack(">IIBBBBB", size, size, 8, 2, 0, 0, 0)
    chunks = _chunk(b"IHDR", header) + _chunk(b"IDAT", zlib.compress(rows)) + _chunk(b"IEND", b"")
    return b"\x89PNG\r\n\x1a\n" + chunks


def _row(random: Random, y: int, size: int) -> bytes:
    gradient = b"".join(bytes((x * 240 // size, y * 240 // size, (x + y) * 120 // size)) for x in range(size))
    # Only the lowest three bits of each channel are noise, for a whole row at a time.
    low_bits = int.from_bytes(b"\x07" * len(gradient), "big")
    noise = int.from_bytes(random.randbytes(len(gradient)), "big") & low_bits
    return (int.from_bytes(gradient, "big") ^ noise).to_bytes(len(gradient), "big")


def _chunk(kind: bytes, content: bytes) -> bytes:
    return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))
