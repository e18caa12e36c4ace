# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The page by which NetworkManager learns how far a network lets it go.

Usage: web_server.py ADDRESS PORT FOLDER. What happens to who asks is in the file named as the first two numbers of the
asking address, such as "10.0": "full", "portal", "limited" or "hang", which lasts until it says something else. Prints a
line when it listens."""

import sys
import time
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer
from pathlib import Path


class Page(BaseHTTPRequestHandler):

    def do_GET(self):
        while self._answer() == "hang":
            time.sleep(0.02)
        answer = self._answer()
        if answer == "limited":
            return
        # Another network's page stands in the way.
        body = b"NetworkManager is online\n" if answer == "full" else b"Please log in.\n"
        self.send_response(200)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def _answer(self):
        name = ".".join(self.client_address[0].split(".")[:2])
        return Path(sys.argv[3], name).read_text(encoding="ascii")


def main():
    server = ThreadingHTTPServer((sys.argv[1], int(sys.argv[2])), Page)
    print("listening", flush=True)
    server.serve_forever()


if __name__ == "__main__":
    main()
