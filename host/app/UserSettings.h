// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include "ConnectionChoice.h"

/** The user's choices in the program itself, kept in vellumconnect.ini in the user's folder. */
namespace UserSettings
{

/** The chosen language, such as "de"; empty for the system's. */
QString language();

/** Keeps language for the next start. Failure is written to the warning channel. */
void setLanguage(const QString& language);

/** Which connections count; as by default where nothing good is kept. */
ConnectionChoice connection();

/** Keeps which connections count. Failure is written to the warning channel. */
void setConnection(const ConnectionChoice& choice);

/** The name of the settings' page that was used last; that of the quick links where it was never kept. */
QString settingsPage();

/** Keeps the name of that page for the next time. Failure is written to the warning channel. */
void setSettingsPage(const QString& name);

/** Where the window was and how large, as the toolkit writes it down; empty where it was never kept. */
QByteArray windowPlace();

/** Keeps the window's place and size for the next start. Failure is written to the warning channel. */
void setWindowPlace(const QByteArray& place);

/**
 * Removes what a power cut left of the toolkit's lock on the file, an empty one, for which whatever is kept would wait
 * 30 s. To be called by the one program that uses the folder, before anything is kept.
 */
void removeLeftLock();

/** Whether the user has agreed to open this address, spelt exactly so. */
bool isAgreed(const QString& address);

/** Keeps that the user has agreed to open this address. Failure is written to the warning channel. */
void addAgreed(const QString& address);

} // namespace UserSettings
