"""The simulated controller of a session."""

import os
import re
import select
import subprocess
import time

from . import processes
from .problem import Problem

READY = re.compile(rb"ready controller=(\d+) hub=(\d+) rsync=(\d+)")
START = 30  # seconds


class Simulator:
    """A running simulator. Its control lines go in with send(), its answers come from answers()."""

    def __init__(self, program, scenario, files, log, *, rsync_port=None, state=None):
        command = [program, "--port", "0", "--hub-port", "0", "--scenario", scenario,
                   "--files", files]
        if rsync_port is not None:
            command += ["--rsync-port", rsync_port]
        if state is not None:
            command += ["--state", state]
        self._log = log
        self._pending = b""
        with open(log, "wb") as errors:
            self.process = processes.start(command, stdin=subprocess.PIPE,
                                           stdout=subprocess.PIPE, stderr=errors)
        os.set_blocking(self.output, False)
        try:
            self.port, self.hub_port, self.rsync_port = self._wait_until_ready()
        except BaseException:
            self.end()
            raise

    @property
    def output(self):
        """The descriptor that becomes readable when there are answers."""
        return self.process.stdout.fileno()

    def send(self, line):
        """Hands over one line; one that ended meanwhile takes none."""
        try:
            os.write(self.process.stdin.fileno(), line.rstrip(b"\n") + b"\n")
        except BrokenPipeError:
            pass

    def answers(self):
        """The whole lines that came since the last call; None when no more will come."""
        try:
            data = os.read(self.output, 65536)
        except BlockingIOError:
            return []
        if not data:
            return None
        *lines, self._pending = (self._pending + data).split(b"\n")
        return lines

    def end(self):
        """True: it ended in order."""
        self.process.stdin.close()
        in_order = processes.end(self.process)
        self.process.stdout.close()
        return in_order

    def problems(self):
        """What it wrote to standard error."""
        with open(self._log, encoding="utf-8", errors="replace") as log:
            return log.read().strip()

    def _wait_until_ready(self):
        deadline = time.monotonic() + START
        while time.monotonic() < deadline:
            select.select([self.output], [], [], 0.5)
            lines = self.answers()
            if lines is None:
                raise Problem(f"The simulator could not start: {self.problems()}")
            for line in lines:
                match = READY.match(line)
                if match:
                    return tuple(int(port) for port in match.groups())
        raise Problem(f"The simulator was not ready within {START} s: its log is {self._log}")
