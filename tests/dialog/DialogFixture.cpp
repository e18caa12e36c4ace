// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "DialogFixture.h"

#include <cstring>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QtTest>

#include "ExtendDialog.h"
#include "FakeHost.h"
#include "QuickLinkXmlParse.h"
#include "Records.h"
#include "TraceRecorder.h"

namespace
{
template <class T>
Member named(const char* name, T*& member)
{
    const Member entry = {name, &member, true, member};
    return entry;
}

template <class T>
Member unnamed(const char* name, T*& member)
{
    const Member entry = {name, &member, false, member};
    return entry;
}
} // namespace

bool Member::isNull() const
{
    void* value = nullptr;
    std::memcpy(&value, address, sizeof value);
    return value == nullptr;
}

QList<Member> membersOf(QuickLinkSettingNewEditDlg* dialog)
{
#define NAMED(member) named(#member, dialog->member)
#define UNNAMED(member) unnamed(#member, dialog->member)
    return QList<Member>() << UNNAMED(m_frameDialog) << UNNAMED(m_mainWidget) << NAMED(m_appTabWidget)
                           << UNNAMED(m_applicationPanel) << NAMED(m_appTab) << NAMED(m_nameLbl) << NAMED(m_typeLbl)
                           << NAMED(m_applicationPathLbl) << NAMED(m_applicationParamLbl) << NAMED(m_appPathEdit)
                           << NAMED(m_appNameEdit) << NAMED(m_appParamEdit) << NAMED(m_browseBtn)
                           << NAMED(m_launchWhenSWLaunchCB) << NAMED(m_launchWhenConnectCB) << NAMED(m_appTypeChoice)
                           << NAMED(m_okBtn) << NAMED(m_cancelBtn) << UNNAMED(m_mainLayout)
                           << UNNAMED(m_applicationLayout) << UNNAMED(m_pathLayout) << UNNAMED(m_buttonLayout)
                           << UNNAMED(m_nameLayout) << UNNAMED(m_typeLayout) << UNNAMED(m_tabLayout)
                           << NAMED(m_EmailTab) << NAMED(m_DefaultLbl) << UNNAMED(m_emailLayout)
                           << NAMED(m_launchWhenSWLaunchCBForEmail) << NAMED(m_launchWhenConnectCBForEmail)
                           << NAMED(m_InternetTab) << NAMED(m_UrlLabel) << NAMED(m_EditUrlName)
                           << UNNAMED(m_internetLayout) << NAMED(m_launchWhenSWLaunchCBForInternet)
                           << NAMED(m_launchWhenConnectCBForInternet);
#undef NAMED
#undef UNNAMED
}

Member memberOf(QuickLinkSettingNewEditDlg* dialog, const QString& name)
{
    const QList<Member> members = membersOf(dialog);
    for (const Member& member : members) {
        if (QLatin1String(member.name) == name)
            return member;
    }
    qFatal("The dialog has no member %s", qPrintable(name));
    return members.first();
}

NullMember::NullMember(QuickLinkSettingNewEditDlg* dialog, const QString& name)
    : m_address(memberOf(dialog, name).address)
    , m_value(nullptr)
{
    std::memcpy(&m_value, m_address, sizeof m_value);
    std::memset(m_address, 0, sizeof m_value);
}

NullMember::~NullMember()
{
    std::memcpy(m_address, &m_value, sizeof m_value);
}

void addMemberRows(const QStringList& memberNames)
{
    QTest::addColumn<QString>("member");
    for (const QString& name : memberNames)
        QTest::newRow(qPrintable(QLatin1String("no ") + name)) << name;
}

QStringList names(const char* blankSeparated)
{
    return QString::fromLatin1(blankSeparated).split(QLatin1Char(' '));
}

QString nullTrace(const char* function)
{
    return QString::fromLatin1("Arg is NULL: %1: %2: %3 %4")
        .arg(QLatin1String(TracePattern::time), QLatin1String(TracePattern::file), QLatin1String(function),
             QLatin1String(TracePattern::line));
}

OpenDialog::OpenDialog(const QStringList& storedNames)
    : m_host(nullptr)
    , m_dialog(nullptr)
    , m_takesRecords(false)
{
    FakeHost::instance().reset();
    QuickLinkXmlParse::GetInstance()->ReadXmlInformation();
    for (const QString& name : storedNames)
        stored().append(makeRecord(name.toUtf8().constData(), "internet", "http://example.org"));
    m_host = new QWidget;
    m_host->resize(400, 360);
    m_host->show();
    m_dialog = new QuickLinkSettingNewEditDlg;
    connect(m_dialog, SIGNAL(addRecord(QuickLinkRecord*)), this, SLOT(onAddRecord(QuickLinkRecord*)));
    connect(m_dialog, SIGNAL(cancelNewButton()), this, SLOT(onCancelNewButton()));
    m_dialog->ShowNewEditDlg(m_host);
}

OpenDialog::~OpenDialog()
{
    deleteDialogObject();
    deleteHost();
    delete QuickLinkXmlParse::GetInstance()->m_recordList;
    QuickLinkXmlParse::Destroy();
}

QuickLinkRecordList& OpenDialog::stored() const
{
    return *QuickLinkXmlParse::GetInstance()->m_recordList;
}

void OpenDialog::deleteHost()
{
    delete m_host;
}

void OpenDialog::deleteDialogObject()
{
    if (!m_dialog)
        return;
    // The dialog leaves its last record to whoever took it.
    if (!m_takesRecords)
        delete m_dialog->m_record;
    delete m_dialog;
}

void OpenDialog::chooseType(int index)
{
    QComboBox* const choice = m_dialog->m_appTypeChoice;
    choice->showPopup();
    choice->view()->setCurrentIndex(choice->model()->index(index, 0));
    QTest::keyClick(choice->view(), Qt::Key_Return);
}

void OpenDialog::enter(QLineEdit* edit, const char* text)
{
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, QString::fromUtf8(text));
}

void OpenDialog::fill(int type, const char* name, const char* target)
{
    chooseType(type);
    enter(m_dialog->m_appNameEdit, name);
    if (type == 0)
        enter(m_dialog->m_appPathEdit, target);
    else if (type == 2)
        enter(m_dialog->m_EditUrlName, target);
}

void OpenDialog::pressOk()
{
    QTest::mouseClick(m_dialog->m_okBtn, Qt::LeftButton);
}

void OpenDialog::pressCancel()
{
    QTest::mouseClick(m_dialog->m_cancelBtn, Qt::LeftButton);
}

bool OpenDialog::isOpen() const
{
    return m_dialog->m_frameDialog && m_dialog->m_frameDialog->isVisible();
}

bool OpenDialog::isOkEnabled() const
{
    return m_dialog->m_okBtn->isEnabled();
}

void OpenDialog::onAddRecord(QuickLinkRecord* record)
{
    added.append(*record);
    addedObjects.append(record);
    wasOpenWhenAdded.append(isOpen());
    if (m_takesRecords)
        m_dialog->recordTaken(record);
}

void OpenDialog::onCancelNewButton()
{
    wasOpenWhenCancelled.append(isOpen());
}
