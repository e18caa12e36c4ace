// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QVariantMap>

#include <memory>

class QDBusPendingCallWatcher;

/**
 * The name of the mobile network that a modem is registered with, by ModemManager over the system bus. It comes later
 * than the modem and changes on the way, as when roaming.
 */
class ModemOperator : public QObject
{
    Q_OBJECT

public:
    /** Knows no modem and no name. */
    ModemOperator();
    ~ModemOperator() override;

    /** Asks for the modem with this object path of ModemManager; anything else stands for none. */
    void setModem(const QString& path);

    /** The name; empty while unknown. */
    QString name() const;

Q_SIGNALS:
    /** name() changed. */
    void changed();

private Q_SLOTS:
    void readChange(const QString& interface, const QVariantMap& changes);

private:
    void ask();
    void setName(const QString& name);

    QString m_modem;
    QString m_name;
    std::unique_ptr<QDBusPendingCallWatcher> m_answer; ///< of this modem, which may take its time
};
