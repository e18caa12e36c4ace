// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What gives way in a frame whose size is fixed too small for its form. That no control is cut in any language is
// tested with the texts, in i18n.

#include <QHBoxLayout>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

#include "ExtendDialog.h"
#include "Test.h"

namespace
{
/** Counts how often a form is laid out anew. */
class Requests : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::LayoutRequest ? 1 : 0;
        return false;
    }

    int count = 0;
};
} // namespace

class SpareRoomTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_frame.reset(); }
    void leavesAFormThatFitsAlone_data();
    void leavesAFormThatFitsAlone();
    void givesWhatIsMissing_data();
    void givesWhatIsMissing();
    void givesRoomOfPartsWithin();
    void givesMoreForWhatGrows();
    void endsWhereThereIsNoneLeft();
    void countsRoomOnce();
    void leavesMarksAboveTheLine_data();
    void leavesMarksAboveTheLine();

private:
    void show(const QSize& size, bool isFixed = true);
    QSize partSize(int i) const { return m_parts.at(i)->size(); }

    QScopedPointer<ExtendDialog> m_frame;
    QWidget* m_form = nullptr;
    QBoxLayout* m_column = nullptr; ///< of the form: of two rows
    QList<QWidget*> m_parts;        ///< two in each row, of 50 by 30 pixels
};

/** A form that wants 170 by 120 pixels, 60 of them in each direction for room. */
void SpareRoomTest::init()
{
    m_frame.reset(new ExtendDialog(nullptr, Qt::WindowCloseButtonHint, 1, false));
    m_form = new QWidget;
    m_parts.clear();
    m_column = new QVBoxLayout(m_form);
    m_column->setContentsMargins(25, 25, 25, 25);
    m_column->setSpacing(10);
    for (int row = 0; row < 2; ++row) {
        QBoxLayout* const parts = new QHBoxLayout;
        parts->setSpacing(20);
        m_column->addLayout(parts);
        for (int i = 0; i < 2; ++i) {
            m_parts.append(new QWidget);
            m_parts.last()->setFixedSize(50, 30);
            parts->addWidget(m_parts.last());
        }
    }
    m_frame->AddMainWidget(m_form);
    QCOMPARE(m_column->minimumSize(), QSize(170, 120));
}

void SpareRoomTest::show(const QSize& size, bool isFixed)
{
    if (isFixed)
        m_frame->setFixedSize(size);
    else
        m_frame->resize(size);
    m_frame->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_frame.data()));
}

void SpareRoomTest::leavesAFormThatFitsAlone_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isFixed");
    QTest::newRow("as large as it wants") << QSize(170, 120) << true;
    QTest::newRow("larger") << QSize(345, 360) << true;
    QTest::newRow("smaller, but not for long") << QSize(130, 90) << false;
}

void SpareRoomTest::leavesAFormThatFitsAlone()
{
    QFETCH(QSize, size);
    QFETCH(bool, isFixed);
    show(size, isFixed);
    QCOMPARE(m_column->contentsMargins(), QMargins(25, 25, 25, 25));
    QCOMPARE(m_column->spacing(), 10);
}

void SpareRoomTest::givesWhatIsMissing_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("across");
    QTest::addColumn<int>("down");
    QTest::addColumn<int>("gap");
    QTest::addColumn<int>("gapInRow");
    QTest::newRow("across") << QSize(135, 120) << 12 << 25 << 10 << 10;
    QTest::newRow("down") << QSize(170, 90) << 25 << 12 << 5 << 20;
    QTest::newRow("both") << QSize(135, 90) << 12 << 12 << 5 << 10;
    QTest::newRow("all") << QSize(100, 60) << 0 << 0 << 0 << 0;
}

void SpareRoomTest::givesWhatIsMissing()
{
    QFETCH(QSize, size);
    show(size);
    QFETCH(int, across);
    QFETCH(int, down);
    QCOMPARE(m_column->contentsMargins(), QMargins(across, down, across, down));
    QTEST(m_column->spacing(), "gap");
    QTEST(m_column->itemAt(0)->layout()->spacing(), "gapInRow");
    QCOMPARE(m_form->size(), size);
    for (int i = 0; i < m_parts.size(); ++i) {
        const QWidget* const part = m_parts.at(i);
        QVERIFY(QRect(QPoint(), size).contains(QRect(part->mapTo(m_form, QPoint()), part->size())));
    }
    QVERIFY(m_parts.at(0)->geometry().bottom() < m_parts.at(2)->geometry().top());
}

/** A page of tabs says what it wants to none but the tabs. */
void SpareRoomTest::givesRoomOfPartsWithin()
{
    QTabWidget* const tabs = new QTabWidget;
    QWidget* const page = new QWidget;
    QBoxLayout* const inner = new QVBoxLayout(page);
    inner->setContentsMargins(0, 30, 0, 30);
    QWidget* const part = new QWidget;
    part->setFixedSize(10, 10);
    inner->addWidget(part);
    tabs->addTab(page, "Page");
    m_column->addWidget(tabs);
    show(m_column->minimumSize() - QSize(0, 50));
    // A step is about 6 of the 130 pixels.
    QCOMPARE(inner->contentsMargins(), QMargins(0, 18, 0, 18));
    QVERIFY(m_column->minimumSize().height() <= m_frame->height());
}

void SpareRoomTest::givesMoreForWhatGrows()
{
    show(QSize(170, 120));
    m_parts.at(0)->setFixedHeight(60);
    QCoreApplication::processEvents();
    const int wanted = m_column->minimumSize().height();
    QVERIFY2(wanted > 115 && wanted <= 120, qPrintable(QString::number(wanted)));
    QCOMPARE(partSize(0).height(), 60);
    // It does not come back: the other controls would jump.
    const QMargins margins = m_column->contentsMargins();
    m_parts.at(0)->setFixedHeight(30);
    QCoreApplication::processEvents();
    QCOMPARE(m_column->contentsMargins(), margins);
    m_frame->hide();
    m_frame->show();
    QCOMPARE(m_column->contentsMargins(), margins);
}

void SpareRoomTest::endsWhereThereIsNoneLeft()
{
    show(QSize(90, 50));
    QCOMPARE(m_column->contentsMargins(), QMargins());
    // Nor does it go on asking.
    QCoreApplication::sendPostedEvents();
    Requests requests;
    m_form->installEventFilter(&requests);
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
    QVERIFY2(requests.count <= 1, qPrintable(QString::number(requests.count)));
}

void SpareRoomTest::countsRoomOnce()
{
    show(QSize(135, 90));
    QCOMPARE(m_column->contentsMargins(), QMargins(12, 12, 12, 12));
    m_frame->hide();
    m_frame->setFixedSize(125, 90);
    m_frame->show();
    // A third of what there was at first.
    QCOMPARE(m_column->contentsMargins(), QMargins(8, 12, 8, 12));
}

void SpareRoomTest::leavesMarksAboveTheLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasMarks");
    QTest::newRow("none") << "Opens your mail program." << false;
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("far above the line") << QString("a") + QString(4, QChar(0x0302)) << true;
}

void SpareRoomTest::leavesMarksAboveTheLine()
{
    QFETCH(QString, text);
    QFETCH(bool, hasMarks);
    QLabel* const label = new QLabel(text);
    label->setFont(QFont("DejaVu Sans", 9));
    m_column->addWidget(label);
    show(QSize(345, 360));
    const QMargins margins = label->contentsMargins();
    QVERIFY2(hasMarks ? margins.top() > 0 : margins.isNull(), qPrintable(QString::number(margins.top())));
}

REGISTER_TEST(SpareRoomTest)
#include "SpareRoomTest.moc"
