"""Reads the colours of a PNG as the panel writes it: 8 bits a channel, not interlaced."""

import struct
import zlib


def colours(path):
    """The colours (red, green, blue) of a picture and how often each occurs."""
    data, position, header = b"", 8, None
    content = path.read_bytes()
    while position < len(content):
        length, kind = struct.unpack_from(">I4s", content, position)
        body = content[position + 8:position + 8 + length]
        header = struct.unpack(">IIBB", body[:10]) if kind == b"IHDR" else header
        data += body if kind == b"IDAT" else b""
        position += length + 12
    width, height, _, kind = header
    return count(zlib.decompress(data), width, height, {2: 3, 6: 4}[kind])


def count(data, width, height, size):
    found = {}
    above = bytes(width * size)
    for row in range(height):
        start = row * (width * size + 1)
        above = unfiltered(data[start], bytearray(data[start + 1:start + 1 + width * size]), above,
                           size)
        for index in range(0, width * size, size):
            colour = bytes(above[index:index + 3])
            found[colour] = found.get(colour, 0) + 1
    return {tuple(colour): number for colour, number in found.items()}


def unfiltered(kind, line, above, size):
    for index in range(len(line) if kind else 0):
        left = line[index - size] if index >= size else 0
        corner = above[index - size] if index >= size else 0
        guess = (left, above[index], (left + above[index]) // 2,
                 nearest(left, above[index], corner))[kind - 1]
        line[index] = (line[index] + guess) & 255
    return line


def nearest(left, above, corner):
    guess = left + above - corner
    return min((left, above, corner), key=lambda value: abs(guess - value))
