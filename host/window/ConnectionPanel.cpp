// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ConnectionPanel.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

#include "ConnectionMonitor.h"
#include "Heading.h"

using Reach = ConnectionState::Reach;

static QLabel* newValue()
{
    QLabel* const label = new QLabel;
    // A name or operator that looks like markup is shown as it stands.
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

ConnectionPanel::ConnectionPanel(ConnectionMonitor& monitor, ConnectionKind kind)
    : m_monitor(monitor)
    , m_kind(kind)
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

QString ConnectionPanel::summary() const
{
    const QString name = m_monitor.state().name;
    return name.isEmpty() ? heading() : tr("%1: %2", "state and name of the connection").arg(heading(), name);
}

QString ConnectionPanel::shortcoming() const
{
    if (m_kind == ConnectionKind::Manual || !m_monitor.isManual())
        return QString();
    return m_monitor.lacksService() ? tr("NetworkManager is not running") : tr("Built without NetworkManager");
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
    m_heading->setText(heading());
    m_hint->setText(hint());
    m_hint->setVisible(!m_hint->text().isEmpty());
    m_button->setText(state.isUp ? tr("&Disconnect") : tr("Co&nnect"));
    m_button->setVisible(m_monitor.isManual());
    setRow(m_name, tr("Connection:"), state.name);
    setRow(m_device, tr("Device:"), state.device);
    setRow(m_operator, tr("Operator:"), state.operatorName);
    setRow(m_since, tr("Since:"), since());
}

QString ConnectionPanel::heading() const
{
    const ConnectionState state = m_monitor.state();
    if (state.isUp)
        return tr("Connected");
    return state.isComingUp ? tr("Connecting…") : tr("Not connected");
}

QString ConnectionPanel::hint() const
{
    const ConnectionState state = m_monitor.state();
    if (state.isUp && state.reach == Reach::Portal)
        return tr("This network asks for a login first.");
    if (state.isUp && state.reach == Reach::Limited)
        return tr("The Internet is out of reach.");
    if (state.isUp || state.isComingUp)
        return QString();
    if (m_monitor.isManual())
        return tr("Press Connect when your connection is up.");
    return m_kind == ConnectionKind::Mobile ? tr("Waiting for mobile broadband.") : tr("Waiting for a connection.");
}

QString ConnectionPanel::since() const
{
    const QDateTime time = m_monitor.upSince();
    if (!time.isValid())
        return m_monitor.state().isUp ? tr("before this program started") : QString();
    const QLocale locale;
    return time.date() == QDate::currentDate() ? locale.toString(time.time(), QLocale::ShortFormat)
                                               : locale.toString(time, QLocale::ShortFormat);
}

void ConnectionPanel::setRow(QLabel* value, const QString& caption, const QString& text)
{
    const int index = m_rows->indexOf(value);
    QLabel* const label = static_cast<QLabel*>(m_rows->itemAt(index - 1)->widget());
    label->setText(caption);
    value->setText(text);
    value->setAccessibleName(caption + QLatin1Char(' ') + text);
    label->setVisible(!text.isEmpty());
    value->setVisible(!text.isEmpty());
}
