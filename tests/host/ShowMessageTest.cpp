// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The modal message: what it shows, and what it answers however it ends.

#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QTextEdit>

#include "CommonUtils.h"
#include "EditLinkButton.h"
#include "FakeTranslator.h"
#include "MessageOnScreen.h"
#include "OpenedLink.h"
#include "Test.h"

/** How the user, or somebody else, ends the message. */
enum class Ending { First, Second, Third, Escape, Close, Return, Reject, ParentDeleted };
Q_DECLARE_METATYPE(Ending)

class ShowMessageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers_data();
    void answers();
    void closesAsTheFirstWithoutASecond_data();
    void closesAsTheFirstWithoutASecond();
    void mustBeAnsweredWhenNotClosable_data();
    void mustBeAnsweredWhenNotClosable();
    void showsWhatItWasGiven();
    void showsTheIconAskedFor_data();
    void showsTheIconAskedFor();
    void showsMarkupAsItStands();
    void showsDetails();
    void translatesBareKeys_data();
    void translatesBareKeys();
    void isReadableByAScreenReader();
    void hasAnOkButtonAtLeast();
    void hasATitleBarBesideTheFlagsAskedFor();
    void saysWhyALinkIsRefused();
    void leadsToTheRefusedLink();
    void leavesOtherMessagesAlone();
};

static int show(QWidget* parent, const QString& first, const QString& second, const QString& third,
                QDialog** dialogOut = nullptr, const QString& details = QString(), bool closable = true)
{
    return CommonUtils::ShowMessage(QMessageBox::Question, parent, "Title", "Text", first, second, third, false,
                                    Qt::WindowCloseButtonHint, dialogOut, details, closable);
}

static void end(QMessageBox* box, Ending ending, QWidget* parent)
{
    switch (ending) {
    case Ending::First:
        return box->button(QMessageBox::Ok)->click();
    case Ending::Second:
        return box->button(QMessageBox::Cancel)->click();
    case Ending::Third:
        return box->button(QMessageBox::Ignore)->click();
    case Ending::Escape:
        return QTest::keyClick(box, Qt::Key_Escape);
    case Ending::Close:
        box->close();
        return;
    case Ending::Return:
        return QTest::keyClick(box, Qt::Key_Return);
    case Ending::Reject:
        return box->reject();
    case Ending::ParentDeleted:
        delete parent;
    }
}

void ShowMessageTest::answers_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<Ending>("ending");
    QTest::addColumn<int>("expected");
    struct {
        const char* name;
        Ending ending;
        int buttons;                             ///< from this number on
        QMessageBox::StandardButton alone, with; ///< answer of one button, of more
    } const endings[] = {
        {"first", Ending::First, 1, QMessageBox::Ok, QMessageBox::Ok},
        {"second", Ending::Second, 2, QMessageBox::NoButton, QMessageBox::Cancel},
        {"third", Ending::Third, 3, QMessageBox::NoButton, QMessageBox::Ignore},
        {"Escape", Ending::Escape, 1, QMessageBox::Ok, QMessageBox::Cancel},
        {"closed", Ending::Close, 1, QMessageBox::Ok, QMessageBox::Cancel},
        {"Return", Ending::Return, 1, QMessageBox::Ok, QMessageBox::Ok},
        {"dismissed by the caller", Ending::Reject, 1, QMessageBox::Ok, QMessageBox::Cancel},
        {"parent deleted", Ending::ParentDeleted, 1, QMessageBox::Ok, QMessageBox::Cancel},
    };
    for (const auto& row : endings) {
        for (int buttons = row.buttons; buttons <= 3; ++buttons)
            QTest::newRow(qPrintable(QString("%1: %2").arg(buttons).arg(row.name)))
                << buttons << row.ending << int(buttons == 1 ? row.alone : row.with);
    }
}

void ShowMessageTest::answers()
{
    QFETCH(int, buttons);
    QFETCH(Ending, ending);
    QFETCH(int, expected);
    const QPointer<QWidget> parent = new QWidget;
    QDialog* shown = nullptr;
    QPointer<QMessageBox> seen;
    bool wasHandedOut = false;
    int count = 0;
    whenMessageShows([&](QMessageBox* box) {
        seen = box;
        wasHandedOut = shown == box;
        count = box->buttons().size();
        end(box, ending, parent);
    });
    const QString none;
    QCOMPARE(show(parent, "A", buttons > 1 ? "B" : none, buttons > 2 ? "C" : none, &shown), expected);
    QCOMPARE(count, buttons);
    QVERIFY(wasHandedOut);
    QVERIFY(!shown);
    QVERIFY(!seen);
    delete parent;
}

void ShowMessageTest::closesAsTheFirstWithoutASecond_data()
{
    QTest::addColumn<Ending>("ending");
    QTest::newRow("Escape") << Ending::Escape;
    QTest::newRow("closed") << Ending::Close;
}

void ShowMessageTest::closesAsTheFirstWithoutASecond()
{
    QFETCH(Ending, ending);
    bool isClosed = false;
    whenMessageShows([&](QMessageBox* box) {
        end(box, ending, nullptr);
        isClosed = !box->isVisible();
        box->reject();
    });
    QCOMPARE(show(nullptr, "A", QString(), "C"), int(QMessageBox::Ok));
    QVERIFY(isClosed);
}

