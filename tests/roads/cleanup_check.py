#!/usr/bin/env python3
"""Nothing that a road or the start benchmark starts outlives it, whichever way it ends: no process of its session, and no
folder but the one that a failure leaves to be looked at.

usage: cleanup_check.py APP_DIRECTORY SHIPPED_DIRECTORY
"""
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile

import road

HERE = pathlib.Path(__file__).resolve().parent
WAITING_ROAD = """
import sys
sys.path.insert(0, {here!r})
import road

def waits(trimlog):
    trimlog.start().wait_for_window("Trimlog Pro")
    print("standing", flush=True)
    trimlog.process.wait()

road.walk(waits)
"""


def alive(session):
    """The processes of a session that have not ended, by their commands."""
    found = []
    for stat in pathlib.Path("/proc").glob("[0-9]*/stat"):
        try:
            command, _, rest = stat.read_text().rpartition(") ")
        except OSError:
            continue  # has ended meanwhile
        state, _, _, its_session = rest.split()[:4]
        if int(its_session) == session and state != "Z":
            found.append(command.partition("(")[2])
    return found


def expect_end(command, folder, what, act=None, says="", leaves_folder=False, **arguments):
    environment = os.environ | {"TMPDIR": str(folder)} | arguments.pop("environment", {})
    process = subprocess.Popen([sys.executable, *map(str, command)], env=environment, start_new_session=True, text=True,
                               stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **arguments)
    if act is not None:
        road.check(process.stdout.readline(), "standing\n", f"{what}: first line")
        road.check(sorted(set(alive(process.pid)) & {"Xvfb", "openbox", "trimlog"}), ["Xvfb", "openbox", "trimlog"],
                   f"{what}: what it started")
        process.send_signal(act)
    output = process.communicate(timeout=60)[0]
    if process.returncode == 0 or says not in output:
        raise AssertionError(f"{what}: status {process.returncode}, {output[-2000:]!r}")
    if not road.until(lambda: not alive(process.pid)):
        raise AssertionError(f"{what}: left running: {alive(process.pid)}")
    left = list(folder.glob("trimlog-road-*"))
    road.check(bool(left), leaves_folder, f"{what}: folders left")
    for path in left:
        shutil.rmtree(path)


def main():
    app, shipped = (os.path.relpath(path) for path in sys.argv[1:3])
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        waiting = folder / "waiting_road.py"
        waiting.write_text(WAITING_ROAD.format(here=str(HERE)))
        for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
            expect_end([waiting, app, shipped], folder, number.name, act=number)
        expect_end([waiting, app, shipped], folder, "SIGKILL", act=signal.SIGKILL, leaves_folder=True)
        expect_end([waiting, "no/such/app", shipped], folder, "a wrong folder", says="no/such/app/trimlog is not there")
        expect_end([HERE.parents[1] / "benchmarks" / "start_benchmark.py", app, shipped, "no/such/benchmarks"], folder,
                   "the benchmark in a wrong folder", says="no/such/benchmarks holds no empty_window")

        broken = folder / "bin"
        broken.mkdir()
        (broken / "openbox").write_text("#!/bin/sh\nexit 1\n")
        (broken / "openbox").chmod(0o755)
        expect_end([waiting, app, shipped], folder, "no window manager", says="the window manager did not start",
                   environment={"PATH": f"{broken}:{os.environ['PATH']}"})


if not all(shutil.which(tool) for tool in road.TOOLS):
    print("needs", ", ".join(road.TOOLS))
    sys.exit(road.NOT_POSSIBLE_HERE)
main()
