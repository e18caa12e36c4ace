// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the host does with the page: shows, fits, hides, cancels and confirms it.

#include <QScrollBar>

#include "PageOperations.h"
#include "ShownPage.h"
#include "Test.h"

/** A plug-in object whose page is shown in another way. */
class OwnWindow : public QuickLinkSettingPluginDlg
{
public:
    OwnWindow()
        : parent(nullptr)
        , result(0)
    {
    }
    int ShowWindow(QWidget* newParent, QRect& newArea) override
    {
        parent = newParent;
        area = newArea;
        newArea.moveLeft(99);
        return result;
    }

    QWidget* parent;
    QRect area;
    int result;
};

class PageHostOperationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void area_data();
    void area();
    void withoutAParent();
    void settingDialogIsTheWindow();
    void result_data();
    void result();
    void language_data();
    void language();
    void withoutEffect_data();
    void withoutEffect();
    void hideAndCancel_data();
    void hideAndCancel();
    void showInAnotherWidget();
    void otherWidgetOwnsThePage();
    void selectionAndScrollingStartAnew();
    void changeStaysAfter_data();
    void changeStaysAfter();
    void dialogsSurviveTheRebuild();

private:
    void bringInto(const QString& state);

    ShownPage m_page;
};

void PageHostOperationsTest::area_data()
{
    QTest::addColumn<QRect>("area");
    QTest::addColumn<QSize>("size");
    QTest::newRow("400 x 300 at 10, 20") << QRect(QPoint(10, 20), QPoint(409, 319)) << QSize(400, 300);
    QTest::newRow("at the origin") << QRect(0, 0, 450, 400) << QSize(450, 400);
    QTest::newRow("left of the parent") << QRect(-30, -40, 500, 420) << QSize(500, 420);
    QTest::newRow("one pixel") << QRect(QPoint(5, 5), QPoint(5, 5)) << QSize(1, 1);
    QTest::newRow("large") << QRect(1, 2, 3000, 2000) << QSize(3000, 2000);
}

void PageHostOperationsTest::area()
{
    QFETCH(QRect, area);
    QFETCH(QSize, size);
    m_page.beginHidden(links("a b"));
    for (int i = 0; i < 4; ++i) {
        QRect given = area;
        const int answer =
            i % 2 ? m_page.page->ShowSettingDialog(m_page.host, given) : m_page.page->ShowWindow(m_page.host, given);
        QCOMPARE(answer, 1);
        QCOMPARE(given, area);
        QCOMPARE(m_page.page->m_pageWidget->pos(), area.topLeft());
        QCOMPARE(m_page.page->m_pageWidget->size(), size);
        QVERIFY(m_page.page->m_pageWidget->isVisible());
        QCOMPARE(m_page.page->m_parentWidget, m_page.host.data());
        QCOMPARE(m_page.linkNames(), "a b");
        QCOMPARE(m_page.enabledButtons(), "New Edit Delete Down");
    }
}

void PageHostOperationsTest::withoutAParent()
{
    m_page.beginHidden(links("a b"));
    QRect area(0, 0, 450, 400);
    const RecordingTrace trace;
    QCOMPARE(m_page.page->ShowSettingDialog(nullptr, area), 1);
    QVERIFY(m_page.page->m_pageWidget->isWindow());
    QVERIFY(m_page.page->m_pageWidget->isVisible());
    QCOMPARE(m_page.linkNames(), "a b");
    // The toolkit would complain of a missing sender.
    QCOMPARE(trace.warningLines.filter("connect"), QStringList());
}

void PageHostOperationsTest::settingDialogIsTheWindow()
{
    QWidget parent;
    OwnWindow window;
    const int results[] = {0, 1, 7};
    for (int result : results) {
        QRect area(1, 2, 30, 40);
        window.result = result;
        QCOMPARE(static_cast<ISettingUIPlugin*>(&window)->ShowSettingDialog(&parent, area), result);
        QCOMPARE(window.parent, &parent);
        QCOMPARE(window.area, QRect(1, 2, 30, 40));
        QCOMPARE(area.left(), 99);
    }
}

void PageHostOperationsTest::bringInto(const QString& state)
{
    m_page.beginHidden(links("a b c"));
    if (state == "not shown")
        return;
    if (state == "filled, not shown") {
        m_page.page->createWidgetMemory(m_page.host);
        m_page.page->initializeUI();
        m_page.page->fillTable();
        QVERIFY(m_page.page->m_pageWidget->isHidden());
        return;
    }
    m_page.show();
    if (state == "hidden")
        m_page.page->HideSetting();
    else if (state == "cancelled")
        m_page.page->OnClickSettingCancelButton();
}

