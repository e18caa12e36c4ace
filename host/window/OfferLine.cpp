// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "OfferLine.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

OfferLine::OfferLine()
    : m_text(new QLabel)
    , m_putBack(new QPushButton)
    , m_dismiss(new QPushButton)
{
    setFrameShape(QFrame::StyledPanel);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    // What is beside it gets all the room that is left.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    // Enter is the window's own.
    m_putBack->setAutoDefault(false);
    m_dismiss->setAutoDefault(false);
    QHBoxLayout* const row = new QHBoxLayout(this);
    row->addWidget(m_text, 1);
    row->addWidget(m_putBack);
    row->addWidget(m_dismiss);
    connect(m_putBack, &QPushButton::clicked, this, &OfferLine::accepted);
    connect(m_dismiss, &QPushButton::clicked, this, &OfferLine::dismissed);
    setTexts();
    hide();
}

QStringList OfferLine::captions()
{
    return {tr("&Put Back"), tr("Leave &As It Is")};
}

void OfferLine::offer(const QString& text)
{
    m_text->setText(text);
    setVisible(!text.isEmpty());
    if (!text.isEmpty())
        Q_EMIT offered();
}

void OfferLine::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QFrame::changeEvent(event);
}

void OfferLine::setTexts()
{
    const QStringList texts = captions();
    m_putBack->setText(texts.at(0));
    m_dismiss->setText(texts.at(1));
}
