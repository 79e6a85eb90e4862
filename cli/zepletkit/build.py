"""Builds the plugin in this directory, and its tests, into build/."""

import contextlib
import fcntl
import os
import re
import shutil
import subprocess
import time

from . import processes
from .problem import Problem
from .project import Project
from .watch import snapshot

# What a message of CMake means for an author.
MISSING = {
    'provided by "Qt5(Core|Gui|Widgets)?"': "Qt's headers are missing: install the package "
                                            "qtbase5-dev.",
    'provided by "Zeplet(Host)?"': "The library's headers are missing: install the package "
                                   "libzeplet-dev.",
    "No CMAKE_CXX_COMPILER could be found": "A C++ compiler is missing: install the package g++.",
}
PROGRAMS = {"cmake": "cmake", "ninja": "ninja-build"}
CLOCK = 20_000_000  # nanoseconds that a file's time may be behind
COMPILERS = ("c++", "g++", "clang++")
UNFIT = re.compile(r'[\x00-\x1f\x7f"#$;<>\\|]')  # what CMake or Ninja takes for something else


def add_arguments(_):
    pass


def run(arguments):
    project = Project.needed("build")
    build(arguments.kit, project)
    return 0


def build(kit, project, target="all"):
    """Configures where that is necessary, and builds; errors of the compiler go to the terminal."""
    with alone(project), saves_seen(project):
        configure(kit, project)
        command = ["cmake", "--build", project.build, "--target", target]
        if processes.run(command) != 0:
            raise Problem("The build failed: the messages above say why.")
        if (project.build / "build.ninja").exists():
            # A plugin that was renamed would be loaded under its former name, too.
            subprocess.run(["ninja", "-C", project.build, "-t", "cleandead"],
                           stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, check=False)


@contextlib.contextmanager
def alone(project):
    """Two builds at a time would write the same files: "zeplet test" waits for the build of a
    "zeplet run" that has just seen a save."""
    project.build.mkdir(exist_ok=True)
    directory = os.open(project.build, os.O_RDONLY)
    try:
        fcntl.flock(directory, fcntl.LOCK_EX)
        yield
    finally:
        os.close(directory)


@contextlib.contextmanager
def saves_seen(project):
    """Ninja takes a source that is saved while it is compiled for older than what comes out. After
    such a build nothing is newer than its beginning, and the next one sees the save."""
    before = snapshot(project.root)
    start = time.time_ns() - CLOCK
    try:
        yield
    finally:
        if snapshot(project.root) != before:
            for path in project.build.rglob("*"):
                if path.is_file() and path.stat().st_mtime_ns > start:
                    os.utime(path, ns=(start, start))


def configure(kit, project):
    """Lets CMake make the build, with this kit; a build that has it already is left alone."""
    check_tools()
    check_path(project.root)
    cache = project.cache()
    other = cache.get("CMAKE_HOME_DIRECTORY", str(project.root))
    if os.path.realpath(other) != os.path.realpath(project.root):
        raise Problem(f"{project.build} belongs to {other}: remove it, then try again.")
    entries = packages(kit)
    made = any((project.build / file).exists() for file in ("build.ninja", "Makefile"))
    if made and entries.items() <= cache.items():
        return
    command = ["cmake", "-S", project.root, "-B", project.build]
    if not cache:
        command += ["-G", "Ninja"]
        entries.update(CMAKE_BUILD_TYPE="Debug", CMAKE_PREFIX_PATH=str(kit.prefix))
    command += [f"-D{name}={value}" for name, value in entries.items()]
    done = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, errors="replace", check=False)
    if done.returncode != 0:
        explain(done.stdout)


def packages(kit):
    """The CMake packages are those of this kit, whatever else the machine has."""
    found = kit.package.parent.glob("Zeplet*")
    return {f"{package.name}_DIR": str(package) for package in sorted(found)}


def check_tools():
    for program, package in PROGRAMS.items():
        if not shutil.which(program):
            raise Problem(f"{program} is missing: install the package {package}.")
    if not os.environ.get("CXX") and not any(shutil.which(name) for name in COMPILERS):
        raise Problem("A C++ compiler is missing: install the package g++.")


def check_path(root):
    """In some directories a build fails with messages that nobody understands, or beside it."""
    unfit = UNFIT.search(str(root))
    if unfit:
        raise Problem(f"CMake can't build in a directory whose path contains {unfit.group()!r}: "
                      f"move {str(root)!r} to another one.")


def explain(output):
    for message, sentence in MISSING.items():
        if re.search(message, output):
            raise Problem(sentence)
    print(output)
    raise Problem("The project can't be configured: CMake's messages above say why.")
