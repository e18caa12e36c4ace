// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

// The plug-in's only switches between versions of Qt; everything else is common to 4.8, 5.15 and 6.

#if QT_VERSION < 0x050000
/** Qt 4 has no metadata in the class; PluginEntry.cpp writes the entry point by hand there. */
#define Q_PLUGIN_METADATA(metadata)
#define QUICKLINK_HAND_WRITTEN_ENTRY
#else
/** Qt 4 cannot ask whether the debug channel is on; where it can be asked, traces cost nothing while it is off. */
#define QUICKLINK_DEBUG_CHANNEL_CAN_BE_OFF
#endif
