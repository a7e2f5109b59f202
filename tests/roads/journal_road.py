"""A day in the journal, keys only, from the calendar: a food by words and one from Recent Foods, servings, an exercise,
water, a note, a waist; breakfast copied to the next day; a PDF file; and all of it again after a new start."""
import datetime

import road

RECENT = "Clif"  # how a food begins that was eaten lately
MOST_KEYS = 6  # for such a food, beyond the letters typed for it


def eat_yesterday(trimlog, today):
    with trimlog._open("rw") as file:
        for number, (food,) in enumerate(file.execute(
                "SELECT MealID FROM meals_list WHERE MealDesc LIKE 'Clif Z%' OR MealDesc LIKE 'Babyfood, c%'").fetchall()):
            file.execute("INSERT INTO meals (PersonID, RecordID, ThisDate, MealTypeID, MealID, Amount, Calories, "
                         "IsPlanned) VALUES (1, ?, ?, 1, ?, '1', 100, 0)",
                         (number + 1, str(today - datetime.timedelta(days=1)), food))


def back_in_the_journal(trimlog):
    trimlog.wait_for_window("Trimlog Pro 2")


def add_food_by_words(trimlog):
    trimlog.keys("alt+n")
    trimlog.wait_for_window("Add a Food")
    trimlog.keys("ctrl+Tab")
    trimlog.type("cheddar sharp")
    trimlog.keys("Return", "Return", "Escape")
    back_in_the_journal(trimlog)


def add_recent_food(trimlog, to_recent_foods):
    before = trimlog.keystrokes
    trimlog.keys("alt+n")
    trimlog.wait_for_window("Add a Food")
    trimlog.keys(*to_recent_foods)
    trimlog.type(RECENT)
    trimlog.keys("Return", "Escape")
    back_in_the_journal(trimlog)
    return trimlog.keystrokes - before - len(RECENT)


def double_the_servings(trimlog):
    trimlog.keys("Tab", "Tab")
    trimlog.type("2")
    trimlog.keys("Return")
    trimlog.wait_for_window("Adjust Nutrients?")
    trimlog.keys("Return")
    back_in_the_journal(trimlog)


def exercise(trimlog):
    trimlog.keys("alt+3", "alt+n")
    trimlog.wait_for_window("Add an Exercise")
    trimlog.type("walking d")
    trimlog.keys("Return")
    back_in_the_journal(trimlog)


def write_note(trimlog):
    trimlog.keys("alt+1", "alt+n")
    trimlog.wait_for_window("Add a New Note")
    trimlog.type("Slept well.")
    trimlog.keys("Tab", "Return")
    back_in_the_journal(trimlog)


def measure_waist(trimlog):
    trimlog.keys("alt+4", "alt+n")
    trimlog.wait_for_window("Add New Measurements")
    trimlog.keys("Tab")
    trimlog.type("33")
    trimlog.keys("Return")
    back_in_the_journal(trimlog)


def copy_breakfast_to_tomorrow(trimlog):
    trimlog.keys("shift+Down", "alt+e", "o", "n", "alt+Right")
    empty = trimlog.settled_picture("tomorrow.png")
    trimlog.keys("alt+e", "a")
    trimlog.expect_change(empty, "breakfast of the next day")


def print_tomorrow(trimlog, file):
    trimlog.keys("ctrl+p")
    trimlog.wait_for_window("Print to a PDF File")
    trimlog.keys("ctrl+a")
    trimlog.type(str(file))
    trimlog.keys("Return")
    back_in_the_journal(trimlog)
    content = road.until(lambda: file.exists() and file.read_bytes()) or b""
    road.check((content[:5], content.rstrip()[-5:]), (b"%PDF-", b"%%EOF"), "the printed day")


def journal_road(trimlog):
    today = datetime.date.today()
    tomorrow = today + datetime.timedelta(days=1)
    trimlog.add_person(weights=[(today - datetime.timedelta(days=3), 183.4)])
    eat_yesterday(trimlog, today)
    trimlog.start().wait_for_window("Trimlog Pro 2")
    trimlog.keys("ctrl+2")
    add_food_by_words(trimlog)
    keys = [add_recent_food(trimlog, ("alt+l", "r", "Return")), add_recent_food(trimlog, ())]
    double_the_servings(trimlog)
    exercise(trimlog)
    trimlog.keys("alt+5", "Up", "Up", "Up")
    write_note(trimlog)
    measure_waist(trimlog)
    trimlog.keys("alt+2", "ctrl+Home")
    breakfast = trimlog.settled_picture("breakfast.png")
    copy_breakfast_to_tomorrow(trimlog)
    print_tomorrow(trimlog, trimlog.folder / "tomorrow.pdf")
    trimlog.keys("alt+Left", "ctrl+Home")
    trimlog.expect_picture(breakfast, "the day that was left")
    print(f"{trimlog.keystrokes} keystrokes; beyond the letters of a recent food: {keys}")
    trimlog.quit()

    meals = trimlog.rows(
        "SELECT m.ThisDate, l.MealDesc, m.Amount, m.Calories FROM meals m JOIN meals_list l ON l.MealID = m.MealID "
        "WHERE m.PersonID = 1 AND m.ThisDate >= ? AND m.MealTypeID = 1 AND m.IsPlanned = 0 ORDER BY m.ThisDate, m.RecordID",
        str(today))
    road.check([(date, name.split(",")[0], servings) for date, name, servings, _ in meals],
               [(str(today), "Cheese", "1"), (str(today), "Clif Z bar", "1"), (str(today), "Clif Z bar", "2"),
                (str(tomorrow), "Cheese", "1"), (str(tomorrow), "Clif Z bar", "1")], "breakfasts")
    road.check(meals[2][3], 2 * meals[1][3], "calories of two servings")
    road.check(trimlog.rows("SELECT Duration FROM activities WHERE PersonID = 1 AND ThisDate = ?", str(today)), [("30",)],
               "the exercise")
    road.check(trimlog.rows("SELECT WaterConsumed FROM other_daily_data WHERE PersonID = 1 AND ThisDate = ?", str(today)),
               [(3,)], "glasses of water")
    road.check(trimlog.rows("SELECT Notes FROM notes WHERE PersonID = 1 AND ThisDate = ?", str(today)), [("Slept well.",)],
               "the note")
    road.check(trimlog.rows("SELECT Waist FROM measurements WHERE PersonID = 1 AND ThisDate = ?", str(today)), [(33,)],
               "the waist")
    road.check(max(keys) <= MOST_KEYS, True, f"at most {MOST_KEYS} keys for a recent food, not {keys}")

    trimlog.start().wait_for_window("Trimlog Pro 2")
    trimlog.keys("ctrl+2", "ctrl+Home")
    trimlog.expect_picture(breakfast, "the journal after a new start")
    trimlog.quit()


road.walk(journal_road)
