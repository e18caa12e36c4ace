// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "SettingsDialog.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QScreen>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

#include "LinkPage.h"
#include "LinkPageKeys.h"
#include "LinkRowDelegate.h"
#include "OfferLine.h"
#include "PageArea.h"
#include "ProgramPage.h"

SettingsDialog::SettingsDialog(const QList<PluginWith<ISettingUIPlugin>>& plugins, QWidget* parent)
    : QDialog(parent)
    , m_pages(SettingsPage::of(plugins))
    , m_list(new QListWidget)
    , m_area(new PageArea)
    , m_offerLine(new OfferLine)
    , m_note(new QLabel)
    , m_hint(new QLabel)
{
    QVBoxLayout* const column = new QVBoxLayout(this);
    QHBoxLayout* const row = new QHBoxLayout;
    column->addLayout(row, 1);
    row->addWidget(m_list);
    row->addWidget(m_area, 1);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setMinimumSize(320, 120);
    row->addWidget(m_hint);
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    m_note->hide();
    column->addWidget(m_note);
    column->addWidget(m_offerLine);
    connect(m_offerLine, &OfferLine::offered, this, [this] {
        if (isVisible()) {
            layout()->activate();
            growToPage();
        }
    });

    connect(m_area, &PageArea::resized, this, &SettingsDialog::growToPage);
    listPages();
    connect(m_list, &QListWidget::currentRowChanged, this, &SettingsDialog::showPage);

    QDialogButtonBox* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    // Like the buttons of the pages. One toolkit's style draws the text beside its icon wrongly from right to left.
    const QList<QAbstractButton*> both = buttons->buttons();
    for (QAbstractButton* button : both)
        button->setIcon(QIcon());
    connect(buttons, &QDialogButtonBox::accepted, this, &SettingsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SettingsDialog::reject);
    column->addWidget(buttons);
}

void SettingsDialog::addPage(ProgramPage* page)
{
    m_ownPages.append(page);
    page->setParent(m_area->pageParent());
    page->hide();
    m_list->clear();
    listPages();
}

void SettingsDialog::beginWith(const QString& page)
{
    m_pageName = page;
}

/** Of the page at a row of the list; empty for none. */
QString SettingsDialog::nameOf(int row) const
{
    if (row < 0 || row >= m_list->count())
        return QString();
    return row < m_pages.size() ? m_pages.at(row).name() : ownPage(row)->name();
}

void SettingsDialog::listPages()
{
    const int count = int(m_pages.size() + m_ownPages.size());
    for (int i = 0; i < count; ++i)
        m_list->addItem(QString());
    setTexts();
    m_list->setVisible(count > 0);
    m_area->setVisible(count > 0);
    m_hint->setVisible(count == 0);
}

void SettingsDialog::chooseLink(const QString& name)
{
    if (!isVisible()) {
        m_choice = name;
        return;
    }
    for (int i = 0; i < m_pages.size(); ++i) {
        m_list->setCurrentRow(i);
        if (!isLinkPageShown())
            continue;
        const LinkPage page(m_area->pageParent());
        return page.select(int(page.names().indexOf(name)));
    }
}

void SettingsDialog::setParametersNote(bool isShown)
{
    m_hasNote = isShown;
    showNote();
}

bool SettingsDialog::isLinkPageShown() const
{
    // A page that the dialog has left may still be there.
    const LinkPage page(m_area->pageParent());
    return page.isThere() && page.table()->isVisibleTo(this);
}

/** Where it belongs, which may need more room. */
void SettingsDialog::showNote()
{
    const bool isShown = m_hasNote && isLinkPageShown();
    if (isShown == !m_note->isHidden())
        return;
    m_note->setVisible(isShown);
    if (isShown && isVisible()) {
        layout()->activate();
        growToPage();
    }
}

void SettingsDialog::leavePages()
{
    m_shownLast = m_shown;
    showPage(-1);
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    m_pages.clear();
}

void SettingsDialog::setPlugins(const QList<PluginWith<ISettingUIPlugin>>& plugins)
{
    m_pages = SettingsPage::of(plugins);
    listPages();
    if (m_shownLast >= 0 && m_list->count() > 0)
        m_list->setCurrentRow(std::min(m_shownLast, m_list->count() - 1));
}

void SettingsDialog::accept()
{
    if (!allAgree(&SettingsPage::accept))
        return;
    showPage(-1);
    QDialog::accept();
}

void SettingsDialog::reject()
{
    if (allAgree(&SettingsPage::reject))
        QDialog::reject();
}

/** Asks page after page, and shows the first that says no. */
bool SettingsDialog::allAgree(bool (SettingsPage::*question)() const)
{
    for (int i = 0; i < m_pages.size(); ++i) {
        if (!(m_pages.at(i).*question)()) {
            m_list->setCurrentRow(i);
            return false;
        }
    }
    return true;
}

void SettingsDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    const bool isOpening = m_shown < 0 && m_list->count() > 0;
    if (isOpening) {
        int first = m_list->count() - 1;
        while (first > 0 && nameOf(first) != m_pageName)
            --first;
        m_list->setCurrentRow(first);
    }
    if (!m_choice.isEmpty())
        chooseLink(std::exchange(m_choice, QString()));
    if (isOpening)
        m_area->takeFocus();
}

void SettingsDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QDialog::changeEvent(event);
}

void SettingsDialog::setTexts()
{
    setWindowTitle(tr("Settings"));
    m_note->setText(tr("Programs start without the parameters that a link has for them."));
    m_hint->setText(tr("None of the loaded plug-ins has settings."));
    m_list->setAccessibleName(tr("Pages"));
    for (int i = 0; i < m_list->count(); ++i)
        m_list->item(i)->setText(i < m_pages.size() ? m_pages.at(i).caption() : ownPage(i)->caption());
    m_list->setFixedWidth(m_list->sizeHintForColumn(0) + 4 * fontMetrics().averageCharWidth());
}

void SettingsDialog::showPage(int index)
{
    for (ProgramPage* page : qAsConst(m_ownPages))
        page->hide();
    if (m_shown >= 0 && m_shown < m_pages.size())
        m_pages.at(m_shown).hide();
    m_area->setPage(nullptr);
    m_shown = index;
    if (m_shown < 0)
        return;
    m_pageName = nameOf(m_shown);
    QWidget* const page = shown();
    m_area->setPage(page, LinkPage(page).isThere() ? PageArea::Wanted : PageArea::Whole);
    showNote();
    growToPage();
}

/** Builds and shows the page whose turn it is. */
QWidget* SettingsDialog::shown()
{
    if (m_shown < m_pages.size()) {
        QWidget* const page = m_pages.at(m_shown).show(m_area->pageParent(), m_area->pageParent()->rect());
        LinkPageKeys::addTo(page);
        LinkRowDelegate::addTo(page);
        return page;
    }
    ownPage(m_shown)->show();
    return ownPage(m_shown);
}

/** The program's own page at a row of the list. */
ProgramPage* SettingsDialog::ownPage(int row) const
{
    return m_ownPages.at(row - int(m_pages.size()));
}

void SettingsDialog::growToPage()
{
    const QSize missing = (m_area->sizeHint() - m_area->size()).expandedTo(QSize(0, 0));
    // The desktop may still be at giving the window its size.
    if (!missing.isNull())
        resize((size() + missing).boundedTo(screen()->availableSize()));
}
