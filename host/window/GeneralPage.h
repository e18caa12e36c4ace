// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ProgramPage.h"

class QCheckBox;
class QLabel;

/** The user's choices about the program itself. Each is kept at once. */
class GeneralPage : public ProgramPage
{
    Q_OBJECT

public:
    /** Shows whether the program starts together with the session. */
    explicit GeneralPage(bool startsWithSession);

    QString caption() const override;

    /** What became of the choice: whether it is so now, and the file that could not be changed; empty for none. */
    void setStartsWithSession(bool isOn, const QString& failedFile);

    /** Shows the choice only: it cannot be changed, and a text says why. */
    void setFixed();

Q_SIGNALS:
    /** The user wants the program to start together with the session, or not to. */
    void startWithSessionChosen(bool isOn);

protected:
    void changeEvent(QEvent* event) override;

private:
    void setTexts();

    QCheckBox* m_startWithSession = nullptr;
    QLabel* m_fixedNote = nullptr;
    QLabel* m_hint = nullptr;
    QLabel* m_failure = nullptr;
    QString m_failedFile;
};
