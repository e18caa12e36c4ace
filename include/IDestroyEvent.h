// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

/** What a plug-in is told before the host unloads it. */
class IDestroyEvent
{
public:
    virtual ~IDestroyEvent() {}

    /**
     * Releases everything that the plug-in built. Called by the host once, after the last call of any other
     * operation and before the library is unloaded; a second call does no harm.
     */
    virtual void OnDestroy() = 0;
};
