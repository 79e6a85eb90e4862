"""Where the parts of the kit are: an installation, or a build tree of the project itself."""

import os
import re
import sysconfig
from pathlib import Path

from .problem import Problem

HOME = Path(__file__).resolve().parents[1]  # share/zeplet/cli, or cli in the tree


class Kit:
    """The programs, libraries and files that the tool works with.

    prefix holds bin/ and the CMake packages, in an installation and in a build tree alike.
    """

    def __init__(self, prefix):
        self.prefix = Path(prefix).absolute()

    @classmethod
    def find(cls, program):
        """The build or installation that ZEPLET_BUILD names, or else the one that the tool is of."""
        named = os.environ.get("ZEPLET_BUILD")
        if named:
            return cls(named)
        candidates = [path.parent.parent for path in (program, program.resolve())]
        candidates.append(HOME.parent / "build/dev")
        for candidate in candidates:
            if (candidate / "bin/zeplet-panel").exists():
                return cls(candidate)
        return cls(candidates[0])

    def program(self, name):
        """The path of a program of the kit."""
        path = self.prefix / "bin" / name
        if not os.access(path, os.X_OK):
            raise Problem(f"{path} is missing: install the package zeplet-kit, or build the "
                          "project and name its build directory in ZEPLET_BUILD.")
        return path

    @property
    def package(self):
        """The directory of the CMake package."""
        own = sysconfig.get_config_var("MULTIARCH") or "*"  # beside it there may be another one's
        for pattern in ("lib/cmake/Zeplet", f"lib/{own}/cmake/Zeplet", "lib*/cmake/Zeplet"):
            for path in sorted(self.prefix.glob(pattern)):
                if (path / "ZepletConfig.cmake").exists():
                    return path
        raise Problem(f"The library's headers and CMake files are missing below {self.prefix}: "
                      "install the package libzeplet-dev.")

    def has_test_kit(self):
        return (self.package.parent / "ZepletTest").is_dir()

    @property
    def version(self):
        text = (self.package / "ZepletConfigVersion.cmake").read_text(encoding="utf-8")
        return re.search(r'PACKAGE_VERSION "([^"]+)"', text).group(1)

    def plugin_directories(self):
        """Where plugins are that a panel of this kit loads when it is started alone."""
        if (self.prefix / "CMakeCache.txt").exists():
            return [self.prefix / "plugins"]
        return [path for path in self._library_directories("zeplet/plugins") if path.is_dir()]

    def own_plugins(self):
        """The names of the plugins that are parts of the panel: no other one may have them."""
        return sorted(library.stem for directory in self._library_directories("zeplet/panel")
                      for library in directory.glob("*.so"))

    def template(self, kind):
        return self._first(HOME / "templates" / kind, HOME.parent / "templates" / kind)

    def scenario(self, name):
        return self._first(HOME.parent / "scenarios" / name,
                           HOME.parent / "simulator/scenarios" / name)

    def _library_directories(self, name):
        return sorted({*self.prefix.glob(f"lib*/{name}"), *self.prefix.glob(f"lib/*/{name}")})

    @staticmethod
    def _first(*paths):
        for path in paths:
            if path.exists():
                return path
        raise Problem(f"{paths[0]} is missing: install the package zeplet-kit again.")
