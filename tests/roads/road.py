"""A person at the keyboard: starts the built program in a real window under Xvfb, types, takes pictures, quits, and looks
at the data file afterwards. Nothing here knows the program's insides.

A road is a script that ends with `road.walk(function)`: the function gets an installation of its own, and the program
directory and the folder of shipped files come from the command line."""
import configparser
import contextlib
import datetime
import os
import pathlib
import select
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time

NOT_POSSIBLE_HERE = 77
ROAD_SECONDS = 120
PATIENCE = 30  # seconds for one thing to happen; only a failure takes that long
ACCESSIBILITY_BUS = pathlib.Path("/usr/share/dbus-1/services/org.a11y.Bus.service")
TOOLS = ("Xvfb", "openbox", "xdotool", "import", "compare")


def until(condition, seconds=PATIENCE, pause=0.05):
    """Waits for the condition and gives its value, or None when the time is over."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(pause)
    return None


def child(command, **arguments):
    """Starts a process that ends with this one, on whatever way this one ends."""
    return subprocess.Popen(["setpriv", "--pdeathsig", "KILL", *map(str, command)], **arguments)


def end(process):
    """Ends a process that may have ended, or that does not care to."""
    process.terminate()
    try:
        process.wait(timeout=5)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


def at_rest(processes):
    """True when no thread of these processes is running, waits for the processor or for the disk."""
    for process in processes:
        for stat in pathlib.Path(f"/proc/{process.pid}/task").glob("*/stat"):
            try:
                if stat.read_text().rpartition(") ")[2][0] in "RD":
                    return False
            except OSError:
                pass  # a thread that has ended meanwhile
    return True


class Screen:
    """An X screen of its own with a window manager, so that windows get the focus as on a desktop; `heard` by a screen
    reader, too."""

    def __init__(self, width=1280, height=1024, heard=True):
        self.processes = []
        try:
            self.display = self._start_server(f"{width}x{height}x24")
            self.environment = {"DISPLAY": self.display, "PATH": os.environ["PATH"], "QT_QPA_PLATFORM": "xcb"}
            self._start_manager()
            self.environment |= self._start_listener() if heard else {"QT_ACCESSIBILITY": "0"}
        except BaseException:
            self.close()
            raise

    def _start_server(self, size):
        """Starts the server on the first display that is free."""
        read, write = os.pipe()
        with os.fdopen(read, "rb", buffering=0) as answer:
            try:
                server = child(["Xvfb", "-displayfd", write, "-screen", "0", size, "-nolisten", "tcp", "-noreset"],
                               pass_fds=[write], stderr=subprocess.DEVNULL)
            finally:
                os.close(write)
            self.processes.append(server)
            ready = select.select([answer], [], [], PATIENCE)[0]
            display = answer.readline().decode().strip() if ready else ""
        if not display:
            raise AssertionError("the X server did not start")
        return ":" + display

    def _start_manager(self):
        manager = child(["openbox", "--sm-disable"], env=self.environment | {"HOME": tempfile.gettempdir()},
                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.processes.append(manager)
        if not until(lambda: self._managed() or manager.poll() is not None) or manager.poll() is not None:
            raise AssertionError("the window manager did not start")

    def _start_listener(self):
        """A message bus of its own, over which a screen reader would hear the program: everything is told there as on a
        desktop with one. Where there is no such bus the roads go without."""
        if not shutil.which("dbus-daemon") or not ACCESSIBILITY_BUS.exists():
            return {"QT_ACCESSIBILITY": "0"}
        read, write = os.pipe()
        with os.fdopen(read, "rb", buffering=0) as answer:
            self.processes.append(child(["dbus-daemon", "--session", "--nofork", "--print-address", write],
                                        pass_fds=[write], env=self.environment, stderr=subprocess.DEVNULL))
            os.close(write)
            ready = select.select([answer], [], [], PATIENCE)[0]
            address = answer.readline().decode().strip() if ready else ""
        if not address:
            raise AssertionError("the message bus did not start")
        return {"DBUS_SESSION_BUS_ADDRESS": address, "QT_ACCESSIBILITY": "1", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}

    def _managed(self):
        # xdotool asks the manager for the number of desktops; without one the answer is an error.
        return subprocess.run(["xdotool", "get_num_desktops"], env=self.environment, capture_output=True).returncode == 0

    def close(self):
        while self.processes:
            end(self.processes.pop())


class Trimlog:
    """One installation in a folder of its own: the program directory, a home and a configuration folder."""

    def __init__(self, screen, app_directory, shipped_directory, locale="en_US.UTF-8"):
        for path in (pathlib.Path(app_directory) / "trimlog", pathlib.Path(shipped_directory) / "tlg.dat"):
            if not path.is_file():
                raise AssertionError(f"{path} is not there: build the program first")
        self.screen = screen
        self.process = None
        self.keystrokes = 0
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="trimlog-road-"))
        try:
            self._install(pathlib.Path(app_directory), pathlib.Path(shipped_directory))
        except BaseException:
            self.remove()
            raise
        home = self.folder / "home"
        self.environment = screen.environment | {
            "HOME": str(home), "XDG_CONFIG_HOME": str(home / ".config"), "XDG_RUNTIME_DIR": str(self.folder),
            "LC_ALL": locale}

    def _install(self, app_directory, shipped_directory):
        self.program_directory = self.folder / "app"
        shutil.copytree(app_directory, self.program_directory,
                        ignore=shutil.ignore_patterns("tlg.dat*", "errorlog.txt", ".*"))
        shutil.copy(shipped_directory / "tlg.dat", self.program_directory / "tlg.dat")
        os.chmod(self.program_directory / "tlg.dat", 0o644)
        (self.folder / "home").mkdir()

    def add_person(self, name="Ann", goal="150", weights=()):
        """An ordinary profile without the wizard, with weights as (date, weight); the program must not be running."""
        with self._open("rw") as file:
            file.execute("INSERT INTO rewards (PersonID, RewardType) VALUES (1, 0)")  # no window comes in between
            file.execute("INSERT INTO people (PersonID, PersonName, Goal, GoalMethodID, GoalMethodLbsWeek, BirthDate, "
                         "HeightFeet, HeightInches, GenderID, BackColor, NutTargetID) "
                         "VALUES (1, ?, ?, 1, 1.5, '1980-01-01', 5, 5, 2, 16769216, 30)", (name, goal))
            before = None
            for date, weight in weights:
                file.execute("INSERT INTO weight_loss VALUES (1, ?, ?, ?)",
                             (str(date), weight, 0 if before is None else round(before - weight, 2)))
                before = weight

    def start(self):
        self.process = self.launch()
        return self

    def launch(self):
        """Starts one more copy."""
        return child([self.program_directory / "trimlog"], env=self.environment, cwd=self.folder, stderr=subprocess.PIPE)

    def wait_for_rest(self):
        """Waits until what was pressed has been dealt with: nobody on the screen has anything to do, a few looks long.
        That takes the time that it takes on a machine which has other work as well."""
        looks = 0
        end = time.monotonic() + PATIENCE
        while looks < 3 and time.monotonic() < end:
            looks = looks + 1 if at_rest([*self.screen.processes, self.process]) else 0
            time.sleep(0.01)

    def wait_for_window(self, title, seconds=PATIENCE):
        """Waits until a window whose title begins so is active, and has drawn itself."""

        def active():
            if self.process.poll() is not None:
                raise AssertionError(f"the program ended: {self.process.stderr.read().decode()[-2000:]}")
            name = self.active_window()
            return name if name.startswith(title) else None

        name = until(active, seconds)
        if name is None:
            self._give_up(f"no window {title!r} became active; the active one is {self.active_window()!r}")
        self.wait_for_rest()
        return name

    def active_window(self):
        return self._xdotool("getactivewindow", "getwindowname", check=False)

    def keys(self, *names):
        """Presses keys by their X names: "Tab", "ctrl+q", "alt+f"."""
        for name in names:
            self._xdotool("key", "--clearmodifiers", name)
            self.keystrokes += 1
            self.wait_for_rest()

    def type(self, text):
        self._xdotool("type", "--clearmodifiers", "--delay", "12", text)
        self.keystrokes += len(text)
        self.wait_for_rest()

    def point_at(self, x, y):
        """Moves the mouse over a place of the window in front, and a little further, as a hand does."""
        for step in range(2):
            self._xdotool("getactivewindow", "mousemove", "--window", "%1", str(x + step), str(y))
            self.wait_for_rest()

    def picture(self, name):
        """A picture of the window in front, in the road's folder or at a path."""
        path = self.folder / name
        window = self._xdotool("getactivewindow", check=False).strip()
        subprocess.run(["import", "-window", window or "root", str(path)], env=self.environment, check=True)
        return path

    def settled_picture(self, name):
        """A picture of the window once two in a row are alike."""
        path = self.picture(name)
        if not until(lambda: same_picture(path, self._picture_after(path)), pause=0.2):
            self._give_up("the window does not come to rest")
        return path

    def _picture_after(self, path):
        former = path.with_suffix(".former.png")
        path.rename(former)
        self.picture(path)
        return former

    def expect_picture(self, wanted, what):
        """The window in front comes to look like an earlier picture of it, pixel by pixel (a text cursor blinks)."""
        if not until(lambda: same_picture(wanted, self.picture("now.png")), pause=0.2):
            self._give_up(f"{what}: the window looks otherwise than {wanted}; see {self.folder}/now.png")

    def expect_change(self, former, what):
        """The window in front comes to look otherwise than in an earlier picture, by more than a text cursor."""
        if not until(lambda: different_pixels(former, self.picture("now.png")) > 100, pause=0.2):
            self._give_up(f"{what}: the window still looks like {former}")

    def quit(self, seconds=PATIENCE):
        """Closes the window in front as a person would, and waits for the end of the program. The key is the window
        manager's, which can miss it while it is busy with the window's first moments: it is pressed again then, as long
        as the same window stands there and nothing above it."""
        front = self.active_window()
        self.keys("alt+F4")
        try:
            code = self.process.wait(timeout=seconds / 3)
        except subprocess.TimeoutExpired:
            check(self.active_window(), front, "the window in front after Alt+F4")
            self.keys("alt+F4")
            code = self.process.wait(timeout=seconds)
        check(code, 0, "exit code")

    def kill(self):
        if self.process and self.process.poll() is None:
            self.process.send_signal(signal.SIGKILL)
            self.process.wait()

    def rows(self, sql, *values):
        """Reads the data file as any other tool would; the program must have ended."""
        with self._open("rw") as file:  # a journal left by a killed program is rolled back by whoever comes next
            return file.execute(sql, values).fetchall()

    def weights(self, person=1):
        return {date: (weight, loss) for date, weight, loss in self.rows(
            "SELECT ThisDate, ThisWeight, ThisLoss FROM weight_loss WHERE PersonID = ? ORDER BY ThisDate", person)}

    def setting(self, name):
        """A value of the settings as they stand in the user's configuration folder."""
        for path in self.folder.glob("home/.config/**/*.ini"):
            ini = configparser.ConfigParser(interpolation=None)
            ini.optionxform = str
            ini.read(path)
            for group in ini.sections():
                if name in ini[group]:
                    return ini[group][name]
        return None

    def log(self):
        path = self.program_directory / "errorlog.txt"
        return path.read_text() if path.exists() else ""

    def remove(self):
        self.kill()
        shutil.rmtree(self.folder, ignore_errors=True)

    def _give_up(self, sentence):
        subprocess.run(["import", "-window", "root", str(self.folder / "lost.png")], env=self.environment)
        raise AssertionError(f"{sentence}; the screen is in {self.folder}/lost.png")

    def _open(self, mode):
        return _Closing(sqlite3.connect(f"file:{self.program_directory}/tlg.dat?mode={mode}", uri=True))

    def _xdotool(self, *arguments, check=True):
        return subprocess.run(["xdotool", *arguments], env=self.environment, check=check, capture_output=True,
                              text=True).stdout.strip()


