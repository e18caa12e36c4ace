// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMenu>

class QActionGroup;

/** The languages to choose from, each by its own name, below "System Language". */
class LanguageMenu : public QMenu
{
    Q_OBJECT

public:
    /** Offers languages, such as "de" or "zh_CN", with current marked; empty stands for the system's. */
    LanguageMenu(const QStringList& languages, const QString& current);

    /** Shows them only: another one cannot be chosen, and an entry says why. */
    void setFixed();

Q_SIGNALS:
    /** The user chose a language; empty stands for the system's. */
    void languageChosen(const QString& language);

protected:
    /** Follows a change of the language. */
    void changeEvent(QEvent* event) override;

private:
    QAction* add(const QString& language, const QString& current);
    void setTexts();

    QActionGroup* m_group = nullptr;
    QAction* m_system = nullptr;
    QAction* m_fixed = nullptr; ///< null while one can be chosen
};