void PageHostOperationsTest::result_data()
{
    QTest::addColumn<QString>("state");
    const char* const states[] = {"not shown", "filled, not shown", "shown", "hidden", "cancelled"};
    for (const char* state : states)
        QTest::newRow(state) << QString(state);
}

void PageHostOperationsTest::result()
{
    QFETCH(QString, state);
    bringInto(state);
    QCOMPARE(m_page.page->IsActiveSetting(), 1);
    QCOMPARE(m_page.page->OnClickSettingOkButton(), 1);
    QCOMPARE(m_page.page->HideSetting(), 1);
    QCOMPARE(m_page.page->HideSetting(), 1);
    QCOMPARE(m_page.page->OnClickSettingCancelButton(), 1);
    QCOMPARE(m_page.page->HideSetting(), 1);
    QCOMPARE(m_page.page->IsActiveSetting(), 1);
    QCOMPARE(m_page.page->OnClickSettingCancelButton(), 1);
    QCOMPARE(m_page.page->m_pageWidget != nullptr, state != "not shown");
    QCOMPARE(m_page.told(), 0);
    QCOMPARE(FakeHost::instance().messages.size(), 0);
    m_page.show();
    QVERIFY(m_page.page->m_pageWidget->isVisible());
    m_page.end();

    bringInto(state);
    const QPointer<QWidget> old = m_page.page->m_pageWidget;
    m_page.show();
    QVERIFY(!old);
    QCOMPARE(m_page.host->children().size(), 1);
    QVERIFY(m_page.page->m_pageWidget->isVisible());
    QCOMPARE(m_page.currentRow(), 0);
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete Down");
    QCOMPARE(m_page.linkNames(), "a b c");
}

void PageHostOperationsTest::language_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("result");
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("null") << QString() << 0;
    QTest::newRow("de") << "de" << 1;
    QTest::newRow("blank") << " " << 1;
    QTest::newRow("unknown") << "no such language" << 1;
}

void PageHostOperationsTest::language()
{
    QFETCH(QString, name);
    QFETCH(int, result);
    m_page.begin(links("a"));
    FakeHost::instance().language = "de";
    QCOMPARE(m_page.page->ChangeLang(name), result);
    QCOMPARE(m_page.button("m_newBtn")->text(), "en:IDS_LINK_SETTING_NEW");
    QCOMPARE(m_page.table()->horizontalHeaderItem(0)->text(), "en:IDS_LINK_SETTING_NAME");
}

void PageHostOperationsTest::withoutEffect_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<int>("traces");
    QTest::newRow("Hide") << "Hide" << 1;
    QTest::newRow("FitSize") << "FitSize" << 1;
    QTest::newRow("ChangeLang") << "ChangeLang" << 1;
    QTest::newRow("OnClickSettingOkButton") << "OnClickSettingOkButton" << -1;
    QTest::newRow("IsActiveSetting") << "IsActiveSetting" << -1;
}

void PageHostOperationsTest::withoutEffect()
{
    QFETCH(QString, operation);
    QFETCH(int, traces);
    m_page.begin(links("a b"));
    QFile::remove(FakeHost::instance().configPath());
    const QPointer<QWidget> widget = m_page.page->m_pageWidget;
    widget->setGeometry(7, 8, 300, 200);
    m_page.table()->setCurrentCell(1, 0);
    {
        RecordingTrace trace;
        operationNamed(operation).call(m_page.page, nullptr);
        const QByteArray name = operation.toLatin1();
        QVERIFY(traces < 0 || trace.countDebug(tracePattern("Start of %F: " + name + ": %L: ")) == traces);
        QVERIFY(traces < 0 || trace.countDebug(tracePattern("End of %F: " + name + ": %L: ")) == traces);
    }
    QCOMPARE(anyArea, QRect(0, 0, 450, 400));
    QCOMPARE(m_page.page->m_pageWidget, widget.data());
    QVERIFY(widget->isVisible());
    QCOMPARE(widget->geometry(), QRect(7, 8, 300, 200));
    QCOMPARE(widget->parentWidget(), m_page.host.data());
    QCOMPARE(m_page.currentRow(), 1);
    QCOMPARE(m_page.linkNames(), "a b");
    QCOMPARE(m_page.file(), QByteArray());
    QCOMPARE(m_page.told(), 0);
}

void PageHostOperationsTest::hideAndCancel_data()
{
    QTest::addColumn<bool>("isCancel");
    QTest::newRow("hide") << false;
    QTest::newRow("cancel") << true;
}

