// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

#include "AddressQuestions.h"
#include "Opening.h"

class QUrl;

/** What is known of the addresses that the user has agreed to, spelt exactly so. Without functions, nothing is kept. */
struct AgreedAddresses {
    std::function<bool(const QString& address)> contains;
    std::function<void(const QString& address)> add;
};

/**
 * Opens what QDesktopServices::openUrl() is called with: programs directly, applications by their desktop entries,
 * everything else by the desktop, unusual addresses after the user has agreed (SchemeRules). What was opened outlives
 * this program, and what could not be opened is told to the user without blocking the caller. What came of each is said
 * by Opening.
 */
class LinkOpener : public QObject
{
    Q_OBJECT

public:
    /**
     * Takes over the addresses of all schemes that have a rule of their own. One at a time. What the user agrees to is
     * looked up and kept in agreed.
     */
    explicit LinkOpener(const AgreedAddresses& agreed = AgreedAddresses());

    /** Gives all schemes back to the toolkit. */
    ~LinkOpener() override;

    /** Takes over the addresses of further schemes: the toolkit hands over by scheme, and knows no "all others". */
    void takeOver(const QStringList& schemes);

public Q_SLOTS:
    /** Opens address, or says why not. Waits neither for the user nor for what is opened. */
    void open(const QUrl& address);

private:
    void openPath(const QUrl& address, const Opening& opening);
    void openFile(const QString& path, const Opening& opening);
    void startProgram(const QString& path, const Opening& opening);
    void startEntry(const QString& path, const Opening& opening);
    void ask(const QString& address, const Opening& opening);
    void waitFor(const QString& address, const Opening& opening);
    void handToDesktop(const QString& target, const Opening& opening);
    // Both tell the user.
    static void refuse(const QString& reason, const QString& target, const Opening& opening);
    static void fail(const QString& reason, const QString& target, const Opening& opening);

    const AgreedAddresses m_agreed;
    QSet<QString> m_schemes; ///< those taken over
    AddressQuestions m_questions;
    QHash<QString, Opening> m_asked; ///< by the addresses that the user is asked about, each for whom it was last
};
