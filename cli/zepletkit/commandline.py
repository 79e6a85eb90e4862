"""The command line: picks the command, and turns what goes wrong into sentences and exit codes."""

import argparse
import contextlib
import difflib
import errno
import importlib
import importlib.util
import os
import signal
import subprocess
import sys

from .kit import Kit
from .problem import Problem

# A command is the module of that name: add_arguments(parser) declares its words, run(arguments)
# does the work and returns the exit code. arguments.kit is the kit in use.
COMMANDS = {
    "new": "makes a plugin that builds, passes its test and shows a page",
    "build": "builds the plugin and its tests",
    "run": "opens the plugin in the panel with a simulated robot; restarts when you save",
    "test": "builds the plugin and runs its tests",
    "list": "lists the plugin libraries that the panel sees, and why one is left out",
    "pack": "makes the plugin's Debian packages",
}

USAGE = """usage: zeplet COMMAND [options]

The tool for authors of panel plugins.

commands:
{commands}

  zeplet COMMAND --help    says more about a command
  zeplet --version         the version of the kit

examples:
  zeplet new gripper --label "My gripper"
  cd gripper
  zeplet test
  zeplet run

It ends with 0 when all is well, with 1 when something failed, with 2 on a wrong command line."""


class Terminated(Exception):
    """A signal asks this process to end."""


def main(program, words):
    return guarded(lambda: dispatch(program, words))


def guarded(function):
    """Calls the function; the exit code of the process."""
    for number in (signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, terminate)
    signal.signal(signal.SIGTTIN, signal.SIG_IGN)  # in the background nobody types
    sys.stdout.reconfigure(errors="backslashreplace")  # a path may have any bytes
    try:
        code = function()
        sys.stdout.flush()
    except BrokenPipeError:  # whoever read our lines has seen enough
        drop_output()
        with contextlib.suppress(OSError):  # nor does anybody, perhaps, read the errors
            print("zeplet: It stopped, because nobody reads what it prints any more.",
                  file=sys.stderr, flush=True)
        return 1
    except Problem as problem:
        print(f"zeplet: {problem}", file=sys.stderr)
        return problem.code
    except subprocess.CalledProcessError as failed:
        print(f"zeplet: {sentence_on_program(failed)}", file=sys.stderr)
        return 1
    except OSError as error:
        print(f"zeplet: {sentence(error)}", file=sys.stderr)
        drop_output()
        return 1
    except KeyboardInterrupt:
        return 128 + signal.SIGINT
    except Terminated as ended:
        return 128 + ended.args[0]
    return 128 - code if code < 0 else code  # a child that died of a signal


def drop_output():
    """What was not printed yet would fail once more at the end."""
    os.dup2(os.open(os.devnull, os.O_WRONLY), sys.stdout.fileno())


def sentence(error):
    """What the system refused, for a person."""
    what = f"{error.filename} can't be used" if error.filename else "A file can't be used"
    remedy = {errno.ENOSPC: "make room on the disk", errno.EDQUOT: "make room on the disk",
              errno.EACCES: "correct its permissions", errno.EPERM: "correct its permissions",
              errno.EROFS: "work in a directory that can be written"}
    return (f"{what}: {error.strerror or error}; {remedy.get(error.errno, 'correct that')}, then try "
            "again.")


def sentence_on_program(failed):
    """That a program failed which the tool called, and what it said."""
    words = failed.cmd if isinstance(failed.cmd, (list, tuple)) else [failed.cmd]
    said = (failed.stderr or failed.output or "").strip()
    return f'"{" ".join(str(word) for word in words)}" failed{": " + said if said else "."}'


def terminate(number, _):
    raise Terminated(number)


def dispatch(program, words):
    if words[0:1] == ["help"]:
        words = [*words[1:], "--help"]
    if not words or words[0] in ("-h", "--help"):
        print(usage())
        return 0 if words else 2
    kit = Kit.find(program)
    if words[0] == "--version":
        print(f"zeplet {kit.version}")
        return 0
    command = words[0]
    if command not in COMMANDS or not is_there(command):
        raise Problem(f'There is no command "{command}".{nearest(command)} "zeplet --help" lists '
                      "the commands.", 2)
    module = importlib.import_module(f"zepletkit.{command}")
    parser = argparse.ArgumentParser(prog=f"zeplet {command}", description=module.__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    module.add_arguments(parser)
    return module.run(parser.parse_args(words[1:], argparse.Namespace(kit=kit)))


def usage():
    lines = [f"  {name:6} {text}" for name, text in COMMANDS.items() if is_there(name)]
    return USAGE.format(commands="\n".join(lines))


def is_there(command):
    return importlib.util.find_spec(f"zepletkit.{command}") is not None


def nearest(word):
    found = difflib.get_close_matches(word.lower(), COMMANDS, n=1, cutoff=0.4)
    return f' Do you mean "zeplet {found[0]}"?' if found else ""
