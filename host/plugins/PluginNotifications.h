// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class PluginContainer;

/**
 * What every plug-in is told, in load order. Each notification is one line with what the plug-ins answered: in the log
 * category "vellum.connection" where it is of the connection, else in "vellum.plugins".
 */
namespace PluginNotifications
{

/** 258: the program has started and its window is up. */
void tellStarted(const PluginContainer& container);

/** 1536: a data connection came up or went down; which, a plug-in asks the dial-up service. */
void tellConnectionChanged(const PluginContainer& container, bool isUp, const QString& reason);

/** ChangeLang and 1024: texts are now shown in language, such as "de" or "zh_CN". */
void tellLanguageChanged(const PluginContainer& container, const QString& language);

} // namespace PluginNotifications
