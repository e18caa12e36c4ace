// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QMainWindow>
#include <QPointer>
#include <QUrl>
#include <QWidget>

#include "FakeAnswers.h"
#include "INotify.h"
#include "IQuickLinkPlugin.h"
#include "ISettingUIPlugin.h"
#include "IUIPlugin.h"
#include "RecordedEvents.h"

/**
 * A plug-in that answers what a test sets as its properties, and records "<plug-in> <event>" for what happens to it.
 *
 *   links      names of its links; an empty one has no action
 *   linkCount  how many links it claims to have, where that is another number
 *   answer     to a notification
 *   opens      an address that it opens at a notification and where one of its links is launched
 *   caption    of its settings page; empty for none
 *   isInactive whether its page takes no part in the dialog
 *   isPageless whether it shows no page although it has a caption
 *   pageSize   smallest size of the page
 *   refuses    whether it does not let the settings dialog close
 */
class FakePlugin : public QObject,
                   public FakeAnswers<IUIPlugin>,
                   public INotify,
                   public IQuickLinkPlugin,
                   public ISettingUIPlugin
{
    Q_OBJECT
    Q_INTERFACES(IBasePlugin IUIPlugin INotify IQuickLinkPlugin ISettingUIPlugin)

public:
    explicit FakePlugin(const QString& name) { setObjectName(name); }

    QString GetCLSID() override { return objectName(); }
    QString GetPluginName() override { return objectName(); }
    void OnDestroy() override
    {
        int windows = 0;
        const QWidgetList all = QApplication::topLevelWidgets();
        for (const QWidget* window : all)
            windows += qobject_cast<const QMainWindow*>(window) ? 1 : 0;
        record(QString("OnDestroy, %1 windows").arg(windows));
    }

    int ShowWindow(QWidget*, QRect&) override { return 0; }
    int DoModal() override { return 0; }
    void Hide() override {}
    void FitSize(QRect&) override {}
    int IsReady() override { return 0; }
    int ChangeLang(const QString& language) override
    {
        record("ChangeLang " + language);
        return 1;
    }

    int Notify(unsigned int code, unsigned int param1, unsigned int param2) override
    {
        record(QString("Notify %1 %2 %3").arg(code).arg(param1).arg(param2));
        open();
        return property("answer").toInt();
    }

    int GetQuickLinkRecordSize() override
    {
        record("asked");
        const QVariant count = property("linkCount");
        return count.isValid() ? count.toInt() : int(property("links").toStringList().size());
    }
    QAction* GetActionFromQuickLink(int index) override
    {
        const QString name = property("links").toStringList().value(index);
        return name.isEmpty() ? nullptr : new QAction(name, this);
    }
    void LaunchQuickLinkAction(QAction* action) override
    {
        const bool isOwn = findChildren<QAction*>().contains(action);
        record(isOwn ? "launched " + action->text() : "launched a foreign action");
        open();
    }

    int OnClickSettingOkButton() override
    {
        record("OK");
        return property("refuses").toBool() ? 0 : 1;
    }
    int OnClickSettingCancelButton() override
    {
        record("Cancel");
        return property("refuses").toBool() ? 0 : 1;
    }
    int ShowSettingDialog(QWidget* parent, QRect& area) override
    {
        record("shown");
        if (property("isPageless").toBool())
            return 0;
        if (!m_page) {
            m_page = new QWidget(parent);
            m_page->setObjectName(objectName());
            m_page->setMinimumSize(property("pageSize").toSize().expandedTo(QSize(0, 0)));
        }
        m_page->setGeometry(area);
        m_page->show();
        return 1;
    }
    QString GetModuleName() override { return property("caption").toString(); }
    int HideSetting() override
    {
        record("hidden");
        if (m_page)
            m_page->hide();
        return 1;
    }
    int IsActiveSetting() override { return property("isInactive").toBool() ? 0 : 1; }

private:
    void record(const QString& event) const { recordEvent(objectName() + ' ' + event); }
    void open() const
    {
        const QString address = property("opens").toString();
        if (!address.isEmpty())
            QDesktopServices::openUrl(QUrl(address));
    }

    QPointer<QWidget> m_page;
};
