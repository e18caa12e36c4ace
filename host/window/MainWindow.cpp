// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The window itself; its menus are in MainWindowMenus.cpp.

#include "MainWindow.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScreen>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>

#include "ConnectionPanel.h"
#include "Heading.h"
#include "LinkButtons.h"
#include "OfferLine.h"
#include "ShownText.h"

static const int manyLinks = 12; // about as many as the window shows

MainWindow::MainWindow(ConnectionPanel* panel, QMenu* languageMenu)
    : m_linkButtons(new LinkButtons)
    , m_linkHeading(newHeading(1))
    , m_filter(new QLineEdit)
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
    column->addWidget(m_filter);
    column->addWidget(m_linkButtons, 1);
    column->addWidget(m_offerLine);
    setCentralWidget(content);
    connect(m_filter, &QLineEdit::textChanged, m_linkButtons, &LinkButtons::setFilter);
    connect(m_filter, &QLineEdit::returnPressed, this, [this] {
        if (!m_filter->text().isEmpty())
            m_linkButtons->openFirst();
    });
    m_appearance.setSingleShot(true);
    connect(&m_appearance, &QTimer::timeout, this, &MainWindow::appeared);
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
    const bool areMany = actions.size() >= manyLinks;
    m_find->setEnabled(areMany);
    m_filter->setVisible(areMany);
    if (!areMany)
        m_filter->clear();
}

void MainWindow::restorePlace(const QByteArray& place)
{
    if (!restoreGeometry(place) || isMaximized())
        return;
    // The toolkit looks that the title is not above the screen, and leaves all else alone if a corner is on one.
    const QRect found = geometry();
    const QScreen* const screen = QGuiApplication::screenAt(found.center());
    const QRect area = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    QRect whole = found;
    whole.moveRight(std::min(whole.right(), area.right()));
    whole.moveLeft(std::max(whole.left(), area.left()));
    whole.moveBottom(std::min(whole.bottom(), area.bottom()));
    if (whole != found)
        setGeometry(whole);
}

void MainWindow::stayHidden()
{
    appear();
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

/** What no button and no field took. */
void MainWindow::keyPressEvent(QKeyEvent* event)
{
    // What an open menu did not take comes here as well.
    if (QApplication::activePopupWidget())
        return QMainWindow::keyPressEvent(event);
    const bool isText = !event->text().isEmpty() && event->text().at(0).isPrint() &&
                        !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (event->key() == Qt::Key_Escape) {
        m_filter->clear();
    } else if (isText && m_filter->isVisible() && !m_filter->hasFocus()) {
        m_filter->setFocus();
        QCoreApplication::sendEvent(m_filter, event);
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    Q_EMIT closed();
}

void MainWindow::hideEvent(QHideEvent* event)
{
    QMainWindow::hideEvent(event);
    if (!event->spontaneous())
        Q_EMIT hidden();
}

void MainWindow::appear()
{
    if (m_hasAppeared)
        return;
    m_hasAppeared = true;
    // Later: whoever hears it may open windows or wait for the disk, and this one is on its way to the screen.
    m_appearance.start();
}
