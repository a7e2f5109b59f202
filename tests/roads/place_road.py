"""The window stands where it was left, start after start, with the picture of the start above it. While a password is
asked for, a second start brings that question forward, and no empty window."""
import road


def places(trimlog):
    return [trimlog.setting(name) for name in ("Left", "Top", "Width", "Height")]


def start(trimlog):
    """Up to a window that takes keys: one that is still being filled may lose them."""
    trimlog.start().wait_for_window("Trimlog Pro 2")
    trimlog.settled_picture("month.png")


def place_road(trimlog):
    trimlog.add_person(weights=[(road.first_of_last_month(), 183.4)])
    start(trimlog)
    trimlog.quit()
    first = places(trimlog)
    for turn in range(3):
        start(trimlog)
        trimlog.quit()
        road.check(places(trimlog), first, f"the window's place after start {turn + 2}")

    with trimlog._open("rw") as file:
        file.execute("UPDATE people SET Password = 'secret' WHERE PersonID = 1")
    trimlog.start().wait_for_window("Enter")
    second = trimlog.launch()
    road.check(second.wait(timeout=10), 0, "exit code of the second start")
    trimlog.wait_for_window("Enter")
    shown = trimlog._xdotool("search", "--onlyvisible", "--name", "^Trimlog Pro 2", check=False)
    road.check(shown, "", "windows of the frame while the password is asked for")
    trimlog.type("secret")
    trimlog.keys("Return")
    trimlog.wait_for_window("Trimlog Pro 2")
    trimlog.settled_picture("month.png")
    trimlog.quit()


road.walk(place_road)
