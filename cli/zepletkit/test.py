"""Builds the plugin in this directory and runs its tests. Words after -- go to ctest."""

import subprocess

from . import processes
from .build import build
from .problem import Problem
from .project import Project


def add_arguments(parser):
    parser.add_argument("words", nargs="*", metavar="-- WORD",
                        help="for ctest: -R NAME runs the tests of that name, -V shows all lines")


def run(arguments):
    project = Project.needed("test")
    build(arguments.kit, project)
    require_tests(arguments.kit, project)
    command = ["ctest", "--test-dir", project.build, "--output-on-failure", *arguments.words]
    return 0 if processes.run(command) == 0 else 1


def require_tests(kit, project):
    """No test at all would pass."""
    if not kit.has_test_kit():
        raise Problem("The test kit is missing: install the package zeplet-kit.")
    listed = subprocess.run(["ctest", "--test-dir", project.build, "-N"], stdin=subprocess.DEVNULL,
                            capture_output=True, text=True, check=False)
    if "Total Tests: 0" in listed.stdout:
        raise Problem("This project has no tests: include(CTest) and zeplet_add_plugin_test() in "
                      "its CMakeLists.txt add one.")
