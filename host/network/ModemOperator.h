// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusPendingCallWatcher>
#include <QVariantMap>

#include <memory>

/**
 * The mobile network that a modem is registered with, by ModemManager over the system bus: its name, and whether it is
 * another operator's than that of the user's card. Both come later than the modem and change on the way.
 */
class ModemOperator : public QObject
{
    Q_OBJECT

public:
    static constexpr int patience = 2000; ///< milliseconds until a silent ModemManager is asked again

    enum class Roaming {
        Unknown, ///< ModemManager has not said it yet
        No,      ///< nor where there is no modem that could say it, such as that of a telephone
        Yes,
    };

    /** Knows no modem and no name. */
    ModemOperator() = default;

    /** Asks for the modem with this object path of ModemManager; anything else stands for none. */
    void setModem(const QString& path);

    /** The name; empty while unknown. */
    QString name() const;

    /** Whether the modem is in the network of another operator. */
    Roaming roaming() const;

Q_SIGNALS:
    /** name() or roaming() changed. */
    void changed();

private Q_SLOTS:
    void readChange(const QString& interface, const QVariantMap& changes);

private:
    void ask();
    void take(const QVariantMap& values);
    void set(const QString& name, Roaming roaming);

    QString m_modem;
    QString m_name;
    Roaming m_roaming = Roaming::No;
    std::unique_ptr<QDBusPendingCallWatcher> m_answer; ///< of this modem, which may take its time
};
