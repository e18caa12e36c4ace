// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// A screen reader has a role for every widget that shows, and a name for every one that can be operated.

#include <QAccessible>
#include <QListWidget>

#include "Catalogue.h"
#include "ConnectionMonitor.h"
#include "ConnectionPage.h"
#include "ConnectionPanel.h"
#include "Decisions.h"
#include "GeneralPage.h"
#include "HistoryPage.h"
#include "LanguageMenu.h"
#include "LinkHistory.h"
#include "MainWindow.h"
#include "PluginWindows.h"
#include "ShownLanguage.h"
#include "Test.h"
#include "WhyWindow.h"

class ScreenReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mainWindow_data() { addLanguageRows(); }
    void mainWindow();
    void settings_data() { addLanguageRows(); }
    void settings();
    void whyWindow_data() { addLanguageRows(); }
    void whyWindow();
    void linkDialog_data() { addLanguageRows(); }
    void linkDialog();
};

/** What is spoken of a widget first: its label, or its own name. */
static QString spokenName(QAccessibleInterface* widget)
{
    const QVector<QPair<QAccessibleInterface*, QAccessible::Relation>> labels = widget->relations(QAccessible::Label);
    return labels.isEmpty() ? widget->text(QAccessible::Name) : labels.constFirst().first->text(QAccessible::Name);
}

/** Whether the user operates it: the keyboard goes to it, and not on to another. */
static bool isControl(const QWidget* widget)
{
    return widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy();
}

/** The widgets of window that show and lack a role or a name, and how many have been looked at. */
static QStringList unspoken(const QWidget* window, int& count)
{
    QStringList found;
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (!widget->isVisible() || widget->window() != window)
            continue;
        const QString what = QString("%1 \"%2\"").arg(widget->metaObject()->className(), widget->objectName());
        QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(widget);
        if (!spoken || spoken->role() == QAccessible::NoRole)
            found.append(what + " has no role");
        else if (isControl(widget) && spokenName(spoken).trimmed().isEmpty())
            found.append(what + " has no name");
        ++count;
    }
    return found;
}

void ScreenReaderTest::mainWindow()
{
    QFETCH(QString, language);
    const ShownLanguage shown(language);
    ConnectionMonitor monitor;
    monitor.start(nullptr);
    MainWindow window(new ConnectionPanel(monitor, ConnectionKind::Manual),
                      new LanguageMenu(catalogueLanguages(), QString()));
    std::vector<std::unique_ptr<QAction>> actions;
    QList<QAction*> links;
    for (int i = 0; i < 12; ++i) {
        actions.push_back(std::make_unique<QAction>());
        actions.back()->setData(QString("Link %1").arg(i));
        links.append(actions.back().get());
    }
    window.setLinks(links);
    window.show();
    int count = 0;
    QCOMPARE(unspoken(&window, count).join("; "), QString());
    QVERIFY2(count > 20, qPrintable(QString::number(count)));
}

void ScreenReaderTest::settings()
{
    QFETCH(QString, language);
    const ShownLanguage shown(language);
    const PluginWindows windows;
    QVERIFY(windows.settings());
    const QTemporaryDir folder;
    const LinkHistory history(folder.path(), folder.filePath("history"));
    windows.settings()->addPage(new HistoryPage(history));
    ConnectionPage* const connection = new ConnectionPage(ConnectionChoice(), true);
    connection->setPlans({{"1", "Home"}, {"2", ""}}, true);
    windows.settings()->addPage(connection);
    windows.settings()->addPage(new GeneralPage(false));
    QListWidget* const list = windows.settings()->findChild<QListWidget*>();
    QCOMPARE(list->count(), 4);
    for (int page = 0; page < list->count(); ++page) {
        list->setCurrentRow(page);
        int count = 0;
        QCOMPARE(unspoken(windows.settings(), count).join("; "), QString());
        QVERIFY2(count > 8, qPrintable(QString::number(count)));
    }
}

void ScreenReaderTest::whyWindow()
{
    QFETCH(QString, language);
    const ShownLanguage shown(language);
    Decisions decisions;
    decisions.add({QDateTime::currentDateTime(), "Link", "cause", "outcome"});
    WhyWindow window(decisions, nullptr);
    window.show();
    int count = 0;
    QCOMPARE(unspoken(&window, count).join("; "), QString());
    QVERIFY2(count > 4, qPrintable(QString::number(count)));
}

void ScreenReaderTest::linkDialog()
{
    QFETCH(QString, language);
    const ShownLanguage shown(language);
    PluginWindows windows;
    QVERIFY(windows.settings() && windows.linkDialog());
    for (int type = 0; type < 3; ++type) {
        windows.chooseType(type);
        int count = 0;
        QCOMPARE(unspoken(windows.linkDialog(), count).join("; "), QString());
        QVERIFY2(count > 10, qPrintable(QString::number(count)));
    }
}

REGISTER_TEST(ScreenReaderTest)
#include "ScreenReaderTest.moc"
