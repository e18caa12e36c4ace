// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Where the dialog's widgets lie: layouts, margins, spacings, items in order, fixed sizes and length limits.

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "OpenDialog.h"
#include "FakeHost.h"
#include "RecordingTrace.h"
#include "Test.h"

class DialogLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void container_data();
    void container();
    void item_data();
    void item();
    void spacer_data();
    void spacer();
    void layoutOfWidget_data();
    void layoutOfWidget();
    void fixedSize_data();
    void fixedSize();
    void labelsAreLeftAligned();
    void browseButtonTakesTheRest();
    void typeItems();
    void noMoreThanThreeTypes();
    void onlyOneTab();
    void emailPanelHasNoInput();
    void lengthLimit_data();
    void lengthLimit();

private:
    static QBoxLayout* layoutOf(const OpenDialog& dialog, const QString& member);
};

QBoxLayout* DialogLayoutTest::layoutOf(const OpenDialog& dialog, const QString& member)
{
    return qobject_cast<QBoxLayout*>(memberOf(dialog.get(), member).object);
}

void DialogLayoutTest::container_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<int>("direction");
    QTest::addColumn<QString>("margins"); // empty: the style's
    QTest::addColumn<int>("spacing");     // -1: the style's
    QTest::addColumn<int>("items");

    const int down = QBoxLayout::TopToBottom;
    const int right = QBoxLayout::LeftToRight;
    const QString none = "0 0 0 0";
    const QString row = "0 0 30 5";
    const auto name = [](const char* text) {
        return QString::fromLatin1(text);
    };
    QTest::newRow("main widget") << name("m_mainLayout") << down << name("25 25 23 25") << -1 << 4;
    QTest::newRow("name row") << name("m_nameLayout") << right << row << 24 << 2;
    QTest::newRow("type row") << name("m_typeLayout") << right << row << -1 << 2;
    QTest::newRow("button row") << name("m_buttonLayout") << right << none << -1 << 2;
    QTest::newRow("tab page") << name("m_tabLayout") << down << QString() << -1 << 3;
    QTest::newRow("application panel") << name("m_applicationLayout") << down << none << -1 << 8;
    QTest::newRow("path row") << name("m_pathLayout") << right << none << 14 << 2;
    QTest::newRow("e-mail panel") << name("m_emailLayout") << down << none << -1 << 4;
    QTest::newRow("Internet panel") << name("m_internetLayout") << down << none << -1 << 5;
}

void DialogLayoutTest::container()
{
    QFETCH(QString, layout);
    QFETCH(QString, margins);
    QFETCH(int, spacing);
    const OpenDialog dialog;
    const QBoxLayout* const box = layoutOf(dialog, layout);
    QVERIFY(box);
    QTEST(int(box->direction()), "direction");
    QTEST(box->count(), "items");

    QWidget window;
    QWidget* const plain = new QWidget(&window);
    const QVBoxLayout& fresh = *new QVBoxLayout(plain);
    const QMargins expected = fresh.contentsMargins();
    const QMargins actual = box->contentsMargins();
    if (margins.isEmpty()) {
        QCOMPARE(actual, expected);
    } else {
        const QString text = QString("%1 %2 %3 %4")
                                 .arg(actual.left())
                                 .arg(actual.top())
                                 .arg(actual.right())
                                 .arg(actual.bottom());
        QCOMPARE(text, margins);
    }
    if (spacing != -1)
        QCOMPARE(box->spacing(), spacing);
    else if (box->direction() == QBoxLayout::TopToBottom)
        QCOMPARE(box->spacing(), fresh.spacing());
    else
        QCOMPARE(box->spacing(), plain->style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing));
}

