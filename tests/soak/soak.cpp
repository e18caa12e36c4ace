// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The real program with the real plug-in, without a display, doing one thing after the other so many times.
//
//   soak REBUILDS PAGES CONNECTIONS LAUNCHES
//     REBUILDS     of the menu, as when links changed
//     PAGES        showings of the settings with the links' page, each with a New dialog that is cancelled
//     CONNECTIONS  changes of the connection by the button in the window, up and down
//     LAUNCHES     of a link, each a start of a program that ends at once
//
// Prints a row of Markdown for each with the bytes that malloc holds more for every time, from the end of the first
// quarter to the end; fails when they are more than is kept on purpose.

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <functional>

#include <malloc.h>
#include <unistd.h>

#include "ConnectionPanel.h"
#include "Host.h"
#include "INotify.h"
#include "IPluginContainer.h"
#include "MainWindow.h"
#include "OutlivingProcess.h"
#include "SettingsDialog.h"
#include "Startup.h"
#include "Translator.h"
#include "UserFolder.h"

namespace
{
const int links = 3;
// The plug-in keeps every action that it hands out until its end, as whoever asked for it may still use it. With all
// that hangs on it, one was measured to take 493 bytes with Qt 5.15 and 850 with Qt 6.4.
#if QT_VERSION < 0x060000
const double bytesOfAction = 640;
#else
const double bytesOfAction = 1100;
#endif
// What no operation may grow by: the smallest thing that malloc hands out has 32 bytes.
const double bytesOfNothing = 24;
// What the toolkit's caches may grow by meanwhile, however often something is done.
const double bytesOfCaches = 160 * 1024;

long long heldBytes()
{
    // What is to be deleted later is no growth.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    const struct mallinfo2 heap = mallinfo2();
    return static_cast<long long>(heap.uordblks) + static_cast<long long>(heap.hblkhd);
}

/** Resident memory in KiB. */
long residentKilobytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLong() * (::sysconf(_SC_PAGESIZE) / 1024);
}

/** One thing that the program does over and over. */
struct Work {
    const char* name;
    int times;
    double bytesAllowed; ///< each time
    std::function<void()> once;
};

/** Whether it grows by no more than it may. */
bool soak(const Work& work)
{
    long long held[5] = {heldBytes()};
    const long residentBefore = residentKilobytes();
    for (int quarter = 1; quarter <= 4; ++quarter) {
        for (int i = 0; i < work.times / 4; ++i)
            work.once();
        held[quarter] = heldBytes();
    }
    const double times = work.times / 4 * 3;
    const double growth = double(held[4] - held[1]);
    const bool isFlat = growth <= work.bytesAllowed * times + bytesOfCaches;
    std::printf("| %s | %d | %.1f | %.0f | %.2f | %.2f | %.2f | %.2f | %.1f | %s |\n", work.name, work.times,
                growth / times, work.bytesAllowed, double(held[1]) / 1e6, double(held[2]) / 1e6, double(held[3]) / 1e6,
                double(held[4]) / 1e6, double(residentKilobytes() - residentBefore) / 1024, isFlat ? "yes" : "NO");
    std::fflush(stdout);
    return isFlat;
}

template <class Widget>
Widget* shownWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        Widget* const found = qobject_cast<Widget*>(window);
        if (found && found->isVisible())
            return found;
    }
    qFatal("a window is missing");
    return nullptr;
}

QAction* settingsAction()
{
    const QList<QAction*> actions = shownWindow<MainWindow>()->findChildren<QAction*>();
    for (QAction* action : actions) {
        if (action->shortcut() == QKeySequence(QStringLiteral("Ctrl+,")))
            return action;
    }
    qFatal("there are no settings");
    return nullptr;
}

