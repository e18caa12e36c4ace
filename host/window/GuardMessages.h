// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QMessageBox>
#include <QObject>
#include <QPointer>

#include "LinkGuard.h"

/**
 * What the user is told and asked about the file with the links. Each is a window that blocks nothing but the modal one
 * above which it stands.
 */
class GuardMessages : public QObject
{
    Q_OBJECT

public:
    /** Its windows belong to window, or to the modal window above it; window must outlive them. */
    explicit GuardMessages(QWidget* window);

    /** Says what was found and done; nothing where all is well. Of links that are Gone, offers to bring them back. */
    void tell(const LinkGuard::Event& event);

    /** Says that a change could not be saved, why, and what the links are now; where it can be, offers to try again. */
    void tellSaveFailed(const LinkGuard::Event& event, bool canTryAgain);

    /** Says that what was prepared for the user could not be put in place. */
    void tellUnprepared();

    /** The modal window above closes: what is open goes on over the main window. */
    void leaveModalWindow();

    /** Asks whether the links of another program are to be loaded. One question at a time: a later one takes its place.
     */
    void askWhoseLinks();

Q_SIGNALS:
    /** The user wants the links back that are Gone. */
    void bringBackRequested();

    /** The user wants the change again that could not be saved. */
    void tryAgainRequested();

    /** The user answered askWhoseLinks(); closing the window keeps one's own. */
    void decided(bool isTheirs);

private:
    QMessageBox* open(QMessageBox::Icon icon, const QStringList& sentences);

    QWidget* m_window;
    QList<QPointer<QMessageBox>> m_open; ///< and former ones
    QPointer<QMessageBox> m_question;
};