class _Closing:
    """A connection that commits and closes at the end of its block."""

    def __init__(self, connection):
        self.connection = connection

    def __enter__(self):
        return self.connection

    def __exit__(self, kind, *_):
        if kind is None:
            self.connection.commit()
        self.connection.close()


def different_pixels(one, other):
    answer = subprocess.run(["compare", "-metric", "AE", str(one), str(other), "null:"], capture_output=True, text=True)
    try:
        return float(answer.stderr.split()[0])
    except (ValueError, IndexError):
        return float("inf")  # of different sizes


def same_picture(one, other):
    """True when two pictures differ in no pixel."""
    return different_pixels(one, other) == 0


def check(found, wanted, what):
    if found != wanted:
        raise AssertionError(f"{what}: {found!r}, not {wanted!r}")


def first_of_last_month():
    return (datetime.date.today().replace(day=1) - datetime.timedelta(days=1)).replace(day=1)


@contextlib.contextmanager
def stage(app_directory, shipped_directory, keep_on_failure=False, **screen):
    """A screen with an installation on it; both are gone on every way out. What a failure left lies on if it shall."""
    if not all(shutil.which(tool) for tool in TOOLS):
        print("needs", ", ".join(TOOLS))
        sys.exit(NOT_POSSIBLE_HERE)
    for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
        signal.signal(number, lambda number, _: sys.exit(128 + number))
    with contextlib.ExitStack() as ways_out:
        display = Screen(**screen)
        ways_out.callback(display.close)
        trimlog = Trimlog(display, app_directory, shipped_directory)
        ways_out.callback(trimlog.kill)
        try:
            yield trimlog
        except Exception:
            if not keep_on_failure:
                trimlog.remove()
            raise
        except BaseException:  # ended from outside
            trimlog.remove()
            raise
        trimlog.remove()


def _too_long(*_):
    raise AssertionError(f"the road takes more than {ROAD_SECONDS} seconds")


def walk(road, **screen):
    """Runs a road as a test: `script.py APP_DIRECTORY SHIPPED_DIRECTORY`. What it left lies on where it failed."""
    with stage(*sys.argv[1:3], keep_on_failure=True, **screen) as trimlog:
        signal.signal(signal.SIGALRM, _too_long)
        signal.alarm(ROAD_SECONDS)
        road(trimlog)
        signal.alarm(0)
        check(trimlog.log(), "", "errorlog.txt")
