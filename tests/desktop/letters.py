# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What a user sets in the desktop's own settings: the size of letters and the colours."""

from pathlib import Path

_DARK = {
    "Window": ("49,54,59", "239,240,241"),
    "View": ("35,38,41", "239,240,241"),
    "Button": ("49,54,59", "239,240,241"),
    "Selection": ("61,174,233", "239,240,241"),
    "Tooltip": ("49,54,59", "239,240,241"),
}


def environment_of(pid):
    """What a running program was started with."""
    lines = Path(f"/proc/{pid}/environ").read_bytes().decode().split("\0")
    return dict(line.split("=", 1) for line in lines if "=" in line)


def scale_of(pid):
    """How many pixels of the display a running program of the toolkit takes for one of its own."""
    return float(environment_of(pid).get("QT_SCALE_FACTOR", 1))


def letters(folder, points, is_dark=False):
    """The environment of a program on such a desktop, whose settings are kept in a new folder below `folder`."""
    settings = folder / "desktop/kdeglobals"
    settings.parent.mkdir()
    lines = ["[General]"]
    lines += [f"{name}=DejaVu Sans,{points},-1,5,50,0,0,0,0,0" for name in ("font", "menuFont", "toolBarFont")]
    if is_dark:
        for name, (background, foreground) in _DARK.items():
            lines += [f"[Colors:{name}]", f"BackgroundNormal={background}", f"BackgroundAlternate={background}",
                      f"ForegroundNormal={foreground}", f"ForegroundInactive={foreground}",
                      "ForegroundLink=41,128,185", "ForegroundVisited=127,140,141"]
    settings.write_text("\n".join(lines) + "\n", encoding="ascii")
    return {"QT_QPA_PLATFORMTHEME": "kde", "KDE_SESSION_VERSION": "5", "QT_STYLE_OVERRIDE": "fusion",
            "XDG_CONFIG_HOME": str(settings.parent)}
