# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Prints a line when it listens, then every name that a widget of a program takes, for `shown_texts`.

Usage: watch_texts.py PROCESS-NUMBER"""

import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402


def main():
    process = int(sys.argv[1])

    def tell(event):
        if event.source and event.source.get_process_id() == process:
            # The event has no text. The question arrives before the next picture is painted.
            print(event.source.get_name(), flush=True)

    Atspi.init()
    Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)
    listener = Atspi.EventListener.new(tell)
    listener.register("object:property-change:accessible-name")
    print("listening", flush=True)
    Atspi.event_main()


if __name__ == "__main__":
    main()
