// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the user did on the quick links' page, found out while it is saved, and done again.

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include "FakeLinkPage.h"
#include "LinkAttempt.h"
#include "LinkPage.h"
#include "Test.h"

namespace
{
/** A dialog with the fields of a link that a plug-in would show. */
class Dialog : public QWidget
{
public:
    Dialog()
    {
        new QVBoxLayout(this);
        type = addNamed<QComboBox>(this, "m_appTypeChoice");
        type->addItems({"Application", "E-mail", "Internet"});
        name = addNamed<QLineEdit>(this, "m_appNameEdit");
        path = addNamed<QLineEdit>(this, "m_appPathEdit");
        address = addNamed<QLineEdit>(this, "m_EditUrlName");
        onStart = addNamed<QCheckBox>(this, "m_launchWhenSWLaunchCBForInternet");
        onConnect = addNamed<QCheckBox>(this, "m_launchWhenConnectCBForInternet");
        connect(type, QOverload<int>::of(&QComboBox::activated), this, [this] {
            address->clear();
            chosenType = type->currentIndex();
        });
        connect(onStart, &QCheckBox::clicked, this, [this](bool isOn) { startClicked = isOn ? 1 : 0; });
        path->hide();
        setWindowModality(Qt::ApplicationModal);
        show();
    }

    QComboBox* type;
    QLineEdit* name;
    QLineEdit* path;
    QLineEdit* address;
    QCheckBox* onStart;
    QCheckBox* onConnect;
    int startClicked = -1;
    int chosenType = -1;
};

} // namespace

/** What is done on the page of settings, whose links had these names before. */
static LinkAttempt attemptOn(const QWidget* settings, const QStringList& before)
{
    LinkAttempt attempt = LinkAttempt::now(LinkPage(settings));
    attempt.explain(before);
    return attempt;
}

class LinkAttemptTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isFoundOutAndDoneAgain_data();
    void isFoundOutAndDoneAgain();
    void dialogIsOfferedAgain();
    void isUnknown_data();
    void isUnknown();
    void isNotDoneWhereThePageDoesNotLetIt();
    void marksAreThoseInSight();
};

void LinkAttemptTest::isFoundOutAndDoneAgain_data()
{
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("hasDialog");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("pressed");
    QTest::newRow("new") << "A B C D" << 3 << true << int(LinkAttempt::New) << "m_newBtn 0";
    QTest::newRow("edit") << "A X C" << 1 << true << int(LinkAttempt::Edit) << "m_editBtn 1";
    QTest::newRow("edit of another field") << "A B C" << 2 << true << int(LinkAttempt::Edit) << "m_editBtn 2";
    QTest::newRow("delete") << "A C" << 1 << false << int(LinkAttempt::Delete) << "m_deleteBtn 1";
    QTest::newRow("delete the last") << "A B" << 1 << false << int(LinkAttempt::Delete) << "m_deleteBtn 2";
    QTest::newRow("up") << "A C B" << 1 << false << int(LinkAttempt::MoveUp) << "m_upBtn 2";
    QTest::newRow("down") << "B A C" << 1 << false << int(LinkAttempt::MoveDown) << "m_downBtn 0";
}

void LinkAttemptTest::isFoundOutAndDoneAgain()
{
    QFETCH(QString, after);
    QFETCH(int, row);
    QFETCH(bool, hasDialog);
    FakeLinkPage settings;
    QScopedPointer<Dialog> dialog(hasDialog ? new Dialog : nullptr);
    if (dialog)
        dialog->name->setText("X");
    settings.setLinks(after, row);
    const LinkAttempt attempt = attemptOn(&settings, {"A", "B", "C"});
    QTEST(int(attempt.kind()), "kind");
    QCOMPARE(attempt.form().isNull(), !hasDialog);
    dialog.reset();
    // As the links were before.
    settings.setLinks("A B C", 0);
    QVERIFY(attempt.repeat(LinkPage(&settings)));
    QTEST(settings.pressed.join(' '), "pressed");
}

void LinkAttemptTest::dialogIsOfferedAgain()
{
    FakeLinkPage settings;
    QScopedPointer<Dialog> offered;
    settings.whenPressed = [&offered] {
        offered.reset(new Dialog);
    };
    settings.setLinks("A B", 1);
    QScopedPointer<Dialog> dialog(new Dialog);
    dialog->type->setCurrentIndex(2);
    dialog->name->setText("B");
    dialog->address->setText("http://b");
    dialog->path->setText("not in sight");
    dialog->onStart->setChecked(true);
    const LinkAttempt attempt = attemptOn(&settings, {"A"});
    dialog.reset();
    settings.setLinks("A", 0);
    QVERIFY(attempt.repeat(LinkPage(&settings)));
    const Dialog& again = *offered;
    QCOMPARE(again.type->currentIndex(), 2);
    QCOMPARE(again.chosenType, 2);
    QCOMPARE(again.name->text(), "B");
    QCOMPARE(again.address->text(), "http://b");
    QCOMPARE(again.path->text(), QString());
    QVERIFY(again.onStart->isChecked());
    QVERIFY(!again.onConnect->isChecked());
    QCOMPARE(again.startClicked, 1);
}

void LinkAttemptTest::isUnknown_data()
{
    QTest::addColumn<QString>("after");
    QTest::newRow("the same") << "A B C";
    QTest::newRow("two more") << "A B C D E";
    QTest::newRow("two fewer") << "A";
}

void LinkAttemptTest::isUnknown()
{
    QFETCH(QString, after);
    FakeLinkPage settings;
    settings.setLinks(after, 0);
    const LinkAttempt attempt = attemptOn(&settings, {"A", "B", "C"});
    QCOMPARE(int(attempt.kind()), int(LinkAttempt::Unknown));
    QVERIFY(!attempt.repeat(LinkPage(&settings)));
    QCOMPARE(settings.pressed, QStringList());
}

void LinkAttemptTest::isNotDoneWhereThePageDoesNotLetIt()
{
    FakeLinkPage settings;
    settings.setLinks("B", 0);
    const LinkAttempt attempt = attemptOn(&settings, {"A", "B"});
    QCOMPARE(int(attempt.kind()), int(LinkAttempt::Delete));
    settings.setLinks("A B", 0);
    settings.findChild<QPushButton*>("m_deleteBtn")->setEnabled(false);
    QVERIFY(!attempt.repeat(LinkPage(&settings)));
    QVERIFY(!attempt.repeat(LinkPage(nullptr)));
    const QWidget empty;
    QVERIFY(!attempt.repeat(LinkPage(&empty)));
    QCOMPARE(int(attemptOn(&empty, {"A"}).kind()), int(LinkAttempt::Unknown));
}

void LinkAttemptTest::marksAreThoseInSight()
{
    const Dialog dialog;
    QVERIFY(!LinkForm::of(&dialog).opensOnStart() && !LinkForm::of(&dialog).opensOnConnect());
    dialog.onStart->setChecked(true);
    QVERIFY(LinkForm::of(&dialog).opensOnStart() && !LinkForm::of(&dialog).opensOnConnect());
    dialog.onConnect->setChecked(true);
    QVERIFY(LinkForm::of(&dialog).opensOnConnect());
    dialog.onStart->hide();
    QVERIFY(!LinkForm::of(&dialog).opensOnStart());
}

REGISTER_TEST(LinkAttemptTest)
#include "LinkAttemptTest.moc"
