"""What a plugin can be built for on this machine, and what is missing for the rest."""

import shutil
import subprocess
from pathlib import Path

FIRST_NAME_OF_GNU = {"amd64": "x86_64", "arm64": "aarch64"}


def native_name():
    return subprocess.run(["dpkg", "--print-architecture"], check=True, text=True,
                          stdout=subprocess.PIPE).stdout.strip()


class Architecture:
    """One of Debian's: name ("arm64"), machine ("aarch64"), triplet ("aarch64-linux-gnu")."""

    def __init__(self, name, toolchain=None):
        self.name = name
        self.machine = FIRST_NAME_OF_GNU[name]
        self.triplet = f"{self.machine}-linux-gnu"
        self.toolchain = toolchain
        self.is_native = toolchain is None

    @classmethod
    def all(cls, kit):
        """This machine's own first, then those that the kit has a toolchain file for."""
        own = native_name()
        files = {name: kit.package / f"{name}.cmake" for name in FIRST_NAME_OF_GNU if name != own}
        return [cls(own), *(cls(name, file) for name, file in files.items() if file.exists())]

    def missing_packages(self):
        """The Debian packages without which nothing can be built for it."""
        if self.is_native:
            needs = {"dpkg-dev": shutil.which("dpkg-shlibdeps"), "file": shutil.which("file")}
        else:
            libraries = Path("/usr/lib", self.triplet, "cmake")
            needs = {f"crossbuild-essential-{self.name}": shutil.which(f"{self.triplet}-g++"),
                     f"qtbase5-dev:{self.name}": (libraries / "Qt5Core").is_dir(),
                     f"libzeplet-dev:{self.name}": (libraries / "Zeplet").is_dir()}
        return [package for package, found in needs.items() if not found]

    def commands_to_install(self, packages, version):
        """What to type to install the packages; the library's come as files of that version."""
        commands = []
        foreign = subprocess.run(["dpkg", "--print-foreign-architectures"], check=True, text=True,
                                 stdout=subprocess.PIPE).stdout.split()
        if not self.is_native and self.name not in foreign:
            commands.append(f"sudo dpkg --add-architecture {self.name}")
        commands.append("sudo apt-get update")
        known = [package for package in packages if not package.startswith("libzeplet-dev")]
        if known:
            commands.append(f"sudo apt-get install {' '.join(known)}")
        if len(known) < len(packages):
            major = version.split(".", 1)[0]
            files = [f"./{package}_{version}-1_{self.name}.deb"
                     for package in (f"libzeplet{major}", "libzeplet-dev")]
            commands.append(f"sudo apt-get install {' '.join(files)}")
        return commands
