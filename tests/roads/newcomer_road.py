"""Somebody who has never seen the program, keys only: the wizard on a fresh machine, the first weights, the three
calculators, and everything still there after a new start."""
import datetime

import road


def through_the_wizard(trimlog):
    trimlog.wait_for_window("Trimlog Pro Configuration Wizard")
    trimlog.keys("Return")  # introduction
    trimlog.type("Ann O'Brien")  # in place of the name proposed
    trimlog.keys("Tab", "Tab")
    trimlog.type("5")
    trimlog.keys("Tab")
    trimlog.type("6")
    trimlog.keys("Tab")
    trimlog.type("5/17/1992")
    trimlog.keys("Return")
    trimlog.type("182.5")
    trimlog.keys("Tab")
    trimlog.type("150")
    trimlog.keys("Return", "Return", "Return")  # nutrients and colours as proposed
    trimlog.wait_for_window("Trimlog Pro 2")


def calculate(trimlog, entry, *answers):
    """Opens a calculator from the menu, answers it, and sees a result appear."""
    trimlog.keys("alt+t", entry)
    first = trimlog.setting("MedicalDisclaimer") != "-1"
    if first:
        trimlog.wait_for_window("Please Remember")
        trimlog.keys("Return")
    trimlog.wait_for_window("Tools and Calculators")
    before = trimlog.settled_picture("question.png")
    for answer in answers:
        trimlog.keys(answer)
    trimlog.expect_change(before, f"the result of {entry}")
    trimlog.keys("Escape")
    trimlog.wait_for_window("Trimlog Pro 2")


def newcomer_road(trimlog):
    today = datetime.date.today()
    trimlog.start()
    through_the_wizard(trimlog)
    wizard = trimlog.keystrokes
    trimlog.keys("Prior", *["Left"] * 31)  # a weight from before, remembered from a note
    trimlog.type("184.1")
    trimlog.keys("Return")
    calculate(trimlog, "g", "alt+a")
    calculate(trimlog, "n", "Return")
    calculate(trimlog, "b", "3", "4", "Return")
    trimlog.keys("Next", *["Left"] * 31)
    month = trimlog.settled_picture("month.png")
    trimlog.quit()

    person = trimlog.rows("SELECT PersonID, PersonName, Goal, HeightFeet, HeightInches, BirthDate, GenderID, BackColor "
                          "FROM people WHERE PersonID > 0")
    road.check(person, [(1, "Ann O'Brien", "150", 5, 6, "1992-05-17", 2, 16769216)], "the profile")
    road.check(trimlog.weights(), {str(road.first_of_last_month()): (184.1, 0), str(today): (182.5, 1.6)}, "the weights")
    targets = trimlog.rows("SELECT TargetDesc FROM nutrition_targets WHERE TargetID = "
                           "(SELECT NutTargetID FROM people WHERE PersonID = 1)")
    road.check(targets, [("My Targets",)], "the profile's targets")

    trimlog.start().wait_for_window("Trimlog Pro 2")  # and not the wizard
    trimlog.keys(*["Left"] * 31)
    trimlog.expect_picture(month, "after a new start")
    trimlog.quit()
    print(f"{wizard} keystrokes from the first window to the calendar")


road.walk(newcomer_road)
