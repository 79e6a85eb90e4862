"""What a plugin may be called, and the names that follow from that."""

import re

from .problem import Problem

LONGEST_LABEL = 60

# The rule of zeplet_add_plugin() in cmake/ZepletPlugin.cmake.
RULE = re.compile(r"[A-Za-z0-9][A-Za-z0-9_-]{0,63}")

# Targets that CMake, CTest and CPack make themselves, or keep for themselves.
RESERVED = {
    "all", "all_build", "clean", "codegen", "continuous", "depend", "edit_cache", "experimental",
    "help", "install", "list_install_components", "nightly", "package", "package_source",
    "preinstall", "rebuild_cache", "run_tests", "test", "zero_check", "zeplet_plugins",
}
DASHBOARD = re.compile(r"(continuous|experimental|nightly)(build|configure|coverage|memcheck|"
                       r"memorycheck|start|submit|test|update)?")


class PluginName:
    """A checked name: of the plugin, its directory, its target and its files."""

    def __init__(self, name, taken=()):
        if not RULE.fullmatch(name):
            raise Problem(f"{name!r} can't be a plugin's name: use a letter or digit, then at most "
                          "63 letters, digits, _ and -.", 2)
        if name.lower() in RESERVED or DASHBOARD.fullmatch(name.lower()):
            raise Problem(f'CMake keeps the name "{name}" for itself: choose another one, '
                          f'"my-{name}" for example.', 2)
        if name in taken:
            raise Problem(f'The panel itself has a plugin "{name}": choose another name, '
                          f'"my-{name}" for example.', 2)
        self.text = name

    def __str__(self):
        return self.text

    @property
    def identifier(self):
        """A C++ identifier: my-gripper2 gives MyGripper2; a digit gets a letter before it."""
        words = [word for word in re.split("[_-]+", self.text) if word]
        joined = "".join(word[0].upper() + word[1:] for word in words)
        return "N" + joined if joined[0].isdigit() else joined

    @property
    def label(self):
        """What a person reads where no label was given: my-gripper gives "My gripper"."""
        text = " ".join(word for word in re.split("[_-]+", self.text) if word)
        return text[0].upper() + text[1:]


def checked_label(label):
    if not label.strip() or not label.isprintable() or len(label) > LONGEST_LABEL:
        raise Problem(f"The label {label!r} does not fit into the navigation: use 1 to "
                      f"{LONGEST_LABEL} printable characters.", 2)
    return label.strip()


def in_cpp_string(text):
    """The text as it stands between the quotes of a C++ string."""
    return text.replace("\\", "\\\\").replace('"', '\\"')
