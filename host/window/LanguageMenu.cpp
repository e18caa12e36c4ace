// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LanguageMenu.h"

#include <QActionGroup>
#include <QEvent>
#include <QLocale>

#include "FixedReason.h"

/** As its speakers call it, with a capital as befits a menu. */
static QString nameOf(const QString& language)
{
    if (language == QLatin1String("en"))
        return QStringLiteral("English"); // The toolkit knows only American and British English.
    const QLocale locale(language);
    const QString name = locale.nativeLanguageName();
    return name.isEmpty() ? language : locale.toUpper(name.at(0)) + name.mid(1);
}

static QString withoutCountry(const QString& language)
{
    return language.section(QLatin1Char('_'), 0, 0);
}

/** With its country, as its speakers call that, where languages has the language of more than one. */
static QString nameAmong(const QStringList& languages, const QString& language)
{
    const QString base = withoutCountry(language);
    int countries = 0;
    for (const QString& other : languages)
        countries += withoutCountry(other) == base ? 1 : 0;
    if (countries < 2)
        return nameOf(language);
    return QStringLiteral("%1 (%2)").arg(nameOf(base), QLocale(language).nativeCountryName());
}

LanguageMenu::LanguageMenu(const QStringList& languages, const QString& current)
    : m_group(new QActionGroup(this))
{
    m_system = add(QString(), current);
    addSeparator();
    for (const QString& language : languages)
        add(language, current)->setText(nameAmong(languages, language));
    setTexts();
    connect(m_group, &QActionGroup::triggered, this,
            [this](const QAction* action) { Q_EMIT languageChosen(action->data().toString()); });
}

void LanguageMenu::setFixed()
{
    m_group->setEnabled(false);
    addSeparator();
    m_fixed = addAction(QString());
    m_fixed->setEnabled(false);
    setTexts();
}

void LanguageMenu::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QMenu::changeEvent(event);
}

QAction* LanguageMenu::add(const QString& language, const QString& current)
{
    QAction* const action = addAction(QString());
    action->setData(language);
    action->setCheckable(true);
    action->setChecked(language == current);
    m_group->addAction(action);
    return action;
}

void LanguageMenu::setTexts()
{
    setTitle(tr("&Language"));
    m_system->setText(tr("&System Language"));
    if (m_fixed)
        m_fixed->setText(fixedReason());
}
