"""Tells when the author has saved something."""

import os
import re
import time

LOOK = 0.3  # seconds between two looks at the files
SKIPPED = {"build", "__pycache__"}
SCRATCH = re.compile(r"~$|^#.*#$|\.sw[a-z]$|\.tmp$|^4913$")  # what editors leave for a moment


class Watch:
    """Looks at the sources of a project again and again, whoever saves them and however."""

    def __init__(self, root):
        self._root = root
        self._taken = self._last = snapshot(root)
        self._due = 0

    def saved(self):
        """Whether something has changed since take(), and nothing since the last look: an editor
        that saves several files is done."""
        if time.monotonic() < self._due:
            return False
        self._due = time.monotonic() + LOOK
        before, self._last = self._last, snapshot(self._root)
        return self._last == before != self._taken

    def take(self):
        """What is there now is what is going to be built."""
        self._taken = self._last


def snapshot(root):
    """Path, time and size of every file but hidden ones and what is built."""
    files = {}
    pending = [root]
    while pending:
        try:
            entries = list(os.scandir(pending.pop()))
        except OSError:
            continue  # removed meanwhile
        for entry in entries:
            if entry.name.startswith(".") or entry.name in SKIPPED or SCRATCH.search(entry.name):
                continue
            try:
                if entry.is_dir(follow_symlinks=False):
                    pending.append(entry.path)
                    continue
                state = entry.stat()
            except OSError:
                continue
            files[entry.path] = (state.st_mtime_ns, state.st_size)
    return files
