// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** Says which plug-ins a container may load, and is told while one of them has the processor. */
class PluginGate
{
public:
    /** What a plug-in does when a container calls into it. */
    enum Call {
        Loading,   ///< its library's start, its constructor, and saying who it is
        Init,      ///< Init
        OnDestroy, ///< OnDestroy
        Unloading  ///< its destructor, and its library's end
    };

    virtual ~PluginGate() {}

    /** Why file, a readable regular one, must not be loaded, in words for the log; empty where it may be. */
    virtual QString objectionTo(const QString& file) = 0;

    /** Why the plug-in in file must not have this class identifier, in words for the log; empty where it may. */
    virtual QString objectionTo(const QString& file, const QString& clsid) = 0;

    /** The plug-in in file is called into. Calls may be nested. */
    virtual void begin(const QString& file, Call call) = 0;

    /** The call that began last has come back. */
    virtual void end() = 0;
};
