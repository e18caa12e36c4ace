// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The menus of the window, and the texts that follow the language.

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>

#include "ConnectionPanel.h"
#include "LinkButtons.h"
#include "MainWindow.h"
#include "OfferLine.h"

void MainWindow::buildMenus(QMenu* languageMenu)
{
    m_connectionMenu = menuBar()->addMenu(QString());
    m_why = m_connectionMenu->addAction(QString(), this, &MainWindow::whyRequested);
    m_connectionMenu->addSeparator();
    m_quit = m_connectionMenu->addAction(QString(), this, &MainWindow::quitRequested);
    m_quit->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));

    m_linkMenu = menuBar()->addMenu(QString());
    // Hundreds of links must stay within reach: columns wider than the screen would not.
    m_linkMenu->setStyleSheet(QStringLiteral("QMenu { menu-scrollable: 1; }"));
    // The whole of a name that is too long for a menu.
    m_linkMenu->setToolTipsVisible(true);
    m_noLinks = new QAction(this);
    m_noLinks->setEnabled(false);

    m_editMenu = menuBar()->addMenu(QString());
    m_undo = m_editMenu->addAction(QString(), this, &MainWindow::undoRequested);
    m_undo->setShortcut(QKeySequence(QStringLiteral("Ctrl+Z")));
    m_redo = m_editMenu->addAction(QString(), this, &MainWindow::redoRequested);
    m_redo->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+Z")));
    setSteps(false, false);
    m_editMenu->addSeparator();
    m_find = m_editMenu->addAction(QString(), this, &MainWindow::find);
    m_find->setShortcut(QKeySequence(QStringLiteral("Ctrl+F")));

    m_toolsMenu = menuBar()->addMenu(QString());
    m_settings = m_toolsMenu->addAction(QString(), this, &MainWindow::settingsRequested);
    m_settings->setShortcut(QKeySequence(QStringLiteral("Ctrl+,")));
    m_leftOutPlugins = m_toolsMenu->addAction(QString(), this, &MainWindow::leftOutPluginsRequested);
    setLeftOutPlugins(false);

    m_viewMenu = menuBar()->addMenu(QString());
    m_showStatusBar = m_viewMenu->addAction(QString());
    m_showStatusBar->setCheckable(true);
    m_showStatusBar->setChecked(true);
    connect(m_showStatusBar, &QAction::toggled, statusBar(), &QWidget::setVisible);
    languageMenu->setParent(m_viewMenu, languageMenu->windowFlags());
    m_viewMenu->addMenu(languageMenu);

    m_helpMenu = menuBar()->addMenu(QString());
    m_about = m_helpMenu->addAction(QString(), this, &MainWindow::showAbout);
}

void MainWindow::setSteps(bool canUndo, bool canRedo)
{
    m_undo->setEnabled(canUndo);
    m_redo->setEnabled(canRedo);
}

void MainWindow::find()
{
    m_filter->setFocus();
    m_filter->selectAll();
}

void MainWindow::setLeftOutPlugins(bool areThere)
{
    m_leftOutPlugins->setVisible(areThere);
}

void MainWindow::setTexts()
{
    m_connectionMenu->setTitle(tr("&Connection"));
    m_why->setText(tr("&Why…"));
    m_why->setStatusTip(tr("See which links opened or did not, and why"));
    m_quit->setText(tr("&Quit"));
    m_quit->setStatusTip(tr("Quit the program"));
    m_linkMenu->setTitle(tr("&Quick Links"));
    m_noLinks->setText(tr("No quick links"));
    m_editMenu->setTitle(tr("&Edit"));
    m_undo->setText(tr("&Undo"));
    m_undo->setStatusTip(tr("Take back the last change of the quick links"));
    m_redo->setText(tr("&Redo"));
    m_redo->setStatusTip(tr("Make the change again that was taken back"));
    m_find->setText(tr("&Find a Quick Link"));
    m_find->setStatusTip(tr("Show only the quick links with a name that you type"));
    m_filter->setPlaceholderText(tr("Find a quick link"));
    m_filter->setAccessibleName(tr("Find a quick link"));
    m_toolsMenu->setTitle(tr("&Tools"));
    m_settings->setText(tr("&Settings…"));
    m_settings->setStatusTip(tr("Add, change and order quick links"));
    m_leftOutPlugins->setText(tr("&Plug-ins Left Out…"));
    m_leftOutPlugins->setStatusTip(tr("See which plug-ins crashed or hung, and load them again"));
    m_viewMenu->setTitle(tr("&View"));
    m_showStatusBar->setText(tr("&Status Bar"));
    m_helpMenu->setTitle(tr("&Help"));
    m_about->setText(tr("&About Vellum Connect"));
    m_linkHeading->setText(tr("Quick Links"));
    m_linkButtons->setAccessibleName(tr("Quick Links"));
    QStringList captions = ConnectionPanel::captions() + OfferLine::captions();
    const QList<QAction*> menus = menuBar()->actions();
    for (const QAction* menu : menus)
        captions.append(menu->text());
    m_linkButtons->setOtherCaptions(captions);
    // In each language all menus are in sight.
    setMinimumWidth(menuBar()->sizeHint().width());
}

void MainWindow::showAbout()
{
    QMessageBox::about(this, tr("About Vellum Connect"),
                       tr("<h3>Vellum Connect %1</h3><p>Connection manager with quick links.</p>"
                          "<p>Free software under the MIT licence.</p>")
                           .arg(QApplication::applicationVersion()));
}
