// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The place of a settings page, and how a page stands in it.

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QVBoxLayout>

#include "PageArea.h"
#include "Test.h"

class PageAreaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wantsToShowTheWholePage_data();
    void wantsToShowTheWholePage();
    void hasRoomForAPageThatMustNotBeSmaller();
    void keepsThePageAsLargeAsItself_data();
    void keepsThePageAsLargeAsItself();
    void keepsAPageOfItsOwnSizeInTheMiddle_data();
    void keepsAPageOfItsOwnSizeInTheMiddle();
    void makesRoomForAPageThatGrows();
    void doesNotKeepAFormerPage();
    void doesWithoutAPageThatIsGone();
    void letsTheKeyboardBegin_data();
    void letsTheKeyboardBegin();
};

namespace
{
/** A page that wants and needs these sizes. */
class SizedPage : public QWidget
{
public:
    SizedPage(QWidget* parent, QSize wanted, QSize least)
        : QWidget(parent)
        , m_wanted(wanted)
        , m_least(least)
    {
    }
    QSize sizeHint() const override { return m_wanted; }
    QSize minimumSizeHint() const override { return m_least; }

private:
    const QSize m_wanted, m_least;
};

std::unique_ptr<PageArea> shownArea()
{
    auto area = std::make_unique<PageArea>();
    area->resize(600, 500);
    area->show();
    return area;
}
} // namespace

void PageAreaTest::wantsToShowTheWholePage_data()
{
    QTest::addColumn<QSize>("wanted");
    QTest::addColumn<QSize>("least");
    QTest::addColumn<QSize>("hint");
    QTest::newRow("no page") << QSize() << QSize() << QSize(400, 360);
    QTest::newRow("small") << QSize(100, 100) << QSize(50, 50) << QSize(400, 360);
    QTest::newRow("wide") << QSize(700, 100) << QSize(50, 50) << QSize(700, 360);
    QTest::newRow("high") << QSize(100, 900) << QSize(50, 50) << QSize(400, 900);
    QTest::newRow("needs more than it wants") << QSize(500, 500) << QSize(600, 50) << QSize(600, 500);
}

void PageAreaTest::wantsToShowTheWholePage()
{
    QFETCH(QSize, wanted);
    QFETCH(QSize, least);
    QFETCH(QSize, hint);
    PageArea area;
    if (wanted.isValid())
        area.setPage(new SizedPage(area.pageParent(), wanted, least));
    QCOMPARE(area.sizeHint(), hint);
    area.setPage(nullptr);
    QCOMPARE(area.sizeHint(), QSize(400, 360));
}

void PageAreaTest::hasRoomForAPageThatMustNotBeSmaller()
{
    PageArea area;
    QWidget* const page = new SizedPage(area.pageParent(), QSize(100, 100), QSize(50, 50));
    page->setMinimumSize(450, 500);
    area.setPage(page);
    QCOMPARE(area.sizeHint(), QSize(450, 500));
}

void PageAreaTest::keepsThePageAsLargeAsItself_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("pageSize");
    QTest::newRow("room to spare") << QSize(800, 700) << QSize(800, 700);
    QTest::newRow("too narrow") << QSize(300, 700) << QSize(500, 0);
    QTest::newRow("too low") << QSize(800, 200) << QSize(0, 400);
    QTest::newRow("too small") << QSize(300, 200) << QSize(500, 400);
}

void PageAreaTest::keepsThePageAsLargeAsItself()
{
    QFETCH(QSize, size);
    QFETCH(QSize, pageSize); // 0 stands for what a scroll bar leaves of the area
    const std::unique_ptr<PageArea> area = shownArea();
    QVERIFY(QTest::qWaitForWindowExposed(area.get()));
    QWidget* const page = new SizedPage(area->pageParent(), QSize(500, 400), QSize(10, 10));
    area->setPage(page);
    QCOMPARE(page->geometry(), QRect(0, 0, 600, 500));
    area->resize(size);
    const QSize viewport = area->viewport()->size();
    QCOMPARE(page->pos(), QPoint(0, 0));
    QTRY_COMPARE(page->width(), pageSize.width() ? pageSize.width() : viewport.width());
    QTRY_COMPARE(page->height(), pageSize.height() ? pageSize.height() : viewport.height());
}

void PageAreaTest::keepsAPageOfItsOwnSizeInTheMiddle_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("place");
    QTest::newRow("as large") << QSize(500, 400) << QRect(0, 0, 500, 400);
    QTest::newRow("room to spare") << QSize(800, 700) << QRect(150, 150, 500, 400);
    QTest::newRow("wide") << QSize(800, 400) << QRect(150, 0, 500, 400);
    QTest::newRow("too small") << QSize(300, 200) << QRect(0, 0, 500, 400);
}

