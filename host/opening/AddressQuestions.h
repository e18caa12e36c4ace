// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QStringList>

/**
 * Asks the user whether addresses may be opened, in a window that blocks nothing: one question at a time, the others
 * wait in line. Nothing but Yes is an agreement, neither a closed window nor one that went with the window below it.
 */
class AddressQuestions : public QObject
{
    Q_OBJECT

public:
    /** Asks nothing yet. */
    AddressQuestions();

    /** Closes the open question, unanswered. */
    ~AddressQuestions() override;

    /**
     * Asks about an encoded address with a scheme; once where the same question is open or waits. False where 200
     * others wait already.
     */
    bool ask(const QString& address);

Q_SIGNALS:
    /** The user said yes to this address. */
    void agreed(const QString& address);

    /** The user said no to it, or closed the question. */
    void declined(const QString& address);

private:
    void askNext();
    void goOn();
    void close();

    QStringList m_addresses; ///< the first is the open question's
    QPointer<QMessageBox> m_question;
};
