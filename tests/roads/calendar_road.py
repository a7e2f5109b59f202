"""The main job, keys only: a week of weights, a corrected one, another month, other display options, a sample profile, and
the same figures after a new start."""
import datetime

import road

WEEK = ["182.5", "181.8", "182.1", "181.2", "180.9", "181.4", "180.2"]
CORRECTED = "181.6"  # for the sixth day
START = 183.4


def go_to_first_day(trimlog):
    trimlog.keys(*["Left"] * 31)  # stops at the first day of the month


def type_week(trimlog):
    trimlog.keys("Prior")
    go_to_first_day(trimlog)
    for weight in WEEK:
        trimlog.type(weight)
        trimlog.keys("Right")
    trimlog.keys("Left", "Left")
    trimlog.type(CORRECTED)
    trimlog.keys("Return", "Down")


def expected_weights(first):
    typed = [float(weight) for weight in WEEK]
    typed[5] = float(CORRECTED)
    rows = {str(first - datetime.timedelta(days=3)): (START, 0)}
    before = START
    for day, weight in enumerate(typed):
        rows[str(first + datetime.timedelta(days=day))] = (weight, round(before - weight, 2))
        before = weight
    return rows


def change_options(trimlog):
    before = trimlog.settled_picture("options_before.png")
    trimlog.keys("ctrl+comma")
    trimlog.wait_for_window("Program Options")
    trimlog.keys("alt+u", "alt+l", "alt+m", "Down", "Return")
    trimlog.wait_for_window("Trimlog Pro 2")
    trimlog.expect_change(before, "losses shown, kilograms")


def visit_sample(trimlog):
    before = trimlog.settled_picture("own.png")
    trimlog.keys("alt+p", "Down", "Return")
    trimlog.wait_for_window("Welcome to Sample Profile 1")
    trimlog.keys("Return")
    trimlog.wait_for_window("Trimlog Pro 2")
    trimlog.expect_change(before, "the sample profile")
    before = trimlog.settled_picture("sample.png")
    trimlog.keys("Left")
    trimlog.type("250")  # no reward for that; the sample's weights restore themselves at the end
    trimlog.keys("Return")
    trimlog.expect_change(before, "a weight in the sample profile")
    trimlog.keys("alt+p", "Return")


def calendar_road(trimlog):
    first = road.first_of_last_month()
    trimlog.add_person(weights=[(first - datetime.timedelta(days=3), START)])
    trimlog.start().wait_for_window("Trimlog Pro 2")
    type_week(trimlog)
    month = trimlog.settled_picture("month.png")
    trimlog.keys("Next")
    trimlog.expect_change(month, "the next month")
    trimlog.keys("Prior")
    trimlog.expect_picture(month, "the month that was left")
    change_options(trimlog)
    visit_sample(trimlog)
    trimlog.keys("Prior")
    go_to_first_day(trimlog)
    end = trimlog.settled_picture("end.png")
    trimlog.quit()

    road.check(trimlog.weights(), expected_weights(first), "the weights in the data file")
    road.check((trimlog.setting("UomID"), trimlog.setting("ShowLoss")), ("2", "-1"), "the settings")
    for sample in (-1, -2):
        road.check(trimlog.rows("SELECT * FROM weight_loss WHERE PersonID = ? ORDER BY ThisDate", sample),
                   trimlog.rows("SELECT * FROM weight_loss_sample WHERE PersonID = ? ORDER BY ThisDate", sample),
                   "the sample profile's weights")

    trimlog.start().wait_for_window("Trimlog Pro 2")
    trimlog.keys("Prior")
    go_to_first_day(trimlog)
    trimlog.expect_picture(end, "after a new start")
    trimlog.quit()
    road.check(trimlog.weights(), expected_weights(first), "the weights after a new start")


road.walk(calendar_road)
