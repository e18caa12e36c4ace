// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusMessage>
#include <QObject>
#include <QString>

/**
 * The name of the mobile network that a modem is registered with, by ModemManager over the system bus. It comes later
 * than the modem and changes on the way, as when roaming.
 */
class ModemOperator : public QObject
{
    Q_OBJECT

public:
    /** Knows no modem and no name. */
    ModemOperator() = default;

    /** Asks for the modem with this object path of ModemManager; anything else stands for none. */
    void setModem(const QString& path);

    /** The name; empty while unknown. */
    QString name() const;

Q_SIGNALS:
    /** name() changed. */
    void changed();

private Q_SLOTS:
    void readAnswer(const QDBusMessage& answer);
    void readChange(const QString& interface, const QVariantMap& changes);

private:
    void setName(const QString& name);

    QString m_modem;
    QString m_name;
};
