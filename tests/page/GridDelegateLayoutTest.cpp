// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The table's cells: no frame around the focused one.

#include <QImage>
#include <QPainter>
#include <QStyleFactory>

#include "ShownPage.h"
#include "Test.h"

class GridDelegateLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void pen_data();
    void pen();
    void nothingIsDrawn_data() { pen_data(); }
    void nothingIsDrawn();
    void focusedCellHasNoFrame();
    void noMetaObjectOfItsOwn();
    void delegateOfTheTable();

private:
    static QImage cell(const QItemDelegate& delegate, QStyle::State state);

    ShownPage m_page;
};

void GridDelegateLayoutTest::pen_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("isSet");
    QTest::newRow("focus") << int(QStyle::State_HasFocus) << true;
    QTest::newRow("focus and more") << int(QStyle::State_HasFocus | QStyle::State_Selected | QStyle::State_Enabled)
                                    << true;
    QTest::newRow("focus by the keyboard") << int(QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange) << true;
    QTest::newRow("nothing") << int(QStyle::State_None) << false;
    QTest::newRow("selected") << int(QStyle::State_Selected | QStyle::State_Enabled | QStyle::State_Active) << false;
    QTest::newRow("all but focus") << int(~QStyle::State_HasFocus) << false;
}

void GridDelegateLayoutTest::pen()
{
    QFETCH(int, state);
    QFETCH(bool, isSet);
    QImage image(20, 20, QImage::Format_ARGB32);
    QPainter painter(&image);
    const QPen before(QBrush(Qt::red), 3, Qt::DotLine);
    painter.setPen(before);
    ViewItemOption option;
    option.state = QStyle::State(QFlag(state));
    GridDelegateLayout().drawFocus(&painter, option, QRect(2, 2, 10, 10));
    if (!isSet) {
        QCOMPARE(painter.pen(), before);
        return;
    }
    QCOMPARE(painter.pen().color(), QColor(Qt::white));
    QCOMPARE(painter.pen().width(), 0);
    QVERIFY(painter.pen().isCosmetic());
    QCOMPARE(int(painter.pen().style()), int(Qt::SolidLine));
}

void GridDelegateLayoutTest::nothingIsDrawn()
{
    QFETCH(int, state);
    QImage image(20, 20, QImage::Format_ARGB32);
    image.fill(qRgb(10, 20, 30));
    const QImage before = image.copy();
    QPainter painter(&image);
    ViewItemOption option;
    option.state = QStyle::State(QFlag(state));
    option.rect = QRect(0, 0, 20, 20);
    GridDelegateLayout().drawFocus(&painter, option, option.rect);
    painter.end();
    QCOMPARE(image, before);
}

QImage GridDelegateLayoutTest::cell(const QItemDelegate& delegate, QStyle::State state)
{
    QTableWidget table(1, 1);
    table.setStyle(QStyleFactory::create("Windows"));
    const QScopedPointer<QStyle> style(table.style());
    table.setItem(0, 0, new QTableWidgetItem("Portal"));
    QImage image(80, 30, QImage::Format_ARGB32);
    image.fill(qRgb(255, 255, 255));
    QPainter painter(&image);
    ViewItemOption option;
    option.initFrom(&table);
    option.widget = &table;
    option.rect = QRect(0, 0, 80, 30);
    option.state = QStyle::State_Enabled | QStyle::State_KeyboardFocusChange | state;
    delegate.paint(&painter, option, table.model()->index(0, 0));
    painter.end();
    return image;
}

void GridDelegateLayoutTest::focusedCellHasNoFrame()
{
    const GridDelegateLayout delegate;
    QCOMPARE(cell(delegate, QStyle::State_HasFocus), cell(delegate, QStyle::State_None));
    // The toolkit's own delegate does draw one here.
    const QItemDelegate plain;
    QVERIFY(cell(plain, QStyle::State_HasFocus) != cell(plain, QStyle::State_None));
}

void GridDelegateLayoutTest::noMetaObjectOfItsOwn()
{
    const GridDelegateLayout delegate;
    QCOMPARE(QByteArray(delegate.metaObject()->className()), QByteArray("QItemDelegate"));
    QVERIFY(!delegate.parent());
}

void GridDelegateLayoutTest::delegateOfTheTable()
{
    m_page.begin(links("One"));
    QVERIFY(dynamic_cast<GridDelegateLayout*>(m_page.table()->itemDelegate()));
    QCOMPARE(m_page.table()->itemDelegate(), static_cast<QAbstractItemDelegate*>(m_page.page->m_gridDelegate));
    QVERIFY(!m_page.page->m_gridDelegate->parent());
}

REGISTER_TEST(GridDelegateLayoutTest)
#include "GridDelegateLayoutTest.moc"
