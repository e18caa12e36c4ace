// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// A shared library that is no plug-in.

extern "C" __attribute__((visibility("default"))) int answer()
{
    return 42;
}
