// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Where the dialog's widgets lie: layouts, margins, spacings, items in order and fixed sizes.

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "DialogTexts.h"
#include "FakeHost.h"
#include "OpenDialog.h"
#include "Test.h"

class DialogLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void container_data();
    void container();
    void items_data();
    void items();
    void fixedSize_data();
    void fixedSize();
    void labelsAreLeftAligned();
    void browseButtonTakesTheRest();
    void types();
    void emailPanelHasNoInput();
};

namespace
{
QBoxLayout* layoutOf(const OpenDialog& dialog, const QString& member)
{
    return qobject_cast<QBoxLayout*>(memberOf(dialog.get(), member).object);
}

/** A spacer's size; "(other policies)" behind it unless it expands in width and has a minimum height. */
QString describe(QSpacerItem* spacer)
{
    const QSize size = spacer->sizeHint();
    QSpacerItem expected(size.width(), size.height(), QSizePolicy::Expanding, QSizePolicy::Minimum);
    const bool isAlike = spacer->minimumSize() == expected.minimumSize() &&
                         spacer->maximumSize() == expected.maximumSize() &&
                         spacer->expandingDirections() == expected.expandingDirections();
    return QString("%1x%2%3").arg(size.width()).arg(size.height()).arg(isAlike ? "" : "(other policies)");
}

/** The member in a place of the layout, "^" or "_" behind one aligned at the top or bottom, "*" before its stretch. */
QString describe(const OpenDialog& dialog, const QBoxLayout* layout, int place)
{
    QLayoutItem* const item = layout->itemAt(place);
    if (item->spacerItem())
        return describe(item->spacerItem());
    QObject* const object = item->widget() ? static_cast<QObject*>(item->widget()) : item->layout();
    QString text = "a stranger";
    const QList<PointerMember> members = membersOf(dialog.get());
    for (const PointerMember& member : members) {
        if (member.object == object)
            text = member.name;
    }
    if (item->alignment() == Qt::AlignTop)
        text += '^';
    else if (item->alignment() == Qt::AlignBottom)
        text += '_';
    else if (item->alignment() != 0)
        text += "(other alignment)";
    if (layout->stretch(place) != 0)
        text += QString("*%1").arg(layout->stretch(place));
    return text;
}
} // namespace

void DialogLayoutTest::container_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QString>("widget"); // that it lays out; empty within another layout
    QTest::addColumn<int>("direction");
    QTest::addColumn<QString>("margins"); // empty: the style's
    QTest::addColumn<int>("spacing");     // -1: the style's
    const int down = QBoxLayout::TopToBottom;
    const int right = QBoxLayout::LeftToRight;
    const char* const none = "0 0 0 0";
    QTest::newRow("main widget") << "m_mainLayout"
                                 << "m_mainWidget" << down << "25 25 23 25" << -1;
    QTest::newRow("name row") << "m_nameLayout"
                              << "" << right << "0 0 30 5" << 24;
    QTest::newRow("type row") << "m_typeLayout"
                              << "" << right << "0 0 30 5" << -1;
    QTest::newRow("button row") << "m_buttonLayout"
                                << "" << right << none << -1;
    QTest::newRow("tab page") << "m_tabLayout"
                              << "m_appTab" << down << "" << -1;
    QTest::newRow("application panel") << "m_applicationLayout"
                                       << "m_applicationPanel" << down << none << -1;
    QTest::newRow("path row") << "m_pathLayout"
                              << "" << right << none << 14;
    QTest::newRow("e-mail panel") << "m_emailLayout"
                                  << "m_EmailTab" << down << none << -1;
    QTest::newRow("Internet panel") << "m_internetLayout"
                                    << "m_InternetTab" << down << none << -1;
}

void DialogLayoutTest::container()
{
    QFETCH(QString, layout);
    QFETCH(QString, widget);
    QFETCH(QString, margins);
    QFETCH(int, spacing);
    const OpenDialog dialog;
    QBoxLayout* const box = layoutOf(dialog, layout);
    QVERIFY(box);
    QTEST(int(box->direction()), "direction");
    if (!widget.isEmpty())
        QCOMPARE(memberOf(dialog.get(), widget).object, static_cast<QObject*>(box->parentWidget()));
    QCOMPARE(box->parentWidget()->layout() == box, !widget.isEmpty());

    QWidget window;
    QWidget* const plain = new QWidget(&window);
    const QVBoxLayout& fresh = *new QVBoxLayout(plain);
    const QMargins actual = box->contentsMargins();
    if (margins.isEmpty())
        QCOMPARE(actual, fresh.contentsMargins());
    else
        QCOMPARE(QString("%1 %2 %3 %4").arg(actual.left()).arg(actual.top()).arg(actual.right()).arg(actual.bottom()),
                 margins);
    if (spacing != -1)
        QCOMPARE(box->spacing(), spacing);
    else if (box->direction() == QBoxLayout::TopToBottom)
        QCOMPARE(box->spacing(), fresh.spacing());
    else
        QCOMPARE(box->spacing(), plain->style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing));
}

