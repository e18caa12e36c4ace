// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <vector>

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include "QuickLinkSettingNewEditDlg.h"

/** A pointer member of the dialog. */
struct Member {
    const char* name;
    void* address;   ///< of the member itself
    bool isNamed;    ///< a widget whose object name is its member name
    QObject* object; ///< what it pointed at when it was listed; may be null
    bool isNull() const;
};

/** The widget and layout members in the order in which the class declares them. */
QList<Member> membersOf(QuickLinkSettingNewEditDlg* dialog);

/** The one of that name. */
Member memberOf(QuickLinkSettingNewEditDlg* dialog, const QString& name);

/** Makes members of a dialog null while it lives, and gives them back their values afterwards. */
class NullMember
{
public:
    NullMember(QuickLinkSettingNewEditDlg* dialog, const QString& name);
    ~NullMember();

private:
    NullMember(const NullMember&);
    NullMember& operator=(const NullMember&);

    void* m_address;
    void* m_value;
};

/** Adds a test row for each name, called "no <name>", with the name in the column "member". */
void addMemberRows(const QStringList& names);

/** How many times each name stands in a text of names separated by blanks. */
QStringList names(const char* blankSeparated);

/** A pattern for the line that function leaves when a pointer that it needs is null. */
QString nullTrace(const char* function);

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

    /** What the host and the page may do at any time: the dialog's frame goes with its parent, but its object stays. */
    void deleteHost();
    void deleteDialogObject();

    // What the user does.
    void chooseType(int index);
    void enter(QLineEdit* edit, const char* text);
    void fill(int type, const char* name, const char* target);
    void pressOk();
    void pressCancel();

    bool isOpen() const;
    bool isOkEnabled() const;

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
    QPointer<QWidget> m_host;
    QPointer<QuickLinkSettingNewEditDlg> m_dialog;
    bool m_takesRecords;
};
