// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

/** A loaded plug-in that has Interface. It stays its container's. */
template <class Interface>
struct PluginWith {
    QPointer<QObject> object; ///< null once the plug-in is gone; its interface is not to be called then
    Interface* interface;
    QString name; ///< under which it is notified
};
