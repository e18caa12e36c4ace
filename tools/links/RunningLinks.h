// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/** The links in the hands of a running program, which is reached by the session bus. No program is started. */
namespace RunningLinks
{

/** Whether a program with this folder can be asked. */
bool isThere(const QString& userFolder);

/** Lets it open a link. False where it does not answer or has none of this name. */
bool open(const QString& userFolder, const QString& name);

/** Lets it take the file to for the file from. False where it does not, as while its settings are open. */
bool replace(const QString& userFolder, const QByteArray& from, const QByteArray& to);

} // namespace RunningLinks
