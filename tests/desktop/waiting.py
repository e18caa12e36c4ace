# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Waiting for things to happen, never for time to pass."""

import time

PATIENCE = 15.0  # seconds for any one thing; a limit, not a duration


def wait_for(condition, what, patience=PATIENCE):
    """Asks `condition` until it answers something true, and returns that; AssertionError names `what` never came."""
    deadline = time.monotonic() + patience
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > deadline:
            raise AssertionError(f"waited {patience:g} s in vain: {what}")
        time.sleep(0.02)
