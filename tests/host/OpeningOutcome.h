// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "MessageOnScreen.h"
#include "OutlivingProcess.h"
#include "RecordingDesktop.h"

/** What the user is told in place of an opening, where several tests meet it. */
namespace Told
{
constexpr char relative[] = "The path of an application or file must begin with \"/\":";
constexpr char nowhere[] = "This link leads nowhere: it has no path.";
constexpr char missing[] = "There is no such file or folder, or you are not allowed to see it:";
constexpr char invalid[] = "This is no valid address:";
} // namespace Told

/**
 * What opening something came to, in one text: "opens X" where X is what the desktop was asked to open, "asks" where
 * the user is asked first, else the reason that the user is told. Waits until nothing runs that was started for it, and
 * leaves the screen empty.
 */
inline QString outcomeOf(const RecordingDesktop& desktop, const std::function<void()>& opening)
{
    opening();
    // Not until the process is gone: the object that started it hears of its end, and tells of it, later.
    if (!QTest::qWaitFor([] { return OutlivingProcess::count() == 0; }, 30000))
        return "a program goes on";
    const QStringList opened = desktop.opened();
    QString outcome = opened.isEmpty() ? QString() : "opens " + opened.join(" and ");
    while (QMessageBox* const box = notice()) {
        const bool isQuestion = box->icon() == QMessageBox::Question;
        outcome += isQuestion ? QString("asks") : box->text().section("\n\n", 0, 0);
        delete box;
    }
    return outcome;
}
