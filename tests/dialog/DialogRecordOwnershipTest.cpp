// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Who frees the dialog's record: whoever took it, else the dialog at its next OK.

#include <QLineEdit>

#include "OpenDialog.h"
#include "FakeHost.h"
#include "Records.h"
#include "Test.h"

class DialogRecordOwnershipTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordLeftToTheDialogGoesAtTheNextOk();
    void recordOfAFailedOkGoesAtTheNextOk();
    void takenRecordOutlivesTheNextOk();
    void takenRecordStaysTheLastOneBuilt();
    void takingCountsForOneRecordOnly();
    void takingAnotherRecordIsIgnored_data();
    void takingAnotherRecordIsIgnored();
    void takenRecordOutlivesTheDialog();
    void everyOkBuildsAFreshRecord();
};

namespace
{
/** Shares a text with a record's parameters, so that the record's end shows: nobody else shares it then. */
class LifeSign
{
public:
    explicit LifeSign(QuickLinkRecord* record)
        : m_text(QString(20, 'x'))
    {
        record->para = m_text;
    }

    bool isAlive() const { return !m_text.isDetached(); }

private:
    QString m_text;
};

void pressOkOnce(OpenDialog& dialog)
{
    dialog.fill(1, "First", "");
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
    const LifeSign first(dialog->m_record);
    dialog.pressCancel();
    QVERIFY(first.isAlive());
    pressOkAgain(dialog, "Second");
    QVERIFY(!first.isAlive());
    QCOMPARE(dialog.added.size(), 2);
}

void DialogRecordOwnershipTest::recordOfAFailedOkGoesAtTheNextOk()
{
    OpenDialog dialog(names("Taken"));
    dialog.fill(1, "Taken", "");
    dialog.pressOk();
    QVERIFY(dialog->m_record);
    const LifeSign failed(dialog->m_record);
    pressOkAgain(dialog, "Taken");
    QVERIFY(!failed.isAlive());
    QCOMPARE(difference(*dialog->m_record, QuickLinkRecord()), QString());
}

void DialogRecordOwnershipTest::takenRecordOutlivesTheNextOk()
{
    OpenDialog dialog;
    dialog.takeRecords();
    pressOkOnce(dialog);
    const QScopedPointer<QuickLinkRecord> first(dialog->m_record);
    const LifeSign sign(first.data());
    pressOkAgain(dialog, "Second");
    const QScopedPointer<QuickLinkRecord> second(dialog->m_record);
    QVERIFY(sign.isAlive());
    QVERIFY(first.data() != second.data());
    QCOMPARE(first->name, "First");
    QCOMPARE(second->name, "Second");
}

void DialogRecordOwnershipTest::takenRecordStaysTheLastOneBuilt()
{
    OpenDialog dialog;
    dialog.takeRecords();
    pressOkOnce(dialog);
    const QScopedPointer<QuickLinkRecord> first(dialog.addedObjects.first());
    QCOMPARE(dialog->m_record, first.data());
    dialog->recordTaken(first.data());
    QCOMPARE(dialog->m_record, first.data());
}

void DialogRecordOwnershipTest::takingCountsForOneRecordOnly()
{
    OpenDialog dialog(names("Stored"));
    pressOkOnce(dialog);
    const QScopedPointer<QuickLinkRecord> first(dialog->m_record);
    dialog->recordTaken(first.data());
    // A failed OK builds a record that nobody took.
    pressOkAgain(dialog, "Stored");
    const LifeSign failed(dialog->m_record);
    pressOkAgain(dialog, "Second");
    QVERIFY(!failed.isAlive());
    QCOMPARE(first->name, "First");
}

void DialogRecordOwnershipTest::takingAnotherRecordIsIgnored_data()
{
    QTest::addColumn<bool>("isNull");
    QTest::newRow("null") << true;
    QTest::newRow("a stranger's") << false;
}

void DialogRecordOwnershipTest::takingAnotherRecordIsIgnored()
{
    QFETCH(bool, isNull);
    OpenDialog dialog;
    // Nor does it matter before there is any record.
    dialog->recordTaken(nullptr);
    pressOkOnce(dialog);
    const LifeSign first(dialog->m_record);
    const QuickLinkRecord stranger;
    dialog->recordTaken(isNull ? nullptr : &stranger);
    pressOkAgain(dialog, "Second");
    QVERIFY(!first.isAlive());
}

void DialogRecordOwnershipTest::takenRecordOutlivesTheDialog()
{
    OpenDialog dialog;
    dialog.takeRecords();
    pressOkOnce(dialog);
    const QScopedPointer<QuickLinkRecord> first(dialog->m_record);
    const LifeSign sign(first.data());
    dialog.deleteDialogObject();
    dialog.deleteHost();
    QVERIFY(sign.isAlive());
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
    QCOMPARE(difference(*second, makeRecord("First", "email", "mailto:")), QString());
}

REGISTER_TEST(DialogRecordOwnershipTest)
#include "DialogRecordOwnershipTest.moc"
