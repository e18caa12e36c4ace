// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <NetworkManagerQt/ActiveConnection>

#include "ConnectionKind.h"
#include "ConnectionSource.h"
#include "ModemOperator.h"

/** The connections of NetworkManager, over the system bus. The service may start late, stop and come back. */
class NetworkManagerSource : public ConnectionSource
{
    Q_OBJECT

public:
    /** Looks at the bus at once, which takes some milliseconds. kind is Mobile or Any. */
    explicit NetworkManagerSource(ConnectionKind kind);

    bool isAvailable() const override;
    ConnectionState state() const override;
    bool isStillUp() const override;

private:
    void setAvailable(bool isAvailable);
    void listen();
    void look();
    bool counts(const NetworkManager::ActiveConnection& connection) const;
    NetworkManager::ActiveConnection::Ptr chosen() const;

    const ConnectionKind m_kind;
    bool m_isAvailable = false;
    NetworkManager::ActiveConnection::List m_connections; ///< all that are listened to
    ConnectionState m_state;
    QString m_path; ///< of the connection that is up, on the bus
    ModemOperator m_operator;
};
