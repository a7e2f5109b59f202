#!/usr/bin/env python3
"""The help is whole: every window and every topic in the code has its page, no link leads nowhere, every page is reached
from the first one, and all pages have one shape.

usage: check_help.py SOURCE_DIR
"""
import html.parser
import pathlib
import re
import sys

PANELS = {"frmMain", "frmMain1"}  # parts of the frame, whose content window decides
TOPIC_PATTERNS = (r'ShowHelp\(QStringLiteral\("([\w#-]+)"\)', r'help\("\w+", QStringLiteral\("([\w#-]+)"\)',
                  r'[tT]opic\w* = QStringLiteral\("([\w#-]+)"\)', r'\{"[^"]+", "([\w#-]+)", "cmd\w+"\}')


class Page(html.parser.HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.open, self.places, self.links, self.headings, self.faults = [], set(), [], [], []
        self.title = ""
        self.source = path.read_text("utf-8")
        self.feed(self.source)
        if self.open:
            self.faults.append(f"{self.open} are not closed")
        if self.headings != [self.title]:
            self.faults.append("needs its title as its one first heading")
        if re.search(r"&(?!(amp|lt|gt);)", self.source):
            self.faults.append("the search reads only &amp; &lt; &gt;")

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if tag in ("link", "style", "img", "script") or "style" in values or "class" in values:
            self.faults.append(f"<{tag}>: the program gives all pages their look")
        if "id" in values:
            if tag != "h2" or values["id"] in self.places:
                self.faults.append(f"{values['id']}: only headings are places, each with a name of its own")
            self.places.add(values["id"])
        if tag == "a":
            self.links.append(values.get("href", ""))
        if tag not in ("meta", "br"):
            self.open.append(tag)

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            self.faults.append(f"</{tag}> closes nothing")

    def handle_data(self, data):
        if self.open and self.open[-1] == "title":
            self.title = data
        if self.open and self.open[-1] == "h1":
            self.headings.append(data)


def missing(pages, name, place):
    if name not in pages:
        return "there is no such page"
    return "" if not place or place in pages[name].places else "that page has no such heading"


def topics_in_code(root):
    for source in (root / "src").rglob("*.cpp"):
        text = source.read_text("utf-8")
        for pattern in TOPIC_PATTERNS:
            for topic in re.findall(pattern, text):
                yield source.relative_to(root), topic


def main():
    root = pathlib.Path(sys.argv[1])
    pages = {path.stem: Page(path) for path in (root / "help").glob("*.html")}
    faults = [f"{name}.html: {fault}" for name, page in pages.items() for fault in page.faults]

    table = (root / "src/core/session/help_topics.cpp").read_text("utf-8")
    rows = dict(re.findall(r'\{"(\w+)", "([\w#-]+)"\}', table))
    classes = set()
    for header in (root / "src").rglob("windows/**/*.h"):
        classes |= set(re.findall(r"^class (\w+)[^;]*\{", header.read_text("utf-8"), re.M))
    faults += [f"{window}: F1 finds no topic for it in help_topics.cpp" for window in sorted(classes - PANELS)
               if window.startswith("frm") and window not in rows]
    faults += [f"help_topics.cpp: there is no window or page {name}" for name in rows if name not in classes]

    wanted = list(topics_in_code(root)) + [("help_topics.cpp", topic) for topic in rows.values()]
    for place, topic in wanted:
        fault = missing(pages, *topic.partition("#")[::2])
        if fault:
            faults.append(f"{place}: topic {topic}: {fault}")

    reached, walk = set(), ["index"]
    while walk:
        name = walk.pop()
        if name in reached or name not in pages:
            continue
        reached.add(name)
        for link in pages[name].links:
            file, _, place = link.partition("#")
            target = file.removesuffix(".html") if file else name
            fault = missing(pages, target, place)
            if fault:
                faults.append(f"{name}.html: link to {link}: {fault}")
            walk.append(target)
    faults += [f"{name}.html: no way leads there from the first page" for name in sorted(set(pages) - reached)]
    if len(wanted) < 20 or len(pages) < 10:
        faults.append("the check did not find what it checks")
    print("\n".join(faults) or f"{len(pages)} pages, {len(rows)} windows and {len(wanted)} topics hold together.")
    return 1 if faults else 0


sys.exit(main())
