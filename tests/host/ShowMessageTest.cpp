// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The modal message: what it shows, and what it answers however it ends.

#include <QAccessible>
#include <QAccessibleInterface>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTextEdit>
#include <QTranslator>

#include "CommonUtils.h"
#include "MessageOnScreen.h"
#include "Test.h"

/** Knows IDS_OK in some contexts. The text is the context's name. */
class OkText : public QTranslator
{
public:
    explicit OkText(const QStringList& contexts)
        : m_contexts(contexts)
    {
    }
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* key, const char*, int) const override
    {
        const QString name = QString::fromLatin1(context);
        return m_contexts.contains(name) && QByteArray(key) == "IDS_OK" ? name : QString();
    }

private:
    QStringList m_contexts;
};

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
    void showsMarkupAsItStands();
    void showsDetails();
    void translatesBareKeys_data();
    void translatesBareKeys();
    void isReadableByAScreenReader();
    void hasAnOkButtonAtLeast();
    void hasATitleBarWhateverTheFlags();
};

static int show(QWidget* parent, const QString& first, const QString& second, const QString& third,
                QDialog** dialogOut = nullptr, const QString& details = QString(), bool closable = true)
{
    return CommonUtils::ShowMessage(QMessageBox::Question, parent, "Title", "Text",
                                    first, second, third, false, Qt::WindowCloseButtonHint, dialogOut, details,
                                    closable);
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
    const int ok = QMessageBox::Ok, cancel = QMessageBox::Cancel, ignore = QMessageBox::Ignore;
    QTest::newRow("1: first") << 1 << Ending::First << ok;
    QTest::newRow("1: Escape") << 1 << Ending::Escape << ok;
    QTest::newRow("1: closed") << 1 << Ending::Close << ok;
    QTest::newRow("1: Return") << 1 << Ending::Return << ok;
    QTest::newRow("1: dismissed by the caller") << 1 << Ending::Reject << ok;
    QTest::newRow("1: parent deleted") << 1 << Ending::ParentDeleted << ok;
    QTest::newRow("2: first") << 2 << Ending::First << ok;
    QTest::newRow("2: second") << 2 << Ending::Second << cancel;
    QTest::newRow("2: Escape") << 2 << Ending::Escape << cancel;
    QTest::newRow("2: closed") << 2 << Ending::Close << cancel;
    QTest::newRow("2: Return") << 2 << Ending::Return << ok;
    QTest::newRow("2: dismissed by the caller") << 2 << Ending::Reject << cancel;
    QTest::newRow("2: parent deleted") << 2 << Ending::ParentDeleted << cancel;
    QTest::newRow("3: first") << 3 << Ending::First << ok;
    QTest::newRow("3: second") << 3 << Ending::Second << cancel;
    QTest::newRow("3: third") << 3 << Ending::Third << ignore;
    QTest::newRow("3: Escape") << 3 << Ending::Escape << cancel;
    QTest::newRow("3: closed") << 3 << Ending::Close << cancel;
    QTest::newRow("3: Return") << 3 << Ending::Return << ok;
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
    QCOMPARE(show(parent, "A", buttons > 1 ? "B" : none,
                  buttons > 2 ? "C" : none, &shown),
             expected);
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
    QWidget parent;
    QStringList seen;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QWidget* seenParent = nullptr;
    whenMessageShows([&](QMessageBox* box) {
        icon = box->icon();
        seenParent = box->parentWidget();
        seen << box->windowTitle() << box->text() << box->button(QMessageBox::Ok)->text()
             << box->button(QMessageBox::Cancel)->text() << box->button(QMessageBox::Ignore)->text()
             << box->defaultButton()->text();
        box->close();
    });
    show(&parent, "A", "B", "C");
    QCOMPARE(seen, QString("Title Text A B C A").split(' '));
    QCOMPARE(icon, QMessageBox::Question);
    QCOMPARE(seenParent, &parent);
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
    CommonUtils::ShowMessage(QMessageBox::Information, nullptr, QString(), text, "A", QString(),
                             QString(), true, Qt::WindowFlags(), nullptr, QString(), true);
    QCOMPARE(format, Qt::PlainText);
    QCOMPARE(shownText, text);
}

void ShowMessageTest::showsDetails()
{
    QString details;
    int answer = 0;
    whenMessageShows([&](QMessageBox* box) {
        details = box->findChild<QTextEdit*>()->toPlainText();
        QTest::keyClick(box, Qt::Key_Escape);
    });
    answer = show(nullptr, "A", QString(), QString(), nullptr, "<i>More</i>");
    QCOMPARE(details, "<i>More</i>");
    QCOMPARE(answer, int(QMessageBox::Ok));
}

void ShowMessageTest::translatesBareKeys_data()
{
    QTest::addColumn<QStringList>("contexts");
    QTest::addColumn<QString>("text");
    const QString host = QStringLiteral("CommonUtils"), plugin = QStringLiteral("QuickLinkUIPlugin");
    QTest::newRow("the host's, for whichever plug-in asks") << QStringList{host} << host;
    QTest::newRow("the quick links' own") << QStringList{plugin} << plugin;
    QTest::newRow("both") << QStringList{plugin, host} << host;
    QTest::newRow("nobody's") << QStringList() << QStringLiteral("IDS_OK");
}

void ShowMessageTest::translatesBareKeys()
{
    QFETCH(QStringList, contexts);
    QFETCH(QString, text);
    OkText translator(contexts);
    QVERIFY(QCoreApplication::installTranslator(&translator));
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
        QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(box);
        name = accessible->text(QAccessible::Name);
        description = accessible->text(QAccessible::Description);
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

void ShowMessageTest::hasATitleBarWhateverTheFlags()
{
    Qt::WindowFlags flags;
    whenMessageShows([&](QMessageBox* box) {
        flags = box->windowFlags();
        box->close();
    });
    show(nullptr, "A", QString(), QString());
    QVERIFY(flags & Qt::WindowTitleHint);
    QVERIFY(flags & Qt::WindowCloseButtonHint);
    QCOMPARE(flags & Qt::WindowType_Mask, Qt::WindowFlags(Qt::Dialog));
}

REGISTER_TEST(ShowMessageTest)
#include "ShowMessageTest.moc"
