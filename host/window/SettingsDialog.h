// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QList>

#include "SettingsPage.h"

class OfferLine;
class PageArea;
class ProgramPage;
class QLabel;
class QListWidget;

/** The settings: a list of the plug-ins' pages and the program's own, and the page chosen there. Made anew each time it
 * is opened. */
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    /** Offers the pages of plugins, which must stay loaded while the dialog is open. parent may be null. */
    SettingsDialog(const QList<PluginWith<ISettingUIPlugin>>& plugins, QWidget* parent);

    /** Offers page, which becomes the dialog's, below those of the plug-ins and those that were added before. */
    void addPage(ProgramPage* page);

    /** Lets the page of this name be the first to show, which pageName() told; where there is none, the one at the top
     * is. */
    void beginWith(const QString& page);

    /** The name of the page that shows, showed last or is to show first; the same in every language. */
    QString pageName() const { return m_pageName; }

    /** The line below the pages that offers to put something right; it stays the dialog's. */
    OfferLine& offerLine() { return *m_offerLine; }

    /** Shows the quick links' page with the link of this name chosen, as soon as the dialog is shown. */
    void chooseLink(const QString& name);

    /** Whether a line below the quick links' page says that parameters are not handed to programs. */
    void setParametersNote(bool isShown);

    /** Leaves the page that is shown and asks no plug-in for anything any more, until setPlugins(). */
    void leavePages();

    /** Offers the pages of plugins in place of the former ones, and shows the one that was shown before, if any. */
    void setPlugins(const QList<PluginWith<ISettingUIPlugin>>& plugins);

    /** Closes when every plug-in agrees; else shows the page of the one that does not. */
    void accept() override;

    /** Cancels, as do Escape and the window's close button, when every plug-in agrees; else as accept(). */
    void reject() override;

protected:
    /** Shows the first page, now that the dialog has its size, and lets the keyboard be there. */
    void showEvent(QShowEvent* event) override;

    /** Follows a change of the language. The pages are told by their plug-ins. */
    void changeEvent(QEvent* event) override;

private:
    bool allAgree(bool (SettingsPage::*question)() const);
    void listPages();
    void setTexts();
    void showPage(int index);
    QWidget* shown();
    ProgramPage* ownPage(int row) const;
    void growToPage();
    QString nameOf(int row) const;
    bool isLinkPageShown() const;
    void showNote();

    QList<SettingsPage> m_pages;
    QList<ProgramPage*> m_ownPages; ///< below those of the plug-ins
    QString m_pageName;
    QString m_choice;     ///< the link to be chosen when the dialog is shown
    int m_shown = -1;     ///< index of the page in the area
    int m_shownLast = -1; ///< index of the page that was in the area before
    QListWidget* m_list = nullptr;
    PageArea* m_area = nullptr;
    OfferLine* m_offerLine = nullptr;
    QLabel* m_note = nullptr;
    bool m_hasNote = false;
    QLabel* m_hint = nullptr; ///< stands where there are no pages
};
