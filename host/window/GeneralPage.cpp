// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "GeneralPage.h"

#include <QCheckBox>
#include <QEvent>
#include <QVBoxLayout>

#include "FixedReason.h"
#include "ShownText.h"
#include "WrappedText.h"

GeneralPage::GeneralPage(bool startsWithSession)
    : m_startWithSession(new QCheckBox)
    , m_fixedNote(new WrappedText)
    , m_hint(new WrappedText)
    , m_failure(new WrappedText)
{
    QVBoxLayout* const column = new QVBoxLayout(this);
    column->addWidget(m_startWithSession);
    column->addWidget(m_fixedNote);
    column->addWidget(m_hint);
    column->addWidget(m_failure);
    column->addStretch(1);
    m_fixedNote->hide();
    setStartsWithSession(startsWithSession, QString());
    // Not toggled(): what the program sets is no choice.
    connect(m_startWithSession, &QCheckBox::clicked, this, &GeneralPage::startWithSessionChosen);
}

QString GeneralPage::caption() const
{
    return tr("General");
}

void GeneralPage::setStartsWithSession(bool isOn, const QString& failedFile)
{
    m_startWithSession->setChecked(isOn);
    m_failedFile = failedFile;
    m_failure->setVisible(!failedFile.isEmpty());
    setTexts();
}

void GeneralPage::setFixed()
{
    m_startWithSession->setEnabled(false);
    m_fixedNote->show();
    setTexts();
}

void GeneralPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QWidget::changeEvent(event);
}

void GeneralPage::setTexts()
{
    m_startWithSession->setText(tr("Start with the session"));
    m_hint->setText(tr("Vellum Connect then waits in the tray. Where the desktop has no tray, its window shows."));
    m_fixedNote->setText(fixedReason());
    m_startWithSession->setAccessibleDescription(m_startWithSession->isEnabled() ? m_hint->text() : fixedReason());
    m_failure->setText(tr("This choice cannot be kept in %1.").arg(ShownText::isolatedPath(m_failedFile)));
}
