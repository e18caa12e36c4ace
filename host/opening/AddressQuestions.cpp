// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "AddressQuestions.h"

#include <QCoreApplication>

#include "LooseMessage.h"
#include "ShownText.h"

static const int waitAtMost = 200;

AddressQuestions::AddressQuestions()
{
    // Before a question's own connection, which closes it: at the end of the program no other one opens in its place.
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &AddressQuestions::close);
}

AddressQuestions::~AddressQuestions()
{
    close();
}

bool AddressQuestions::ask(const QString& address)
{
    if (m_addresses.contains(address)) {
        if (m_question)
            liftAboveModal(m_question);
        return true;
    }
    if (m_addresses.size() > waitAtMost)
        return false;
    m_addresses.append(address);
    if (m_addresses.size() == 1)
        askNext();
    return true;
}

void AddressQuestions::askNext()
{
    const QString address = m_addresses.constFirst();
    const QString scheme = address.section(QLatin1Char(':'), 0, 0);
    const QString question = tr("Open this address with the program for \"%1\" links?").arg(scheme);
    QMessageBox* const box =
        newLooseMessage(QMessageBox::Question, tr("Unusual address"), ShownText::withSubject(question, address));
    const QString details = ShownText::detailsOf(address);
    if (!details.isEmpty())
        box->setDetailedText(details);
    box->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box->setDefaultButton(QMessageBox::No);
    box->setEscapeButton(QMessageBox::No);
    connect(box, &QMessageBox::finished, this, [this, address](int answer) {
        if (answer == QMessageBox::Yes)
            Q_EMIT agreed(address);
        else
            Q_EMIT declined(address);
    });
    // However it ends; later, because the window that the next one would belong to may be going as well.
    connect(box, &QObject::destroyed, this, &AddressQuestions::goOn, Qt::QueuedConnection);
    m_question = box;
    box->show();
}

void AddressQuestions::goOn()
{
    if (m_question || m_addresses.isEmpty())
        return; // closed in the meantime
    m_addresses.removeFirst();
    if (!m_addresses.isEmpty())
        askNext();
}

void AddressQuestions::close()
{
    m_addresses.clear();
    if (!m_question)
        return;
    m_question->disconnect(this);
    delete m_question;
}
