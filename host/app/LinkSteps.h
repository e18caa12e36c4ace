// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QTimer>
#include <QUndoStack>

#include <functional>

/** What was done to the links in this run: a step for each state that they were in, to be undone and done again. */
class LinkSteps
{
public:
    /** Lets the links be as in content; false when it cannot be done. */
    using GoTo = std::function<bool(const QByteArray& content)>;

    /** Steps are made by goTo, which must outlive them. */
    explicit LinkSteps(const GoTo& goTo);

    LinkSteps(const LinkSteps&) = delete;
    LinkSteps& operator=(const LinkSteps&) = delete;

    /** The steps, for whoever undoes them; see Host for its menu. */
    QUndoStack& stack() { return m_stack; }

    /** The links went from one state to another. Nothing while a step is made, which is one already. */
    void add(const QByteArray& from, const QByteArray& to);

    /** The last step, which led to to, leads to amended now; only that state is gone back to. Nothing for others. */
    void amend(const QByteArray& to, const QByteArray& amended);

    /** Lets the links be as in content without making it a step of its own; false when it cannot be done. */
    bool goQuietly(const QByteArray& content);

private:
    class Step;

    void make(const QByteArray& content);

    GoTo m_goTo;
    QUndoStack m_stack;
    QTimer m_clearing;
    Step* m_last = nullptr; ///< the newest, while nothing was undone before it; the stack's
    bool m_isBusy = false;  ///< a step is made, or handed to the stack
};
