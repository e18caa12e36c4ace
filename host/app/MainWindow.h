// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QMainWindow>

class LinkButtons;
class QAction;
class QMenu;

/** The window: the state of the connection, the quick links as buttons below it, and the menus. */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /** Makes a hidden window without links. */
    MainWindow();

    /** Shows actions as menu entries and buttons instead of the former ones. They stay their owner's. */
    void setLinks(const QList<QAction*>& actions);

Q_SIGNALS:
    /** The user wants to see the settings. */
    void settingsRequested();

private:
    void buildMenus();
    QWidget* newConnectionPanel();
    void showAbout();

    QMenu* m_linkMenu = nullptr;
    LinkButtons* m_linkButtons = nullptr;
};
