"""The disk is full while a weight is typed and while the calendar is printed into a file: each is told, what was typed
stays on the screen, the former file stays as it was, and both succeed once there is room again."""
import subprocess

import road


def room(trimlog, size):
    """How far files of the program may grow from now on."""
    subprocess.run(["prlimit", f"--pid={trimlog.process.pid}", f"--fsize={size}:unlimited"], check=True)


def start(trimlog):
    """A write beyond the limit fails, as on a full disk, instead of ending the program."""
    trimlog.process = road.child(["sh", "-c", 'trap "" XFSZ; exec "$0"', trimlog.program_directory / "trimlog"],
                                 env=trimlog.environment, cwd=trimlog.folder, stderr=subprocess.PIPE)
    trimlog.wait_for_window("Trimlog Pro 2")


def print_calendar(trimlog, file):
    trimlog.keys("ctrl+p")
    trimlog.wait_for_window("Print Window?")
    trimlog.keys("alt+y")
    trimlog.wait_for_window("Print to a PDF File")
    there = file.exists()
    trimlog.keys("ctrl+a")
    trimlog.type(str(file))
    trimlog.keys("Return")
    if there:
        trimlog.keys("alt+y")  # replace it


def full_disk_road(trimlog):
    trimlog.add_person(weights=[(road.first_of_last_month(), 183.4)])
    start(trimlog)
    room(trimlog, 3000)
    trimlog.keys("ctrl+a")
    trimlog.type("180.5")
    typed = trimlog.settled_picture("typed.png")
    trimlog.keys("Right")
    trimlog.wait_for_window("Error Saving Data")
    trimlog.keys("Return")
    trimlog.wait_for_window("Trimlog Pro 2")
    trimlog.keys("End")
    trimlog.expect_picture(typed, "the weight that could not be saved")
    room(trimlog, "unlimited")
    trimlog.keys("Return")
    trimlog.expect_change(typed, "the weight is saved")

    file = trimlog.folder / "calendar.pdf"
    file.write_text("the former file")
    room(trimlog, 3000)
    print_calendar(trimlog, file)
    trimlog.wait_for_window("Printer Error")
    trimlog.keys("Return")
    trimlog.wait_for_window("Trimlog Pro 2")
    road.check(file.read_text(), "the former file", "what a full disk left")
    road.check([path.name for path in trimlog.folder.glob("calendar.pdf*")], [file.name], "what stands beside it")
    room(trimlog, "unlimited")
    print_calendar(trimlog, file)
    trimlog.wait_for_window("Trimlog Pro 2")
    content = road.until(lambda: file.read_bytes().startswith(b"%PDF-") and file.read_bytes()) or b""
    road.check(content.rstrip().endswith(b"%%EOF"), True, "the PDF file is whole")

    trimlog.quit()
    road.check(180.5 in [weight for weight, _ in trimlog.weights().values()], True, "the weight is in the data file")
    for procedure in ("txtData_LostFocus", "PrintWindow"):
        road.check(f", {procedure}, " in trimlog.log(), True, f"a log line of {procedure}")
    (trimlog.program_directory / "errorlog.txt").unlink()


road.walk(full_disk_road)
