// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Whoever hears of the dialog or shows its message may dispose of it meanwhile: nothing freed is touched.

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "OpenDialog.h"
#include "ExtendDialog.h"
#include "FakeHost.h"
#include "QuickLinkSettingPluginDlg.h"
#include "QuickLinkXmlParse.h"
#include "Records.h"
#include "RecordingTrace.h"
#include "Test.h"

namespace
{
/** What goes, and in which order. */
enum Disposal { Object, Host, ObjectThenHost, HostThenObject, ListOfTheStore };

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

const char* titleOf(int disposal)
{
    const char* const titles[] = {"object", "host widget", "object, then host widget", "host widget, then object",
                                  "list of the store"};
    return titles[disposal];
}

void addDisposals()
{
    QTest::addColumn<int>("disposal");
    for (int disposal = Object; disposal < ListOfTheStore; ++disposal)
        QTest::newRow(titleOf(disposal)) << disposal;
}

/** Disposes of the dialog in the middle of its signals. */
class Disposer : public QObject
{
    Q_OBJECT

public:
    Disposer(OpenDialog& dialog, int disposal)
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
    void duringMessage_data();
    void duringMessage();
    void duringAddRecord_data() { addDisposals(); }
    void duringAddRecord();
    void duringCancel_data() { addDisposals(); }
    void duringCancel();
    void cancelWhileTheFrameCloses();
    void okWhileTheFrameCloses();
    void okInsideTheMessage();
    void pageGoesDuringTheMessage_data();
    void pageGoesDuringTheMessage();
};

void DialogReentrantTest::duringMessage_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<int>("disposal");
    const QStringList stored("One");
    for (int disposal = Object; disposal <= ListOfTheStore; ++disposal) {
        QTest::newRow((QByteArray("name, ") + titleOf(disposal)).constData()) << stored << disposal;
        QTest::newRow((QByteArray("path, ") + titleOf(disposal)).constData()) << QStringList() << disposal;
    }
}

void DialogReentrantTest::duringMessage()
{
    QFETCH(QStringList, stored);
    QFETCH(int, disposal);
    OpenDialog dialog(stored);
    dialog.fill(0, "One", "/no/such/file");
    FakeHost::instance().duringMessage = [&] {
        dispose(dialog, disposal);
    };
    dialog->m_okBtn->click();
    QCOMPARE(FakeHost::instance().messages.size(), 1);
    QVERIFY(dialog.added.isEmpty());
    QCOMPARE(dialog.get() == nullptr, disposal != Host && disposal != ListOfTheStore);
}

void DialogReentrantTest::duringAddRecord()
{
    QFETCH(int, disposal);
    OpenDialog dialog;
    dialog.fill(1, "Mail", "");
    const Disposer disposer(dialog, disposal);
    dialog->m_okBtn->click();
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(dialog.get() == nullptr, disposal != Host);
    if (dialog.get())
        QVERIFY(!dialog->m_frameDialog);
}

void DialogReentrantTest::duringCancel()
{
    QFETCH(int, disposal);
    OpenDialog dialog;
    const Disposer disposer(dialog, disposal);
    dialog->m_cancelBtn->click();
    QCOMPARE(dialog.wasOpenWhenCancelled.size(), 1);
    QCOMPARE(dialog.get() == nullptr, disposal != Host);
}

void DialogReentrantTest::cancelWhileTheFrameCloses()
{
    OpenDialog dialog;
    CloseDisposer disposer(dialog);
    dialog->m_cancelBtn->click();
    QVERIFY(!dialog.get());
    // Nobody is left to say that the user cancelled.
    QCOMPARE(dialog.wasOpenWhenCancelled.size(), 0);
}

void DialogReentrantTest::okWhileTheFrameCloses()
{
    OpenDialog dialog;
    dialog.fill(1, "Mail", "");
    CloseDisposer disposer(dialog);
    dialog->m_okBtn->click();
    QVERIFY(!dialog.get());
    QCOMPARE(dialog.added.size(), 1);
}

void DialogReentrantTest::okInsideTheMessage()
{
    OpenDialog dialog(names("One"));
    dialog.fill(1, "One", "");
    FakeHost::instance().duringMessage = [&] {
        dialog->m_appNameEdit->setText("Two");
        dialog->onClickOkButton();
    };
    dialog->onClickOkButton();
    // The outer OK ends where its name was refused; the record of the inner one is not touched by it.
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(dialog->m_record, dialog.addedObjects.first());
    QCOMPARE(difference(*dialog->m_record, makeRecord("Two", "email", "mailto:")), QString());
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
    FakeHost& fakeHost = FakeHost::instance();
    fakeHost.reset();
    QVERIFY(fakeHost.writeConfig(
        configDocument("1", "1",
                       QList<QuickLinkRecord>() << makeRecord("One", "internet", "http://example.org"))));
    QuickLinkSettingPluginDlg page;
    QWidget host;
    host.show();
    QRect area(0, 0, 400, 360);
    page.Init();
    page.ShowWindow(&host, area);
    page.onNewBtnClick();
    QVERIFY(page.m_newDlg);
    const QPointer<QuickLinkSettingNewEditDlg> dialog = page.m_newDlg;
    dialog->m_appTypeChoice->setCurrentIndex(1);
    dialog->m_appNameEdit->setText("One");
    QuickLinkRecord* last = nullptr;
    fakeHost.duringMessage = [&] {
        last = dialog->m_record;
        if (byDestroying)
            page.OnDestroy();
        else
            page.onNewBtnClick();
    };
    dialog->m_okBtn->click();
    QCOMPARE(fakeHost.messages.size(), 1);
    QVERIFY(!dialog);
    // The dialog never frees the last record that it built.
    const QScopedPointer<QuickLinkRecord> leftOver(last);
    QVERIFY(leftOver);
    if (!byDestroying)
        page.OnDestroy();
}

REGISTER_TEST(DialogReentrantTest)
#include "DialogReentrantTest.moc"
