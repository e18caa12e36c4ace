// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Who frees the dialog's record: whoever took it, else the dialog at its next OK.

#include <QLineEdit>

#include "OpenDialog.h"
#include "Records.h"
#include "ShownPage.h"
#include "Test.h"

class DialogRecordOwnershipTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordLeftToTheDialogGoesAtTheNextOk();
    void recordOfAFailedOkGoesAtTheNextOk();
    void takenRecordOutlivesTheNextOk();
    void takingCountsForOneRecordOnly();
    void takingAnotherRecordIsIgnored();
    void takenRecordOutlivesTheDialog();
    void everyOkBuildsAFreshRecord();
};

namespace
{
void pressOkOnce(OpenDialog& dialog)
{
    dialog.fill(1, "First");
    dialog.pressOk();
}

void pressOkAgain(OpenDialog& dialog, const char* name)
{
    dialog->ShowNewEditDlg(dialog.host());
    dialog.enter(dialog->m_appNameEdit, name);
    dialog.pressOk();
}
} // namespace

void DialogRecordOwnershipTest::recordLeftToTheDialogGoesAtTheNextOk()
{
    OpenDialog dialog;
    pressOkOnce(dialog);
    const RecordProbe first(dialog->m_record);
    dialog.pressCancel();
    QVERIFY(!first.isFreed());
    pressOkAgain(dialog, "Second");
    QVERIFY(first.isFreed());
    QCOMPARE(dialog.added.size(), 2);
}

void DialogRecordOwnershipTest::recordOfAFailedOkGoesAtTheNextOk()
{
    OpenDialog dialog(names("Taken"));
    dialog.fill(1, "Taken");
    dialog.pressOk();
    QVERIFY(dialog->m_record);
    const RecordProbe failed(dialog->m_record);
    pressOkAgain(dialog, "Taken");
    QVERIFY(failed.isFreed());
    QCOMPARE(difference(*dialog->m_record, QuickLinkRecord()), "");
}

void DialogRecordOwnershipTest::takenRecordOutlivesTheNextOk()
{
    OpenDialog dialog;
    dialog.takeRecords();
    pressOkOnce(dialog);
    const QScopedPointer<QuickLinkRecord> first(dialog.addedObjects.first());
    // It stays the last one built, however often it is taken.
    QCOMPARE(dialog->m_record, first.data());
    dialog->recordTaken(first.data());
    QCOMPARE(dialog->m_record, first.data());
    const RecordProbe probe(first.data());
    pressOkAgain(dialog, "Second");
    const QScopedPointer<QuickLinkRecord> second(dialog->m_record);
    QVERIFY(!probe.isFreed());
    QVERIFY(first.data() != second.data());
    QCOMPARE(first->name, "First");
    QCOMPARE(second->name, "Second");
}

void DialogRecordOwnershipTest::takingCountsForOneRecordOnly()
{
    OpenDialog dialog(names("Stored"));
    pressOkOnce(dialog);
    const QScopedPointer<QuickLinkRecord> first(dialog->m_record);
    dialog->recordTaken(first.data());
    // A failed OK builds a record that nobody took.
    pressOkAgain(dialog, "Stored");
    const RecordProbe failed(dialog->m_record);
    pressOkAgain(dialog, "Second");
    QVERIFY(failed.isFreed());
    QCOMPARE(first->name, "First");
}

void DialogRecordOwnershipTest::takingAnotherRecordIsIgnored()
{
    const QuickLinkRecord stranger;
    const QuickLinkRecord* const others[] = {nullptr, &stranger};
    for (const QuickLinkRecord* other : others) {
        OpenDialog dialog;
        // Nor does it matter before there is any record.
        dialog->recordTaken(other);
        pressOkOnce(dialog);
        const RecordProbe first(dialog->m_record);
        dialog->recordTaken(other);
        pressOkAgain(dialog, "Second");
        QVERIFY(first.isFreed());
    }
}

void DialogRecordOwnershipTest::takenRecordOutlivesTheDialog()
{
    OpenDialog dialog;
    dialog.takeRecords();
    pressOkOnce(dialog);
    const QScopedPointer<QuickLinkRecord> first(dialog->m_record);
    const RecordProbe probe(first.data());
    dialog.deleteDialogObject();
    dialog.deleteHost();
    QVERIFY(!probe.isFreed());
    QCOMPARE(first->name, "First");
}

void DialogRecordOwnershipTest::everyOkBuildsAFreshRecord()
{
    OpenDialog dialog;
    dialog.takeRecords();
    dialog.fill(0, "First", "/");
    dialog.enter(dialog->m_appParamEdit, "--new");
    dialog->onSelectLaunchOnConnect(true);
    dialog.pressOk();
    const QScopedPointer<QuickLinkRecord> first(dialog->m_record);
    first->id = "7";
    first->delete_ = first->edit = first->visible = "0";
    dialog->ShowNewEditDlg(dialog.host());
    dialog.chooseType(1);
    dialog.pressOk();
    const QScopedPointer<QuickLinkRecord> second(dialog->m_record);
    QCOMPARE(difference(*second, makeRecord("First", "email", "mailto:")), "");
}

REGISTER_TEST(DialogRecordOwnershipTest)
#include "DialogRecordOwnershipTest.moc"
