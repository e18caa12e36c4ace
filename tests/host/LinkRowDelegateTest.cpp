// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// How the rows of the links' table are painted. That no letter is cut in any language is tested with the texts, in
// i18n.

#include <QAbstractItemDelegate>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "FakeLinkPage.h"
#include "LinkRowDelegate.h"
#include "Test.h"

class LinkRowDelegateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { QApplication::setLayoutDirection(Qt::LeftToRight); }
    void keepsLettersInTheRow_data();
    void keepsLettersInTheRow();
    void keepsTheFontWhereItFits();
    void standsOnOneLineOfAllCells();
    void endsWithAnEllipsis();
    void turnsNothingAround();
    void beginsAtTheRightFromRightToLeft();
    void showsTheSelection();
    void showsNoFocusFrame();
    void showsTheWholeNameInAToolTip_data();
    void showsTheWholeNameInAToolTip();
    void isOnlyForTheLinks();

private:
    QImage painted(const QString& name, QStyle::State state = QStyle::State_Enabled);
    static QRect inkOf(const QImage& picture, QRgb paper = qRgb(255, 255, 255));

    QScopedPointer<FakeLinkPage> m_page;
};

static const QSize cell(100, 14);

static QFont fontOf(int pixels)
{
    QFont font("DejaVu Sans");
    font.setPixelSize(pixels);
    return font;
}

void LinkRowDelegateTest::init()
{
    m_page.reset(new FakeLinkPage);
    m_page->setLinks("A B C", 1);
    m_page->table->setFont(fontOf(12));
    LinkRowDelegate::addTo(m_page.data());
}

/** A cell with this name and its surroundings: as much above it and below it as it is high. */
QImage LinkRowDelegateTest::painted(const QString& name, QStyle::State state)
{
    QTableWidget* const table = m_page->table;
    table->item(0, 0)->setText(name);
    QImage picture(cell.width(), 3 * cell.height(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QStyleOptionViewItem option;
    option.initFrom(table);
    option.widget = table;
    option.font = table->font();
    option.rect = QRect(QPoint(0, cell.height()), cell);
    option.state = state;
    option.showDecorationSelected = true;
    option.palette.setColor(QPalette::Text, Qt::black);
    QItemDelegate* const delegate = qobject_cast<QItemDelegate*>(table->itemDelegate());
    delegate->setClipping(false);
    QPainter painter(&picture);
    delegate->paint(&painter, option, table->model()->index(0, 0));
    painter.end();
    return picture;
}

/** Where a picture is not as its paper; seen from the cell. */
QRect LinkRowDelegateTest::inkOf(const QImage& picture, QRgb paper)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (std::abs(qGray(picture.pixel(x, y)) - qGray(paper)) > 25)
                ink |= QRect(x, y - cell.height(), 1, 1);
        }
    }
    return ink;
}

void LinkRowDelegateTest::keepsLettersInTheRow_data()
{
    QTest::addColumn<int>("pixels");
    QTest::addColumn<QString>("name");
    const QString accented = codePoint(0x00c5) + "gjq";
    const QString japanese = codePoint(0x96fb) + codePoint(0x9b31);
    const QString hindi = codePoint(0x0930) + codePoint(0x094d) + codePoint(0x0925) + codePoint(0x0940);
    for (const int pixels : {10, 12, 16, 24, 72}) {
        const QByteArray size = QByteArray::number(pixels);
        QTest::newRow(("accents, " + size).constData()) << pixels << accented;
        QTest::newRow(("Japanese, " + size).constData()) << pixels << japanese;
        QTest::newRow(("Hindi, " + size).constData()) << pixels << hindi;
    }
}

void LinkRowDelegateTest::keepsLettersInTheRow()
{
    QFETCH(int, pixels);
    QFETCH(QString, name);
    m_page->table->setFont(fontOf(pixels));
    const QRect ink = inkOf(painted(name));
    QVERIFY(!ink.isEmpty());
    QVERIFY2(ink.top() >= 0 && ink.bottom() < cell.height(),
             qPrintable(QString("from %1 to %2").arg(ink.top()).arg(ink.bottom())));
    // Smaller than the row only where the font is.
    QVERIFY2(pixels < 12 || ink.height() >= cell.height() - 4, qPrintable(QString::number(ink.height())));
}

