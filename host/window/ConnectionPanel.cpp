// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ConnectionPanel.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "ConnectionMonitor.h"
#include "Heading.h"
#include "ShownText.h"

static QLabel* newValue()
{
    QLabel* const label = new QLabel;
    // A name or operator that looks like markup is shown as it stands.
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // Nor does a long one make the window wide.
    label->setMinimumWidth(1);
    return label;
}

ConnectionPanel::ConnectionPanel(ConnectionMonitor& monitor, ConnectionKind kind)
    : m_monitor(monitor)
    , m_texts(monitor, kind)
    , m_heading(newHeading(4))
    , m_hint(newValue())
    , m_button(new QPushButton)
    , m_rows(new QGridLayout)
    , m_name(newValue())
    , m_device(newValue())
    , m_operator(newValue())
    , m_since(newValue())
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    m_hint->setWordWrap(true);
    QVBoxLayout* const column = new QVBoxLayout;
    column->addWidget(m_heading);
    column->addWidget(m_hint);
    column->addLayout(m_rows);
    m_rows->setColumnStretch(1, 1);
    for (QLabel* value : {m_name, m_device, m_operator, m_since}) {
        const int row = m_rows->rowCount();
        m_rows->addWidget(new QLabel, row, 0);
        m_rows->addWidget(value, row, 1);
    }
    QHBoxLayout* const sides = new QHBoxLayout(this);
    sides->addLayout(column, 1);
    sides->addWidget(m_button, 0, Qt::AlignTop);

    connect(m_button, &QPushButton::clicked, this, [this] { m_monitor.setManuallyUp(!m_monitor.state().isUp); });
    connect(&m_monitor, &ConnectionMonitor::changed, this, &ConnectionPanel::refresh);
    refresh();
}

void ConnectionPanel::setKind(ConnectionKind kind)
{
    m_texts.setKind(kind);
    refresh();
}

QStringList ConnectionPanel::captions()
{
    return {tr("&Disconnect"), tr("Co&nnect")};
}

void ConnectionPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        refresh();
    QFrame::changeEvent(event);
}

void ConnectionPanel::refresh()
{
    const ConnectionState state = m_monitor.state();
    m_heading->setText(m_texts.state());
    m_hint->setText(m_texts.hint());
    m_hint->setVisible(!m_hint->text().isEmpty());
    m_button->setText(captions().at(state.isUp ? 0 : 1));
    m_button->setVisible(m_monitor.isManual());
    setRow(m_name, tr("Connection:"), state.name);
    setRow(m_device, tr("Device:"), state.device);
    setRow(m_operator, tr("Operator:"), state.operatorName);
    setRow(m_since, tr("Since:"), m_texts.since());
}

void ConnectionPanel::setRow(QLabel* value, const QString& caption, const QString& text)
{
    const int index = m_rows->indexOf(value);
    QLabel* const label = static_cast<QLabel*>(m_rows->itemAt(index - 1)->widget());
    label->setText(caption);
    const QString shown = ShownText::shortLine(text);
    value->setText(shown);
    value->setAccessibleName(caption + QLatin1Char(' ') + shown);
    label->setVisible(!text.isEmpty());
    value->setVisible(!text.isEmpty());
}
