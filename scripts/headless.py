#!/usr/bin/env python3
"""Runs a program on a display of its own, and may take a screenshot of it.

  headless.py [--screenshot FILE.png] PROGRAM [ARGUMENT...]

Starts Xvfb, which keeps its screen in a file, and the program on it. With a
screenshot wanted it waits until the window stands still, writes the picture of
it, and ends both; otherwise it waits for the program's end. If the program
ends by itself, its exit status is handed on.
"""
import os
import struct
import subprocess
import sys
import tempfile
import time
import zlib

DEADLINE = 30  # seconds until a picture has to be there
STILL = 0.7  # seconds without a change that make a picture; the cursor blinks
WIDTH, HEIGHT = 1600, 1000


class Frame:
    """The screen as Xvfb keeps it: an X window dump of 32 bits a pixel."""

    def __init__(self, path):
        with open(path, "rb") as dump:
            data = dump.read()
        header = struct.unpack(">25I", data[:100])
        self.stride = header[12]
        self.start = header[0] + header[19] * 12  # head, then the colour map
        self.data = data
        self.little = header[7] == 0

    def row(self, y):
        return self.data[self.start + y * self.stride:self.start + y * self.stride + WIDTH * 4]

    def window(self):
        """Size of the window in the top left corner; the root around it is white."""
        height = next((y for y in range(HEIGHT) if self.is_white(self.row(y)[:4])), HEIGHT)
        if height == 0:
            return 0, 0
        first = self.row(0)
        width = next((x for x in range(WIDTH) if self.is_white(first[4 * x:4 * x + 4])), WIDTH)
        return width, height

    def is_white(self, pixel):
        return (pixel[:3] if self.little else pixel[1:]) == b"\xff\xff\xff"

    def rgb(self, width, height):
        """The rows of the window as bytes red, green, blue."""
        red, green, blue = (2, 1, 0) if self.little else (1, 2, 3)
        rows = []
        for y in range(height):
            source = self.row(y)[:4 * width]
            row = bytearray(3 * width)
            row[0::3], row[1::3], row[2::3] = source[red::4], source[green::4], source[blue::4]
            rows.append(bytes(row))
        return rows


def is_drawn(rows):
    """Something is painted: more than a plain ground."""
    return len({pixel for row in rows[::7] for pixel in zip(row[0::3], row[1::3], row[2::3])}) > 2


def without_bottom_cells(rows):
    """The picture without its command line, where the cursor blinks."""
    return rows[:len(rows) * 22 // 25]


def write_png(path, rows):
    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    head = struct.pack(">IIBBBBB", len(rows[0]) // 3, len(rows), 8, 2, 0, 0, 0)
    pixels = zlib.compress(b"".join(b"\0" + row for row in rows), 9)
    with open(path, "wb") as png:
        png.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", pixels) + chunk(b"IEND", b""))


def wait_for_picture(program, screen):
    """The rows of the picture once it stands still, or None if there was none."""
    deadline = time.monotonic() + DEADLINE
    last, since = None, time.monotonic()
    while time.monotonic() < deadline and program.poll() is None:
        frame = Frame(screen)
        width, height = frame.window()
        rows = frame.rgb(width, height)
        if not rows or without_bottom_cells(rows) != last:
            last, since = without_bottom_cells(rows), time.monotonic()
        elif is_drawn(rows) and time.monotonic() - since > STILL:
            return rows
        time.sleep(0.05)
    return None


def start_server(directory):
    """Xvfb with its screen in a file of directory, and the name of its display."""
    reading, writing = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-wr", "-nolisten", "tcp",
         "-noreset", "-fbdir", directory],
        pass_fds=[writing], stderr=subprocess.DEVNULL, stdin=subprocess.DEVNULL)
    os.close(writing)
    with os.fdopen(reading) as answer:
        number = answer.readline().strip()
    if not number:
        server.wait()
        sys.exit("Xvfb did not start")
    return server, ":" + number


def end(process):
    if process.poll() is None:
        process.terminate()
        try:
            process.wait(5)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


def main(*command):
    picture = None
    if command[0] == "--screenshot":
        picture, command = command[1], command[2:]
    with tempfile.TemporaryDirectory() as directory:
        server, display = start_server(directory)
        try:
            program = subprocess.Popen(command, env={**os.environ, "DISPLAY": display})
            try:
                rows = wait_for_picture(program, os.path.join(directory, "Xvfb_screen0")) if picture else program.wait()
                if program.poll() is not None:
                    return program.returncode if program.returncode >= 0 else 128 - program.returncode
            finally:
                end(program)
        finally:
            end(server)
    if rows is None:
        print(f"No picture came within {DEADLINE} seconds.", file=sys.stderr)
        return 1
    write_png(picture, rows)
    print(f"There is no display; Orvane ran on a virtual one. What it showed: {picture}")
    return 0


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
