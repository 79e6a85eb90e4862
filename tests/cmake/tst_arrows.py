#!/usr/bin/env python3
"""The areas of the tree depend on each other in one direction only.

Checks #include lines and the link lists of CMake. Usage: tst_arrows.py <tree>
"""

import pathlib
import re
import sys
import tempfile
import unittest

# What an area may use beside itself. An area is a folder; the longest folder that fits counts.
ALLOWED = {
    "base": set(),
    "host/link": {"base"},
    "host": {"host/link", "base"},
    "src": {"host", "base"},
    "simulator": {"host/link"},
    "panel": {"host"},
    "panel/plugins": {"src", "host"},
    "testkit": {"panel", "simulator", "src", "host"},
    "examples": {"src", "host", "testkit"},
}

# How headers of an area are spelled in an #include: the folder, and what takes its place.
SPELLINGS = [("src/", "zeplet/"), ("host/", ""), ("base/", ""), ("simulator/", ""),
             ("simulator/", "simulator/"), ("panel/", ""), ("panel/", "panel/"),
             ("testkit/", "zeplet-test/")]

TARGETS = {
    "zeplet_base": "base",
    "zeplet_link": "host/link",
    "zeplet_host": "host", "Zeplet::Host": "host",
    "zeplet": "src", "Zeplet::zeplet": "src",
    "zeplet_test_kit": "testkit", "Zeplet::Test": "testkit",
    "zeplet_simulator": "simulator", "Zeplet::Simulator": "simulator",
}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
LINK = re.compile(r"target_link_libraries\(([^)]*(?:\$<[^>]*>[^)]*)*)\)")


def area_of(path):
    fitting = [area for area in ALLOWED if path.startswith(area + "/")]
    return max(fitting, key=len) if fitting else None


def sources(tree, *patterns):
    tops = sorted({area.split("/")[0] for area in ALLOWED})
    return sorted(path for top in tops for pattern in patterns
                  for path in (tree / top).rglob(pattern))


def spelled_headers(tree):
    """From the text of an #include to the paths that it may mean."""
    headers = {}
    for path in sources(tree, "*.h"):
        relative = path.relative_to(tree).as_posix()
        for folder, prefix in SPELLINGS:
            if relative.startswith(folder):
                headers.setdefault(prefix + relative[len(folder):], []).append(relative)
    return headers


def included_path(tree, source, quote, text, headers):
    beside = (source.parent / text).resolve()
    if quote == '"' and beside.is_relative_to(tree) and beside.exists():
        return beside.relative_to(tree).as_posix()
    meant = headers.get(text, [])
    own = [path for path in meant if area_of(path) == area_of(source.relative_to(tree).as_posix())]
    return (own or meant or [None])[0]


def include_faults(tree):
    headers = spelled_headers(tree)
    for source in sources(tree, "*.h", "*.cpp"):
        name = source.relative_to(tree).as_posix()
        area = area_of(name)
        if not area:
            continue
        for quote, text in INCLUDE.findall(source.read_text(encoding="utf-8")):
            used = area_of(included_path(tree, source, quote, text, headers) or "")
            if used and used != area and used not in ALLOWED[area]:
                yield f"{name} includes {text}, which belongs to {used}"


def link_faults(tree):
    for source in sources(tree, "CMakeLists.txt"):
        name = source.relative_to(tree).as_posix()
        area = area_of(name)
        if not area:
            continue
        for arguments in LINK.findall(source.read_text(encoding="utf-8")):
            words = re.split(r"[\s:<>$]*(?:BUILD_INTERFACE:)|[\s>]+", arguments)
            for used, word in ((TARGETS.get(word), word) for word in words):
                if used and used != area and used not in ALLOWED[area]:
                    yield f"{name} links {word}, which belongs to {used}"


def faults(tree):
    return [*include_faults(tree), *link_faults(tree)]


class Arrows(unittest.TestCase):
    tree = None

    def test_of_this_tree_go_one_way(self):
        self.assertEqual([], faults(self.tree))

    def test_against_the_direction_are_found(self):
        cases = [
            ("host/kest/a.cpp", "#include <zeplet/plugin/b.h>\n", "src/plugin/b.h"),
            ("panel/a.cpp", '#include "../src/plugin/b.h"\n', "src/plugin/b.h"),
            ("simulator/a.cpp", "#include <ostrel/b.h>\n", "host/ostrel/b.h"),
            ("host/link/a.cpp", '#include "ostrel/b.h"\n', "host/ostrel/b.h"),
            ("src/interface/a.cpp", "#include <link/b.h>\n", "host/link/b.h"),
            ("base/a.h", "#include <hostexport.h>\n", "host/hostexport.h"),
            ("host/CMakeLists.txt", "target_link_libraries(a PRIVATE Qt5::Core\n zeplet)\n", ""),
            ("src/CMakeLists.txt",
             "target_link_libraries(a PRIVATE $<BUILD_INTERFACE:zeplet_link>)\n", ""),
        ]
        for name, text, header in cases:
            with self.subTest(name), tempfile.TemporaryDirectory() as folder:
                tree = pathlib.Path(folder).resolve()
                for path, content in ((header, ""), (name, text)):
                    if path:
                        (tree / path).parent.mkdir(parents=True, exist_ok=True)
                        (tree / path).write_text(content, encoding="utf-8")
                self.assertEqual(1, len(faults(tree)))

    def test_along_the_direction_are_fine(self):
        with tempfile.TemporaryDirectory() as folder:
            tree = pathlib.Path(folder).resolve()
            for path, text in (("host/ostrel/b.h", '#include "hostexport.h"\n'),
                               ("host/hostexport.h", ""), ("base/b.h", ""),
                               ("src/a.cpp", "#include <ostrel/b.h>\n#include <b.h>\n"),
                               ("panel/plugins/a.cpp", "#include <zeplet/c.h>\n"),
                               ("src/c.h", "")):
                (tree / path).parent.mkdir(parents=True, exist_ok=True)
                (tree / path).write_text(text, encoding="utf-8")
            self.assertEqual([], faults(tree))


if __name__ == "__main__":
    Arrows.tree = pathlib.Path(sys.argv.pop()).resolve()
    unittest.main()
