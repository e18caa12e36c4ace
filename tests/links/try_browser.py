#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Links go through a real browser and come back as they were: Debian's firefox-esr, without a display and a network.

Usage: try_browser.py VELLUMCONNECT-LINKS [FIXTURE]

The browser reads a file of bookmarks at its start, and writes its own at its end. It is given links that were exported,
and bookmarks/given.html; what it makes of the latter is kept in FIXTURE, as bookmarks/browser.html once was. No test
of CI: it takes a browser.
"""

import json
import os
import socket
import subprocess
import sys
import tempfile
import time
from pathlib import Path

GIVEN = Path(__file__).resolve().parent / "bookmarks/given.html"
PORT = 2828  # the browser's own choice, in a network of its own
SETTINGS = {
    "browser.bookmarks.autoExportHTML": True,
    "browser.bookmarks.restore_default_bookmarks": False,
    "browser.places.importBookmarksHTML": True,
}
LINKS = (
    ("R&D <1> \"quoted\" it's", "internet", "https://a.example/?b=c&d=%22e%22#f"),
    ("Café 😀 Привет 日本 مرحبا", "internet", "www.b.example"),
    ("Somebody", "e-mail", "mailto:someone@b.example?subject=a%20b"),
    ("The root", "application", "/"),
    ("Files", "internet", "ftp://files.example/pub/"),
)


class Browser:
    """One run of the browser, ended as a user ends it, by the protocol that it has for tests."""

    def __init__(self, bookmarks):
        self._home = tempfile.TemporaryDirectory(prefix="browser-")
        profile = Path(self._home.name) / "profile"
        profile.mkdir()
        settings = {**SETTINGS, "browser.bookmarks.file": str(bookmarks)}
        (profile / "user.js").write_text("".join(f"user_pref({json.dumps(name)}, {json.dumps(value)});\n"
                                                 for name, value in settings.items()), encoding="utf-8")
        self._process = subprocess.Popen(
            ["firefox-esr", "--headless", "--no-remote", "--marionette", "--profile", profile, "about:blank"],
            env={"HOME": self._home.name, "PATH": os.environ["PATH"]},
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def end(self):
        with self._connected() as connection, connection.makefile("rwb") as stream:
            self._answer(stream)
            for number, (command, arguments) in enumerate((("WebDriver:NewSession", {}),
                                                           ("Marionette:Quit", {"flags": ["eAttemptQuit"]}))):
                message = json.dumps([0, number, command, arguments]).encode()
                stream.write(b"%d:%s" % (len(message), message))
                stream.flush()
                error = self._answer(stream)[2]
                if error:
                    sys.exit(f"The browser refuses {command}: {error}")
        self._process.wait(60)
        self._home.cleanup()

    def _connected(self):
        limit = time.monotonic() + 60
        while True:
            try:
                return socket.create_connection(("127.0.0.1", PORT))
            except OSError:
                if time.monotonic() > limit or self._process.poll() is not None:
                    sys.exit("The browser does not start.")
                time.sleep(0.1)

    @staticmethod
    def _answer(stream):
        length = b""
        while not length.endswith(b":"):
            length += stream.read(1)
        return json.loads(stream.read(int(length[:-1])))


class Trial:

    def __init__(self, tool, folder):
        self._tool = tool
        self._folder = folder

    def run(self, *arguments):
        environment = {**os.environ, "XDG_DATA_HOME": str(self._folder / "data"), "LC_ALL": "C.UTF-8"}
        return subprocess.run([self._tool, *arguments], check=True, capture_output=True, text=True, env=environment).stdout

    def through_browser(self, html):
        bookmarks = self._folder / "bookmarks.html"
        bookmarks.write_text(html, encoding="utf-8")
        Browser(bookmarks).end()
        back = bookmarks.read_text(encoding="utf-8")
        if back == html:
            sys.exit("The browser has written nothing.")
        return back

    def imported(self, html, name):
        """What is said of the links, and what they are then."""
        source, target = self._folder / f"{name}.html", self._folder / f"{name}.xml"
        source.write_text(html, encoding="utf-8")
        said = self.run("import", str(source), str(target)).splitlines()[:-1]
        return said, self.run("list", str(target)).splitlines()


def expect_same(what, one, other):
    if one != other:
        sys.exit("\n".join([f"{what}: not the same.", "Before:", *one, "After:", *other]))
    print(f"{what}: the same, {len(one)}.")


def try_everything(tool, fixture):
    with tempfile.TemporaryDirectory(prefix="links-") as folder:
        trial = Trial(tool, Path(folder))
        own = str(Path(folder) / "own.xml")
        for name, kind, url in LINKS:
            trial.run("add", "--name", name, "--type", kind, "--url", url, own)
        before = trial.run("list", own)
        back = trial.through_browser(trial.run("export", "--format", "html", own))
        # It completes addresses.
        completed = before.replace("www.b.example", "http://www.b.example/")
        expect_same("Exported links", completed.splitlines(), trial.imported(back, "back")[1])
        trial.run("import", str(Path(folder) / "back.html"), own)
        expect_same("Links that are there already", before.splitlines(), trial.run("list", own).splitlines())

        given = GIVEN.read_text(encoding="utf-8")
        back = trial.through_browser(given)
        said, links = trial.imported(given, "given")
        said_of_browsers, links_of_browser = trial.imported(back, "browser")
        expect_same("Bookmarks", links, links_of_browser)
        expect_same("What is said of them", said, said_of_browsers)
        if fixture:
            Path(fixture).write_text(back, encoding="utf-8")


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    if "VELLUM_APART" not in os.environ:
        # In a network of its own, where nothing is reached but itself.
        os.execvpe("unshare", ["unshare", "--map-root-user", "--net", sys.executable, *sys.argv],
                   {**os.environ, "VELLUM_APART": "1"})
    subprocess.run(["ip", "link", "set", "lo", "up"], check=True)
    try_everything(os.path.abspath(sys.argv[1]), sys.argv[2] if len(sys.argv) == 3 else None)


main()
