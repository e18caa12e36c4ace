// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The program without a display, working on the links' page by itself: what run_faults.py breaks.
//
//   fault_driver DATA OPERATION FIRST FAULT
//     OPERATION  look, start, connections, edit, up, down, delete or new=NAME; all but the first three work on the
//     second
//                link, and connections lets ten come up and go down
//     FIRST      the file call of the operation from which on calls fail; 0 for none
//     FAULT      the number of the error; -1 for a kill; "room" for a disk on which FIRST bytes are left;
//                "record" to note the file calls in the file JOURNAL
//
// With the name of a file in FOREIGN_LINKS, another program's links take the place of the user's just before the last
// click; with MOVED_FOLDER, the plug-in's folder gets that name then. With UNGUARDED set, the guard hears nothing of
// that click; it is for comparing times. With WITHOUT_GUARD, there is neither a guard nor a lock.
//
// Prints a line of JSON: the links in the window, the messages, the file calls and bytes of the operation, and the
// microseconds of the last click, of the guard's look before plug-ins are loaded, and of loading them, the operator's
// links included.

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTableWidget>
#include <QTimer>

#include <cstdio>
#include <functional>

#include "FileCalls.h"
#include "FolderLock.h"
#include "Host.h"
#include "PluginNotifications.h"
#include "SettingsDialog.h"
#include "Translator.h"
#include "UnguardedHost.h"
#include "UserFolder.h"

namespace
{
template <class Widget>
Widget* named(const char* name)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->objectName() == QLatin1String(name))
            return qobject_cast<Widget*>(window);
        if (Widget* const found = window->findChild<Widget*>(QLatin1String(name)))
            return found;
    }
    qFatal("there is no %s", name);
    return nullptr;
}

void click(const char* button)
{
    named<QAbstractButton>(button)->click();
}

