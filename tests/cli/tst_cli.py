#!/usr/bin/env python3
"""The tool for plugin authors, installed, as an author uses it. Usage: tst_cli.py <build directory>"""

import json
import os
import pty
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time
import unittest
from pathlib import Path

from picture import colours

PATIENCE = 200  # seconds, on a machine that does other things, too
GREEN = (18, 171, 52)
WORK = Path(tempfile.mkdtemp(prefix="zeplet-cli-"))
ZEPLET = WORK / "prefix/bin/zeplet"
PROJECT = WORK / "my-gripper"
SOURCE = PROJECT / "my-gripperplugin.cpp"


def setUpModule():
    os.environ.pop("ZEPLET_BUILD", None)
    if shutil.which("ccache"):
        os.environ.update(CMAKE_CXX_COMPILER_LAUNCHER="ccache", CCACHE_BASEDIR=str(WORK),
                          CCACHE_NOHASHDIR="1")
    subprocess.run(["cmake", "--install", BUILD, "--prefix", WORK / "prefix"], check=True,
                   stdout=subprocess.DEVNULL)


def tearDownModule():
    shutil.rmtree(WORK)


def zeplet(*words, directory=WORK, **options):
    """Exit code and everything that was printed."""
    done = subprocess.run([ZEPLET, *words], cwd=directory, text=True, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=PATIENCE,
                          check=False, **options)
    return done.returncode, done.stdout


def processes():
    """What runs out of, or for, the test's directory."""
    found = {}
    for path in Path("/proc").glob("[0-9]*/cmdline"):
        try:
            line = path.read_bytes().replace(b"\0", b" ").decode(errors="replace")
        except OSError:
            continue
        if str(WORK) in line and int(path.parent.name) != os.getpid():
            found[int(path.parent.name)] = line
    return found


def wait_until(condition, what):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            raise AssertionError(f"waited in vain: {what}")
        time.sleep(0.05)


