// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include "PointerMembers.h"
#include "QuickLinkSettingNewEditDlg.h"

/** The widget and layout members in the order in which the class declares them. */
QList<PointerMember> membersOf(QuickLinkSettingNewEditDlg* dialog);

/** The names of all of them, without a dialog. */
QStringList dialogMemberNames();

/** The one of that name. */
PointerMember memberOf(QuickLinkSettingNewEditDlg* dialog, const QString& name);

/**
 * A dialog on the screen, over a widget of the host, with a store behind it and nobody who takes its records.
 *
 * Frees all of it in the end, the last record too, unless a test did so before.
 */
class OpenDialog : public QObject
{
    Q_OBJECT

public:
    /** Resets the fake host, fills the store with links of the given names and shows the dialog. */
    explicit OpenDialog(const QStringList& storedNames = QStringList());
    ~OpenDialog() override;

    QuickLinkSettingNewEditDlg* operator->() const { return m_dialog; }
    QuickLinkSettingNewEditDlg* get() const { return m_dialog; }
    QWidget* host() const { return m_host; }
    QuickLinkRecordList& stored() const;

    /** The widget of that object name, which must be there. */
    template <class T>
    T* find(const QString& name) const
    {
        return frame()->findChild<T*>(name);
    }

    /** What the host and the page may do at any time: the dialog's frame goes with its parent, but its object stays. */
    void deleteHost();
    void deleteDialogObject();

    // What the user does.
    void chooseType(int index);
    void enter(QLineEdit* edit, const QString& text);
    void fill(int type, const QString& name, const QString& target = QString());
    void pressOk();
    void pressCancel();

    // What is seen.
    bool isOpen() const;
    bool isOkEnabled() const;
    int shownPanel() const;           ///< 0 application, 1 e-mail, 2 Internet; -1 unless exactly one is visible
    QString options() const;          ///< "1" or "0" for the host's start, then for a connection
    static QStringList messageKeys(); ///< of each message that was shown, less the language before it

    /** Takes every record from now on, as a row of the page does; the test frees what it took. */
    void takeRecords() { m_takesRecords = true; }

    QList<QuickLinkRecord> added;         ///< a copy of each record emitted
    QList<QuickLinkRecord*> addedObjects; ///< the objects emitted
    QList<bool> wasOpenWhenAdded;
    QList<bool> wasOpenWhenCancelled; ///< one for each cancelNewButton()

private Q_SLOTS:
    void onAddRecord(QuickLinkRecord* record);
    void onCancelNewButton();

private:
    QWidget* frame() const;

    QPointer<QWidget> m_host;
    QPointer<QuickLinkSettingNewEditDlg> m_dialog;
    bool m_takesRecords;
};
