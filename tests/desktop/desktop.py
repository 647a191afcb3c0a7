"""A desktop of our own for the program: an X server, a window manager, and French regional settings."""

from __future__ import annotations

import contextlib
import os
import shutil
import subprocess
import tempfile
import time
from collections.abc import Callable
from pathlib import Path
from typing import TypeVar

from gi.repository import GLib

T = TypeVar("T")

TIMEOUT = 20.0  # seconds; what takes longer will not come


def wait_for(look: Callable[[], T], what: str | Callable[[], str]) -> T:
    """Looks again and again until there is something to see, and returns it."""
    deadline = time.monotonic() + TIMEOUT
    while time.monotonic() < deadline:
        with contextlib.suppress(GLib.Error):  # what disappears while a screen reader looks at it counts as absent
            if seen := look():
                return seen
        time.sleep(0.005)
    raise AssertionError(f"not in {TIMEOUT:g} s: {what if isinstance(what, str) else what()}")


def start(words: list[str], inherited: tuple[int, ...] = (), **environment: str) -> subprocess.Popen[bytes]:
    """Starts a program with its output discarded. It gets the file descriptors that are named."""
    return subprocess.Popen(words, env={**os.environ, **environment}, pass_fds=inherited, stdin=subprocess.DEVNULL,
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def start_server(words: Callable[[int], list[str]]) -> tuple[subprocess.Popen[bytes], str]:
    """Starts a server that writes its address to a file descriptor once it is ready; returns both."""
    reading, writing = os.pipe()
    server = start(words(writing), (writing,))
    os.close(writing)
    with os.fdopen(reading) as pipe:
        address = pipe.readline().strip()
    if not address:
        raise RuntimeError(f"{words(writing)[0]} does not start")
    return server, address


def stop(process: subprocess.Popen[bytes]) -> None:
    process.kill()
    process.wait()


class Desktop:
    """A screen of our own, with a window manager or, where that is "", without one; and its mouse and
    its keyboard."""

    def __init__(self, size: str = "1920x1080", manager: str = "openbox") -> None:
        self._server, display = start_server(
            lambda end: ["Xvfb", "-displayfd", str(end), "-screen", "0", f"{size}x24", "-dpi", "96", "-noreset",
                         "-nolisten", "tcp"])
        self.display = f":{display}"
        self._manager = start([manager], DISPLAY=self.display) if manager else None
        wait_for(lambda: not manager or self.xdotool("get_num_desktops").returncode == 0, "a window manager")

    def xdotool(self, *words: str) -> subprocess.CompletedProcess[str]:
        """Moves the mouse, presses buttons and keys: real events of the X server, by xdotool."""
        return subprocess.run(["xdotool", *words], env={**os.environ, "DISPLAY": self.display}, text=True,
                              capture_output=True, check=False)

    def color(self, x: int, y: int) -> str:
        """The colour of a point of the screen, such as "FF0000"."""
        point = subprocess.run(["import", "-window", "root", "-crop", f"1x1+{x}+{y}", "-depth", "8", "rgb:-"],
                               env={**os.environ, "DISPLAY": self.display}, capture_output=True, check=True)
        return point.stdout.hex().upper()

    def plug(self, screen: bool) -> None:
        """Plugs the screen in, or pulls it out."""
        state = ["--mode", "1920x1080"] if screen else ["--off"]
        # Without any screen the tool then fails to give the desktop a size; the screen is off all the same.
        subprocess.run(["xrandr", "--output", "screen", *state], env={**os.environ, "DISPLAY": self.display},
                       capture_output=True, check=screen)

    def kill_server(self) -> None:
        """The X server dies."""
        stop(self._server)

    def close(self) -> None:
        if self._manager:
            stop(self._manager)
        stop(self._server)


def without_plugins(folder: Path, *kinds: str) -> Path:
    """A copy of the program, made in that folder, for which the toolkit lacks all plugins of those kinds."""
    plugins = Path(subprocess.run(["qmake6", "-query", "QT_INSTALL_PLUGINS"], capture_output=True, text=True,
                                  check=True).stdout.strip())
    (folder / "plugins").mkdir()
    for kind in plugins.iterdir():
        if kind.name not in kinds:
            (folder / "plugins" / kind.name).symlink_to(kind)
    (folder / "qt.conf").write_text("[Paths]\nPlugins=plugins\n")
    return Path(shutil.copy(os.environ["ONDELIS"], folder))


def french_settings(folder: Path, encoding: str = "UTF-8") -> dict[str, str]:
    """The environment of a person in France, made in that folder: few test machines have it."""
    name = f"fr_FR.{encoding}"
    subprocess.run(["localedef", "--no-archive", "-i", "fr_FR", "-f", encoding, str(folder / name)], check=True)
    return {"LOCPATH": str(folder), "LC_ALL": name}


class Program:
    """The program, as it runs on a desktop. What it says on its standard error is kept."""

    def __init__(self, desktop: Desktop, file: Path | None = None, **environment: str) -> None:
        self._errors = tempfile.TemporaryFile()
        self._process = subprocess.Popen(
            [file or os.environ["ONDELIS"]], stdin=subprocess.DEVNULL, stdout=self._errors, stderr=self._errors,
            env={**os.environ, "DISPLAY": desktop.display, "QT_QPA_PLATFORM": "xcb", "LC_ALL": "C.UTF-8",
                 **environment})
        self.id = self._process.pid

    def is_running(self) -> bool:
        return self._process.poll() is None

    def memory(self, figure: str) -> int:
        """Kilobytes of memory: VmRSS for what it holds now, VmHWM for the most that it has held."""
        status = Path(f"/proc/{self.id}/status").read_text()
        return next(int(line.split()[1]) for line in status.splitlines() if line.startswith(figure))

    def exit_status(self) -> int:
        """Waits for the end. A signal that ended the program is a negative status."""
        return self._process.wait(TIMEOUT)

    def terminate(self) -> None:
        self._process.terminate()

    def error_output(self) -> str:
        self._errors.seek(0)
        return self._errors.read().decode()

    def close(self) -> None:
        stop(self._process)
        self._errors.close()