void DialogLayoutTest::item_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("member");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<int>("stretch");

    const int top = Qt::AlignTop;
    const int bottom = Qt::AlignBottom;
    const struct {
        const char* layout;
        int index;
        const char* member;
        int alignment;
        int stretch;
    } rows[] = {{"m_mainLayout", 0, "m_nameLayout", 0, 0},
                {"m_mainLayout", 1, "m_typeLayout", 0, 0},
                {"m_mainLayout", 2, "m_appTabWidget", 0, 0},
                {"m_mainLayout", 3, "m_buttonLayout", 0, 0},
                {"m_nameLayout", 0, "m_nameLbl", 0, 0},
                {"m_nameLayout", 1, "m_appNameEdit", 0, 0},
                {"m_typeLayout", 0, "m_typeLbl", 0, 0},
                {"m_typeLayout", 1, "m_appTypeChoice", 0, 0},
                {"m_buttonLayout", 0, "m_okBtn", 0, 0},
                {"m_buttonLayout", 1, "m_cancelBtn", 0, 0},
                {"m_tabLayout", 0, "m_applicationPanel", 0, 0},
                {"m_tabLayout", 1, "m_EmailTab", 0, 0},
                {"m_tabLayout", 2, "m_InternetTab", 0, 0},
                {"m_applicationLayout", 0, "m_applicationPathLbl", 0, 0},
                {"m_applicationLayout", 1, "m_pathLayout", 0, 0},
                {"m_applicationLayout", 3, "m_applicationParamLbl", 0, 0},
                {"m_applicationLayout", 4, "m_appParamEdit", 0, 0},
                {"m_applicationLayout", 6, "m_launchWhenSWLaunchCB", bottom, 0},
                {"m_applicationLayout", 7, "m_launchWhenConnectCB", bottom, 0},
                {"m_pathLayout", 0, "m_appPathEdit", 0, 0},
                {"m_pathLayout", 1, "m_browseBtn", 0, 2},
                {"m_emailLayout", 0, "m_DefaultLbl", top, 0},
                {"m_emailLayout", 2, "m_launchWhenSWLaunchCBForEmail", bottom, 0},
                {"m_emailLayout", 3, "m_launchWhenConnectCBForEmail", bottom, 0},
                {"m_internetLayout", 0, "m_UrlLabel", top, 0},
                {"m_internetLayout", 1, "m_EditUrlName", 0, 0},
                {"m_internetLayout", 3, "m_launchWhenSWLaunchCBForInternet", bottom, 0},
                {"m_internetLayout", 4, "m_launchWhenConnectCBForInternet", bottom, 0}};
    for (const auto& row : rows) {
        const QByteArray title = QByteArray(row.layout) + ' ' + QByteArray::number(row.index);
        QTest::newRow(title.constData()) << QString::fromLatin1(row.layout) << row.index
                                         << QString::fromLatin1(row.member) << row.alignment << row.stretch;
    }
}

void DialogLayoutTest::item()
{
    QFETCH(QString, layout);
    QFETCH(int, index);
    QFETCH(QString, member);
    const OpenDialog dialog;
    const QBoxLayout* const box = layoutOf(dialog, layout);
    QLayoutItem* const entry = box->itemAt(index);
    QVERIFY(entry);
    QObject* const actual =
        entry->widget() ? static_cast<QObject*>(entry->widget()) : static_cast<QObject*>(entry->layout());
    QCOMPARE(actual, memberOf(dialog.get(), member).object);
    QTEST(int(entry->alignment()), "alignment");
    QTEST(box->stretch(index), "stretch");
}

void DialogLayoutTest::spacer_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("height");
    QTest::newRow("above parameters") << "m_applicationLayout" << 2 << 20;
    QTest::newRow("below parameters") << "m_applicationLayout" << 5 << 20;
    QTest::newRow("e-mail") << "m_emailLayout" << 1 << 80;
    QTest::newRow("Internet") << "m_internetLayout" << 2 << 80;
}

