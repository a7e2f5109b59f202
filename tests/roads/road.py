"""A person at the keyboard: starts the built program in a real window under Xvfb, types, takes pictures, quits, and looks
at the data file afterwards. Nothing here knows the program's insides."""
import os
import pathlib
import shutil
import signal
import sqlite3
import subprocess
import tempfile
import time


class Screen:
    """An X screen of its own with a window manager, so that windows get the focus as on a desktop."""

    def __init__(self, width=1280, height=1024):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", f"{width}x{height}x24", "-nolisten", "tcp"],
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as answer:
            self.display = ":" + answer.readline().strip()
        self.environment = {"DISPLAY": self.display, "PATH": os.environ["PATH"], "QT_QPA_PLATFORM": "xcb"}
        self.manager = subprocess.Popen(["openbox", "--sm-disable"], env=self.environment | {"HOME": tempfile.gettempdir()},
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        time.sleep(0.5)

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()


class Trimlog:
    """One installation in a folder of its own: the program directory, a home and a configuration folder."""

    def __init__(self, screen, app_directory, shipped_directory, locale="en_US.UTF-8"):
        self.screen = screen
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="trimlog-road-"))
        self.program_directory = self.folder / "app"
        shutil.copytree(app_directory, self.program_directory, ignore=shutil.ignore_patterns("tlg.dat", "errorlog.txt"))
        shutil.copy(pathlib.Path(shipped_directory) / "tlg.dat", self.program_directory / "tlg.dat")
        os.chmod(self.program_directory / "tlg.dat", 0o644)
        home = self.folder / "home"
        home.mkdir()
        self.environment = screen.environment | {
            "HOME": str(home), "XDG_CONFIG_HOME": str(home / ".config"), "XDG_RUNTIME_DIR": str(self.folder),
            "LC_ALL": locale, "QT_ACCESSIBILITY": "0"}
        self.process = None

    def start(self):
        self.process = subprocess.Popen([str(self.program_directory / "trimlog")], env=self.environment,
                                        cwd=self.folder, stderr=subprocess.PIPE)
        return self

    def wait_for_window(self, title, seconds=20):
        """Waits until a window whose title matches is active."""
        end = time.time() + seconds
        while time.time() < end:
            if self.process.poll() is not None:
                raise AssertionError(f"the program ended: {self.process.stderr.read().decode()[-2000:]}")
            name = self._xdotool("getactivewindow", "getwindowname", check=False)
            if title in name:
                time.sleep(0.3)
                return name
            time.sleep(0.1)
        self.picture(self.folder / "lost.png")
        raise AssertionError(f"no window {title!r} became active; the active one is {name!r}; see {self.folder}/lost.png")

    def keys(self, *names):
        """Presses keys by their X names: "Tab", "ctrl+q", "alt+f"."""
        for name in names:
            self._xdotool("key", "--clearmodifiers", name)
            time.sleep(0.08)

    def type(self, text):
        self._xdotool("type", "--clearmodifiers", "--delay", "15", text)
        time.sleep(0.15)

    def picture(self, path):
        window = self._xdotool("getactivewindow", check=False).strip()
        subprocess.run(["import", "-window", window or "root", str(path)], env=self.environment, check=True)
        return path

    def quit(self, seconds=15):
        """Closes the window in front as a person would, and waits for the end of the program."""
        self.keys("alt+F4")
        return self.process.wait(timeout=seconds)

    def kill(self):
        if self.process and self.process.poll() is None:
            self.process.send_signal(signal.SIGKILL)
            self.process.wait()

    def rows(self, sql, *values):
        """Reads the data file as any other tool would; the program must have ended."""
        with sqlite3.connect(f"file:{self.program_directory}/tlg.dat?mode=ro", uri=True) as file:
            return file.execute(sql, values).fetchall()

    def log(self):
        path = self.program_directory / "errorlog.txt"
        return path.read_text() if path.exists() else ""

    def remove(self):
        self.kill()
        shutil.rmtree(self.folder, ignore_errors=True)

    def _xdotool(self, *arguments, check=True):
        return subprocess.run(["xdotool", *arguments], env=self.environment, check=check, capture_output=True,
                              text=True).stdout.strip()


def same_picture(one, other):
    """True when two pictures differ in no pixel."""
    answer = subprocess.run(["compare", "-metric", "AE", str(one), str(other), "null:"], capture_output=True, text=True)
    return answer.returncode == 0
