"""The foods, keys only: cheddar found, the richest in protein copied to My Foods, changed, seen after a new start, and
deleted."""
import road

OWN = "Cheddar as I like it"


def own_foods(trimlog):
    return trimlog.rows("SELECT MealDesc, Protein, IsModified FROM meals_list WHERE RecordTypeID = 2")


def open_foods(trimlog):
    trimlog.wait_for_window("Trimlog Pro 2")
    trimlog.keys("alt+s", "f")
    trimlog.wait_for_window("Food Setup")


def show_my_foods(trimlog):
    before = trimlog.settled_picture("all_foods.png")
    trimlog.keys("alt+l", "m")
    trimlog.expect_change(before, "My Foods")


def to_the_grid(trimlog, steps):
    trimlog.keys(*["Tab"] * steps)


def copy_richest_cheddar(trimlog):
    trimlog.keys("ctrl+Tab")
    trimlog.type("cheddar")
    trimlog.keys("Return", "Tab", "Tab")
    before = trimlog.settled_picture("found.png")
    trimlog.keys("End", "Menu", "Up", "Up", "Up", "Return")  # the last column with figures, descending
    trimlog.expect_change(before, "the order by protein")
    trimlog.keys("ctrl+Home", "alt+c")
    trimlog.wait_for_window("Copy Selected Food?")
    trimlog.keys("alt+y")
    trimlog.wait_for_window("Food Setup")


def foods_road(trimlog):
    trimlog.add_person(weights=[(road.first_of_last_month(), 183.4)])
    richest = trimlog.rows("SELECT Protein FROM meals_list WHERE MealDesc LIKE '%cheddar%' AND RecordTypeID IN (1, 2) "
                           "ORDER BY Protein DESC LIMIT 1")[0][0]
    foods = trimlog.rows("SELECT Count(*) FROM meals_list")
    trimlog.start()
    open_foods(trimlog)
    copy_richest_cheddar(trimlog)
    trimlog.keys("ctrl+Tab")
    show_my_foods(trimlog)
    to_the_grid(trimlog, 4)
    trimlog.keys("ctrl+Home")
    trimlog.type(OWN)
    trimlog.keys("Return", "alt+o")
    trimlog.wait_for_window("Trimlog Pro 2")
    trimlog.quit()
    road.check(own_foods(trimlog), [(OWN, richest, 1)], "My Foods after a change")

    trimlog.start()
    open_foods(trimlog)
    show_my_foods(trimlog)
    to_the_grid(trimlog, 4)
    trimlog.keys("ctrl+Home", "alt+d")
    trimlog.wait_for_window("Warning: Delete Food?")
    trimlog.keys("alt+y")
    trimlog.wait_for_window("Food Setup")
    trimlog.keys("alt+o")
    trimlog.wait_for_window("Trimlog Pro 2")
    trimlog.quit()
    road.check(own_foods(trimlog), [], "My Foods after the deletion")
    road.check(trimlog.rows("SELECT Count(*) FROM meals_list"), foods, "all foods after the deletion")


road.walk(foods_road)