void PageAreaTest::keepsAPageOfItsOwnSizeInTheMiddle()
{
    QFETCH(QSize, size);
    QFETCH(QRect, place);
    const std::unique_ptr<PageArea> area = shownArea();
    QVERIFY(QTest::qWaitForWindowExposed(area.get()));
    QWidget* const page = new SizedPage(area->pageParent(), QSize(500, 400), QSize(10, 10));
    area->setPage(page, PageArea::Wanted);
    QCOMPARE(page->geometry(), QRect(50, 50, 500, 400));
    area->resize(size);
    QTRY_COMPARE(page->geometry(), place);
    // The next one is not asked to do the same.
    QWidget* const next = new SizedPage(area->pageParent(), QSize(10, 10), QSize(10, 10));
    area->setPage(next);
    QTRY_COMPARE(next->geometry(), area->pageParent()->rect());
}

void PageAreaTest::makesRoomForAPageThatGrows()
{
    const std::unique_ptr<PageArea> area = shownArea();
    QVERIFY(QTest::qWaitForWindowExposed(area.get()));
    QWidget* const page = new QWidget(area->pageParent());
    QVBoxLayout* const column = new QVBoxLayout(page);
    area->setPage(page);
    page->show();
    const QSignalSpy resized(area.get(), &PageArea::resized);
    QWidget* const part = new SizedPage(nullptr, QSize(100, 1000), QSize(100, 1000));
    column->addWidget(part);
    QTRY_VERIFY(resized.size() > 0);
    QVERIFY(area->sizeHint().height() > 1000);
    QTRY_COMPARE(part->height(), 1000);
    // A former one takes no room.
    QWidget* const next = new SizedPage(area->pageParent(), QSize(10, 10), QSize(10, 10));
    area->setPage(next);
    const int count = resized.size();
    delete part;
    QCoreApplication::processEvents();
    QCOMPARE(resized.size(), count);
    QCOMPARE(area->sizeHint(), QSize(400, 360));
}

void PageAreaTest::doesNotKeepAFormerPage()
{
    const std::unique_ptr<PageArea> area = shownArea();
    QVERIFY(QTest::qWaitForWindowExposed(area.get()));
    QWidget* const former = new SizedPage(area->pageParent(), QSize(100, 100), QSize(10, 10));
    QWidget* const page = new SizedPage(area->pageParent(), QSize(100, 100), QSize(10, 10));
    area->setPage(former);
    area->setPage(page);
    area->resize(700, 550);
    QTRY_COMPARE(page->size(), QSize(700, 550));
    QCOMPARE(former->size(), QSize(600, 500));
}

void PageAreaTest::doesWithoutAPageThatIsGone()
{
    const std::unique_ptr<PageArea> area = shownArea();
    QVERIFY(QTest::qWaitForWindowExposed(area.get()));
    QWidget* const page = new SizedPage(area->pageParent(), QSize(500, 400), QSize(10, 10));
    area->setPage(page);
    delete page;
    area->resize(700, 650);
    QTRY_COMPARE(area->pageParent()->size(), QSize(700, 650));
}

void PageAreaTest::letsTheKeyboardBegin_data()
{
    QTest::addColumn<QString>("begin");
    for (const char* begin : {"list", "field", "button"})
        QTest::newRow(begin) << begin;
}

/** In the first control after tabs and those that do nothing. */
void PageAreaTest::letsTheKeyboardBegin()
{
    QFETCH(QString, begin);
    const auto area = shownArea();
    QWidget* const page = new QWidget(area->pageParent());
    QVBoxLayout* const column = new QVBoxLayout(page);
    column->addWidget(new QTabWidget);
    QListWidget* const list = new QListWidget;
    QLineEdit* const field = new QLineEdit;
    QPushButton* const button = new QPushButton;
    const QList<QWidget*> controls{list, field, button};
    const QStringList names{"list", "field", "button"};
    for (int i = 0; i < controls.size(); ++i) {
        controls.at(i)->setObjectName(names.at(i));
        column->addWidget(controls.at(i));
    }
    if (begin == "list")
        list->addItem("row");
    field->setEnabled(begin != "button");
    area->setPage(page);
    page->show();
    area->takeFocus();
    QVERIFY(area->focusWidget());
    QCOMPARE(area->focusWidget()->objectName(), begin);
    area->setPage(nullptr);
    area->takeFocus();
    QCOMPARE(area->focusWidget()->objectName(), begin);
}

REGISTER_TEST(PageAreaTest)
#include "PageAreaTest.moc"
