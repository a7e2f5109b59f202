"""The machine ends the program while a weight is being typed: by each of its signals, and above an open dialog. Nothing
is asked, the weight is saved, and the program goes through its shutdown."""
import signal

import road


def end(trimlog, how):
    trimlog.process.send_signal(how)
    road.check(trimlog.process.wait(timeout=15), 0, f"exit code after {how.name}")


def ended_by_machine_road(trimlog):
    trimlog.add_person(weights=[(road.first_of_last_month(), 183.4)])
    for how, weight in ((signal.SIGTERM, "180.2"), (signal.SIGHUP, "180.3"), (signal.SIGINT, "180.4")):
        trimlog.start().wait_for_window("Trimlog Pro 2")
        trimlog.keys("ctrl+a")
        trimlog.type(weight)
        trimlog.settled_picture("typed.png")
        end(trimlog, how)
        saved = [value for value, _ in trimlog.weights().values()]
        road.check(float(weight) in saved, True, f"{weight} among {saved} after {how.name}")
        road.check(trimlog.setting("PersonID"), "1", "the shutdown's settings")

    trimlog.start().wait_for_window("Trimlog Pro 2")
    trimlog.settled_picture("month.png")
    trimlog.keys("ctrl+comma")
    trimlog.wait_for_window("Program Options")
    end(trimlog, signal.SIGTERM)


road.walk(ended_by_machine_road)
