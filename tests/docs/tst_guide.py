#!/usr/bin/env python3
"""Follows docs/guide.md to the letter, in an empty directory, with an installation of this build.

Usage: tst_guide.py <guide> <build directory> [directory to work in and to leave]

Lines of a block ```console that begin with "$ " are commands, which must succeed; the other lines must
come in what the command before them prints, in that order. Comments in the Markdown say which blocks
are edits of a file, and which are not run: they need root or a person.
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

PATIENCE = 200  # seconds, on a machine that does other things, too
BLOCK = re.compile(r"(?:<!-- (?P<mark>[^>]*?) -->\n)?^```(?P<kind>\w+)\n(?P<text>.*?)^```$",
                   re.MULTILINE | re.DOTALL)


class Reader:
    """Does what the guide says."""

    def __init__(self, directory, prefix):
        self.directory = directory
        self.seconds = []
        self._replace = None
        self._environment = {**os.environ, "PATH": f"{prefix}/bin:{os.environ['PATH']}"}
        self._environment.pop("ZEPLET_BUILD", None)

    def follow(self, guide):
        for block in BLOCK.finditer(guide):
            mark = block["mark"] or ""
            if mark.startswith("in "):
                self._replace = (re.match(r"in (\S+), replace", mark)[1], block["text"])
            elif mark == "with":
                self._edit(*self._replace, block["text"])
            elif block["kind"] == "console" and not mark:
                for command in re.findall(r"^\$ .*\n(?:(?!\$ ).*\n)*", block["text"], re.MULTILINE):
                    self._run(*command.split("\n", 1))
            elif mark != "not run by the test":
                sys.exit(f"The guide has a block that nobody tries:\n{block[0]}")

    def _edit(self, name, old, new):
        path = self.directory / name
        text = path.read_text(encoding="utf-8")
        if text.count(old) != 1:
            sys.exit(f"{name} has these lines {text.count(old)} times:\n{old}")
        path.write_text(text.replace(old, new), encoding="utf-8")

    def _run(self, command, expected):
        command = command[2:]
        if command.startswith("cd "):
            self.directory /= command[3:]
            return
        begin = time.monotonic()
        done = subprocess.run(command, shell=True, cwd=self.directory, env=self._environment,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, text=True,
                              stderr=subprocess.STDOUT, timeout=PATIENCE, check=False)
        self.seconds.append(time.monotonic() - begin)
        print(f"{self.seconds[-1]:6.1f} s  {command}", flush=True)
        if done.returncode != 0:
            sys.exit(f"ended with {done.returncode}:\n{done.stdout}")
        rest = re.sub(r" +", " ", done.stdout)
        for line in expected.splitlines():
            before, found, rest = rest.partition(line)
            if not found:
                sys.exit(f'It did not print "{line}", but\n{before}')


def architecture():
    """This machine's, as its packages are named; the guide was written on another one perhaps."""
    return subprocess.run(["dpkg", "--print-architecture"], check=True, text=True,
                          stdout=subprocess.PIPE).stdout.strip()


def main(guide, build, directory=None):
    work = Path(directory or tempfile.mkdtemp(prefix="zeplet-guide-"))
    if shutil.which("ccache"):
        os.environ.update(CMAKE_CXX_COMPILER_LAUNCHER="ccache", CCACHE_BASEDIR=str(work),
                          CCACHE_NOHASHDIR="1")
    try:
        subprocess.run(["cmake", "--install", build, "--prefix", work / "prefix"], check=True,
                       stdout=subprocess.DEVNULL)
        own = work / "empty"
        own.mkdir()
        reader = Reader(own, work / "prefix")
        reader.follow(Path(guide).read_text(encoding="utf-8").replace("amd64", architecture()))
        print(f"{sum(reader.seconds):6.1f} s  in all")
    finally:
        if not directory:
            shutil.rmtree(work)


if __name__ == "__main__":
    main(*sys.argv[1:])
