"""The panel's console, without the lines that tell an author nothing."""

import re
import subprocess
import sys
import threading

COLOUR = re.compile(r"\x1b\[[0-9;]*m")

# What a panel writes at every start, watch and end, however well all is.
ROUTINE = re.compile(
    r"\[[A-Za-z]\|[^\]]*\]\s*("
    r"<zeplet> '|~?Zeplet\b|zeplet::Zeplet::|(dis)?connect(NexoData|RcNotify) - "
    r"|The panel (is running|has ended))"
    r"|^host\.(brisa: resources have no alias|link: \w+: connected)"
    r"|^QStandardPaths: XDG_RUNTIME_DIR not set")


class Console:
    """Prints what the panel writes to a pipe, line by line, as long as the panel runs."""

    # How a panel is started of which all goes there, to its standard output.
    STREAMS = {"stdin": subprocess.DEVNULL, "stdout": subprocess.PIPE, "stderr": subprocess.STDOUT}

    def __init__(self, lines, everything):
        self._lines = lines
        self._everything = everything
        self._thread = threading.Thread(target=self._print, daemon=True)
        self._thread.start()

    def join(self):
        """Waits until all is printed that a panel which ended has written."""
        self._thread.join(timeout=5)

    def _print(self):
        with self._lines:
            for raw in self._lines:
                line = raw.decode(errors="replace").rstrip("\n")
                plain = COLOUR.sub("", line)
                if self._everything or not ROUTINE.search(plain):
                    print(line if sys.stdout.isatty() else plain, flush=True)
