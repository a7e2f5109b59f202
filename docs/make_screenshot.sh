#!/usr/bin/env bash
# Makes docs/calendar.png and docs/journal.png: Sample Profile 1 in the built program, on a screen of its own. Needs a build (./run)
# and what the tests need (./test).
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
exec env PYTHONPATH="$here/../tests/roads" python3 - "$here/../build/app" "$here/../build/shipped" "$here" <<'PYTHON'
import sys
import road


def screenshot(trimlog):
    trimlog.add_person(weights=[(road.first_of_last_month(), 183.4)])  # no wizard in front of the calendar
    trimlog.start().wait_for_window("Trimlog Pro 2")
    trimlog._xdotool("getactivewindow", "windowsize", "860", "620")
    before = trimlog.settled_picture("own.png")
    trimlog.keys("alt+p", "Down", "Return")
    trimlog.wait_for_window("Welcome to Sample Profile 1")
    trimlog.keys("Return")
    trimlog.wait_for_window("Trimlog Pro 2")
    trimlog.expect_change(before, "the sample profile")
    trimlog.keys("alt+l")
    calendar = trimlog.settled_picture("calendar.png")
    road.shutil.copy(calendar, sys.argv[3])
    trimlog.keys("alt+v", "j")
    trimlog.expect_change(calendar, "the journal")
    road.shutil.copy(trimlog.settled_picture("journal.png"), sys.argv[3])
    trimlog.quit()


road.walk(screenshot)
PYTHON
