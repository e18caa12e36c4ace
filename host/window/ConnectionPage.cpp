// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ConnectionPage.h"

#include <QCheckBox>
#include <QEvent>
#include <QRadioButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

#include "FixedReason.h"
#include "ShownText.h"
#include "WrappedText.h"

namespace
{
/** A part of the page that belongs to the button above it, as far in as the button's text begins. */
QLayout* indented(QWidget* part, const QRadioButton* above)
{
    const QStyle* const style = above->style();
    QHBoxLayout* const row = new QHBoxLayout;
    row->addSpacing(style->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth) +
                    style->pixelMetric(QStyle::PM_RadioButtonLabelSpacing));
    row->addWidget(part, 1);
    return row;
}

QVBoxLayout* newColumn(QWidget* part)
{
    QVBoxLayout* const column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    return column;
}
} // namespace

ConnectionPage::ConnectionPage(const ConnectionChoice& choice, bool isForNextTime)
    : m_choice(choice)
    , m_runNote(new WrappedText)
    , m_fixedNote(new WrappedText)
    , m_mobile(new QRadioButton)
    , m_mobilePart(new QWidget)
    , m_anyPlan(new QRadioButton)
    , m_somePlans(new QRadioButton)
    , m_planPart(new QWidget)
    , m_planColumn(newColumn(m_planPart))
    , m_plansNote(new WrappedText)
    , m_notWhileRoaming(new QCheckBox)
    , m_any(new QRadioButton)
    , m_manual(new QRadioButton)
{
    // From the inside, as this is the order in which the keyboard goes through them.
    m_planColumn->addWidget(m_plansNote);
    QVBoxLayout* const mobileColumn = newColumn(m_mobilePart);
    mobileColumn->addWidget(m_anyPlan);
    mobileColumn->addWidget(m_somePlans);
    mobileColumn->addLayout(indented(m_planPart, m_somePlans));
    mobileColumn->addWidget(m_notWhileRoaming);
    QVBoxLayout* const column = new QVBoxLayout(this);
    column->addWidget(m_runNote);
    column->addWidget(m_fixedNote);
    column->addWidget(m_mobile);
    column->addLayout(indented(m_mobilePart, m_mobile));
    column->addWidget(m_any);
    column->addWidget(m_manual);
    column->addStretch(1);
    m_runNote->setVisible(isForNextTime);
    m_fixedNote->hide();

    // By itself the toolkit takes the buttons of a part for those of the whole page, too.
    for (QRadioButton* const button : {m_mobile, m_any, m_manual})
        m_kinds.addButton(button);
    for (QRadioButton* const button : {m_anyPlan, m_somePlans})
        m_anyOrSome.addButton(button);

    // Not toggled(): what the program sets is no choice.
    for (QRadioButton* const button : {m_mobile, m_any, m_manual, m_anyPlan, m_somePlans})
        connect(button, &QRadioButton::clicked, this, &ConnectionPage::choose);
    connect(m_notWhileRoaming, &QCheckBox::clicked, this, &ConnectionPage::choose);
    m_mobile->setChecked(choice.kind == ConnectionKind::Mobile);
    m_any->setChecked(choice.kind == ConnectionKind::Any);
    m_manual->setChecked(choice.kind == ConnectionKind::Manual);
    m_anyPlan->setChecked(choice.plans.isEmpty());
    m_somePlans->setChecked(!choice.plans.isEmpty());
    m_notWhileRoaming->setChecked(choice.isNotWhileRoaming);
    for (auto plan = choice.plans.constBegin(); plan != choice.plans.constEnd(); ++plan)
        m_plans.append({plan.key(), plan.value()});
    addBoxes(choice.plans);
    enableParts();
    setTexts();
}

QString ConnectionPage::caption() const
{
    return tr("Connection");
}

void ConnectionPage::setKindFixed()
{
    const QList<QAbstractButton*> buttons = m_kinds.buttons();
    for (QAbstractButton* const button : buttons)
        button->setEnabled(false);
    m_fixedNote->show();
    setTexts();
}

