#!/usr/bin/env python3
"""Records what programs write to a terminal, and the screens they end on.

Each recording of tests/streams/ is a program on a pseudo-terminal of 80 by 25
cells with TERM=xterm, in a scratch directory with a home and a prompt that tell
nothing of the machine, typed at by a script. The stream is then shown by tmux,
whose screen and cursor are kept beside it. Programs that are not installed are
left out.

    scripts/record_terminal.py            records all anew
    scripts/record_terminal.py less vim   records some
    scripts/record_terminal.py --screens  only lets tmux show the streams again
"""

import fcntl
import os
import pty
import re
import select
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import termios
import time

COLUMNS, ROWS = 80, 25
STREAMS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "streams")
QUIET = 0.4  # seconds without output after which a program waits for a key
ESC = "\033"
GRAPHICS = str.maketrans("ajklmnqtuvwx`~fg", "▒┘┐┌└┼─├┤┴┬│◆·°±")

TEXT = "".join(f"Line {i} of a text{' with more behind it' * (i % 4)}\n" for i in range(1, 121))
MANUAL = """.TH SAMPLE 1 2024-01-01 "Sample 1.0" "User Commands"
.SH NAME
sample \\- a page of its own
.SH SYNOPSIS
.B sample
[\\fIOPTION\\fR]... \\fIFILE\\fR
.SH DESCRIPTION
Text in \\fBbold\\fR and in \\fIitalic\\fR, \\(lqquoted\\(rq, over several lines that are long enough to be
filled by the formatter, and then some.
.TP
\\fB\\-a\\fR, \\fB\\-\\-all\\fR
everything
.SH "SEE ALSO"
.BR others (1)
"""
SETUP = """
mkdir -p files/directory; cd files; touch plain.txt archive.tar.gz picture.png; ln -s plain.txt link
ln -s nowhere dangling; touch program; chmod +x program; mkfifo pipe; cd ..
git init -q -b main repository; cd repository
for i in 1 2 3; do echo $i > file; git add file
  GIT_AUTHOR_DATE="2024-01-0$i 12:00 +0000" GIT_COMMITTER_DATE="2024-01-0$i 12:00 +0000" git commit -q -m "Change $i"; done
git branch other HEAD~1
"""

# Name: program, command, and what is typed, one piece after the other. A
# recording stops where the last piece has been acted on, before the program ends.
RECORDINGS = {
    "bash": ("bash", "bash --norc --noprofile", [
        "echo one two three", "\001", "\033f\033f\013", " four\005 five", "\027six\r",
        "for i in 1 2 3; do echo $i \\\r", "; done\r", "\022fo", "\007", "a" * 100, "\010" * 30, "\001b"]),
    "less": ("less", "less -M text", [" ", " ", "/Line 10\r", "n", "\033[A\033[A", "G", "k", "-N\r\r", "?of a\r"]),
    "vim": ("vim", "vim -u NONE -i NONE -n text", [
        ":set nocompatible ruler nowrap hlsearch\r", "/more\r", "5dd", "p", "Oa new line" + ESC, "\006", "\025",
        ":split\r", "G", "ix\tyz" + ESC, ":%s/text/TEXT/g\r", "\r", "v3k"]),
    "nano": ("nano", "nano -I text", [
        "inserted ", "\033[B\033[B\033[F end", "\013", "\026", "\017", "\003", "\027Line 99\r", "\033[6~", "\033[5~"]),
    "dialog": ("dialog", "dialog --title Title --menu 'Choose one of these:' 15 50 6 1 One 2 Two 3 Three", [
        "\033[B", "\033[B", "\t"]),
    "form": ("dialog", "dialog --title Title --checklist 'Several:' 12 40 4 1 One off 2 Two on 3 Three off", [
        " ", "\033[B", " "]),
    "man": ("man", "man -l sample.1", [" ", "g", "/bold\r"]),
    "python": ("python3", "python3 -q", [
        "x = [i * i for i in range(10)]\r", "x\r", "for i in x[:3]:\r", "    print(i)\r", "\r",
        "'caf\u00e9'\r", "1 / 0\r", "\033[A", "\001", "2 + \010\010", "\005\010"]),
    "ls": ("ls", "ls --color=always -l --time-style=+%H --group-directories-first -gGn files | sed 's/ 0*[0-9][0-9] / 00 /'; "
           "ls --color=always files; exec cat", []),
    "git": ("git", "git -C repository log --color=always --graph --all --decorate -p | cat; exec cat", []),
    "tput": ("tput", "tput clear; tput cup 5 10; tput smso; printf standout; tput rmso; tput cup 6 10; tput smul; "
             "printf under; tput rmul; tput bold; printf bold; tput sgr0; tput setaf 1; printf red; tput setab 4; "
             "printf blue; tput op; tput cup 20 0; tput sc; tput cup 10 40; printf there; tput rc; printf here; "
             "tput csr 2 8; tput cup 8 0; printf '\\n\\nscrolled'; tput cup 3 3; tput il 2; tput dch 2; exec cat", []),
}


