// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QGenericPlugin>

/**
 * Tells when a program has painted its first window, whichever program it is: Qt loads this plug-in into every program
 * when QT_QPA_GENERIC_PLUGINS names it. It prints "first paint: <monotonic clock> <CPU time>", both in nanoseconds, and
 * ends the program.
 */
class FirstPaintPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "FirstPaintPlugin.json")

public:
    /** Begins to watch. The result is the caller's, which is Qt. */
    QObject* create(const QString& name, const QString& arguments) override;
};