void ShowMessageTest::mustBeAnsweredWhenNotClosable_data()
{
    QTest::addColumn<QString>("second");
    QTest::addColumn<Ending>("ending");
    QTest::newRow("1: Escape") << QString() << Ending::Escape;
    QTest::newRow("1: closed") << QString() << Ending::Close;
    QTest::newRow("2: Escape") << "B" << Ending::Escape;
    QTest::newRow("2: closed") << "B" << Ending::Close;
}

void ShowMessageTest::mustBeAnsweredWhenNotClosable()
{
    QFETCH(QString, second);
    QFETCH(Ending, ending);
    bool isStillOpen = false, hasCloseButton = true;
    whenMessageShows([&](QMessageBox* box) {
        hasCloseButton = box->windowFlags() & Qt::WindowCloseButtonHint;
        if (ending == Ending::Escape) {
            QTest::keyClick(box->button(QMessageBox::Ok), Qt::Key_Escape);
            QTest::keyClick(box, Qt::Key_Escape);
        } else {
            end(box, ending, nullptr);
        }
        isStillOpen = box->isVisible();
        box->button(QMessageBox::Ok)->click();
    });
    QCOMPARE(show(nullptr, "A", second, QString(), nullptr, QString(), false), int(QMessageBox::Ok));
    QVERIFY(isStillOpen);
    QVERIFY(!hasCloseButton);
}

void ShowMessageTest::showsWhatItWasGiven()
{
    QWidget window;
    QWidget* const parent = new QWidget(&window);
    QStringList seen;
    QWidget* seenParent = nullptr;
    whenMessageShows([&](QMessageBox* box) {
        seenParent = box->parentWidget();
        seen << box->windowTitle() << box->text() << box->button(QMessageBox::Ok)->text()
             << box->button(QMessageBox::Cancel)->text() << box->button(QMessageBox::Ignore)->text()
             << box->defaultButton()->text();
        box->close();
    });
    show(parent, "A", "B", "C");
    QCOMPARE(seen, QString("Title Text A B C A").split(' '));
    QCOMPARE(seenParent, parent);
}

void ShowMessageTest::showsTheIconAskedFor_data()
{
    QTest::addColumn<int>("icon");
    QTest::newRow("none") << int(QMessageBox::NoIcon);
    QTest::newRow("information") << int(QMessageBox::Information);
    QTest::newRow("question") << int(QMessageBox::Question);
    QTest::newRow("warning") << int(QMessageBox::Warning);
    QTest::newRow("critical") << int(QMessageBox::Critical);
}

void ShowMessageTest::showsTheIconAskedFor()
{
    QFETCH(int, icon);
    int seen = -1;
    whenMessageShows([&](QMessageBox* box) {
        seen = box->icon();
        box->close();
    });
    CommonUtils::ShowMessage(QMessageBox::Icon(icon), nullptr, QString(), "Text", "A", QString(), QString(), false,
                             Qt::WindowFlags(), nullptr, QString(), true);
    QCOMPARE(seen, icon);
}

void ShowMessageTest::showsMarkupAsItStands()
{
    const QString text = "<b>Bold</b> &amp; <img src=\"/etc/passwd\">";
    Qt::TextFormat format = Qt::AutoText;
    QString shownText;
    whenMessageShows([&](QMessageBox* box) {
        const QLabel* const label = box->findChild<QLabel*>("qt_msgbox_label");
        if (label) {
            format = label->textFormat();
            shownText = label->text();
        }
        box->close();
    });
    CommonUtils::ShowMessage(QMessageBox::Information, nullptr, QString(), text, "A", QString(), QString(), true,
                             Qt::WindowFlags(), nullptr, QString(), true);
    QCOMPARE(format, Qt::PlainText);
    QCOMPARE(shownText, text);
}

void ShowMessageTest::showsDetails()
{
    QString details;
    whenMessageShows([&](QMessageBox* box) {
        details = box->findChild<QTextEdit*>()->toPlainText();
        QTest::keyClick(box, Qt::Key_Escape);
    });
    QCOMPARE(show(nullptr, "A", QString(), QString(), nullptr, "<i>More</i>"), int(QMessageBox::Ok));
    QCOMPARE(details, "<i>More</i>");
}

void ShowMessageTest::translatesBareKeys_data()
{
    QTest::addColumn<QStringList>("contexts");
    QTest::addColumn<QString>("text");
    const QString host = "CommonUtils", plugin = "QuickLinkUIPlugin";
    QTest::newRow("the host's, for whichever plug-in asks") << QStringList(host) << host;
    QTest::newRow("the quick links' own") << QStringList(plugin) << plugin;
    QTest::newRow("both") << (QStringList(plugin) << host) << host;
    QTest::newRow("nobody's") << QStringList() << "IDS_OK";
}

