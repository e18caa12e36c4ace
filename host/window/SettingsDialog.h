// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QList>

#include "SettingsPage.h"

class PageArea;
class QLabel;
class QListWidget;

/** The settings: a list of the plug-ins' pages and the page chosen there. Made anew each time it is opened. */
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    /** Offers the pages of plugins, which must stay loaded while the dialog is open. parent may be null. */
    SettingsDialog(const QList<PluginWith<ISettingUIPlugin>>& plugins, QWidget* parent);

    /** Closes when every plug-in agrees; else shows the page of the one that does not. */
    void accept() override;

    /** Cancels, as do Escape and the window's close button, when every plug-in agrees; else as accept(). */
    void reject() override;

protected:
    /** Shows the first page, now that the dialog has its size. */
    void showEvent(QShowEvent* event) override;

    /** Follows a change of the language. The pages are told by their plug-ins. */
    void changeEvent(QEvent* event) override;

private:
    bool allAgree(bool (SettingsPage::*question)() const);
    void setTexts();
    void showPage(int index);
    void growToPage();

    QList<SettingsPage> m_pages;
    int m_shown = -1; ///< index of the page in the area
    QListWidget* m_list = nullptr;
    PageArea* m_area = nullptr;
    QLabel* m_hint = nullptr; ///< stands where there are no pages
};