void DialogLayoutTest::spacer()
{
    QFETCH(QString, layout);
    QFETCH(int, index);
    QFETCH(int, height);
    const OpenDialog dialog;
    QSpacerItem* const space = layoutOf(dialog, layout)->itemAt(index)->spacerItem();
    QVERIFY(space);
    QCOMPARE(space->sizeHint(), QSize(50, height));
    QCOMPARE(space->minimumSize(), QSize(0, height));
    QCOMPARE(space->expandingDirections(), Qt::Orientations(Qt::Horizontal));
#if QT_VERSION >= 0x050500
    QCOMPARE(space->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(space->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
#endif
}

void DialogLayoutTest::layoutOfWidget_data()
{
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("layout");
    const char* const rows[][2] = {{"m_mainWidget", "m_mainLayout"},
                                   {"m_appTab", "m_tabLayout"},
                                   {"m_applicationPanel", "m_applicationLayout"},
                                   {"m_EmailTab", "m_emailLayout"},
                                   {"m_InternetTab", "m_internetLayout"}};
    for (const auto& row : rows)
        QTest::newRow(row[0]) << QString::fromLatin1(row[0]) << QString::fromLatin1(row[1]);
}

void DialogLayoutTest::layoutOfWidget()
{
    QFETCH(QString, widget);
    QFETCH(QString, layout);
    const OpenDialog dialog;
    const QWidget* const container = qobject_cast<QWidget*>(memberOf(dialog.get(), widget).object);
    QCOMPARE(static_cast<QObject*>(container->layout()), memberOf(dialog.get(), layout).object);
}

void DialogLayoutTest::fixedSize_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<int>("width"); // -1: not fixed
    QTest::addColumn<int>("height");
    const auto name = [](const char* text) {
        return QString::fromLatin1(text);
    };
    QTest::newRow("name label") << name("m_nameLbl") << 51 << -1;
    QTest::newRow("type label") << name("m_typeLbl") << 70 << -1;
    QTest::newRow("name") << name("m_appNameEdit") << -1 << 23;
    QTest::newRow("type") << name("m_appTypeChoice") << -1 << 24;
    QTest::newRow("path") << name("m_appPathEdit") << 184 << 24;
    QTest::newRow("parameters") << name("m_appParamEdit") << 184 << 24;
    QTest::newRow("address") << name("m_EditUrlName") << 198 << 24;
    QTest::newRow("browse button") << name("m_browseBtn") << -1 << -1;
    QTest::newRow("OK") << name("m_okBtn") << -1 << -1;
    QTest::newRow("Cancel") << name("m_cancelBtn") << -1 << -1;
}

void DialogLayoutTest::fixedSize()
{
    QFETCH(QString, member);
    QFETCH(int, width);
    QFETCH(int, height);
    const OpenDialog dialog;
    const QWidget* const widget = qobject_cast<QWidget*>(memberOf(dialog.get(), member).object);
    QCOMPARE(widget->minimumWidth(), width == -1 ? 0 : width);
    QCOMPARE(widget->maximumWidth(), width == -1 ? QWIDGETSIZE_MAX : width);
    QCOMPARE(widget->minimumHeight(), height == -1 ? 0 : height);
    QCOMPARE(widget->maximumHeight(), height == -1 ? QWIDGETSIZE_MAX : height);
}

void DialogLayoutTest::labelsAreLeftAligned()
{
    const OpenDialog dialog;
    QCOMPARE(int(dialog->m_nameLbl->alignment() & Qt::AlignHorizontal_Mask), int(Qt::AlignLeft));
    QCOMPARE(int(dialog->m_typeLbl->alignment() & Qt::AlignHorizontal_Mask), int(Qt::AlignLeft));
}

void DialogLayoutTest::browseButtonTakesTheRest()
{
    const OpenDialog dialog;
    // The bare key is too wide for the frame.
    dialog->m_browseBtn->setText("...");
    QCoreApplication::sendPostedEvents();
    const QRect path = dialog->m_appPathEdit->geometry();
    const QRect browse = dialog->m_browseBtn->geometry();
    QCOMPARE(path.size(), QSize(184, 24));
    QVERIFY(browse.left() > path.right());
    QCOMPARE(browse.right() + 1, dialog->m_applicationPanel->width());
}

void DialogLayoutTest::typeItems()
{
    const OpenDialog dialog;
    const QComboBox* const choice = dialog->m_appTypeChoice;
    const char* const keys[] = {"IDS_LINK_TYPE_APPLICATION", "IDS_LINK_TYPE_E-MAIL", "IDS_LINK_TYPE_INTERNET"};
    QCOMPARE(choice->count(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(choice->itemText(i), shown(keys[i]));
        QVERIFY(choice->itemIcon(i).isNull());
        QVERIFY(!choice->itemData(i).isValid());
    }
    QVERIFY(!choice->isEditable());
}

void DialogLayoutTest::noMoreThanThreeTypes()
{
    const OpenDialog dialog;
    QCOMPARE(dialog->m_appTypeChoice->maxCount(), 3);
    dialog->m_appTypeChoice->addItem("a fourth");
    QCOMPARE(dialog->m_appTypeChoice->count(), 3);
}

void DialogLayoutTest::onlyOneTab()
{
    const OpenDialog dialog;
    QCOMPARE(dialog->m_appTabWidget->count(), 1);
    QCOMPARE(dialog->m_appTabWidget->widget(0), dialog->m_appTab);
}

void DialogLayoutTest::emailPanelHasNoInput()
{
    const OpenDialog dialog;
    QVERIFY(dialog->m_EmailTab->findChildren<QLineEdit*>().isEmpty());
    QCOMPARE(dialog->m_EmailTab->findChildren<QWidget*>().size(), 3);
}

void DialogLayoutTest::lengthLimit_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<int>("limit");
    QTest::addColumn<bool>("isPasted");
    const struct {
        const char* member;
        int limit;
    } rows[] = {{"m_appNameEdit", 49}, {"m_appPathEdit", 261}, {"m_appParamEdit", 261}, {"m_EditUrlName", 261}};
    for (const auto& row : rows) {
        const QByteArray name(row.member);
        QTest::newRow((name + " typed").constData()) << QString::fromLatin1(name) << row.limit << false;
        QTest::newRow((name + " pasted").constData()) << QString::fromLatin1(name) << row.limit << true;
    }
}

void DialogLayoutTest::lengthLimit()
{
    QFETCH(QString, member);
    QFETCH(int, limit);
    QFETCH(bool, isPasted);
    const RecordingTrace quiet;
    OpenDialog dialog;
    if (member == "m_EditUrlName")
        dialog.chooseType(2);
    QLineEdit* const edit = qobject_cast<QLineEdit*>(memberOf(dialog.get(), member).object);
    const QString text = QString(limit, 'a') + "bc";
    if (isPasted) {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
    } else {
        QTest::keyClicks(edit, text);
    }
    QCOMPARE(edit->text(), QString(limit, 'a'));
}

REGISTER_TEST(DialogLayoutTest)
#include "DialogLayoutTest.moc"
