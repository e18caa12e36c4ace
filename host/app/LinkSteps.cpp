// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkSteps.h"

#include "LinkHistory.h"

/** A change of the links, whole: from one state of the file to another. */
class LinkSteps::Step : public QUndoCommand
{
public:
    Step(LinkSteps& steps, const QByteArray& from, const QByteArray& to)
        : m_steps(steps)
        , m_from(from)
        , m_to(to)
    {
    }

    void undo() override { m_steps.make(m_from); }
    void redo() override { m_steps.make(m_to); }

    const QByteArray& target() const { return m_to; }
    void setTarget(const QByteArray& to) { m_to = to; }

private:
    LinkSteps& m_steps;
    QByteArray m_from;
    QByteArray m_to;
};

LinkSteps::LinkSteps(const GoTo& goTo)
    : m_goTo(goTo)
{
    m_stack.setUndoLimit(LinkHistory::longest);
    // Not in the middle of a step.
    m_clearing.setSingleShot(true);
    QObject::connect(&m_clearing, &QTimer::timeout, &m_stack, [this] {
        m_last = nullptr;
        m_stack.clear();
    });
}

void LinkSteps::add(const QByteArray& from, const QByteArray& to)
{
    if (m_isBusy)
        return;
    // The stack does what it is given, which is done already.
    m_isBusy = true;
    m_last = new Step(*this, from, to);
    m_stack.push(m_last);
    m_isBusy = false;
}

void LinkSteps::amend(const QByteArray& to, const QByteArray& amended)
{
    const bool isLast = m_stack.index() > 0 && m_stack.command(m_stack.index() - 1) == m_last;
    if (isLast && m_last->target() == to)
        m_last->setTarget(amended);
}

bool LinkSteps::goQuietly(const QByteArray& content)
{
    m_isBusy = true;
    const bool isDone = m_goTo(content);
    m_isBusy = false;
    return isDone;
}

void LinkSteps::make(const QByteArray& content)
{
    if (m_isBusy || goQuietly(content))
        return;
    // The steps no longer lead from the state that the links are in.
    m_clearing.start();
}
