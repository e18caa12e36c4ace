// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QMainWindow>
#include <QTimer>

class ConnectionPanel;
class LinkButtons;
class OfferLine;
class QAction;
class QLabel;
class QLineEdit;
class QMenu;

/**
 * The window: the state of the connection, the quick links as buttons below it, and the menus. Where there are many
 * links, a field finds those whose names have what the user types in the window.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /** Makes a hidden window without links, with panel at its top and languageMenu in its View menu; it owns both. */
    MainWindow(ConnectionPanel* panel, QMenu* languageMenu);

    /** Puts the window where saveGeometry() found it, and wholly onto a screen. Nothing for an empty place. */
    void restorePlace(const QByteArray& place);

    /** In place of show(): appeared() comes all the same. */
    void stayHidden();

    /** Shows actions as menu entries and buttons instead of the former ones. They stay their owner's. */
    void setLinks(const QList<QAction*>& actions);

    /** The menu of the quick links, which stays the window's. */
    QMenu& linkMenu();

    /** Whether the Edit menu offers to undo, and to redo, a change of the links. */
    void setSteps(bool canUndo, bool canRedo);

    /** The line below the links that offers to put something right; it stays the window's. */
    OfferLine& offerLine() { return *m_offerLine; }

    /** Whether the Tools menu offers to see the plug-ins that are left out. */
    void setLeftOutPlugins(bool areThere);

    /** Names the files of plug-ins that were not loaded in the status bar, until something else is said there. */
    void showNotLoaded(const QStringList& files);

    /** Keeps text at the end of the status bar until the next one, beside what comes and goes; empty for none. */
    void setPermanentStatus(const QString& text);

Q_SIGNALS:
    /** The window was painted for the first time, or will not be for now: it was minimised before, or stays hidden. */
    void appeared();

    /** The user wants to see the settings. */
    void settingsRequested();

    /** The user wants to see what was decided about connections and links. */
    void whyRequested();

    /** The user wants to see the plug-ins that are left out. */
    void leftOutPluginsRequested();

    /** The user wants to take back the last change of the links. */
    void undoRequested();

    /** The user wants the change again that was taken back last. */
    void redoRequested();

    /** The user wants to end the program. */
    void quitRequested();

    /** The user closed the window, which is now hidden. */
    void closed();

    /** The window is hidden, by whomever; a minimised one is not. */
    void hidden();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void buildMenus(QMenu* languageMenu);
    void setTexts();
    void appear();
    void showAbout();
    void find();

    LinkButtons* m_linkButtons = nullptr;
    QLabel* m_linkHeading = nullptr;
    QLineEdit* m_filter = nullptr;
    OfferLine* m_offerLine = nullptr;
    QLabel* m_permanentStatus = nullptr;
    bool m_hasAppeared = false;
    QTimer m_appearance; ///< runs out when the event loop has come round

    QMenu* m_connectionMenu = nullptr;
    QMenu* m_linkMenu = nullptr;
    QMenu* m_editMenu = nullptr;
    QMenu* m_toolsMenu = nullptr;
    QMenu* m_viewMenu = nullptr;
    QMenu* m_helpMenu = nullptr;
    QAction* m_why = nullptr;
    QAction* m_quit = nullptr;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QAction* m_find = nullptr;
    QAction* m_settings = nullptr;
    QAction* m_leftOutPlugins = nullptr;
    QAction* m_showStatusBar = nullptr;
    QAction* m_about = nullptr;
    QAction* m_noLinks = nullptr;
};
