// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "MainWindow.h"

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QVBoxLayout>

#include "LinkButtons.h"

/** A label whose font is larger by points and, if wanted, bold. */
static QLabel* newHeading(const QString& text, int points)
{
    QLabel* const label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() + points);
    font.setBold(true);
    label->setFont(font);
    return label;
}

MainWindow::MainWindow()
{
    // Without a title of its own the window is shown with the program's name, but a screen reader does not hear it.
    setWindowTitle(QGuiApplication::applicationDisplayName());
    QWidget* const content = new QWidget;
    QVBoxLayout* const column = new QVBoxLayout(content);
    m_linkButtons = new LinkButtons;
    column->addWidget(newConnectionPanel());
    column->addSpacing(column->spacing());
    column->addWidget(newHeading(tr("Quick Links"), 1));
    column->addWidget(m_linkButtons, 1);
    setCentralWidget(content);
    statusBar();
    buildMenus();
    setLinks({});
    resize(520, 480);
}

void MainWindow::setLinks(const QList<QAction*>& actions)
{
    m_linkMenu->clear();
    m_linkMenu->addActions(actions);
    if (actions.isEmpty())
        m_linkMenu->addAction(tr("No quick links"))->setEnabled(false);
    m_linkButtons->setActions(actions);
}

void MainWindow::buildMenus()
{
    QMenu* const connection = menuBar()->addMenu(tr("&Connection"));
    QAction* const quit = connection->addAction(tr("&Quit"), this, &QWidget::close);
    quit->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));
    quit->setStatusTip(tr("Close the program"));

    m_linkMenu = menuBar()->addMenu(tr("&Quick Links"));

    QMenu* const tools = menuBar()->addMenu(tr("&Tools"));
    QAction* const settings = tools->addAction(tr("&Settings…"), this, &MainWindow::settingsRequested);
    settings->setShortcut(QKeySequence(QStringLiteral("Ctrl+,")));
    settings->setStatusTip(tr("Add, change and order quick links"));

    QMenu* const view = menuBar()->addMenu(tr("&View"));
    QAction* const showStatusBar = view->addAction(tr("&Status Bar"));
    showStatusBar->setCheckable(true);
    showStatusBar->setChecked(true);
    connect(showStatusBar, &QAction::toggled, statusBar(), &QWidget::setVisible);

    QMenu* const help = menuBar()->addMenu(tr("&Help"));
    help->addAction(tr("&About Vellum Connect"), this, &MainWindow::showAbout);
}

QWidget* MainWindow::newConnectionPanel()
{
    QFrame* const panel = new QFrame;
    panel->setFrameShape(QFrame::StyledPanel);
    panel->setAutoFillBackground(true);
    panel->setBackgroundRole(QPalette::Base);
    QVBoxLayout* const column = new QVBoxLayout(panel);
    column->addWidget(newHeading(tr("No connection source"), 4));
    column->addWidget(new QLabel(tr("Nothing on this computer tells the state of a connection.")));
    return panel;
}

void MainWindow::showAbout()
{
    QMessageBox::about(this, tr("About Vellum Connect"),
                       tr("<h3>Vellum Connect %1</h3><p>Connection manager with quick links.</p>"
                          "<p>Free software under the MIT licence.</p>")
                           .arg(QApplication::applicationVersion()));
}
