// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "FixedReason.h"

#include <QCoreApplication>

QString fixedReason()
{
    return QCoreApplication::translate("FixedReason", "Fixed by the administrator of this computer");
}
