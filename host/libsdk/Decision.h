// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QString>

/** That something was opened or not, and why: in the language of that moment, and with names as others wrote them. */
struct Decision {
    QDateTime time;
    QString what; ///< the name of the link or connection; the address where no name is known
    QString cause;
    QString outcome;
};
