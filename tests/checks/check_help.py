#!/usr/bin/env python3
"""Every help topic that the program opens has a page, and no page links to one that is not there.

usage: check_help.py SOURCE_DIR
"""
import pathlib
import re
import sys


def main():
    root = pathlib.Path(sys.argv[1])
    pages = {page.name for page in (root / "help").iterdir()}
    faults = []
    for source in (root / "src").rglob("*.cpp"):
        text = source.read_text("utf-8")
        topics = re.findall(r'ShowHelp\(QStringLiteral\("(\w+)"\)', text)
        topics += re.findall(r'help\("\w+", QStringLiteral\("(\w+)"\)', text)
        faults += [f"{source.relative_to(root)}: no page for the topic {topic}" for topic in topics
                   if f"{topic}.html" not in pages]
    for page in (root / "help").glob("*.html"):
        links = re.findall(r'href="([^"#:]+)"', page.read_text("utf-8"))
        faults += [f"{page.name}: links to {link}, which is not there" for link in links if link not in pages]
    print("\n".join(faults) or "Every topic has its page.")
    return 1 if faults else 0


sys.exit(main())
