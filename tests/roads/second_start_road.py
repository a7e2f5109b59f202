"""A second start brings the first window to the front and ends without touching the data file; what was killed leaves
nothing that keeps the next one from starting."""
import hashlib
import subprocess

import road


def fingerprint(trimlog):
    file = trimlog.program_directory / "tlg.dat"
    return hashlib.sha256(file.read_bytes()).hexdigest(), file.stat().st_mtime_ns, file.stat().st_ino


def cover_with_another_window(trimlog):
    cover = subprocess.Popen(["xmessage", "-center", "something else"], env=trimlog.environment) if road.shutil.which(
        "xmessage") else None
    if cover is None:
        trimlog._xdotool("getactivewindow", "windowminimize")
    if not road.until(lambda: not trimlog.active_window().startswith("Trimlog Pro")):
        raise AssertionError("the first window stays in front")
    return cover


def second_start_road(trimlog):
    trimlog.add_person(weights=[(road.first_of_last_month(), 183.4)])
    trimlog.start().wait_for_window("Trimlog Pro 2")
    trimlog.type("180.2")
    trimlog.keys("Return")
    month = trimlog.settled_picture("month.png")

    cover = cover_with_another_window(trimlog)
    before = fingerprint(trimlog)
    second = trimlog.launch()
    road.check(second.wait(timeout=10), 0, "exit code of the second start")
    trimlog.wait_for_window("Trimlog Pro 2")
    if cover:
        cover.terminate()
        cover.wait()
        trimlog.wait_for_window("Trimlog Pro 2")
    road.check(fingerprint(trimlog), before, "the data file after a second start")
    trimlog.expect_picture(month, "the first window, in front again")

    trimlog.kill()
    trimlog.start().wait_for_window("Trimlog Pro 2")
    trimlog.quit()
    road.check(len(trimlog.weights()), 2, "weights after a kill and a new start")


road.walk(second_start_road)
