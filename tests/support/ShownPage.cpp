// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ShownPage.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>

#include "QuickLinkSettingNewEditDlg.h"

QList<PointerMember> membersOf(QuickLinkSettingPluginDlg* page)
{
#define MEMBER(name) pointerMember(#name, page->name)
    return QList<PointerMember>() << MEMBER(m_pageWidget) << MEMBER(m_QLinkTabWidget) << MEMBER(m_QLinkTab)
                                  << MEMBER(m_QLinkListTblView) << MEMBER(m_launchOrderLbl) << MEMBER(m_upBtn)
                                  << MEMBER(m_downBtn) << MEMBER(m_newBtn) << MEMBER(m_editBtn) << MEMBER(m_deleteBtn)
                                  << MEMBER(m_pageLayout) << MEMBER(m_tabLayout) << MEMBER(m_buttonColumnLayout)
                                  << MEMBER(m_orderButtonsLayout);
#undef MEMBER
}

PointerMember memberOf(QuickLinkSettingPluginDlg* page, const QString& name)
{
    return memberNamed(membersOf(page), name);
}

QuickLinkRecordList links(const char* names)
{
    const char* const types[] = {"internet", "email", "application"};
    const char* const targets[] = {"http://example.org/", "mailto:", "/usr/bin/"};
    QuickLinkRecordList records;
    const QList<QByteArray> all = QByteArray(names).split(' ');
    for (int i = 0; i < all.size(); ++i) {
        if (all.at(i).isEmpty())
            continue;
        const int kind = i % 3;
        const QByteArray target = kind == 1 ? QByteArray(targets[kind]) : targets[kind] + all.at(i);
        QuickLinkRecord record = makeRecord(all.at(i).constData(), types[kind], target.constData());
        record.id = QString::number(i);
        records.append(record);
    }
    return records;
}

QString existingFile()
{
    return QCoreApplication::applicationFilePath();
}

void ShownPage::begin(const QuickLinkRecordList& records)
{
    beginHidden(records);
    show();
}

void ShownPage::beginHidden(const QuickLinkRecordList& records)
{
    make();
    FakeHost::instance().writeConfig(configDocument("1", QString::number(records.size()), records.toList()));
    page->Init();
    host = new QWidget;
    host->resize(600, 450);
    host->show();
}

void ShownPage::show(QRect area)
{
    page->ShowSettingDialog(host, area);
}

int ShownPage::changeLanguage(const char* language)
{
    FakeHost::instance().language = QLatin1String(language);
    return page->Notify(1024, 0, 0);
}

void ShownPage::deletePlugin()
{
    page->OnDestroy();
    delete page;
    page = nullptr;
}

void ShownPage::end()
{
    if (page) {
        freeLeftRecord(page->m_newDlg);
        freeLeftRecord(page->m_editDlg);
    }
    unload();
    delete host;
}

void ShownPage::freeLeftRecord(QuickLinkSettingNewEditDlg* dialog)
{
    if (dialog && !dialog->m_isRecordTaken) {
        delete dialog->m_record;
        dialog->m_record = nullptr;
    }
}

QTableWidget* ShownPage::table() const
{
    return page->m_pageWidget->findChild<QTableWidget*>("m_QLinkListTblView");
}

QPushButton* ShownPage::button(const char* name) const
{
    return page->m_pageWidget->findChild<QPushButton*>(QLatin1String(name));
}

QString ShownPage::enabledButtons() const
{
    const char* const names[][2] = {{"m_newBtn", "New"},
                                    {"m_editBtn", "Edit"},
                                    {"m_deleteBtn", "Delete"},
                                    {"m_upBtn", "Up"},
                                    {"m_downBtn", "Down"}};
    QStringList enabled;
    for (const char* const* name : names) {
        if (button(name[0])->isEnabled())
            enabled.append(QLatin1String(name[1]));
    }
    return enabled.join(" ");
}

