// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/**
 * Why links are told of a connection or are not, as the log says it in English and Connection > Why... in every
 * language. The rules put some of these sentences together; lupdate finds them whole here.
 */
static const char* const connectionReasons[] = {
    QT_TRANSLATE_NOOP("TransitionRules", "was up before the program was there"),
    //: "In the Internet" means that the Internet can be reached.
    QT_TRANSLATE_NOOP("TransitionRules", "up, waiting to be in the Internet"),
    QT_TRANSLATE_NOOP("TransitionRules", "up and in the Internet"),
    QT_TRANSLATE_NOOP("TransitionRules", "up, and a portal wants a login"),
    QT_TRANSLATE_NOOP("TransitionRules", "up, but not in the Internet within 10 s"),
    QT_TRANSLATE_NOOP("TransitionRules", "went down before it was told"),
    QT_TRANSLATE_NOOP("TransitionRules", "another connection took over"),
    QT_TRANSLATE_NOOP("TransitionRules", "down, waiting whether it comes back"),
    QT_TRANSLATE_NOOP("TransitionRules", "down"),
    QT_TRANSLATE_NOOP("TransitionRules", "the service is gone, waiting whether it comes back"),
    QT_TRANSLATE_NOOP("TransitionRules", "handed over, not a new connection"),
    QT_TRANSLATE_NOOP("TransitionRules", "was up before sleep, not a new connection"),
    QT_TRANSLATE_NOOP("TransitionRules", "outlived a restart of the service, not a new connection"),
    //: The host asks once more before it tells of a connection that came up.
    QT_TRANSLATE_NOOP("TransitionRules", "was down again when asked, not told"),
};