void DialogLayoutTest::items_data()
{
    QTest::addColumn<QString>("items");
    QTest::newRow("m_mainLayout") << "m_nameLayout m_typeLayout m_appTabWidget m_buttonLayout";
    QTest::newRow("m_nameLayout") << "m_nameLbl m_appNameEdit";
    QTest::newRow("m_typeLayout") << "m_typeLbl m_appTypeChoice";
    QTest::newRow("m_buttonLayout") << "m_okBtn m_cancelBtn";
    QTest::newRow("m_tabLayout") << "m_applicationPanel m_EmailTab m_InternetTab";
    QTest::newRow("m_applicationLayout") << "m_applicationPathLbl m_pathLayout 50x20 m_applicationParamLbl "
                                            "m_appParamEdit 50x20 m_launchWhenSWLaunchCB_ m_launchWhenConnectCB_";
    QTest::newRow("m_pathLayout") << "m_appPathEdit m_browseBtn*2";
    QTest::newRow("m_emailLayout") << "m_DefaultLbl^ 50x80 m_launchWhenSWLaunchCBForEmail_ "
                                      "m_launchWhenConnectCBForEmail_";
    QTest::newRow("m_internetLayout") << "m_UrlLabel^ m_EditUrlName 50x80 m_launchWhenSWLaunchCBForInternet_ "
                                         "m_launchWhenConnectCBForInternet_";
}

void DialogLayoutTest::items()
{
    const OpenDialog dialog;
    const QBoxLayout* const layout = layoutOf(dialog, QTest::currentDataTag());
    QStringList items;
    for (int i = 0; i < layout->count(); ++i)
        items.append(describe(dialog, layout, i));
    QTEST(items.join(" "), "items");
}

void DialogLayoutTest::fixedSize_data()
{
    QTest::addColumn<int>("width"); // -1: not fixed
    QTest::addColumn<int>("height");
    QTest::newRow("m_nameLbl") << 51 << -1;
    QTest::newRow("m_typeLbl") << 70 << -1;
    QTest::newRow("m_appNameEdit") << -1 << 23;
    QTest::newRow("m_appTypeChoice") << -1 << 24;
    QTest::newRow("m_appPathEdit") << 184 << 24;
    QTest::newRow("m_appParamEdit") << 184 << 24;
    QTest::newRow("m_EditUrlName") << 198 << 24;
    QTest::newRow("m_browseBtn") << -1 << -1;
    QTest::newRow("m_okBtn") << -1 << -1;
    QTest::newRow("m_cancelBtn") << -1 << -1;
}

void DialogLayoutTest::fixedSize()
{
    QFETCH(int, width);
    QFETCH(int, height);
    const OpenDialog dialog;
    const QWidget* const widget = dialog.find<QWidget>(QTest::currentDataTag());
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

void DialogLayoutTest::types()
{
    const OpenDialog dialog;
    QComboBox* const choice = dialog->m_appTypeChoice;
    QCOMPARE(choice->count(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(choice->itemText(i), shown(typeKeys[i]));
        QVERIFY(choice->itemIcon(i).isNull());
        QVERIFY(!choice->itemData(i).isValid());
    }
    QVERIFY(!choice->isEditable());
    QCOMPARE(choice->maxCount(), 3);
    choice->addItem("a fourth");
    QCOMPARE(choice->count(), 3);
}

void DialogLayoutTest::emailPanelHasNoInput()
{
    const OpenDialog dialog;
    QVERIFY(dialog->m_EmailTab->findChildren<QLineEdit*>().isEmpty());
    QCOMPARE(dialog->m_EmailTab->findChildren<QWidget*>().size(), 3);
}

REGISTER_TEST(DialogLayoutTest)
#include "DialogLayoutTest.moc"
