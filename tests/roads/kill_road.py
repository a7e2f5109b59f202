"""kill -9 in the middle of typing, several times: every weight whose cell was left is in the data file, whole, and the
one that was still being typed is not."""
import datetime

import road


def kill_road(trimlog):
    first = road.first_of_last_month()
    trimlog.add_person(weights=[(first - datetime.timedelta(days=1), 190.0)])
    left = {}
    for round_, open_text in enumerate(["", "1", "17"]):
        trimlog.start().wait_for_window("Trimlog Pro 2")
        trimlog.keys("Prior", *["Left"] * 31, *["Right"] * len(left))
        for day in range(len(left), len(left) + 4):
            weight = 189.5 - day * 0.3
            trimlog.type(f"{weight:.1f}")
            before = trimlog.picture("before.png")
            trimlog.keys("Right")
            trimlog.expect_change(before, "the cell is left")
            left[str(first + datetime.timedelta(days=day))] = round(weight, 1)
        trimlog.type(open_text)
        trimlog.kill()
        rows = trimlog.weights()
        rows.pop(str(first - datetime.timedelta(days=1)))
        road.check({date: weight for date, (weight, _) in rows.items()}, left, f"the weights after kill {round_ + 1}")
        road.check(trimlog.rows("PRAGMA integrity_check"), [("ok",)], "the data file")
        before = 190.0
        for date, (weight, loss) in rows.items():
            road.check(loss, round(before - weight, 2), f"the loss of {date}")
            before = weight


road.walk(kill_road)
