// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The window itself; its menus are in MainWindowMenus.cpp.

#include "MainWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QVBoxLayout>

#include "ConnectionPanel.h"
#include "Heading.h"
#include "LinkButtons.h"
#include "OfferLine.h"
#include "ShownText.h"

MainWindow::MainWindow(ConnectionPanel* panel, QMenu* languageMenu)
    : m_linkButtons(new LinkButtons)
    , m_linkHeading(newHeading(1))
    , m_offerLine(new OfferLine)
    , m_permanentStatus(new QLabel)
{
    // Without a title of its own the window is shown with the program's name, but a screen reader does not hear it.
    setWindowTitle(QGuiApplication::applicationDisplayName());
    QWidget* const content = new QWidget;
    QVBoxLayout* const column = new QVBoxLayout(content);
    column->addWidget(panel);
    column->addSpacing(column->spacing());
    column->addWidget(m_linkHeading);
    column->addWidget(m_linkButtons, 1);
    column->addWidget(m_offerLine);
    setCentralWidget(content);
    statusBar()->addPermanentWidget(m_permanentStatus);
    buildMenus(languageMenu);
    setTexts();
    setLinks({});
    resize(520, 480);
}

void MainWindow::setLinks(const QList<QAction*>& actions)
{
    // The plug-in may keep the former ones.
    const QList<QAction*> former = m_linkMenu->actions();
    for (QAction* action : former)
        action->setShortcut(QKeySequence());
    // The first nine are within reach of the keyboard.
    for (int i = 0; i < actions.size() && i < 9; ++i)
        actions.at(i)->setShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(i + 1)));
    m_linkMenu->clear();
    m_linkMenu->addActions(actions);
    if (actions.isEmpty())
        m_linkMenu->addAction(m_noLinks);
    m_linkButtons->setActions(actions);
}

QMenu& MainWindow::linkMenu()
{
    return *m_linkMenu;
}

void MainWindow::showNotLoaded(const QStringList& files)
{
    QStringList names;
    for (const QString& file : files)
        names.append(ShownText::isolatedPath(ShownText::shortLine(file)));
    statusBar()->showMessage(tr("Plug-ins not loaded: %1").arg(names.join(QStringLiteral(", "))));
}

void MainWindow::setPermanentStatus(const QString& text)
{
    m_permanentStatus->setText(text);
    m_permanentStatus->setVisible(!text.isEmpty());
}

bool MainWindow::event(QEvent* event)
{
    const bool isDone = QMainWindow::event(event);
    if (event->type() == QEvent::Paint)
        appear();
    return isDone;
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    // A window that starts as an icon may never be painted.
    if (event->type() == QEvent::WindowStateChange && isMinimized())
        appear();
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    Q_EMIT closed();
}

void MainWindow::appear()
{
    if (m_hasAppeared)
        return;
    m_hasAppeared = true;
    // Later: whoever hears it may open windows, and this one is being painted.
    QMetaObject::invokeMethod(this, "appeared", Qt::QueuedConnection);
}
