// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// CommonUtils::ShowMessage().

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>

#include "AddressProblem.h"
#include "Change.h"
#include "CommonUtils.h"
#include "EditLinkButton.h"
#include "FailureList.h"
#include "OpenedLink.h"
#include "Opening.h"
#include "PlainMessage.h"

namespace
{

/** Keeps Escape and the close button from a message that must be answered by one of its buttons. */
class CloseGuard : public QObject
{
public:
    explicit CloseGuard(QObject* box)
        : QObject(box)
    {
        box->installEventFilter(this);
    }

    bool eventFilter(QObject* box, QEvent* event) override
    {
        const bool isEscape =
            event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
        if (event->type() == QEvent::Close)
            event->ignore();
        return isEscape || event->type() == QEvent::Close || QObject::eventFilter(box, event);
    }
};

/** The text of a button: the host's for keys that every plug-in may use, else the quick links' own. */
QString buttonText(const QString& key)
{
    const QString text = Change::tr(key, QLatin1String("CommonUtils"));
    return text == key ? Change::tr(key, QLatin1String("QuickLinkUIPlugin")) : text;
}

void addButton(QMessageBox* box, QMessageBox::StandardButton number, const QString& key)
{
    if (!key.isEmpty())
        box->addButton(number)->setText(buttonText(key));
}

/** The link that the quick links refuse with this text to open, which says neither which it is nor why; else null. */
const OpenedLink* refusedLink(const QString& text)
{
    const QString refusal =
        Change::tr(QLatin1String("IDS_LINK_SETTING_INVALID_URL"), QLatin1String("QuickLinkUIPlugin"));
    return text == refusal ? OpenedLink::current() : nullptr;
}

/** The window in which the user picked a link; null where it is none of this program's, such as the desktop's tray. */
QWidget* windowOfUser()
{
    if (QWidget* const active = QApplication::activeWindow())
        return active;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (qobject_cast<QMainWindow*>(window) && window->isVisible())
            return window;
    }
    return nullptr;
}

} // namespace

int CommonUtils::ShowMessage(QMessageBox::Icon icon, QWidget* parent, QString title, QString text, QString firstButton,
                             QString secondButton, QString thirdButton, bool beep, QFlags<Qt::WindowType> flags,
                             QDialog** dialogOut, QString details, bool closable)
{
    FailureList refused;
    if (const OpenedLink* const link = refusedLink(text)) {
        const QString reason = AddressProblem::sentence(link->address());
        Opening(link->address()).refuse(reason);
        title = FailureList::notOpened();
        refused.add(title, reason, link->address(), link->name());
        text = refused.text();
        details = refused.details();
        // The page that the quick links name may stand in no window any more.
        parent = windowOfUser();
    }
    // On the heap: with its parent it may be deleted while it is open.
    const QPointer<QMessageBox> box = newPlainMessage(icon, parent, title, text, flags);
    addButton(box, QMessageBox::Ok, firstButton);
    addButton(box, QMessageBox::Cancel, secondButton);
    addButton(box, QMessageBox::Ignore, thirdButton);
    EditLinkButton* edit = nullptr;
    if (EditLinkButton::isOfferedFor(refused.link())) {
        edit = new EditLinkButton;
        edit->setLink(refused.link(), false);
        box->addButton(edit, QMessageBox::ActionRole);
    }
    const QMessageBox::StandardButton closed = secondButton.isEmpty() ? QMessageBox::Ok : QMessageBox::Cancel;
    box->setDefaultButton(QMessageBox::Ok);
    box->setEscapeButton(closed);
    if (!details.isEmpty())
        box->setDetailedText(details);
    if (!closable) {
        // Only a customised window may lack the close button that the toolkit gives to every message box.
        box->setWindowFlags((box->windowFlags() | Qt::CustomizeWindowHint) & ~Qt::WindowCloseButtonHint);
        new CloseGuard(box);
    }
    if (beep)
        QApplication::beep();

    if (dialogOut)
        *dialogOut = box;
    const int answer = box->exec();
    if (dialogOut)
        *dialogOut = nullptr;
    if (edit && box && box->clickedButton() == edit)
        edit->edit();
    const bool isButton = box && box->button(QMessageBox::StandardButton(answer));
    delete box;
    return isButton ? answer : closed;
}
