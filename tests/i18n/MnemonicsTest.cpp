// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// No two entries of a menu, and no two widgets of a window, are reached by the same letter.

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QListWidget>
#include <QMap>
#include <QMenu>
#include <QMenuBar>

#include "Catalogue.h"
#include "ConnectionMonitor.h"
#include "ConnectionPage.h"
#include "ConnectionPanel.h"
#include "Decisions.h"
#include "LanguageMenu.h"
#include "MainWindow.h"
#include "PluginWindows.h"
#include "ShownLanguage.h"
#include "Test.h"
#include "WhyWindow.h"

namespace
{
QStringList textsOf(const QWidget* menu)
{
    QStringList texts;
    const QList<QAction*> actions = menu->actions();
    for (const QAction* action : actions)
        texts.append(action->text());
    return texts;
}

/** The texts of the labels and buttons that show in a window. */
QStringList labelsIn(const QWidget* window)
{
    QStringList texts;
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (!widget->isVisible() || widget->window() != window)
            continue;
        if (const auto* const button = qobject_cast<const QAbstractButton*>(widget))
            texts.append(button->text());
        else if (const auto* const label = qobject_cast<const QLabel*>(widget))
            texts.append(label->text());
    }
    return texts;
}

/** The texts that share a letter; empty when none do. */
QString clashes(const QStringList& texts)
{
    QMap<QString, QStringList> users;
    for (const QString& text : texts)
        users[QKeySequence::mnemonic(text).toString()].append(text);
    users.remove(QString());
    QStringList lines;
    for (auto letter = users.constBegin(); letter != users.constEnd(); ++letter) {
        if (letter->size() > 1)
            lines.append(letter.key() + ": " + letter->join(", "));
    }
    return lines.join('\n');
}
} // namespace

class MnemonicsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void inMainWindow_data() { addLanguageRows(); }
    void inMainWindow();
    void inSettings_data() { addLanguageRows(); }
    void inSettings();
    void inWhyWindow_data() { addLanguageRows(); }
    void inWhyWindow();
    void inLinkDialog_data() { addLanguageRows(); }
    void inLinkDialog();
};

void MnemonicsTest::inMainWindow()
{
    QFETCH(QString, language);
    const ShownLanguage shown(language);
    QVERIFY(shown.isKnown());
    ConnectionMonitor monitor;
    monitor.start(nullptr);
    MainWindow window(new ConnectionPanel(monitor, ConnectionKind::Manual),
                      new LanguageMenu(catalogueLanguages(), QString()));
    // Names with any letter that a menu may have, so that a link would take it.
    QAction latin, cyrillic;
    latin.setData("abcdefghijklmnopqrstuvwxyz");
    cyrillic.setData(
        QString::fromUtf8("\u0430\u0431\u0432\u0433\u0434\u0435\u0436\u0437\u0438\u043a\u043b\u043c\u043d\u043e\u043f"
                          "\u0440\u0441\u0442\u0443\u0444\u0445\u0446\u0447\u0448\u0449\u044d\u044e\u044f"));
    window.setLinks(
        {&latin, &latin, &latin, &latin, &latin, &latin, &cyrillic, &cyrillic, &cyrillic, &cyrillic, &cyrillic});
    window.show();
    for (const bool isUp : {false, true}) {
        monitor.setManuallyUp(isUp);
        const QStringList buttons = labelsIn(&window);
        QVERIFY(!buttons.isEmpty());
        QCOMPARE(clashes(textsOf(window.menuBar()) + buttons), QString());
    }
    const QList<QMenu*> menus = window.menuBar()->findChildren<QMenu*>();
    QVERIFY(!menus.isEmpty());
    for (const QMenu* menu : menus)
        QCOMPARE(clashes(textsOf(menu)), QString());
}

void MnemonicsTest::inSettings()
{
    QFETCH(QString, language);
    const ShownLanguage shown(language);
    const PluginWindows windows;
    QVERIFY(windows.settings());
    ConnectionPage* const connection = new ConnectionPage(ConnectionChoice(), true);
    connection->setPlans({{"1", "R&M"}, {"2", "&Any"}}, true);
    windows.settings()->addPage(connection);
    for (const int page : {0, 1}) {
        windows.settings()->findChild<QListWidget*>()->setCurrentRow(page);
        const QStringList texts = labelsIn(windows.settings());
        QVERIFY(texts.size() > 5);
        QCOMPARE(clashes(texts), QString());
    }
}

void MnemonicsTest::inWhyWindow()
{
    QFETCH(QString, language);
    const ShownLanguage shown(language);
    const Decisions decisions;
    WhyWindow window(decisions, nullptr);
    window.show();
    const QStringList texts = labelsIn(&window);
    QCOMPARE(texts.size(), 3);
    QCOMPARE(clashes(texts), QString());
}

void MnemonicsTest::inLinkDialog()
{
    QFETCH(QString, language);
    const ShownLanguage shown(language);
    PluginWindows windows;
    QVERIFY(windows.settings() && windows.linkDialog());
    for (int type = 0; type < 3; ++type) {
        windows.chooseType(type);
        const QStringList texts = labelsIn(windows.linkDialog());
        QVERIFY(texts.size() > 5);
        QCOMPARE(clashes(texts), QString());
    }
}

REGISTER_TEST(MnemonicsTest)
#include "MnemonicsTest.moc"