/** Chooses OK in the question that is about to come. */
void confirm()
{
    QTimer::singleShot(0, [] {
        if (QMessageBox* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->button(QMessageBox::Ok)->click();
    });
}

void fillDialog(const QString& name)
{
    named<QComboBox>("m_appTypeChoice")->setCurrentIndex(1);
    QMetaObject::invokeMethod(named<QComboBox>("m_appTypeChoice"), "activated", Q_ARG(int, 1));
    named<QLineEdit>("m_appNameEdit")->setText(name);
    QMetaObject::invokeMethod(named<QLineEdit>("m_appNameEdit"), "textEdited", Q_ARG(QString, name));
    named<QAbstractButton>("m_okBtn")->setEnabled(true);
}

/** One run of the program. */
class Driver
{
public:
    explicit Driver(const QStringList& arguments)
        : m_data(arguments.at(1))
        , m_operation(arguments.at(2))
        , m_first(arguments.at(3).toInt())
        , m_fault(arguments.at(4))
    {
    }

    void arm() const
    {
        const QString foreign = qEnvironmentVariable("FOREIGN_LINKS");
        const QString links = m_data + QStringLiteral("/plugins/QuickLinkUIPlugin/config.xml");
        if (!foreign.isEmpty() && !(QFile::remove(links) && QFile::copy(foreign, links)))
            qFatal("%s cannot be replaced", qPrintable(links));
        const QString moved = qEnvironmentVariable("MOVED_FOLDER");
        if (!moved.isEmpty() && !QFile::rename(QFileInfo(links).path(), moved))
            qFatal("the plug-in's folder cannot be moved");
        const QByteArray folder = QFile::encodeName(m_data);
        if (m_fault == QLatin1String("room"))
            armFileSpace(folder.constData(), m_first);
        else if (isRecording())
            recordFileCalls(folder.constData(), qgetenv("JOURNAL").constData());
        else
            armFileCalls(folder.constData(), m_first, m_fault.toInt());
    }

    bool isStart() const { return m_operation == QLatin1String("start"); }
    bool isRecording() const { return m_fault == QLatin1String("record"); }
    bool isEdit() const { return m_operation == QLatin1String("edit"); }
    bool isNew() const { return m_operation.startsWith(QLatin1String("new")); }
    QString newName() const { return m_operation.mid(int(qstrlen("new="))); }

    /** What the guard does before plug-ins are loaded. */
    void guard(Host& host, bool wasInterrupted)
    {
        QElapsedTimer timer;
        timer.start();
        host.guardLinks(wasInterrupted);
        m_guardTime = timer.nsecsElapsed() / 1000;
    }

    /** What comes after that until plug-ins are loaded. */
    void load(Host& host)
    {
        QElapsedTimer timer;
        timer.start();
        host.loadPlugins(QStringLiteral(FAULT_PLUGINS));
        m_loadTime = timer.nsecsElapsed() / 1000;
    }

    /** Once the window is there. */
    void work(const PluginContainer& container)
    {
        if (m_operation == QLatin1String("connections")) {
            for (int i = 0; i < 20; ++i)
                PluginNotifications::tellConnectionChanged(container, i % 2 == 0, QStringLiteral("tried"));
        }
        if (isStart() || m_operation == QLatin1String("look") || m_operation == QLatin1String("connections"))
            return later(3, [this] { report(); });
        // The settings have a loop of their own.
        later(1, [this] { prepare(); });
        const QList<QAction*> entries = window()->findChildren<QAction*>();
        for (QAction* entry : entries) {
            if (entry->shortcut() == QKeySequence(QStringLiteral("Ctrl+,")))
                return entry->trigger();
        }
        qFatal("there are no settings");
    }

private:
    static QMainWindow* window()
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget* widget : windows) {
            if (QMainWindow* const found = qobject_cast<QMainWindow*>(widget))
                return found;
        }
        return nullptr;
    }

    /** Does it when everything that waits now, and what that leads to, has been done. */
    static void later(int turns, const std::function<void()>& work)
    {
        QTimer::singleShot(0, [turns, work] { turns > 1 ? later(turns - 1, work) : work(); });
    }

    void prepare()
    {
        QTableWidget* const table = named<QTableWidget>("m_QLinkListTblView");
        // Row 1, so that both Up and Down have somewhere to go.
        table->setCurrentCell(1, 0);
        if (isNew())
            click("m_newBtn");
        else if (isEdit())
            click("m_editBtn");
        later(2, [this] { act(); });
    }

    void act()
    {
        later(8, [this] { closeSettings(); });
        if (isNew() || isEdit())
            fillDialog(isEdit() ? QStringLiteral("edited") : newName());
        if (m_operation == QLatin1String("delete"))
            confirm();
        if (qEnvironmentVariableIsSet("UNGUARDED"))
            UserFolder::setListener(nullptr);
        if (!isRecording())
            arm();
        QElapsedTimer timer;
        timer.start();
        click(lastButton());
        m_clickTime = timer.nsecsElapsed() / 1000;
    }

    /** What sets the operation off. */
    const char* lastButton() const
    {
        if (isNew() || isEdit())
            return "m_okBtn";
        if (m_operation == QLatin1String("delete"))
            return "m_deleteBtn";
        return m_operation == QLatin1String("up") ? "m_upBtn" : "m_downBtn";
    }

    void closeSettings()
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget* widget : windows) {
            if (SettingsDialog* const settings = qobject_cast<SettingsDialog*>(widget))
                settings->accept();
        }
        later(2, [this] { report(); });
    }

    void report()
    {
        // From here on a change must last.
        markFileCalls("done");
        QJsonArray links;
        const QList<QAction*> entries = window()->menuBar()->actions().at(1)->menu()->actions();
        for (const QAction* entry : entries) {
            if (entry->isEnabled())
                links.append(entry->data().toString());
        }
        QJsonArray messages;
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (const QWidget* widget : windows) {
            const QMessageBox* const box = qobject_cast<const QMessageBox*>(widget);
            if (box && box->isVisible())
                messages.append(box->text());
        }
        const QJsonObject answer{{QStringLiteral("links"), links},
                                 {QStringLiteral("messages"), messages},
                                 {QStringLiteral("calls"), countedFileCalls()},
                                 {QStringLiteral("bytes"), qint64(countedFileBytes())},
                                 {QStringLiteral("click"), m_clickTime},
                                 {QStringLiteral("guard"), m_guardTime},
                                 {QStringLiteral("load"), m_loadTime}};
        std::printf("%s\n", QJsonDocument(answer).toJson(QJsonDocument::Compact).constData());
        std::fflush(stdout);
        QApplication::closeAllWindows();
        QCoreApplication::quit();
    }

    QString m_data;
    QString m_operation;
    int m_first;
    QString m_fault;
    qint64 m_clickTime = 0; ///< microseconds
    qint64 m_guardTime = 0; ///< microseconds
    qint64 m_loadTime = 0;  ///< microseconds
};

template <class Program>
void run(Program& host, Driver& driver)
{
    QTimer::singleShot(0, [&] { driver.work(host.container()); });
    QApplication::exec();
}

/** As main() of the program does it. */
int runGuarded(Driver& driver)
{
    Translator translator;
    FolderLock lock(UserFolder::path());
    Host host(translator);
    if (lock.take() == FolderLock::Busy)
        return 1;
    driver.guard(host, lock.wasLeftBehind());
    driver.load(host);
    host.showWindow(ConnectionKind::Manual);
    run(host, driver);
    if (!host.endLinks())
        lock.leaveBehind();
    return 0;
}

int runUnguarded(Driver& driver)
{
    UnguardedHost host;
    host.loadPlugins(QStringLiteral(FAULT_PLUGINS));
    host.showWindow();
    run(host, driver);
    return 0;
}
} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 5) {
        std::fprintf(stderr, "usage: fault_driver DATA OPERATION FIRST FAULT\n");
        return 2;
    }
    UserFolder::setPath(arguments.at(1));
    Driver driver(arguments);
    // A start begins with the first look at the folder, and what is on the disk hangs on all that was done before.
    if (driver.isStart() || driver.isRecording())
        driver.arm();
    return qEnvironmentVariableIsSet("WITHOUT_GUARD") ? runUnguarded(driver) : runGuarded(driver);
}
