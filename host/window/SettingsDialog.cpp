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

#include "HistoryPage.h"
#include "LinkPageKeys.h"
#include "LinkRowDelegate.h"
#include "OfferLine.h"
#include "PageArea.h"

SettingsDialog::SettingsDialog(const QList<PluginWith<ISettingUIPlugin>>& plugins, QWidget* parent)
    : QDialog(parent)
    , m_pages(SettingsPage::of(plugins))
    , m_list(new QListWidget)
    , m_area(new PageArea)
    , m_offerLine(new OfferLine)
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
    column->addWidget(m_offerLine);
    connect(m_offerLine, &OfferLine::offered, this, [this] {
        if (isVisible()) {
            layout()->activate();
            growToPage();
        }
    });

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

void SettingsDialog::setHistory(HistoryPage* page)
{
    m_history = page;
    page->setParent(m_area->pageParent());
    page->hide();
    m_list->clear();
    listPages();
}

void SettingsDialog::listPages()
{
    const int count = int(m_pages.size()) + (m_history ? 1 : 0);
    for (int i = 0; i < count; ++i)
        m_list->addItem(QString());
    setTexts();
    m_list->setVisible(count > 0);
    m_area->setVisible(count > 0);
    m_hint->setVisible(count == 0);
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
    if (m_shown < 0 && m_list->count() > 0)
        m_list->setCurrentRow(0);
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
    m_hint->setText(tr("None of the loaded plug-ins has settings."));
    m_list->setAccessibleName(tr("Pages"));
    for (int i = 0; i < m_pages.size(); ++i)
        m_list->item(i)->setText(m_pages.at(i).caption());
    if (m_history && m_list->count() > m_pages.size())
        m_list->item(int(m_pages.size()))->setText(m_history->caption());
    m_list->setFixedWidth(m_list->sizeHintForColumn(0) + 4 * fontMetrics().averageCharWidth());
}

void SettingsDialog::showPage(int index)
{
    if (m_history)
        m_history->hide();
    if (m_shown >= 0 && m_shown < m_pages.size())
        m_pages.at(m_shown).hide();
    m_area->setPage(nullptr);
    m_shown = index;
    if (m_shown < 0)
        return;
    QWidget* const page = shown();
    m_area->setPage(page, LinkPage(page).isThere() ? PageArea::Wanted : PageArea::Whole);
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
    m_history->show();
    return m_history;
}

void SettingsDialog::growToPage()
{
    const QSize missing = (m_area->sizeHint() - m_area->size()).expandedTo(QSize(0, 0));
    // The desktop may still be at giving the window its size.
    if (!missing.isNull())
        resize((size() + missing).boundedTo(screen()->availableSize()));
}
