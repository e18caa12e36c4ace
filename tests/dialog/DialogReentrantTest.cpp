// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Whoever hears of the dialog or shows its message may dispose of it meanwhile: nothing freed is touched.

#include <QLineEdit>
#include <QPushButton>

#include "FakeHost.h"
#include "OpenDialog.h"
#include "QuickLinkXmlParse.h"
#include "Records.h"
#include "ShownPage.h"
#include "Test.h"

namespace
{
/** When something goes. */
enum Moment { NameMessage, PathMessage, AddRecord, Cancel };
const char* const momentTitles[] = {"message about the name", "message about the path", "addRecord()",
                                    "cancelNewButton()"};

/** What goes, and in which order. */
enum Disposal { Object, Host, ObjectThenHost, HostThenObject, ListOfTheStore };
const char* const disposalTitles[] = {"object", "host widget", "object, then host widget", "host widget, then object",
                                      "list of the store"};

void dispose(OpenDialog& dialog, int disposal)
{
    if (disposal == Object || disposal == ObjectThenHost)
        dialog.deleteDialogObject();
    if (disposal != Object && disposal != ListOfTheStore)
        dialog.deleteHost();
    if (disposal == HostThenObject)
        dialog.deleteDialogObject();
    if (disposal == ListOfTheStore)
        QuickLinkXmlParse::GetInstance()->ReadXmlInformation();
}

/** Disposes of the dialog in the middle of its signals. */
class SignalDisposer : public QObject
{
    Q_OBJECT

public:
    SignalDisposer(OpenDialog& dialog, int disposal)
        : m_dialog(dialog)
        , m_disposal(disposal)
    {
        connect(dialog.get(), SIGNAL(addRecord(QuickLinkRecord*)), this, SLOT(disposeOfDialog()));
        connect(dialog.get(), SIGNAL(cancelNewButton()), this, SLOT(disposeOfDialog()));
    }

private Q_SLOTS:
    void disposeOfDialog() { dispose(m_dialog, m_disposal); }

private:
    OpenDialog& m_dialog;
    int m_disposal;
};

/** Disposes of the dialog's object while its frame closes. */
class CloseDisposer : public QObject
{
public:
    explicit CloseDisposer(OpenDialog& dialog)
        : m_dialog(dialog)
    {
        FakeHost::instance().frames.first().frame->installEventFilter(this);
    }

    bool eventFilter(QObject* frame, QEvent* event) override
    {
        if (event->type() == QEvent::Close)
            dispose(m_dialog, Object);
        return QObject::eventFilter(frame, event);
    }

private:
    OpenDialog& m_dialog;
};
} // namespace

class DialogReentrantTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void disposal_data();
    void disposal();
    void disposalWhileTheFrameCloses_data();
    void disposalWhileTheFrameCloses();
    void okInsideTheMessage();
    void pageGoesDuringTheMessage_data();
    void pageGoesDuringTheMessage();
};

void DialogReentrantTest::disposal_data()
{
    QTest::addColumn<int>("moment");
    QTest::addColumn<int>("disposal");
    for (int moment = NameMessage; moment <= Cancel; ++moment) {
        for (int disposal = Object; disposal <= ListOfTheStore; ++disposal) {
            const QByteArray title = QByteArray(momentTitles[moment]) + ": " + disposalTitles[disposal];
            QTest::newRow(title.constData()) << moment << disposal;
        }
    }
}

void DialogReentrantTest::disposal()
{
    QFETCH(int, moment);
    QFETCH(int, disposal);
    OpenDialog dialog(moment == NameMessage ? names("One") : QStringList());
    dialog.fill(0, "One", moment == AddRecord ? "/" : "/no/such/file");
    FakeHost::instance().duringMessage = [&] {
        dispose(dialog, disposal);
    };
    const SignalDisposer disposer(dialog, disposal);
    if (moment == Cancel)
        dialog->m_cancelBtn->click();
    else
        dialog->m_okBtn->click();
    QCOMPARE(FakeHost::instance().messages.size(), moment == NameMessage || moment == PathMessage ? 1 : 0);
    QCOMPARE(dialog.added.size(), moment == AddRecord ? 1 : 0);
    QCOMPARE(dialog.wasOpenWhenCancelled.size(), moment == Cancel ? 1 : 0);
    QCOMPARE(dialog.get() == nullptr, disposal != Host && disposal != ListOfTheStore);
    if (disposal == Host)
        QVERIFY(!dialog->m_frameDialog);
}

void DialogReentrantTest::disposalWhileTheFrameCloses_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("records");
    QTest::newRow("OK") << "m_okBtn" << 1;
    QTest::newRow("Cancel") << "m_cancelBtn" << 0;
}

void DialogReentrantTest::disposalWhileTheFrameCloses()
{
    QFETCH(QString, button);
    OpenDialog dialog;
    dialog.fill(1, "Mail");
    const CloseDisposer disposer(dialog);
    dialog.find<QPushButton>(button)->click();
    QVERIFY(!dialog.get());
    QTEST(int(dialog.added.size()), "records");
    // Nobody is left to say that the user cancelled.
    QCOMPARE(dialog.wasOpenWhenCancelled.size(), 0);
}

void DialogReentrantTest::okInsideTheMessage()
{
    OpenDialog dialog(names("One"));
    dialog.fill(1, "One");
    FakeHost::instance().duringMessage = [&] {
        dialog->m_appNameEdit->setText("Two");
        dialog->onClickOkButton();
    };
    dialog->onClickOkButton();
    // The outer OK ends where its name was refused; the record of the inner one is not touched by it.
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(dialog->m_record, dialog.addedObjects.first());
    QCOMPARE(difference(*dialog->m_record, makeRecord("Two", "email", "mailto:")), "");
}

void DialogReentrantTest::pageGoesDuringTheMessage_data()
{
    QTest::addColumn<bool>("byDestroying");
    QTest::newRow("the host ends the plug-in") << true;
    QTest::newRow("the user presses New again") << false;
}

void DialogReentrantTest::pageGoesDuringTheMessage()
{
    QFETCH(bool, byDestroying);
    ShownPage shown;
    shown.begin(links("One"));
    shown.click("m_newBtn");
    shown.chooseType(1);
    shown.enter("m_appNameEdit", "One");
    const QPointer<QuickLinkSettingNewEditDlg> dialog = shown.page->m_newDlg;
    QVERIFY(dialog);
    QuickLinkRecord* last = nullptr;
    FakeHost::instance().duringMessage = [&] {
        last = dialog->m_record;
        if (byDestroying)
            shown.page->OnDestroy();
        else
            shown.page->onNewBtnClick();
    };
    shown.pressOk();
    // The dialog never frees the last record that it built.
    const QScopedPointer<QuickLinkRecord> leftOver(last);
    QVERIFY(leftOver);
    QCOMPARE(FakeHost::instance().messages.size(), 1);
    QVERIFY(!dialog);
    shown.end();
}

REGISTER_TEST(DialogReentrantTest)
#include "DialogReentrantTest.moc"
