// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <initializer_list>

#include <QString>

/** A task by its name on the command line. run() prepares what it needs and calls measure() once. */
struct NamedTask {
    const char* name;
    void (*run)(const QString& folder); ///< folder: that of the links, which the task may change
    bool needsScreen = true;            ///< works with widgets or actions
};

/**
 * Runs the work once and prints "<nanoseconds of CPU time> <bytes of heap kept>". The work alone is what
 * callgrind collects, see measuredWork().
 */
void measure(const std::function<void()>& work);

/** The whole of main(): "PROGRAM TASK FOLDER" runs that task. 2 for any other command line. */
int runTask(int argc, char** argv, std::initializer_list<NamedTask> tasks);