def make_scratch(root):
    with open(os.path.join(root, "text"), "w") as file:
        file.write(TEXT)
    with open(os.path.join(root, "sample.1"), "w") as file:
        file.write(MANUAL)
    subprocess.run(["bash", "-c", SETUP], cwd=root, env=environment(root), check=True)


def environment(root):
    return {
        "HOME": root, "PATH": os.environ["PATH"], "TERM": "xterm", "LANG": "C.UTF-8", "TZ": "UTC", "PS1": "$ ",
        "SHELL": "/bin/sh", "LESSHISTFILE": "-", "PYTHONHISTFILE": "/dev/null", "GIT_CONFIG_NOSYSTEM": "1",
        "GIT_AUTHOR_NAME": "A. Author", "GIT_AUTHOR_EMAIL": "author@example.org", "MANPAGER": "less",
        "GIT_COMMITTER_NAME": "A. Author", "GIT_COMMITTER_EMAIL": "author@example.org",
    }


def read_until_quiet(master):
    output = b""
    while select.select([master], [], [], QUIET if output else 4 * QUIET)[0]:
        try:
            output += os.read(master, 65536)
        except OSError:
            break
    return output


def record(root, command, typed):
    pid, master = pty.fork()
    if pid == 0:
        os.chdir(root)
        fcntl.ioctl(0, termios.TIOCSWINSZ, struct.pack("HHHH", ROWS, COLUMNS, 0, 0))
        os.execve("/bin/sh", ["sh", "-c", "stty erase '^H'; " + command], environment(root))
    output = read_until_quiet(master)
    for piece in typed:
        os.write(master, piece.encode())
        output += read_until_quiet(master)
    os.kill(pid, signal.SIGKILL)
    os.close(master)
    os.waitpid(pid, 0)
    return output


def tmux(socket, *arguments):
    return subprocess.run(["tmux", "-S", socket, "-f", "/dev/null", *arguments], check=True, capture_output=True).stdout


def plain(captured):
    """Without colours, and with the characters of lines for those of the graphics set."""
    text, is_graphics = "", False
    for piece in re.split("(\033\\[[0-9;]*m|[\016\017])", captured):
        if piece in ("\016", "\017"):
            is_graphics = piece == "\016"
        elif not piece.startswith(ESC):
            text += piece.translate(GRAPHICS) if is_graphics else piece
    return text


def screen_of(stream):
    """The rows, without the blanks at their ends, and last "cursor COLUMN ROW"."""
    with tempfile.TemporaryDirectory() as directory:
        socket = os.path.join(directory, "tmux")
        shown = f"stty -opost -echo; cat '{stream}'; : > '{directory}/shown'; exec sleep 1000"
        tmux(socket, "new-session", "-d", "-x", str(COLUMNS), "-y", str(ROWS), shown, ";", "set", "-g", "status", "off",
             ";", "set", "-g", "escape-time", "0", ";", "resize-window", "-x", str(COLUMNS), "-y", str(ROWS))
        try:
            while not os.path.exists(os.path.join(directory, "shown")):
                time.sleep(0.05)
            time.sleep(QUIET)
            rows = plain(tmux(socket, "capture-pane", "-e", "-p").decode()).split("\n")[:ROWS]
            cursor = tmux(socket, "display-message", "-p", "cursor #{cursor_x} #{cursor_y}").decode().strip()
        finally:
            tmux(socket, "kill-server")
    return "".join(row.rstrip() + "\n" for row in rows) + cursor + "\n"


def main(arguments):
    only_screens = "--screens" in arguments
    names = [name for name in arguments if not name.startswith("-")] or list(RECORDINGS)
    with tempfile.TemporaryDirectory() as root:
        make_scratch(root)
        for name in names:
            program, command, typed = RECORDINGS[name]
            stream = os.path.join(STREAMS, name + ".raw")
            if not only_screens:
                if not shutil.which(program):
                    print(f"{name}: {program} is not installed", file=sys.stderr)
                    continue
                with open(stream, "wb") as file:
                    file.write(record(root, command, typed))
            with open(os.path.join(STREAMS, name + ".screen"), "w") as file:
                file.write(screen_of(stream))


if __name__ == "__main__":
    main(sys.argv[1:])
