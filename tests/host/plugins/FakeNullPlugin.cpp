// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// A plug-in whose maker makes nothing.

#include <QObject>
#include <QtPlugin>

class FakeNullPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.norvik.vellumconnect.plugin.IBasePlugin")
};

// What the toolkit's entry point does.
#undef Q_PLUGIN_INSTANCE
#define Q_PLUGIN_INSTANCE(Class)                                                                                       \
    {                                                                                                                  \
        return nullptr;                                                                                                \
    }

#include "FakeNullPlugin.moc"
