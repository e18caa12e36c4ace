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

/** What is measured of the plug-in and, beside it, of the bare toolkit: each as in NamedTask::run. */
struct LinkTasks {
    void (*load)(const QString&);
    void (*save)(const QString&);
    void (*menu)(const QString&);
    void (*page)(const QString&);
    void (*paint)(const QString&);
    void (*up)(const QString&);
    void (*deleteLink)(const QString&);
    void (*newLink)(const QString&);
};

/** As runTask(), with one name for each of these tasks. */
int runLinkTask(int argc, char** argv, const LinkTasks& tasks);

/** The whole of main(): "PROGRAM TASK FOLDER" runs that task. 2 for any other command line. */
int runTask(int argc, char** argv, std::initializer_list<NamedTask> tasks);