void LinkRowDelegateTest::keepsTheFontWhereItFits()
{
    // The cell's letters are as wide as those of the font.
    const QString name = "minimum";
    const int width = QFontMetrics(m_page->table->font()).tightBoundingRect(name).width();
    QVERIFY(std::abs(inkOf(painted(name)).width() - width) <= 2);
}

void LinkRowDelegateTest::standsOnOneLineOfAllCells()
{
    QCOMPARE(inkOf(painted("xxx")).bottom(), inkOf(painted("HHH")).bottom());
    QVERIFY(inkOf(painted("gggg")).bottom() > inkOf(painted("xxx")).bottom());
}

void LinkRowDelegateTest::endsWithAnEllipsis()
{
    const QRect ink = inkOf(painted(QString(440, 'M')));
    QVERIFY(ink.right() < cell.width() - 2);
    QVERIFY(ink.width() > cell.width() / 2);
    QVERIFY(painted(QString(440, 'M')) == painted(QString(441, 'M')));
}

void LinkRowDelegateTest::turnsNothingAround()
{
    QVERIFY(painted("abc" + codePoint(0x202e) + "fed") == painted("abc fed"));
    QVERIFY(painted("a\nb") == painted("a b"));
}

void LinkRowDelegateTest::beginsAtTheRightFromRightToLeft()
{
    QVERIFY(inkOf(painted("abc")).right() < cell.width() / 2);
    m_page->table->setLayoutDirection(Qt::RightToLeft);
    QVERIFY(inkOf(painted("abc")).left() > cell.width() / 2);
}

void LinkRowDelegateTest::showsTheSelection()
{
    const QRgb highlight = m_page->table->palette().color(QPalette::Highlight).rgb();
    const QStyle::State selected = QStyle::State_Enabled | QStyle::State_Active | QStyle::State_Selected;
    const QImage picture = painted("abc", selected);
    QCOMPARE(picture.pixel(cell.width() - 2, cell.height() + 2), highlight);
    const QRgb letters = m_page->table->palette().color(QPalette::HighlightedText).rgb();
    bool hasLetters = false;
    for (int x = 0; x < cell.width(); ++x) {
        for (int y = cell.height(); y < 2 * cell.height(); ++y)
            hasLetters = hasLetters || picture.pixel(x, y) == letters;
    }
    QVERIFY(hasLetters);
}

void LinkRowDelegateTest::showsNoFocusFrame()
{
    QVERIFY(painted("abc", QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange) ==
            painted("abc"));
}

void LinkRowDelegateTest::showsTheWholeNameInAToolTip_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("tip");
    QTest::newRow("short") << "News" << QString();
    QTest::newRow("long") << "News, <b>weather</b> and sports"
                          << "News, &lt;b&gt;weather&lt;/b&gt; and sports";
    QTest::newRow("turned around") << "A long name of a photo" + codePoint(0x202e) + "gpj"
                                   << "A long name of a photo gpj";
}

void LinkRowDelegateTest::showsTheWholeNameInAToolTip()
{
    QFETCH(QString, name);
    QTableWidget* const table = m_page->table;
    m_page->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_page.data()));
    table->setColumnWidth(0, 100);
    table->item(0, 0)->setText(name);
    const QPoint place = table->visualItemRect(table->item(0, 0)).center();
    QHelpEvent event(QEvent::ToolTip, place, table->viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(table->viewport(), &event);
    QString tip = QToolTip::isVisible() ? QToolTip::text() : QString();
    QTEST(tip.remove("<p>").remove("</p>"), "tip");
    QToolTip::hideText();
}

void LinkRowDelegateTest::isOnlyForTheLinks()
{
    QWidget other;
    QTableWidget table(&other);
    const QAbstractItemDelegate* const before = table.itemDelegate();
    LinkRowDelegate::addTo(&other);
    LinkRowDelegate::addTo(nullptr);
    QVERIFY(table.itemDelegate() == before);
}

REGISTER_TEST(LinkRowDelegateTest)
#include "LinkRowDelegateTest.moc"
