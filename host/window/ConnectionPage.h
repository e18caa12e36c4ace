// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QButtonGroup>
#include <QList>

#include "ConnectionChoice.h"
#include "ProgramPage.h"

class QCheckBox;
class QLabel;
class QRadioButton;
class QVBoxLayout;

/** The user's choice of the connections that count. Each change of it counts at once. */
class ConnectionPage : public ProgramPage
{
    Q_OBJECT

public:
    /** Shows choice; isForNextTime says that another one holds as long as this program runs. */
    ConnectionPage(const ConnectionChoice& choice, bool isForNextTime);

    QString caption() const override;

    /** Lets the user choose plans only: the kind of connection cannot be changed, and a text says why. */
    void setKindFixed();

    /**
     * Offers the mobile plans that there are. Those that were chosen and are no longer there stay. Where isAnswered is
     * false, nobody knows which there are.
     */
    void setPlans(const ConnectionChoice::Plans& plans, bool isAnswered);

Q_SIGNALS:
    /** The page is shown: setPlans() is to be called, now or later. */
    void plansWanted();

    /** The user made this choice. */
    void chosen(const ConnectionChoice& choice);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /** To the question which plans there are. */
    enum class Answer { Awaited, Given, Refused };
    /** A plan that can be ticked. */
    struct Plan {
        QString uuid;
        QString name;
        bool isGone = false;
        QCheckBox* box = nullptr;
    };

    void choose();
    ConnectionChoice::Plans ticked() const;
    void addBoxes(const ConnectionChoice::Plans& chosen);
    void enableParts();
    void setTexts();
    QString plansNote() const;

    ConnectionChoice m_choice; ///< that the user made last
    Answer m_answer = Answer::Awaited;
    QList<Plan> m_plans;
    QButtonGroup m_kinds;
    QButtonGroup m_anyOrSome;
    QLabel* m_runNote = nullptr;
    QLabel* m_fixedNote = nullptr;
    QRadioButton* m_mobile = nullptr;
    QWidget* m_mobilePart = nullptr;
    QRadioButton* m_anyPlan = nullptr;
    QRadioButton* m_somePlans = nullptr;
    QWidget* m_planPart = nullptr;
    QVBoxLayout* m_planColumn = nullptr;
    QLabel* m_plansNote = nullptr;
    QCheckBox* m_notWhileRoaming = nullptr;
    QRadioButton* m_any = nullptr;
    QRadioButton* m_manual = nullptr;
};