void ConnectionPage::setPlans(const ConnectionChoice::Plans& plans, bool isAnswered)
{
    m_answer = isAnswered ? Answer::Given : Answer::Refused;
    const ConnectionChoice::Plans chosen = ticked();
    for (const Plan& plan : qAsConst(m_plans))
        delete plan.box;
    m_plans.clear();
    for (auto plan = plans.constBegin(); plan != plans.constEnd(); ++plan)
        m_plans.append({plan.key(), plan.value()});
    for (auto plan = chosen.constBegin(); plan != chosen.constEnd(); ++plan) {
        if (!plans.contains(plan.key()))
            m_plans.append({plan.key(), plan.value(), isAnswered});
    }
    addBoxes(chosen);
    setTexts();
}

/** One for each plan, in the order of their names, those of chosen ticked. */
void ConnectionPage::addBoxes(const ConnectionChoice::Plans& chosen)
{
    std::sort(m_plans.begin(), m_plans.end(),
              [](const Plan& a, const Plan& b) { return a.name.localeAwareCompare(b.name) < 0; });
    QWidget* above = m_somePlans;
    for (Plan& plan : m_plans) {
        plan.box = new QCheckBox;
        plan.box->setChecked(chosen.contains(plan.uuid));
        connect(plan.box, &QCheckBox::clicked, this, &ConnectionPage::choose);
        // Above the note.
        m_planColumn->insertWidget(m_planColumn->count() - 1, plan.box);
        setTabOrder(above, plan.box);
        above = plan.box;
    }
}

ConnectionChoice::Plans ConnectionPage::ticked() const
{
    ConnectionChoice::Plans plans;
    for (const Plan& plan : m_plans) {
        if (plan.box->isChecked())
            plans.insert(plan.uuid, plan.name);
    }
    return plans;
}

void ConnectionPage::choose()
{
    enableParts();
    ConnectionChoice choice;
    choice.kind = m_any->isChecked()      ? ConnectionKind::Any
                  : m_manual->isChecked() ? ConnectionKind::Manual
                                          : ConnectionKind::Mobile;
    if (m_somePlans->isChecked())
        choice.plans = ticked();
    choice.isNotWhileRoaming = m_notWhileRoaming->isChecked();
    if (choice == m_choice)
        return;
    m_choice = choice;
    Q_EMIT chosen(choice);
}

void ConnectionPage::enableParts()
{
    m_mobilePart->setEnabled(m_mobile->isChecked());
    m_planPart->setEnabled(m_somePlans->isChecked());
}

void ConnectionPage::showEvent(QShowEvent* event)
{
    Q_EMIT plansWanted();
    QWidget::showEvent(event);
}

void ConnectionPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QWidget::changeEvent(event);
}

void ConnectionPage::setTexts()
{
    m_runNote->setText(tr("In this run the command line says which connections count. "
                          "What you choose here counts from the next start on."));
    m_fixedNote->setText(fixedReason());
    for (QRadioButton* const button : {m_mobile, m_any, m_manual})
        button->setAccessibleDescription(button->isEnabled() ? QString() : fixedReason());
    m_mobile->setText(tr("&Mobile broadband"));
    m_anyPlan->setText(tr("An&y plan"));
    m_somePlans->setText(tr("Only the plans &ticked here"));
    m_notWhileRoaming->setText(tr("Not while &roaming"));
    m_any->setText(tr("&Any connection"));
    m_manual->setText(tr("My own &button"));
    for (const Plan& plan : qAsConst(m_plans)) {
        const QString name = ShownText::isolatedName(ShownText::shortLine(plan.name.isEmpty() ? plan.uuid : plan.name));
        const QString text = plan.isGone ? tr("%1 (not there now)").arg(name) : name;
        plan.box->setText(QString(text).replace(QLatin1Char('&'), QLatin1String("&&")));
    }
    m_plansNote->setText(plansNote());
    m_plansNote->setVisible(!m_plansNote->text().isEmpty());
    m_somePlans->setAccessibleDescription(m_plansNote->text());
}

/** What is to be said of the plans; empty for nothing. */
QString ConnectionPage::plansNote() const
{
    if (m_answer == Answer::Refused)
        return tr("NetworkManager does not say which plans there are.");
    if (!m_plans.isEmpty())
        return tr("While none is ticked, any plan counts.");
    return m_answer == Answer::Given ? tr("There are no mobile plans yet.") : QString();
}
