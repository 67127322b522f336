#!/usr/bin/env python3
"""Compiles the help pages: compile_help.py orvane.ovd NNN-name.txt...

A page's number is the number at the start of its file's name. A record of the
result is the page number (16 bits), the length of the record with this head
(16 bits), and the lines in code page 850, each ended by a zero byte. Page 30000
comes last: it ends the file and is what a reader shows for a page that the
file lacks.
"""
import os
import struct
import sys

LAST_PAGE = 30000
WIDTH = 72  # columns of the help window inside its frame


def page_number(path):
    return int(os.path.basename(path).split("-", 1)[0])


def record(path):
    with open(path, encoding="utf-8") as source:
        lines = source.read().rstrip("\n").split("\n")
    for number, line in enumerate(lines, 1):
        if len(line) > WIDTH:
            sys.exit(f"{path}:{number}: {len(line)} columns, only {WIDTH} fit")
        if "\t" in line:
            sys.exit(f"{path}:{number}: a tab")
    try:
        body = b"".join(line.encode("cp850") + b"\0" for line in lines)
    except UnicodeEncodeError as error:
        sys.exit(f"{path}: code page 850 lacks {error.object[error.start]!r}")
    if len(body) + 4 > 0xFFFF:
        sys.exit(f"{path}: too long for one record")
    return struct.pack("<HH", page_number(path), len(body) + 4) + body


def main(target, *sources):
    pages = sorted(sources, key=page_number)
    numbers = [page_number(page) for page in pages]
    if len(set(numbers)) != len(numbers):
        sys.exit("two pages have the same number")
    if not numbers or numbers[-1] != LAST_PAGE:
        sys.exit(f"page {LAST_PAGE} is missing or not the last")
    records = [record(page) for page in pages]
    with open(target, "wb") as result:
        result.writelines(records)


if __name__ == "__main__":
    main(*sys.argv[1:])
