#!/usr/bin/env python3
"""Process start to the first painted calendar, with the shipped file and ten years of daily weights, beside an empty Qt
Widgets window of the same size in the same run.

    start_benchmark.py APP_DIRECTORY SHIPPED_DIRECTORY BENCHMARKS_DIRECTORY [--runs 20]

The programs take turns; a first turn warms the caches. Wall time is what a person waits; processor time is what is left of
it on a machine that does nothing else. The last column is the ratio of the medians, which should stay below 3."""
import argparse
import datetime
import os
import pathlib
import random
import select
import statistics
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "roads"))
import road  # noqa: E402

SIZE = ("635", "473")  # pixels of the main window as it first comes
DAYS = 3650
PATIENCE = 30  # seconds


def ten_years():
    chance = random.Random(7)
    today = datetime.date.today()
    weight = 250.0
    for day in range(DAYS, 0, -1):
        weight = round(weight - chance.uniform(-0.5, 0.53), 1)
        yield today - datetime.timedelta(days=day - 1), weight


def first_paint(command, widget, environment, plugins):
    """Milliseconds from the start of the process: on the clock, and of the processor."""
    read, write = os.pipe()
    begin = time.monotonic_ns()
    process = subprocess.Popen(command, pass_fds=[write], stderr=subprocess.DEVNULL, env=environment | {
        "FIRST_PAINT_FD": str(write), "QT_QPA_GENERIC_PLUGINS": f"firstpaint:{widget}", "QT_PLUGIN_PATH": str(plugins)})
    os.close(write)
    try:
        line = os.read(read, 100) if select.select([read], [], [], PATIENCE)[0] else b""
    finally:
        process.kill()
        process.wait()
        os.close(read)
    if not line:
        sys.exit(f"{command[0]}: no {widget} was painted")
    painted, processor = (int(figure) for figure in line.split())
    return (painted - begin) / 1e6, processor / 1e6


def measure(programs, environment, plugins, runs):
    figures = {command[0]: [] for command, _ in programs}
    for turn in range(runs + 1):
        for command, widget in programs:
            found = first_paint(command, widget, environment, plugins)
            if turn > 0:
                figures[command[0]].append(found)
    return [[statistics.median(column) for column in zip(*figures[command[0]])] for command, _ in programs]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("app_directory")
    parser.add_argument("shipped_directory")
    parser.add_argument("benchmarks_directory", type=pathlib.Path)
    parser.add_argument("--runs", type=int, default=20)
    options = parser.parse_args()
    benchmarks = options.benchmarks_directory.resolve()
    if not (benchmarks / "empty_window").is_file():
        parser.error(f"{benchmarks} holds no empty_window: build it first")
    with road.stage(options.app_directory, options.shipped_directory, heard=False) as trimlog:
        trimlog.add_person(weights=ten_years())
        empty = [str(benchmarks / "empty_window"), *SIZE]
        program = [str(trimlog.program_directory / "trimlog")]
        print(f"{'':10} {'':15} {'wall':>9} {'processor':>12}")
        for platform in ("xcb", "offscreen"):
            environment = trimlog.environment | {"QT_QPA_PLATFORM": platform}
            base, ours = measure([(empty, "empty"), (program, "frmData")], environment,
                                 benchmarks / "plugins", options.runs)
            print(f"{platform:10} {'empty window':15} {base[0]:6.1f} ms {base[1]:9.1f} ms")
            print(f"{platform:10} {'first calendar':15} {ours[0]:6.1f} ms {ours[1]:9.1f} ms   "
                  f"x{ours[0] / base[0]:.2f} wall, x{ours[1] / base[1]:.2f} processor")


main()
