"""A session: a simulated controller, and the panel that works with it."""

import json
import os
import select
import shutil
import sys
from pathlib import Path

from . import processes
from .problem import Problem
from .simulator import Simulator

USUAL_RSYNC_PORT = 873
TURN = 0.1  # seconds


class Session:
    """A simulator with its files, and a panel at a time that is connected to it.

    All of it lives in one directory: settings, workspace, log and tools of the panel and, in
    controller/, what the controller has on its disk. Used in a with statement, which ends panel
    and simulator in this order whatever happens.
    """

    def __init__(self, kit, directory, scenario, *, rsync_port=None, state=None):
        self._kit = kit
        self.directory = Path(directory)
        for name in ("workspace", "log", "controller"):
            (self.directory / name).mkdir(parents=True, exist_ok=True)
        self.settings = self.directory / "settings.json"
        self.panel = None
        self.simulator = Simulator(kit.program("zeplet-simulator"), scenario,
                                   self.directory / "controller", self.directory / "simulator.log",
                                   rsync_port=rsync_port, state=state)
        self._keyboard = sys.stdin.fileno() if sys.stdin and sys.stdin.isatty() else None
        try:
            self._write_settings()
        except BaseException:
            self.simulator.end()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        try:
            self.close_panel()
        finally:
            self.simulator.end()

    def open_panel(self, arguments, **options):
        """Starts the panel; its lines go to the terminal unless options lead them elsewhere."""
        command = [self._kit.program("zeplet-panel"), "--runtime", self.directory,
                   "--settings", self.settings, *arguments]
        self.panel = processes.start(command, env=self._environment(), **options)
        return self.panel

    def close_panel(self):
        """Ends the panel in order; True where there was none, too."""
        panel, self.panel = self.panel, None
        return panel is None or processes.end(panel)

    def wait(self):
        """Waits for the end of the panel; its exit code."""
        for _ in self.turns():
            if self.panel.poll() is not None:
                return self.panel.returncode
        return 0 if self.close_panel() else 1

    def turns(self):
        """Yields ten times a second until the simulator is told to quit.

        Meanwhile, lines that are typed into the terminal go to the simulator, as its control
        lines, and its answers are printed. A simulator that fails is a Problem.
        """
        while self.simulator.process.poll() is None:
            self._exchange()
            yield
        self._print_answers()
        if self.simulator.process.returncode != 0:
            cause = processes.cause_of_end(self.simulator.process.returncode)
            raise Problem(f"The simulator {cause}: {self.simulator.problems()}")

    def _exchange(self):
        sources = [self.simulator.output]
        if self._keyboard is not None:
            sources.append(self._keyboard)
        ready = select.select(sources, [], [], TURN)[0]
        if self._keyboard in ready:
            self._forward_typed()
        if self.simulator.output in ready:
            self._print_answers()

    def _forward_typed(self):
        try:
            typed = os.read(self._keyboard, 4096)
        except OSError:  # the terminal is gone, or another program's
            typed = b""
        if not typed:
            self._keyboard = None
        for line in typed.splitlines():
            if line.strip():
                self.simulator.send(line)

    def _print_answers(self):
        for line in self.simulator.answers() or []:
            print(line.decode(errors="replace"), flush=True)

    def _environment(self):
        environment = dict(os.environ)
        environment.setdefault("QT_FONT_DPI", "96")
        if not has_display():
            environment["QT_QPA_PLATFORM"] = "offscreen"
        # The panel calls rsync without a port: where the simulator did not get the usual one, it
        # is led there.
        port = self.simulator.rsync_port
        if port != USUAL_RSYNC_PORT:
            if not shutil.which("socat"):
                raise Problem("socat is missing, without which no file reaches the simulator: "
                              "install the package socat.")
            environment["RSYNC_CONNECT_PROG"] = f"socat - TCP:127.0.0.1:{port}"
        return environment

    def _write_settings(self):
        """Settings that a person made stay; only the ports are this session's."""
        settings = self._read_settings()
        settings.setdefault("workspace", str(self.directory / "workspace"))
        settings.update({"server.ip": "127.0.0.1", "server.port": str(self.simulator.port),
                         "server.hub_port": str(self.simulator.hub_port)})
        new = self.settings.with_name(self.settings.name + ".new")
        new.write_text(json.dumps(settings, indent=4), encoding="utf-8")
        os.replace(new, self.settings)

    def _read_settings(self):
        if not self.settings.exists():
            return {}
        try:
            settings = json.loads(self.settings.read_text(encoding="utf-8"))
        except ValueError:
            settings = None
        if not isinstance(settings, dict):
            raise Problem(f"{self.settings} holds no settings: correct the file, or remove it.")
        return settings


def has_display():
    """Whether the panel has a screen, or was told what to use in its place."""
    return any(os.environ.get(name) for name in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"))


def tell_where_panel_is():
    """Says so where a person would wait for a window in vain."""
    if not has_display():
        print("No display: the panel runs offscreen (--for SECONDS ends it, --screenshot FILE "
              "shows it).", flush=True)
