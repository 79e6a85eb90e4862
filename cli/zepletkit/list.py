"""Lists every plugin library that the panel sees, what became of it, and why one is left out.

In the directory of a plugin, what was built there comes first; then the installed plugins.
"""

from pathlib import Path

from .listing import records
from .project import Project


def add_arguments(parser):
    parser.add_argument("--plugins", type=Path, action="append", default=[], metavar="DIR",
                        help="looks there, too; may be given several times")


def run(arguments):
    project = Project.here()
    directories = [path.absolute() for path in arguments.plugins]
    if project:
        directories.append(project.plugin_directory)
    directories += arguments.kit.plugin_directories()
    there = [path for path in directories if path.is_dir()]
    found = records(arguments.kit, there, project.runtime if project else None)
    print_table(found)
    print("\nLooked in:")
    own = {Path(record.file).parent for record in found} - set(directories)
    for directory in sorted(own):
        print(f"  {directory} (the panel's own)")
    for directory in directories:
        print(f"  {directory}{'' if directory.is_dir() else missing(directory, project)}")
    return 0


def print_table(found):
    names = max((len(record.name) for record in found), default=0)
    states = max((len(record.state) for record in found), default=0)
    for record in found:
        line = f"{record.name:{names}}  {record.state:{states}}  {record.sentence or record.file}"
        print(line.rstrip())


def missing(directory, project):
    if project and directory == project.plugin_directory:
        return ' (nothing was built yet: "zeplet build")'
    return " (there is no such directory)"
