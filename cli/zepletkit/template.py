"""Templates: real plugins called "sample", whose names are replaced."""

import os
import re
import shutil
import tempfile
from pathlib import Path

from .names import in_cpp_string
from .problem import Problem

KINDS = ("page", "instruction", "background")
MARKS = re.compile("Sample label|Sample|sample")


def place(template, directory, name, label):
    """Makes directory/NAME from the template: whole, or not at all. What is there stays."""
    target = Path(directory) / name.text
    if os.path.lexists(target):
        raise Problem(f"{target} exists already: choose another name, or move it away.")
    try:
        made = Path(tempfile.mkdtemp(prefix=f".{name}.", dir=directory))
    except OSError as error:
        raise Problem(f"{target} can't be made: {error.strerror}.") from None
    try:
        fill(template, made, name, label)
        made.chmod(0o777 & ~current_umask())
        os.rename(made, target)
    except OSError as error:
        raise Problem(f"{target} can't be made: {error.strerror}.") from None
    finally:
        shutil.rmtree(made, ignore_errors=True)
    return target


def fill(template, made, name, label):
    """Copies the template's files, in which the plugin's names take the place of the sample's."""
    for source in sorted(template.iterdir()):
        shown = in_cpp_string(label) if source.suffix == ".cpp" else label
        words = {"Sample label": shown, "Sample": name.identifier, "sample": name.text}
        text = MARKS.sub(lambda mark: words[mark.group()], source.read_text(encoding="utf-8"))
        copy = made / source.name.replace("sample", name.text)
        copy.write_text(text, encoding="utf-8")


def current_umask():
    mask = os.umask(0o022)
    os.umask(mask)
    return mask
