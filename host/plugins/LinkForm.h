// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>

class QWidget;

/** What stands in the dialog of one quick link: its fields by the names of their widgets, which the plug-in keeps. */
class LinkForm
{
public:
    /** The dialog that is open, which stays the plug-in's and may go at any time; null for none. */
    static QWidget* dialog();

    /** What dialog shows; nothing for null. */
    static LinkForm of(const QWidget* dialog);

    /** Puts all of it into dialog, as if a user did. */
    void fill(QWidget* dialog) const;

    /** Whether it came from no dialog. */
    bool isNull() const { return m_texts.isEmpty(); }

    bool opensOnConnect() const { return isMarked(QStringLiteral("m_launchWhenConnect")); }
    bool opensOnStart() const { return isMarked(QStringLiteral("m_launchWhenSWLaunch")); }

private:
    bool isMarked(const QString& beginning) const;

    int m_type = 0; ///< in the order of the dialog's choice
    QMap<QString, QString> m_texts;
    QMap<QString, bool> m_marks;
};