/** The entry of a link in the menu. */
QAction* linkAction(const QString& name)
{
    const QList<QAction*> actions = shownWindow<MainWindow>()->linkMenu().actions();
    for (QAction* action : actions) {
        if (action->data().toString() == name)
            return action;
    }
    qFatal("there is no link %s", qPrintable(name));
    return nullptr;
}

void click(const char* name)
{
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget* widget : all) {
        if (widget->objectName() == QLatin1String(name) && widget->window()->isVisible())
            return qobject_cast<QAbstractButton*>(widget)->click();
    }
    qFatal("there is no %s", name);
}

void rebuildMenu()
{
    const HostContract::Component& manager = HostContract::menuManager;
    INotify* const menu =
        qobject_cast<INotify*>(Startup::GetPluginContainer()->GetPlugin(QLatin1String(manager.clsid), manager.kind));
    menu->Notify(HostContract::linksChanged, 0, 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void showPage()
{
    QTimer::singleShot(0, [] {
        click("m_newBtn");
        QTimer::singleShot(0, [] {
            click("m_cancelBtn");
            QTimer::singleShot(0, [] { shownWindow<SettingsDialog>()->accept(); });
        });
    });
    settingsAction()->trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void changeConnection()
{
    shownWindow<MainWindow>()->findChild<ConnectionPanel*>()->findChild<QPushButton*>()->click();
    QCoreApplication::processEvents();
}

void launch(QAction* link)
{
    link->trigger();
    while (OutlivingProcess::count() > 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/** A user's folder with links that start a program that ends at once. */
bool writeLinks(const QString& folder)
{
    const QString place = folder + QStringLiteral("/plugins/QuickLinkUIPlugin");
    QFile file(place + QStringLiteral("/config.xml"));
    if (!QDir().mkpath(place) || !file.open(QIODevice::WriteOnly))
        return false;
    QByteArray items;
    for (int i = 0; i < links; ++i)
        items +=
            "<item id=\"" + QByteArray::number(i) + "\" name=\"L" + QByteArray::number(i) +
            "\" type=\"IDS_LINK_TYPE_APPLICATION\" url=\"/bin/true\" para=\"\" startconnect=\"0\" startmobile=\"0\" "
            "delete=\"1\" edit=\"1\" visible=\"1\"/>\n";
    return file.write("<tovadoc><menu>\n" + items + "</menu></tovadoc>\n") > 0;
}
} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.info=false\nqt.qpa.plugin.warning=false"));
    int times[4] = {};
    for (int i = 0; i < 4; ++i)
        times[i] = argc == 5 ? std::atoi(argv[i + 1]) : 0;
    const QTemporaryDir folder;
    if (times[0] < 4 || times[1] < 4 || times[2] < 4 || times[3] < 4 || !writeLinks(folder.path())) {
        std::fprintf(stderr, "usage: soak REBUILDS PAGES CONNECTIONS LAUNCHES, each at least 4\n");
        return 2;
    }
    UserFolder::setPath(folder.path());
    Translator translator;
    Host host(translator);
    host.guardLinks(false);
    host.loadPlugins(QStringLiteral(SOAK_PLUGINS));
    host.showWindow(ConnectionKind::Manual);
    QCoreApplication::processEvents();

    std::printf("| what | times | bytes each | at most | MB after a quarter | half | three quarters | all | resident "
                "MB more | flat |\n"
                "|---|--:|--:|--:|--:|--:|--:|--:|--:|---|\n");
    bool isFlat = soak({"the menu made anew", times[0], links * bytesOfAction, rebuildMenu});
    isFlat = soak({"settings, page and dialog shown", times[1], bytesOfNothing, showPage}) && isFlat;
    isFlat = soak({"connection up or down", times[2], bytesOfNothing, changeConnection}) && isFlat;
    QAction* const link = linkAction(QStringLiteral("L1"));
    isFlat = soak({"link opened", times[3], bytesOfNothing,
                   [link] {
                       launch(link);
                   }}) &&
             isFlat;
    return isFlat ? 0 : 1;
}