QString ShownPage::shownNames() const
{
    QStringList names;
    for (int row = 0; row < table()->rowCount(); ++row)
        names.append(table()->item(row, 0) ? table()->item(row, 0)->text() : "?");
    return names.join(" ");
}

QString ShownPage::listNames() const
{
    if (!page->m_recordList)
        return "none";
    QStringList names;
    for (const QuickLinkRecord& record : *page->m_recordList)
        names.append(record.name);
    return names.join(" ");
}

QuickLinkRecord* ShownPage::recordOf(int row) const
{
    const QVariant data = table()->item(row, 0)->data(Qt::UserRole);
    return reinterpret_cast<QuickLinkRecord*>(static_cast<quintptr>(data.toULongLong()));
}

QString ShownPage::linkNames() const
{
    const QString wrong = disorder();
    return wrong.isEmpty() ? listNames() : wrong + ", rows " + shownNames() + ", list " + listNames();
}

QString ShownPage::disorder() const
{
    if (table()->rowCount() != page->m_recordList->size())
        return QString("%1 rows, %2 links").arg(table()->rowCount()).arg(page->m_recordList->size());
    for (int row = 0; row < table()->rowCount(); ++row) {
        const QTableWidgetItem* const name = table()->item(row, 0);
        const QTableWidgetItem* const type = table()->item(row, 1);
        QuickLinkRecord expected = page->m_recordList->at(row);
        if (!name || !type || !recordOf(row) || name->text() != expected.name ||
            type->text() != FakeHost::instance().language + ':' + expected.type ||
            type->data(Qt::UserRole).toULongLong() != 0)
            return QString("row %1 does not show its link").arg(row);
        expected.id = recordOf(row)->id;
        const QString unlike = difference(*recordOf(row), expected);
        if (!unlike.isEmpty())
            return QString("record of row %1: ").arg(row) + unlike;
    }
    return QString();
}

void ShownPage::click(const char* buttonName)
{
    QTest::mouseClick(button(buttonName), Qt::LeftButton);
}

void ShownPage::select(int row, int column)
{
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table()->visualItemRect(table()->item(row, column)).center());
}

int ShownPage::liveFrames() const
{
    int number = 0;
    const QList<MadeFrame>& frames = FakeHost::instance().frames;
    for (const MadeFrame& made : frames) {
        if (made.frame)
            ++number;
    }
    return number;
}

ExtendDialog* ShownPage::frame() const
{
    return FakeHost::instance().frames.last().frame;
}

void ShownPage::enter(const char* editName, const QString& text)
{
    QLineEdit* const edit = inDialog<QLineEdit>(editName);
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

void ShownPage::chooseType(int index)
{
    QComboBox* const choice = inDialog<QComboBox>("m_appTypeChoice");
    choice->showPopup();
    choice->view()->setCurrentIndex(choice->model()->index(index, 0));
    QTest::keyClick(choice->view(), Qt::Key_Return);
}

void ShownPage::pressInDialog(const char* buttonName)
{
    QTest::mouseClick(inDialog<QPushButton>(buttonName), Qt::LeftButton);
}

void ShownPage::change(const QString& what)
{
    if (what == "New") {
        addLink(1, "d");
    } else if (what == "Edit") {
        click("m_editBtn");
        enter("m_appNameEdit", "x");
        pressOk();
    } else {
        const QByteArray button = "m_" + what.toLower().toLatin1() + "Btn";
        click(button.constData());
    }
}

void ShownPage::addLink(int type, const char* name, const QString& target)
{
    click("m_newBtn");
    chooseType(type);
    enter("m_appNameEdit", QString::fromUtf8(name));
    if (type == 0)
        enter("m_appPathEdit", target);
    else if (type == 2)
        enter("m_EditUrlName", target);
    pressOk();
}

QByteArray ShownPage::expectedFile(const char* currentId) const
{
    return configDocument("1", QLatin1String(currentId), page->m_recordList->toList());
}