class Running:
    """A "zeplet run" at a terminal."""

    def __init__(self, *words):
        self._keyboard, terminal = pty.openpty()
        self.process = subprocess.Popen([ZEPLET, "run", *words], cwd=PROJECT, stdin=terminal,
                                        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        os.close(terminal)
        self._lines = []
        self._reader = threading.Thread(target=lambda: self._lines.extend(self.process.stdout),
                                        daemon=True)
        self._reader.start()

    def wait_for(self, text):
        """Waits for a line with the text, among those that came after the last one waited for."""
        found = []

        def came():
            if self.process.poll() is not None and not self._reader.is_alive():
                raise AssertionError(f'it ended before "{text}" came:\n{"".join(self._lines)}')
            found[:] = [index for index, line in enumerate(self._lines) if text in line]
            return found

        wait_until(came, f"the line {text}")
        line = self._lines[found[0]]
        del self._lines[:found[0] + 1]
        return line

    def control(self, line):
        """What the simulator answers."""
        os.write(self._keyboard, line.encode() + b"\n")
        return json.loads(self.wait_for('{"ok"'))["result"]

    def wait_until_connected(self):
        wait_until(lambda: self.control("state")["controller"]["clients"] == 1, "the panel's link")

    def end(self, number):
        """Sends a signal; the exit code."""
        self.process.send_signal(number)
        code = self.process.wait(PATIENCE)
        self._reader.join(PATIENCE)
        self.process.stdout.close()
        os.close(self._keyboard)
        return code


class New(unittest.TestCase):
    def test_names(self):
        for name in ("", ".", "..", "../up", "/tmp/x", "a/b", "-lead", "_lead", "a b", "a;b", "a$(b)",
                     "ä", "a\n", "a" * 65, "all", "Test", "install", "NightlyMemCheck", "zeplet",
                     "page-run"):
            with self.subTest(name):
                before = sorted(WORK.iterdir())
                code, text = zeplet("new", "--", name)
                self.assertEqual(code, 2, text)
                self.assertRegex(text, r"^zeplet: .*(use a letter|choose another)")
                self.assertEqual(sorted(WORK.iterdir()), before)
        for label in ("", " ", "two\nlines", "x" * 61):
            with self.subTest(label):
                self.assertEqual(zeplet("new", "fine", "--label", label)[0], 2)
                self.assertFalse((WORK / "fine").exists())

    def test_names_become_code(self):
        for name, identifier in (("my-2_grippers", "My2Grippers"), ("2nd", "N2nd"), ("class", "Class")):
            zeplet("new", name, "--label", 'a "\\" sample', "--directory", WORK)
            source = (WORK / name / f"{name}plugin.cpp").read_text(encoding="utf-8")
            self.assertIn(f"class {identifier}Plugin : public PluginBase", source)
            self.assertIn(r'("navigation", "a \"\\\" sample")', source)
            shutil.rmtree(WORK / name)

    def test_what_is_there_stays(self):
        (WORK / "directory").mkdir()
        (WORK / "file").write_text("kept", encoding="utf-8")
        (WORK / "link").symlink_to("nowhere")
        before = sorted(WORK.rglob("*"))
        for name in ("directory", "file", "link"):
            code, text = zeplet("new", name)
            self.assertEqual((code, "exists already" in text), (1, True), text)
        self.assertEqual(sorted(WORK.rglob("*")), before)
        self.assertEqual((WORK / "file").read_text(encoding="utf-8"), "kept")
        for directory in ("file", "missing", "/proc"):
            code, text = zeplet("new", "x", "--directory", directory)
            self.assertEqual((code, "can't be made" in text), (1, True), text)


class WrongUse(unittest.TestCase):
    def test_sentences(self):
        for words, code, sentence in (
                (["rum"], 2, 'Do you mean "zeplet run"?'), ([], 2, "commands:"),
                (["--help"], 0, "zeplet new gripper"), (["--version"], 0, "zeplet "),
                (["run"], 1, 'make one with "zeplet new NAME"'), (["test"], 1, "zeplet new NAME"),
                (["list", "--plugins", "missing"], 0, "missing (there is no such directory)")):
            with self.subTest(words):
                found, text = zeplet(*words)
                self.assertEqual(found, code, text)
                self.assertIn(sentence, text)

    def test_unfit_directories(self):
        for name in ("a;b", "a#b", "a|b", "a\nb"):
            with self.subTest(name):
                home = WORK / "unfit" / name
                home.mkdir(parents=True)
                zeplet("new", "plugin", directory=home)
                code, text = zeplet("test", directory=home / "plugin")
                self.assertEqual((code, text.count("\n")), (1, 1), text)
                self.assertIn("CMake can't build in a directory whose path contains", text)
                shutil.rmtree(home)
                self.assertEqual(list(home.parent.iterdir()), [])  # "a;b" was a list of paths

    def test_full_disk(self):
        with open("/dev/full", "w", encoding="utf-8") as full:
            done = subprocess.run([ZEPLET, "--help"], stdout=full, stderr=subprocess.PIPE, text=True,
                                  check=False)
        self.assertEqual((done.returncode, done.stderr),
                         (1, "zeplet: A file can't be used: No space left on device; make room on "
                             "the disk, then try again.\n"))


class Tour(unittest.TestCase):
    """From nothing to a plugin that is edited while it runs; in the order of the names."""

    running = None

    def start(self, *words):
        self.running = Running(*words)
        return self.running

    def tearDown(self):
        if self.running and self.running.process.poll() is None:
            self.running.end(signal.SIGKILL)
        wait_until(lambda: not processes(), f"the end of {processes()}")

    def source_with(self, code):
        """The plugin with more code at the end of its init()."""
        mark = "    CreateCenterWidget(pluginName, m_page);\n"
        self.assertIn(mark, self.original)
        SOURCE.write_text(self.original.replace(mark, mark + code), encoding="utf-8")

    @classmethod
    def setUpClass(cls):
        code, text = zeplet("new", PROJECT.name, "--label", "My gripper")
        assert code == 0, text
        cls.original = SOURCE.read_text(encoding="utf-8")

    def test_1_run(self):
        code, text = zeplet("build", directory=PROJECT, env={"PATH": "/nonexistent"})
        self.assertEqual((code, text), (1, "zeplet: cmake is missing: install the package cmake.\n"))
        code, text = zeplet("run", "--for", "3", "--screenshot", "a.png", directory=PROJECT)
        self.assertEqual(code, 0, text)
        self.assertNotIn("tst_my-gripper", text)  # nobody waits for the test
        self.assertEqual((PROJECT / ".zeplet/page").read_text(encoding="utf-8").strip(),
                         "zeplet.my-gripper")
        self.assertGreater(len(colours(PROJECT / "a.png")), 50)

    def test_2_test(self):
        code, text = zeplet("test", directory=PROJECT)
        self.assertEqual(code, 0, text)
        self.assertIn("100% tests passed, 0 tests failed out of 1", text)
        self.assertEqual(zeplet("test", "--", "-R", "nothing", "--no-tests=error",
                                directory=PROJECT)[0], 1)

    def test_3_save(self):
        SOURCE.write_text(self.original, encoding="utf-8")
        run = self.start("--screenshot", "b.png")
        run.wait_until_connected()
        run.control("set power on")
        run.control("set mode auto")
        ports = run.control("state")["controller"]["port"]
        self.source_with("    broken\n")
        run.wait_for("error:")
        run.wait_for("The panel stays as it is.")
        run.wait_until_connected()
        self.source_with('    m_page->setStyleSheet("background: rgb(%d, %d, %d)");\n' % GREEN)
        run.wait_for("The panel runs what you saved.")
        run.wait_until_connected()
        state = run.control("state")
        self.assertEqual((state["robot"]["power"], state["project"]), ("on", "DEMO"))
        self.assertEqual(state["controller"]["port"], ports)
        code, text = zeplet("run", directory=PROJECT)
        self.assertEqual((code, "is running" in text), (1, True), text)
        self.assertEqual(run.end(signal.SIGINT), 128 + signal.SIGINT)
        self.assertGreater(colours(PROJECT / "b.png").get(GREEN, 0), 100_000)

    def test_4_crash_and_death(self):
        page = PROJECT / ".zeplet/page"
        self.source_with("    if (m_motors->text().isEmpty()) std::abort();\n")
        run = self.start()
        run.wait_for("The panel died of SIGABRT in init of my-gripper. It starts again when")
        page.write_text("zeplet.page-run\n", encoding="utf-8")  # as if the author had gone there
        self.source_with("")
        run.wait_for("The panel runs what you saved.")
        run.wait_until_connected()
        self.assertEqual(page.read_text(encoding="utf-8"), "zeplet.page-run\n")
        self.assertEqual(run.end(signal.SIGKILL), -signal.SIGKILL)  # tearDown: nobody is left

    def test_5_state(self):
        self.source_with("")
        for words, mode in (((), "auto"), (("--fresh",), "manual")):
            run = self.start("--no-watch", *words)
            run.wait_until_connected()
            self.assertEqual(run.control("state")["robot"]["mode"], mode)
            self.assertEqual(run.end(signal.SIGTERM), 128 + signal.SIGTERM)

    def test_6_broken_plugin(self):
        broken = PROJECT / "build/plugins/broken.so"
        broken.write_text("no library", encoding="utf-8")
        code, text = zeplet("list", directory=PROJECT)
        self.assertEqual(code, 0, text)
        self.assertRegex(text, r"my-gripper +running")
        self.assertRegex(text, r"broken +refused +broken\.so is not a library: ")
        code, text = zeplet("run", "--for", "0.5", directory=PROJECT)
        self.assertEqual((code, "broken (refused): " in text), (1, True), text)

    def test_7_renamed_plugin(self):
        path = PROJECT / "CMakeLists.txt"
        text = path.read_text(encoding="utf-8").replace("NAME my-gripper", "NAME renamed")
        path.write_text(text.replace("PLUGINS my-gripper", "PLUGINS renamed"), encoding="utf-8")
        zeplet("build", directory=PROJECT)
        self.assertFalse((PROJECT / "build/plugins/my-gripper.so").exists())
        self.assertTrue((PROJECT / "build/plugins/renamed.so").exists())

    def test_8_save_during_build(self):
        zeplet("new", "saved")
        source = WORK / "saved/savedplugin.cpp"
        launcher = WORK / "launcher"
        launcher.write_text(f'#!/bin/sh\n[ -e seen ] || echo // >>{source}\ntouch seen\nexec "$@"\n',
                            encoding="utf-8")
        launcher.chmod(0o755)
        environment = {**os.environ, "CMAKE_CXX_COMPILER_LAUNCHER": str(launcher)}
        code, text = zeplet("build", directory=source.parent, env=environment)
        self.assertEqual(code, 0, text)
        for times in (1, 0):  # once more for the save, then no more
            code, text = zeplet("build", directory=source.parent)
            self.assertEqual((code, text.count("savedplugin.cpp.o")), (0, times), text)


if __name__ == "__main__":
    BUILD = sys.argv.pop(1)
    unittest.main(verbosity=2)
