"""Small PNG pictures, made when they are needed so that the repository holds no binary files."""

import struct
import zlib
from collections.abc import Callable

Colour = tuple[int, int, int, int]

TRANSPARENT: Colour = (0, 0, 0, 0)


def png(width: int, height: int, colour_at: Callable[[int, int], Colour]) -> bytes:
    """An RGBA picture whose pixels, addressed from the upper left, are what colour_at answers."""
    rows = b"".join(b"\0" + b"".join(bytes(colour_at(x, y)) for x in range(width)) for y in range(height))
    header = struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)
    chunks = _chunk(b"IHDR", header) + _chunk(b"IDAT", zlib.compress(rows)) + _chunk(b"IEND", b"")
    return b"\x89PNG\r\n\x1a\n" + chunks


def plain_png(colour: Colour, width: int = 16, height: int = 16) -> bytes:
    return png(width, height, lambda _x, _y: colour)


def person_png(background: Colour, size: int = 128) -> bytes:
    """A round portrait: light head and shoulders on a disc, as browsers draw a profile."""
    middle = size / 2
    light: Colour = (255, 255, 255, 235)

    def colour_at(x: int, y: int) -> Colour:
        across, down = x + 0.5 - middle, y + 0.5 - middle
        if across**2 + down**2 > middle**2:
            return TRANSPARENT
        head = across**2 + (down + size * 0.14) ** 2 < (size * 0.17) ** 2
        shoulders = (across / (size * 0.30)) ** 2 + ((down - size * 0.36) / (size * 0.26)) ** 2 < 1
        return light if head or shoulders else background

    return png(size, size, colour_at)


def ring_png(outer: Colour, inner: Colour, size: int = 128) -> bytes:
    """A disc within a ring: a stand-in for a browser's icon."""
    middle = size / 2

    def colour_at(x: int, y: int) -> Colour:
        distance = ((x + 0.5 - middle) ** 2 + (y + 0.5 - middle) ** 2) ** 0.5 / middle
        if distance > 0.96:
            return TRANSPARENT
        return inner if distance < 0.42 else (255, 255, 255, 255) if distance < 0.52 else outer

    return png(size, size, colour_at)


def _chunk(kind: bytes, content: bytes) -> bytes:
    return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))
