"""The data file is moved away while the program runs, and another one takes its place, as programs do that synchronize
files: nothing goes into the stranger, what was typed stays, and is saved once the file is back."""
import shutil

import road


def moved_file_road(trimlog):
    trimlog.add_person(weights=[(road.first_of_last_month(), 183.4)])
    stranger = trimlog.folder / "stranger.dat"
    shutil.copy(trimlog.program_directory / "tlg.dat", stranger)
    trimlog.start().wait_for_window("Trimlog Pro 2")
    own = trimlog.program_directory / "tlg.dat"
    away = trimlog.program_directory / "away.dat"
    own.rename(away)
    shutil.copy(stranger, own)
    trimlog.keys("ctrl+a")
    trimlog.type("180.5")
    typed = trimlog.settled_picture("typed.png")
    trimlog.keys("Right")
    trimlog.wait_for_window("Error Saving Data")
    trimlog.keys("Return")
    trimlog.wait_for_window("Trimlog Pro 2")
    trimlog.keys("End")
    trimlog.expect_picture(typed, "the weight that could not be saved")
    road.check(own.read_bytes() == stranger.read_bytes(), True, "the stranger is untouched")
    away.replace(own)
    trimlog.keys("Return")
    trimlog.expect_change(typed, "the weight is saved")
    trimlog.quit()
    road.check(180.5 in [weight for weight, _ in trimlog.weights().values()], True, "the weight is in the data file")
    road.check(", txtData_LostFocus, " in trimlog.log(), True, "a log line")
    (trimlog.program_directory / "errorlog.txt").unlink()


road.walk(moved_file_road)
