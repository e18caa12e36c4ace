// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

class QUrl;

/**
 * Opens what QDesktopServices::openUrl() is called with: programs directly, everything else by the desktop. What was
 * opened outlives this program, and what could not be opened is told to the user without blocking the caller.
 */
class LinkOpener : public QObject
{
    Q_OBJECT

public:
    /** Takes over the addresses without a scheme and those of files, mail and the Internet. One at a time. */
    LinkOpener();

    /** Gives them back to the toolkit. */
    ~LinkOpener() override;

public Q_SLOTS:
    void open(const QUrl& address);

private:
    void openPath(const QString& path);
    void startProgram(const QString& path);
    void handToDesktop(const QString& target);
    static void tell(const QString& reason, const QString& target);
};