void ShowMessageTest::translatesBareKeys()
{
    QFETCH(QStringList, contexts);
    QFETCH(QString, text);
    // Knows IDS_OK in these contexts, as the context's name.
    const FakeTranslator translator([contexts](const QByteArray& context, const QByteArray& key) {
        return contexts.contains(context) && key == "IDS_OK" ? QString(context) : QString();
    });
    QStringList texts;
    whenMessageShows([&](QMessageBox* box) {
        texts << box->button(QMessageBox::Ok)->text() << box->button(QMessageBox::Cancel)->text();
        box->close();
    });
    show(nullptr, "IDS_OK", "IDS_CANCEL", QString());
    QCOMPARE(texts, QStringList() << text << "IDS_CANCEL");
}

void ShowMessageTest::isReadableByAScreenReader()
{
    QString name, description;
    whenMessageShows([&](QMessageBox* box) {
        name = accessibleText(box, QAccessible::Name);
        description = accessibleText(box, QAccessible::Description);
        box->close();
    });
    show(nullptr, "A", QString(), QString());
    QCOMPARE(name, "Title");
    QCOMPARE(description, "Text");
}

void ShowMessageTest::hasAnOkButtonAtLeast()
{
    int count = 0;
    whenMessageShows([&](QMessageBox* box) {
        count = box->buttons().size();
        box->close();
    });
    QCOMPARE(show(nullptr, QString(), QString(), QString()), int(QMessageBox::Ok));
    QCOMPARE(count, 1);
}

void ShowMessageTest::hasATitleBarBesideTheFlagsAskedFor()
{
    Qt::WindowFlags flags;
    whenMessageShows([&](QMessageBox* box) {
        flags = box->windowFlags();
        box->close();
    });
    CommonUtils::ShowMessage(QMessageBox::Information, nullptr, "Title", "Text", "A", QString(), QString(), false,
                             Qt::WindowStaysOnTopHint, nullptr, QString(), true);
    QVERIFY(flags & Qt::WindowStaysOnTopHint);
    QVERIFY(flags & Qt::WindowTitleHint);
    QVERIFY(flags & Qt::WindowCloseButtonHint);
    QCOMPARE(flags & Qt::WindowType_Mask, Qt::WindowFlags(Qt::Dialog));
}

static const char* const refusal = "IDS_LINK_SETTING_INVALID_URL";

static int refuse(QWidget* parent, const QString& text = refusal)
{
    return CommonUtils::ShowMessage(QMessageBox::Information, parent, "Quick Links", text, "OK", QString(), QString(),
                                    false, Qt::WindowCloseButtonHint, nullptr, QString(), true);
}

static QString capitals(const QString&, int)
{
    return "HTTP://EXAMPLE.ORG";
}

/** The link with an address in capitals while it lives. */
class RefusedLink
{
public:
    RefusedLink()
        : m_link("My Link", 0)
    {
        OpenedLink::Known known;
        known.addressOf = capitals;
        OpenedLink::setKnown(known);
    }
    ~RefusedLink()
    {
        OpenedLink::setKnown(OpenedLink::Known());
        EditLinkButton::setEditor(EditLinkButton::Editor());
    }

private:
    const OpenedLink m_link;
};

void ShowMessageTest::saysWhyALinkIsRefused()
{
    QMainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    // The page of settings that were open before.
    QWidget page;
    const RefusedLink link;
    QString title, text;
    QWidget* parent = nullptr;
    whenMessageShows([&](QMessageBox* box) {
        title = box->windowTitle();
        text = box->text();
        parent = box->parentWidget();
        box->close();
    });
    QCOMPARE(refuse(&page), int(QMessageBox::Ok));
    QCOMPARE(title, "Not opened");
    QCOMPARE(text, "The beginning of this address must be written in small letters:\n\nMy Link: HTTP://EXAMPLE.ORG");
    QCOMPARE(parent, static_cast<QWidget*>(&window));
}

void ShowMessageTest::leadsToTheRefusedLink()
{
    const RefusedLink link;
    QStringList edited;
    bool isMessageGone = false;
    EditLinkButton::setEditor([&](const QString& name) {
        edited.append(name);
        isMessageGone = !QApplication::activeModalWidget();
    });
    whenMessageShows([](QMessageBox* box) { box->findChild<EditLinkButton*>()->click(); });
    QCOMPARE(refuse(nullptr), int(QMessageBox::Ok));
    QCOMPARE(edited, QStringList("My Link"));
    QVERIFY(isMessageGone);
    whenMessageShows([](QMessageBox* box) { box->button(QMessageBox::Ok)->click(); });
    refuse(nullptr);
    QCOMPARE(int(edited.size()), 1);
}

void ShowMessageTest::leavesOtherMessagesAlone()
{
    QString text;
    const auto read = [&text](QMessageBox* box) {
        text = box->text();
        box->close();
    };
    // Nobody knows which link it is about.
    whenMessageShows(read);
    refuse(nullptr);
    QCOMPARE(text, refusal);
    const RefusedLink link;
    whenMessageShows(read);
    refuse(nullptr, "Something else");
    QCOMPARE(text, "Something else");
}

REGISTER_TEST(ShowMessageTest)
#include "ShowMessageTest.moc"