void PageHostOperationsTest::hideAndCancel()
{
    QFETCH(bool, isCancel);
    m_page.begin(links("a"));
    const QPointer<QWidget> widget = m_page.page->m_pageWidget;
    QCOMPARE(isCancel ? m_page.page->OnClickSettingCancelButton() : m_page.page->HideSetting(), 1);
    QVERIFY(widget);
    QVERIFY(widget->isHidden());
    QCOMPARE(widget->isWindow(), isCancel);
    QCOMPARE(widget->parentWidget(), isCancel ? nullptr : m_page.host.data());
    QCOMPARE(m_page.host->children().isEmpty(), isCancel);
    QCOMPARE(m_page.page->m_pageWidget, widget.data());
    QCOMPARE(m_page.linkNames(), "a");
}

void PageHostOperationsTest::showInAnotherWidget()
{
    m_page.begin(links("a"));
    QWidget other;
    QRect area(0, 0, 450, 400);
    m_page.page->ShowWindow(&other, area);
    QVERIFY(m_page.host->children().isEmpty());
    QCOMPARE(m_page.page->m_parentWidget, &other);
    m_page.page->onNewBtnClick();
    QCOMPARE(m_page.frame()->parentWidget(), &other);
    m_page.page->OnDestroy();
    QVERIFY(other.findChildren<QTableWidget*>().isEmpty());
}

void PageHostOperationsTest::otherWidgetOwnsThePage()
{
    // The widget of an earlier showing is nothing to the page any more.
    QScopedPointer<QWidget> first(new QWidget);
    QRect area(0, 0, 450, 400);
    m_page.beginHidden(links("a"));
    m_page.page->ShowWindow(first.data(), area);
    m_page.show();
    first.reset();
    QCOMPARE(m_page.page->m_parentWidget, m_page.host.data());
    QCOMPARE(m_page.disorder(), QString());
    m_page.click("m_newBtn");
    QCOMPARE(m_page.frame()->parentWidget(), m_page.host.data());
}

void PageHostOperationsTest::selectionAndScrollingStartAnew()
{
    QByteArray names("l0");
    for (int i = 1; i < 60; ++i)
        names += " l" + QByteArray::number(i);
    m_page.begin(links(names.constData()));
    QCoreApplication::processEvents();
    m_page.table()->setCurrentCell(59, 0);
    m_page.table()->scrollToBottom();
    QVERIFY(m_page.table()->verticalScrollBar()->value() > 0);
    m_page.show();
    QCoreApplication::processEvents();
    QCOMPARE(m_page.currentRow(), 0);
    QCOMPARE(m_page.table()->verticalScrollBar()->value(), 0);
}

void PageHostOperationsTest::changeStaysAfter_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<bool>("isCancelled");
    QTest::addColumn<QString>("names");
    const char* const rows[][2] = {
        {"New", "a b c d"}, {"Edit", "a x c"}, {"Delete", "a c"}, {"Up", "b a c"}, {"Down", "a c b"}};
    for (const char* const* row : rows) {
        QTest::newRow(qPrintable(QLatin1String(row[0]) + ", Cancel")) << QString(row[0]) << true << QString(row[1]);
        QTest::newRow(qPrintable(QLatin1String(row[0]) + ", OK")) << QString(row[0]) << false << QString(row[1]);
    }
}

void PageHostOperationsTest::changeStaysAfter()
{
    QFETCH(QString, what);
    QFETCH(bool, isCancelled);
    QFETCH(QString, names);
    m_page.begin(links("a b c"));
    m_page.select(1);
    m_page.change(what);
    const QByteArray file = m_page.file();
    const int notifications = FakeHost::instance().notifications.size();
    if (isCancelled)
        m_page.page->OnClickSettingCancelButton();
    else
        m_page.page->OnClickSettingOkButton();
    QCOMPARE(m_page.listNames(), names);
    QCOMPARE(m_page.file(), file);
    QCOMPARE(FakeHost::instance().notifications.size(), notifications);
    m_page.show();
    QCOMPARE(m_page.shownNames(), names);
}

void PageHostOperationsTest::dialogsSurviveTheRebuild()
{
    m_page.begin(links("a b"));
    m_page.click("m_newBtn");
    m_page.chooseType(1);
    m_page.enter("m_appNameEdit", "c");
    m_page.show();
    QCOMPARE(m_page.liveFrames(), 1);
    m_page.pressOk();
    QCOMPARE(m_page.linkNames(), "a b c");
}

REGISTER_TEST(PageHostOperationsTest)
#include "PageHostOperationsTest.moc"
