#!/usr/bin/env python3
"""Checks of the tree that no compiler makes; prints what fails and a count.

  check.py BUILD_DIRECTORY

- Every header compiles alone; outside src/console without the toolkit.
- A room includes only itself and the rooms below it, and only src/console
  includes the toolkit.
- docs/architecture.md names every file of src and no other.
- No file of the project has over 700 lines.
- The help file reads back and has all of its pages.
- An install puts each file where the program looks for it.
"""
import concurrent.futures
import os
import re
import shlex
import struct
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
SOURCE = ROOT / "src"
ROOMS = ["foundation", "config/values", "console", "dialogs", "panels", "config", "fileops", "syntax", "viewer", "shell",
         "program"]
TOOLKIT = re.compile(r"^(gtk|gdk|glib|gio|pango|cairo|atk|gtkmm|gdkmm|glibmm|giomm|pangomm|cairomm|sigc\+\+|X11)\b")
MOST_LINES = 700
TEXTS = {".h", ".cpp", ".py", ".mjs", ".sh", ".cmake", ".txt", ".html", ".json", ".1"}
NOT_OURS = {".git", "build"}
LAST_HELP_PAGE = 30000
HELP_PAGES = [0, 1, 2, 4, 5, 6, 100, 101, 102, 103, LAST_HELP_PAGE]
INSTALLED = [
    "usr/share/orvane/orvane.ovd",
    "usr/share/orvane/orvanesyntax.ini",
    "usr/share/doc/orvane/manual/orvane.html",
    "usr/share/doc/orvane/manual/index.html",
    "usr/share/icons/hicolor/16x16/apps/orvane.png",
    "usr/share/icons/hicolor/scalable/apps/orvane.svg",
    "usr/share/applications/orvane.desktop",
    "usr/share/man/man1/orvane.1",
]


def sources():
    return sorted(path for path in SOURCE.rglob("*") if path.suffix in (".h", ".cpp"))


def room_of(path):
    """The room of a path below src/; the longest name that fits."""
    fitting = [room for room in ROOMS if str(path).startswith(room + "/")]
    return max(fitting, key=len, default=None)


def pkg_config(*packages):
    return shlex.split(subprocess.check_output(["pkg-config", "--cflags", *packages], text=True))


def compile_alone(header, toolkit):
    """The first error of a file that includes nothing but the header."""
    command = [os.environ.get("CXX", "g++"), "-std=c++20", "-fsyntax-only", "-Wall", "-Wextra", "-Werror",
               "-I", str(SOURCE), "-x", "c++", "-"]
    if room_of(header.relative_to(SOURCE)) == "console":
        command += [flag.replace("-I", "-isystem", 1) for flag in toolkit]
    result = subprocess.run(command, input=f'#include "{header}"\n', capture_output=True, text=True)
    return next((line for line in result.stderr.splitlines() if "error: " in line), "")


def headers_compile_alone(_):
    toolkit = pkg_config("gtkmm-2.4", "gthread-2.0")
    headers = [path for path in sources() if path.suffix == ".h"]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        yield from filter(None, pool.map(lambda header: compile_alone(header, toolkit), headers))


def included_files(path):
    for line in path.read_text(encoding="utf-8").splitlines():
        found = re.match(r'\s*#\s*include\s*(["<])([^">]+)[">]', line)
        if found:
            yield found.group(1) == '"', found.group(2)


def include_problem(quoted, name, room):
    if not quoted:
        return "the toolkit belongs to the console" if TOOLKIT.match(name) and room != "console" else ""
    target = room_of(name)
    if target is None or not (SOURCE / name).is_file():
        return "no file of a room"
    return "a room above its own" if ROOMS.index(target) > ROOMS.index(room) else ""


def rooms_ask_downwards(_):
    for path in sources():
        room = room_of(path.relative_to(SOURCE))
        if room is None:
            yield f"{path.relative_to(ROOT)} is in no room"
            continue
        for quoted, name in included_files(path):
            problem = include_problem(quoted, name, room)
            if problem:
                yield f"{path.relative_to(ROOT)} includes {name}: {problem}"


def architecture_lists_every_file(_):
    page = (ROOT / "docs/architecture.md").read_text(encoding="utf-8")
    listed = set()
    for name, pair in re.findall(r"^- `([^`]+)`(?:, `(\.\w+)`)?:", page, re.M):  # "- `a/b.h`, `.cpp`: what it is"
        listed |= {name, str(Path(name).with_suffix(pair or Path(name).suffix))}
    present = {str(path.relative_to(SOURCE)) for path in sources()}
    yield from (f"{name} is not listed" for name in sorted(present - listed))
    yield from (f"{name} is listed but not there" for name in sorted(listed - present))


def project_files():
    for directory, names, files in os.walk(ROOT):
        names[:] = [name for name in names if name not in NOT_OURS]
        yield from (Path(directory) / name for name in files)


def files_are_short(_):
    for path in project_files():
        if path.suffix not in TEXTS:
            continue
        lines = path.read_bytes().count(b"\n")
        if lines > MOST_LINES:
            yield f"{path.relative_to(ROOT)} has {lines} lines"


def help_pages(path):
    """Page numbers of a compiled help file, read as the program has to."""
    data = path.read_bytes()
    at = 0
    while at + 4 <= len(data):
        page, length = struct.unpack_from("<HH", data, at)
        if length < 5 or at + length > len(data) or data[at + length - 1] != 0:
            raise ValueError(f"the record of page {page} is damaged")
        yield page
        at += length
        if page == LAST_HELP_PAGE:
            break
    if at != len(data):
        raise ValueError("it does not end with its last page")


def help_has_every_page(build_directory):
    target = Path(build_directory) / "help-check.ovd"
    target.parent.mkdir(parents=True, exist_ok=True)
    compiler, pages = ROOT / "data/help/compile_help.py", sorted((ROOT / "data/help").glob("*.txt"))
    result = subprocess.run([sys.executable, compiler, target, *pages], capture_output=True, text=True)
    if result.returncode != 0:
        yield result.stderr
        return
    try:
        found = list(help_pages(target))
    except ValueError as error:
        yield str(error)
        return
    if found != HELP_PAGES:
        yield f"it has the pages {found}"


def install_goes_where_the_program_looks(build_directory):
    """Configures with the default directories and installs all but the program."""
    tree = os.path.join(build_directory, "install-check")
    with tempfile.TemporaryDirectory() as target:
        for command in (["cmake", "-S", ROOT, "-B", tree, "-G", "Ninja"], ["ninja", "-C", tree, "help_pages"],
                        ["cmake", "--install", tree, "--component", "data"]):
            result = subprocess.run(command, env={**os.environ, "DESTDIR": target}, text=True,
                                    stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
            if result.returncode != 0:
                yield result.stdout
                return
        yield from (f"{name} is missing" for name in INSTALLED if not os.path.isfile(os.path.join(target, name)))


CHECKS = [headers_compile_alone, rooms_ask_downwards, architecture_lists_every_file, files_are_short,
          help_has_every_page, install_goes_where_the_program_looks]


def main(build_directory):
    failed = 0
    for check in CHECKS:
        problems = list(check(build_directory))
        print(f"{'FAILED' if problems else 'ok'}: {check.__name__.replace('_', ' ')}")
        for problem in problems:
            print(f"  {problem}")
        failed += bool(problems)
    print(f"{len(CHECKS) - failed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
