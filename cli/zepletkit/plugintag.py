"""The tag that zeplet_add_plugin() puts into a library: what it was built for and against."""

import struct
from pathlib import Path

from .problem import Problem

SECTION = b".zeplet_plugin"
HEADER = struct.Struct("<16s2HI3QI6H")  # of a 64-bit ELF file
SECTION_HEADER = struct.Struct("<2I4Q2I2Q")


def read_tag(library):
    """The tag's members by name: name, library, qt, compiler, architecture."""
    content = Path(library).read_bytes()
    try:
        text = _section(content).rstrip(b"\0").decode()
        return dict(line.split("=", 1) for line in text.splitlines())
    except (struct.error, ValueError, IndexError):
        raise Problem(f"{library} has no plugin tag: build it with zeplet_add_plugin().") from None


def _section(content):
    header = HEADER.unpack_from(content)
    if header[0][:6] != b"\x7fELF\x02\x01":  # 64 bits, little-endian
        raise ValueError
    start, size, count, names = header[6], *header[11:14]
    sections = [SECTION_HEADER.unpack_from(content, start + size * i) for i in range(count)]
    names = sections[names][4]
    for name, _, _, _, offset, length, *_ in sections:
        begin = names + name
        if content[begin:begin + len(SECTION) + 1] == SECTION + b"\0":
            return content[offset:offset + length]
    raise ValueError
