"""The plugin's project that a command works on: its sources, its build, what runs there."""

import re
from pathlib import Path

from .problem import Problem

CACHED = re.compile(r"^([^#/\n][^:\n]*):[^=\n]*=(.*)$", re.MULTILINE)


class Project:
    """A directory with a CMakeLists.txt that adds plugins."""

    def __init__(self, root):
        self.root = Path(root).absolute()
        self.build = self.root / "build"
        self.runtime = self.root / ".zeplet"

    @classmethod
    def here(cls):
        """The project that the current directory belongs to; None outside of one."""
        try:
            here = Path.cwd()
        except FileNotFoundError:
            raise Problem("The current directory was removed: go to another one.") from None
        for directory in (here, *here.parents):
            if cls._adds_plugin(directory / "CMakeLists.txt"):
                return cls(directory)
        return None

    @classmethod
    def needed(cls, command):
        project = cls.here()
        if project is None:
            raise Problem(f'"zeplet {command}" works in the directory of a plugin, and {Path.cwd()} '
                          'is none: go there, or make one with "zeplet new NAME".')
        return project

    @property
    def plugin_directory(self):
        return self.build / "plugins"

    def libraries(self):
        """The plugins that were built, with what tells one build from the next."""
        states = {}
        for library in sorted(self.plugin_directory.glob("*.so")):
            state = library.stat()
            states[library] = (state.st_mtime_ns, state.st_size, state.st_ino)
        return states

    def main_plugin(self):
        """The name of the plugin whose page is shown first: the project's own, or else the first;
        None where there is none."""
        names = [library.stem for library in self.libraries()]
        own = self.cache().get("CMAKE_PROJECT_NAME")
        return own if own in names else next(iter(names), None)

    def cache(self):
        """What the build was configured with."""
        path = self.build / "CMakeCache.txt"
        if not path.exists():
            return {}
        return dict(CACHED.findall(path.read_text(encoding="utf-8", errors="replace")))

    @staticmethod
    def _adds_plugin(path):
        try:
            text = path.read_text(encoding="utf-8", errors="replace")
        except OSError:
            return False
        return re.search(r"^\s*(zeplet_add_plugin\s*\(|find_package\s*\(\s*Zeplet\b)", text,
                         re.MULTILINE) is not None
