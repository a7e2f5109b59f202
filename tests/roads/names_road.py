"""A person's name is shown as it was typed, in tool tips too, also where it looks like markup."""
import subprocess

import road

NAME = "<b></b><i></i><b></b><i></i><b></b>"  # as markup it would show nothing


def screen_picture(trimlog, name):
    path = trimlog.folder / name
    subprocess.run(["import", "-window", "root", str(path)], env=trimlog.environment, check=True)
    return path


def names_road(trimlog):
    trimlog.add_person(name=NAME, weights=[(road.first_of_last_month(), 183.4)])
    trimlog.start().wait_for_window("Trimlog Pro 2")
    trimlog.settled_picture("month.png")
    before = screen_picture(trimlog, "before.png")
    trimlog.point_at(50, 46)  # the name stands at the left of the panel below the menus
    tip = road.until(lambda: road.different_pixels(before, screen_picture(trimlog, "tip.png")) > 1500, seconds=10)
    road.check(bool(tip), True, f"the name in its tool tip (see {trimlog.folder}/tip.png)")
    trimlog.quit()


road.walk(names_road)
