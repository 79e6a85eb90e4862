"""What the panel says about the plugin libraries that it sees."""

import os
import subprocess
from typing import NamedTuple

from .problem import Problem

PATIENCE = 120  # seconds


class Record(NamedTuple):
    """One library: its plugin's name, what became of it, its file, and why."""

    name: str
    state: str
    file: str
    sentence: str

    @property
    def runs(self):
        return self.state == "running"


def records(kit, directories, runtime=None):
    """Lets a panel, which shows nothing, start the plugins of these directories and its own."""
    command = [kit.program("zeplet-panel"), "--list"]
    for directory in directories:
        command += ["--plugins", directory]
    if runtime is not None:
        command += ["--runtime", runtime, "--settings", runtime / "settings.json"]
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
    # A plugin that takes the panel down is left out the next time: one try for each, and one more.
    tries = 2 + sum(1 for directory in directories for _ in directory.glob("*.so"))
    for _ in range(tries):
        try:
            done = subprocess.run(command, env=environment, stdin=subprocess.DEVNULL,
                                  capture_output=True, timeout=PATIENCE, check=False)
        except subprocess.TimeoutExpired:
            raise Problem(f"The panel did not list its plugins within {PATIENCE} s: one of them "
                          "does not come back from its start.") from None
        if done.returncode == 0:
            lines = done.stdout.decode(errors="replace").splitlines()
            return [Record(*line.split("\t")) for line in lines]
    raise Problem("The panel could not list its plugins:\n" + done.stderr.decode(errors="replace"))
