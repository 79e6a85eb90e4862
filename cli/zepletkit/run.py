"""Builds the plugin in this directory and opens it in the panel, with a simulated robot.

The plugin's page is shown first. When you save a file, the plugin is built again; a panel that was
built well is ended in order and started again on the same page, while the simulator goes on. A
build that fails leaves the panel as it is. Lines that you type go to the simulator: "signal set
di_part_present true", "set power on", "state"; "quit" ends all, and so does Ctrl-C.

The robot's state stays from one run to the next; what runs lives in .zeplet/.
"""

import argparse
import contextlib
import fcntl
import json
import time
from pathlib import Path

from . import processes
from .build import build
from .console import Console
from .listing import records
from .problem import Problem
from .project import Project
from .session import Session, tell_where_panel_is
from .watch import Watch

LONGEST_RUN = 7 * 24 * 3600  # seconds, as the panel has it
SHORTEST_RUN = 0.5  # for a panel that is started again when the time is nearly over


def add_arguments(parser):
    parser.add_argument("--for", dest="seconds", type=duration, metavar="S",
                        help="ends by itself after S seconds")
    parser.add_argument("--screenshot", type=Path, metavar="FILE",
                        help="saves the window as PNG before it ends")
    parser.add_argument("--page", metavar="KEY", help="shows this page first (zeplet.NAME)")
    parser.add_argument("--scenario", type=Path, metavar="FILE",
                        help="what the simulated robot is like (a demo cell)")
    parser.add_argument("--language", metavar="CODE", help="the panel's language: en, de, zh_CN")
    parser.add_argument("--no-watch", dest="watch", action="store_false",
                        help="does not start again on save")
    parser.add_argument("--fresh", action="store_true",
                        help="forgets the state that the simulated robot was left in")
    parser.add_argument("--verbose", action="store_true",
                        help="prints all that the panel writes, not only what is unusual")


def duration(text):
    seconds = float(text)
    if not 0 < seconds <= LONGEST_RUN:
        raise argparse.ArgumentTypeError(f"{text} is no number of seconds up to {LONGEST_RUN}")
    return seconds


def run(arguments):
    project = Project.needed("run")
    watch = Watch(project.root) if arguments.watch else None  # from what is going to be built
    build(arguments.kit, project, "zeplet_plugins")
    if project.main_plugin() is None:
        raise Problem("The build made no plugin: zeplet_add_plugin() in CMakeLists.txt adds one.")
    project.runtime.mkdir(exist_ok=True)
    with alone(project):
        return Run(arguments, project).play(watch)


@contextlib.contextmanager
def alone(project):
    """Two panels would write the same files."""
    with open(project.runtime / "lock", "w", encoding="utf-8") as lock:
        try:
            fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            raise Problem(f'"zeplet run" is running in {project.root} already: end it first.'
                          ) from None
        yield


class Run:
    """One session with the plugin, from the first panel to the end of the last."""

    def __init__(self, arguments, project):
        self._arguments = arguments
        self._project = project
        self._session = None
        self._console = None
        self._end = None
        self._build_failed = False
        self._loaded = None  # the libraries that the panel was started with

    def play(self, watch):
        arguments, project = self._arguments, self._project
        scenario = arguments.scenario or arguments.kit.scenario("demo.json")
        state = project.runtime / "simulator.json"
        if arguments.fresh:
            state.unlink(missing_ok=True)
        with Session(arguments.kit, project.runtime, scenario, state=state) as session:
            self._session = session
            tell_where_panel_is()
            if arguments.seconds is not None:
                self._end = time.monotonic() + arguments.seconds
            self._open_panel()
            code = self._until_end(watch)
        return code if code != 0 else self._judge()

    def _until_end(self, watch):
        for _ in self._session.turns():
            panel = self._session.panel
            if panel is not None and panel.poll() is not None:
                self._console.join()
                if not watch or self._end is not None or panel.returncode >= 0:
                    return self._ended(panel.returncode)
                print(f"zeplet: The panel {self._cause(panel)}. It starts again when you save.",
                      flush=True)
                self._session.panel = None
            if watch and watch.saved():
                watch.take()
                self._rebuild()
        return 0 if self._session.close_panel() else 1

    def _open_panel(self, resume=False):
        arguments = self._arguments
        page = arguments.page or f"zeplet.{self._project.main_plugin()}"
        words = ["--plugins", self._project.plugin_directory, "--page", page]
        if resume:
            words.append("--resume")
        if self._end is not None:
            words += ["--for", f"{max(self._end - time.monotonic(), SHORTEST_RUN):.3f}"]
        if arguments.screenshot:
            words += ["--screenshot", arguments.screenshot.absolute()]
        if arguments.language:
            words += ["--language", arguments.language]
        self._loaded = self._project.libraries()
        panel = self._session.open_panel(words, **Console.STREAMS)
        self._console = Console(panel.stdout, arguments.verbose)

    def _rebuild(self):
        print("zeplet: Building what you saved.", flush=True)
        try:
            build(self._arguments.kit, self._project, "zeplet_plugins")
        except Problem as problem:
            self._build_failed = True
            print(f"zeplet: {problem} The panel stays as it is.", flush=True)
            return
        self._build_failed = False
        if self._session.panel is not None and self._project.libraries() == self._loaded:
            return  # a test, a text: nothing that the panel has loaded
        if not self._session.close_panel():
            print("zeplet: The panel did not end in order.", flush=True)
        self._console.join()
        self._open_panel(resume=True)
        print("zeplet: The panel runs what you saved.", flush=True)

    def _ended(self, code):
        if code < 0:
            raise Problem(f"The panel {self._cause(self._session.panel)}.")
        return code

    def _cause(self, panel):
        """Why the panel died and, where a plugin was being started, in which step of its life."""
        cause = processes.cause_of_end(panel.returncode)
        try:  # the panel's note on what it does
            note = (self._project.runtime / "starting").read_bytes().split(b"\0")[0]
            step = json.loads(note)
            return f"{cause} in {step['step']} of {step['plugin']}"
        except (OSError, ValueError, KeyError, TypeError):
            return cause

    def _judge(self):
        """Whether what ran was the plugin as its sources are: a script relies on the exit code."""
        if self._build_failed:
            return 1
        if self._end is None:
            return 0
        seen = records(self._arguments.kit, [self._project.plugin_directory], self._project.runtime)
        own = [record for record in seen
               if Path(record.file).parent == self._project.plugin_directory and not record.runs]
        for record in own:
            print(f"zeplet: {record.name} ({record.state}): {record.sentence}", flush=True)
        return 1 if own else 0
