// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

/** A plug-in of the toolkit that does nothing: what loading any library costs. */
class EmptyPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.norvik.vellumconnect.benchmark.EmptyPlugin")
};
