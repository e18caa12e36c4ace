// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QPushButton>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QTableWidget>
#include <QWidget>

#include "ExtendDialog.h"
#include "LoadedPlugin.h"
#include "PointerMembers.h"
#include "RecordProbe.h"

class QuickLinkSettingNewEditDlg;

/** The ten widgets, then the four layouts, of a page that may be half built. */
QList<PointerMember> membersOf(QuickLinkSettingPluginDlg* page);

/** The one of that name. */
PointerMember memberOf(QuickLinkSettingPluginDlg* page, const QString& name);

/** Gives a pointer variable another value while it lives. */
template <class T>
class Replaced
{
public:
    Replaced(T*& pointer, T* value)
        : m_pointer(pointer)
        , m_before(pointer)
    {
        m_pointer = value;
    }
    ~Replaced() { m_pointer = m_before; }

private:
    Replaced(const Replaced&);
    Replaced& operator=(const Replaced&);

    T*& m_pointer;
    T* m_before;
};

/** Links of the given names, which blanks separate: Internet, e-mail and application in turn, with ids from 0. */
QuickLinkRecordList links(const char* names);

/** A file that exists wherever the test runs. */
QString existingFile();

/** The plug-in with its settings page on the screen, in a widget of the host. */
class ShownPage : public LoadedPlugin
{
public:
    /** Starts the plug-in on a file that holds these links (hidden ones would not be read) and shows the page. */
    void begin(const QuickLinkRecordList& records);

    /** The same, but without the page. */
    void beginHidden(const QuickLinkRecordList& records);

    /** The host shows the page in its widget. */
    void show(QRect area = QRect(0, 0, 450, 400));

    /** The host changes its language and tells it. The plug-in's answer. */
    int changeLanguage(const char* language = "de");

    /** The host ends the plug-in and deletes its object, whatever else goes on. */
    void deletePlugin();

    /** Ends the plug-in, then the host's widget. Frees the records that the dialogs leave. Harmless before begin(). */
    void end();

    QPointer<QWidget> host;

    // What is seen.
    QTableWidget* table() const;
    QPushButton* button(const char* name) const;
    QString enabledButtons() const; ///< "New Edit Delete Up Down", less the disabled ones
    QString shownNames() const;     ///< names in the rows, separated by blanks
    QString listNames() const;      ///< names in the record list; "none" where there is no list
    int currentRow() const { return table()->currentRow(); }
    QuickLinkRecord* recordOf(int row) const; ///< by the number in the row's first item; null for 0

    /** The names of the links where rows and list agree, else what is wrong. */
    QString linkNames() const;

    /** Empty while every row shows the element of the list in its place and owns a copy of it, the id aside. */
    QString disorder() const;

    // What the user does.
    void click(const char* buttonName);
    void select(int row, int column = 0);

    // The dialog opened last.
    int liveFrames() const; ///< how many dialogs of this test exist
    ExtendDialog* frame() const;
    template <class T>
    T* inDialog(const char* name) const
    {
        return frame()->findChild<T*>(QLatin1String(name));
    }
    void enter(const char* editName, const QString& text);
    void chooseType(int index);
    void pressOk() { pressInDialog("m_okBtn"); }
    void pressCancel() { pressInDialog("m_cancelBtn"); }
    /** Presses New, fills the dialog and presses its OK. type is 0 application, 1 e-mail, 2 Internet. */
    void addLink(int type, const char* name, const QString& target = QString());

    /** Makes one change to the selected link by mouse and keyboard: "New" (d), "Edit" (to x), "Delete", "Up" or "Down".
     */
    void change(const QString& what);

    // What the page leaves outside.
    static QByteArray file() { return FakeHost::instance().readConfig(); }
    static int told() { return int(FakeHost::instance().notifications.size()); } ///< how often the menu was told

    /** The file, if it is written now from the list with this counter: ids as they are in memory. */
    QByteArray expectedFile(const char* currentId) const;

private:
    void pressInDialog(const char* buttonName);
    static void freeLeftRecord(QuickLinkSettingNewEditDlg* dialog);
};
