"""Makes the Debian package of the plugin in this directory, for each architecture whose compiler
is installed, and says what to install for the others. The packages are put into build/packages/.

Each is checked: that its plugins were built for that architecture and this version of the library
and, where lintian is installed, that it has no errors by Debian's rules."""

import os
import shutil
import subprocess
import tempfile
from pathlib import Path

from .architecture import FIRST_NAME_OF_GNU, Architecture
from .build import alone, check_path, check_tools, packages
from .plugintag import read_tag
from .problem import Problem
from .project import Project

FLAGS = {"CXXFLAGS": ("CXXFLAGS", "CPPFLAGS"), "LDFLAGS": ("LDFLAGS",)}


def add_arguments(parser):
    parser.add_argument("--arch", action="append", choices=sorted(FIRST_NAME_OF_GNU),
                        help="pack for this architecture alone; may be given several times")
    parser.add_argument("--output", metavar="DIR", default="build/packages",
                        help="put the packages there (default: build/packages)")


def run(arguments):
    project = Project.needed("pack")
    check_tools()
    check_path(project.root)
    output = project.root / arguments.output
    output.mkdir(parents=True, exist_ok=True)
    skipped = []
    for architecture in wanted(arguments.kit, arguments.arch):
        missing = architecture.missing_packages()
        if missing:
            skipped.append(advice(architecture, missing, arguments.kit.version))
        else:
            with alone(project):
                pack(arguments.kit, project, architecture, output)
    for sentence in skipped:
        print(sentence)
    # Left out by itself is news; left out although it was asked for, or all of them, is a failure.
    return 1 if skipped and (arguments.arch or not any(output.glob("*.deb"))) else 0


def wanted(kit, names):
    architectures = Architecture.all(kit)
    found = [each for each in architectures if not names or each.name in names]
    for name in set(names or ()) - {each.name for each in found}:
        raise Problem(f"This kit has no way to build for {name}; it builds for "
                      f"{' and '.join(each.name for each in architectures)}.")
    return found


def advice(architecture, missing, version):
    commands = architecture.commands_to_install(missing, version)
    return "\n".join([f"{architecture.name} was not packed, because this machine lacks "
                      f"{', '.join(missing)}. To install what is missing:",
                      *(f"    {command}" for command in commands)])


def pack(kit, project, architecture, output):
    build = project.build / f"pack-{architecture.name}"
    environment = environment_of(project.root, architecture)
    made = build / "made"
    shutil.rmtree(made, ignore_errors=True)
    call("configured", architecture, configuration(kit, project, architecture, build), environment)
    if not (build / "CPackConfig.cmake").exists():
        raise Problem("The project has no plugin to install: add one with zeplet_add_plugin(), "
                      "without NO_INSTALL.")
    call("built", architecture, ["cmake", "--build", build], environment)
    call("packed", architecture,
         ["cpack", "-G", "DEB", "--config", build / "CPackConfig.cmake", "-B", made], environment)
    for package in sorted(made.glob("*.deb")):
        tags = check(kit, architecture, package)
        remove_earlier(output, package)
        shutil.copy(package, output)
        print(f"{output / package.name}: {', '.join(tag['name'] for tag in tags)} for "
              f"{architecture.name}, Zeplet {tags[0]['library']}, Qt {tags[0]['qt']}", flush=True)


def configuration(kit, project, architecture, build):
    words = {"CMAKE_BUILD_TYPE": "Release", "BUILD_TESTING": "OFF", "ZEPLET_PACKAGES": "ON",
             "CMAKE_INSTALL_PREFIX": "/usr", "CMAKE_INSTALL_LIBDIR": f"lib/{architecture.triplet}",
             "CMAKE_SKIP_INSTALL_RPATH": "ON"}
    if architecture.is_native:
        words.update(packages(kit), CMAKE_PREFIX_PATH=kit.prefix)
    else:
        words["CMAKE_TOOLCHAIN_FILE"] = architecture.toolchain
    # Nothing from an earlier run decides what goes into a package.
    return ["cmake", "--fresh", "-G", "Ninja", "-S", project.root, "-B", build,
            *(f"-D{name}={value}" for name, value in words.items())]


def environment_of(project, architecture):
    """With the flags of Debian's packages, and the day of the last change as the package's."""
    environment = {**os.environ, "DEB_HOST_ARCH": architecture.name, "DEB_CXXFLAGS_STRIP": "-g",
                   "DEB_BUILD_MAINT_OPTIONS": "hardening=+bindnow"}
    for variable, names in FLAGS.items():
        environment[variable] = " ".join(
            subprocess.run(["dpkg-buildflags", "--get", name], cwd=project, env=environment,
                           check=True, text=True, capture_output=True).stdout.strip()
            for name in names)
    environment.setdefault("SOURCE_DATE_EPOCH", str(last_change(project)))
    return environment


def last_change(project):
    """Seconds since 1970: the last commit's, or else the newest source file's."""
    commit = subprocess.run(["git", "log", "-1", "--format=%ct"], cwd=project, text=True,
                            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False,
                            ) if shutil.which("git") else None
    if commit and commit.stdout.strip():
        return int(commit.stdout)
    sources = (path for path in project.rglob("*")
               if path.relative_to(project).parts[0] not in ("build", ".zeplet", ".git"))
    return int(max(path.stat().st_mtime for path in sources if path.is_file()))


def call(what, architecture, command, environment):
    """Shows what the program prints only where it fails."""
    done = subprocess.run([str(word) for word in command], env=environment, text=True,
                          errors="replace", stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, check=False)
    if done.returncode != 0:
        if "version is missing" in done.stdout:
            raise Problem("The package needs a version: write project(... VERSION 1.0.0 ...) in "
                          "CMakeLists.txt.")
        print(done.stdout.rstrip(), flush=True)
        raise Problem(f"The plugin could not be {what} for {architecture.name}; the lines above "
                      "say why.")


def check(kit, architecture, package):
    """The tags of the package's plugins, all of which fit."""
    with tempfile.TemporaryDirectory() as directory:
        subprocess.run(["dpkg-deb", "-x", package, directory], check=True, text=True,
                       capture_output=True)
        place = Path(directory, "usr/lib", architecture.triplet, "zeplet/plugins")
        tags = [read_tag(library) for library in sorted(place.glob("*.so"))]
    if not tags:
        raise Problem(f"{package} holds no plugin: add one with zeplet_add_plugin(), without "
                      "NO_INSTALL.")
    for tag in tags:
        check_tag(tag, kit, architecture)
    if shutil.which("lintian"):
        call("packed without errors by Debian's rules", architecture,
             ["lintian", "--fail-on", "error", package], None)
    return tags


def check_tag(tag, kit, architecture):
    if tag["architecture"] != architecture.machine:
        raise Problem(f"{tag['name']} was built for {tag['architecture']} instead of "
                      f"{architecture.machine}: the project must not choose a compiler itself.")
    if tag["library"] != kit.version:
        raise Problem(f"{tag['name']} was built against Zeplet {tag['library']}, but the kit is "
                      f"{kit.version}: install the same version of libzeplet-dev for "
                      f"{architecture.name}.")


def remove_earlier(output, package):
    """Earlier versions of the package for the same architecture."""
    name, _, architecture = package.stem.split("_")
    for earlier in output.glob(f"{name}_*_{architecture}.deb"):
        earlier.unlink()
