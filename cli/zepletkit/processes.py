"""Child processes: started without a shell, ended in order, and never left behind."""

import contextlib
import os
import shutil
import signal
import subprocess

PATIENCE = 15  # seconds: a panel that waits for a copy to the controller may need a while


def start(command, **options):
    """Starts a program that hears no Ctrl-C of the terminal: whoever started it ends it.

    Where this process dies, killed even, the child is asked to end.
    """
    guard = shutil.which("setpriv")  # a part of every Debian system
    if guard:
        command = [guard, "--pdeathsig", "TERM", "--", *command]
    return subprocess.Popen([str(word) for word in command], start_new_session=True, **options)


def run(command):
    """Runs a program that starts others, and waits for it; the exit code. Its lines go to the
    terminal. What interrupts this process ends all of them."""
    process = start(command, stdin=subprocess.DEVNULL)
    try:
        return process.wait()
    except BaseException:
        with contextlib.suppress(ProcessLookupError):  # it ended at that moment
            os.killpg(process.pid, signal.SIGTERM)
        process.wait()
        raise


def end(process):
    """Asks the process to end, waits, and kills it where it does not. True: it ended in order."""
    if process.poll() is None:
        process.terminate()
    try:
        return process.wait(PATIENCE) == 0
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()
        return False


def cause_of_end(code):
    """ "ended with 3", "died of SIGSEGV"."""
    if code >= 0:
        return f"ended with {code}"
    try:
        return f"died of {signal.Signals(-code).name}"
    except ValueError:
        return f"died of signal {-code}"
