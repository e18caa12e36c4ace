// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>

/**
 * Tells the user of a failure without waiting for an answer: a warning that closes by itself at the end of the
 * program and does not keep it alive. subject is what the text speaks of, shown below it as it stands; a very long
 * one is shortened there and whole in the details. link is the name of the link that was opened, empty for none: it
 * stands before the subject, and a button leads to it in the settings.
 *
 * There is one notice at a time. What fails while it is on the screen is added to it, see FailureList; so however much
 * fails, the user has one window to close.
 */
void showNotice(const QString& title, const QString& text, const QString& subject, const QString& link = QString());

/** The same in a window, whatever setNoticeOutlet() says. */
void showNoticeWindow(const QString& title, const QString& text, const QString& subject, const QString& link);

/** Another way to tell of a failure than by a window. False where it does not take it, which then gets its window. */
typedef std::function<bool(const QString& title, const QString& text, const QString& subject, const QString& link)>
    NoticeOutlet;

/** Lets outlet be asked before a window is shown; a null one ends it. */
void setNoticeOutlet(const NoticeOutlet& outlet);
