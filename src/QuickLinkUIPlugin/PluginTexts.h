// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMessageBox>
#include <QString>

class QWidget;

/** The plug-in's words to the user; the words themselves are in the host's language files. */
namespace PluginTexts
{
/** The text behind key in the plug-in's context; the key itself where there is none. */
QString translated(const QString& key);

/**
 * Shows a modal message of the host with the plug-in's title, the text behind textKey and the button "IDS_OK",
 * over parent (may be null). A second button is named by its bare key; an empty one leaves it out. The button
 * pressed, as QMessageBox::StandardButton. The caller may be gone when this returns.
 */
int showMessage(QMessageBox::Icon icon, QWidget* parent, const QString& textKey, const QString& secondButton);
} // namespace PluginTexts
