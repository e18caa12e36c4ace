// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The frame around a plug-in's form: its size, its place and how it closes.

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "ExtendDialog.h"
#include "Test.h"

class ExtendDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void keepsItsFixedSize();
    void hostsTheMainWidget();
    void replacesTheMainWidget();
    void standsInTheMiddleOfItsParent_data();
    void standsInTheMiddleOfItsParent();
    void isCentredAtEveryShow();
    void staysWhereTheDesktopBringsItBack();
    void staysWhereItIsWithoutAParent();
    void hasATitleBarWithCloseButton();
    void isModal();
    void closes_data();
    void closes();
    void hasASizeGripOnDemand_data();
    void hasASizeGripOnDemand();
    void goesWithItsParent();

private:
    QWidget* m_window;
    ExtendDialog* m_frame;
};

/** Makes the frame as the New/Edit dialog does. */
void ExtendDialogTest::init()
{
    m_window = new QWidget;
    m_window->setGeometry(100, 150, 600, 400);
    m_frame = new ExtendDialog(m_window, Qt::WindowCloseButtonHint, 1, false);
}

void ExtendDialogTest::cleanup()
{
    delete m_window;
}

/** A form that would like to be larger than the frame. */
static QWidget* largeForm()
{
    QWidget* const form = new QWidget;
    QVBoxLayout* const layout = new QVBoxLayout(form);
    QLabel* const label = new QLabel;
    label->setMinimumSize(500, 500);
    layout->addWidget(label);
    return form;
}

void ExtendDialogTest::keepsItsFixedSize()
{
    m_frame->AddMainWidget(largeForm());
    m_frame->setFixedSize(345, 360);
    m_frame->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_frame));
    QCOMPARE(m_frame->size(), QSize(345, 360));
    QCOMPARE(m_frame->minimumSize(), QSize(345, 360));
    QCOMPARE(m_frame->maximumSize(), QSize(345, 360));
}

void ExtendDialogTest::hostsTheMainWidget()
{
    QWidget* const form = largeForm();
    m_frame->AddMainWidget(form);
    m_frame->AddMainWidget(nullptr);
    QCOMPARE(form->parentWidget(), m_frame);
    // Also a size fixed below what the form wants leaves no margin.
    for (const QSize size : {QSize(345, 360), QSize(700, 600)}) {
        m_frame->setFixedSize(size);
        m_frame->show();
        QTRY_COMPARE(form->geometry(), QRect(QPoint(0, 0), size));
        QVERIFY(form->isVisible());
    }
}

void ExtendDialogTest::replacesTheMainWidget()
{
    QWidget* const former = new QWidget;
    QWidget* const form = new QWidget;
    m_frame->AddMainWidget(former);
    m_frame->AddMainWidget(form);
    m_frame->AddMainWidget(form);
    m_frame->setFixedSize(345, 360);
    m_frame->show();
    QTRY_COMPARE(form->size(), QSize(345, 360));
    QVERIFY(form->isVisible());
    QVERIFY(!former->isVisible());
    QCOMPARE(former->parentWidget(), m_frame);
}

void ExtendDialogTest::standsInTheMiddleOfItsParent_data()
{
    QTest::addColumn<bool>("isInner");
    QTest::newRow("window") << false;
    QTest::newRow("widget in a window") << true;
}

static void compareCentres(const QWidget* frame, const QWidget* window)
{
    const QPoint distance = frame->frameGeometry().center() - window->frameGeometry().center();
    QVERIFY2(distance.manhattanLength() <= 2, qPrintable(QString("off by %1, %2").arg(distance.x()).arg(distance.y())));
}

void ExtendDialogTest::standsInTheMiddleOfItsParent()
{
    QFETCH(bool, isInner);
    QWidget* const inner = new QWidget(m_window);
    inner->setGeometry(0, 0, 50, 50);
    m_window->show();
    ExtendDialog frame(isInner ? inner : m_window, Qt::WindowCloseButtonHint, 1, false);
    frame.setFixedSize(345, 360);
    frame.show();
    QVERIFY(QTest::qWaitForWindowExposed(&frame));
    compareCentres(&frame, m_window);
}

void ExtendDialogTest::isCentredAtEveryShow()
{
    m_window->show();
    m_frame->setFixedSize(345, 360);
    m_frame->show();
    m_frame->move(0, 0);
    m_frame->hide();
    m_window->move(60, 90);
    m_frame->show();
    compareCentres(m_frame, m_window);
    // Over the edge of the screen it would hide its buttons.
    m_frame->hide();
    const QRect screen = screenArea(m_window);
    m_window->move(screen.bottomRight() - QPoint(30, 30));
    m_frame->show();
    QCOMPARE(m_frame->frameGeometry().bottomRight(), screen.bottomRight());
    m_frame->hide();
    m_window->move(screen.topLeft() - QPoint(500, 300));
    m_frame->show();
    QCOMPARE(m_frame->frameGeometry().topLeft(), screen.topLeft());
}

void ExtendDialogTest::staysWhereTheDesktopBringsItBack()
{
    m_window->show();
    m_frame->setFixedSize(345, 360);
    m_frame->show();
    m_frame->move(7, 9);
    QShowEvent broughtBack;
    // sendEvent() would take the mark away again.
    QSpontaneKeyEvent::setSpontaneous(&broughtBack);
    qApp->notify(m_frame, &broughtBack);
    QCOMPARE(m_frame->pos(), QPoint(7, 9));
}

void ExtendDialogTest::staysWhereItIsWithoutAParent()
{
    ExtendDialog frame(nullptr, Qt::WindowCloseButtonHint, 1, false);
    frame.move(70, 90);
    frame.show();
    QVERIFY(frame.isVisible());
    QCOMPARE(frame.pos(), QPoint(70, 90));
}

void ExtendDialogTest::hasATitleBarWithCloseButton()
{
    m_frame->setWindowTitle("New quick link");
    QCOMPARE(static_cast<QWidget*>(m_frame)->windowTitle(), "New quick link");
    QVERIFY(m_frame->windowFlags() & Qt::WindowTitleHint);
    QVERIFY(m_frame->windowFlags() & Qt::WindowCloseButtonHint);
    QCOMPARE(m_frame->windowFlags() & Qt::WindowType_Mask, Qt::WindowFlags(Qt::Dialog));
    QVERIFY(ExtendDialog(nullptr, Qt::WindowFlags(), 0, false).windowFlags() & Qt::WindowCloseButtonHint);
}

void ExtendDialogTest::isModal()
{
    QVERIFY(!m_frame->isVisible());
    QVERIFY(m_frame->isModal());
}

void ExtendDialogTest::closes_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Escape in a field") << true;
    QTest::newRow("close button") << false;
}

void ExtendDialogTest::closes()
{
    QFETCH(bool, byKey);
    QLineEdit* const field = new QLineEdit;
    m_frame->AddMainWidget(field);
    m_frame->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_frame));
    if (byKey)
        QTest::keyClick(field, Qt::Key_Escape);
    else
        m_frame->close();
    QVERIFY(!m_frame->isVisible());
    QCOMPARE(m_frame->result(), int(QDialog::Rejected));
    m_frame->show();
    QVERIFY(m_frame->isVisible());
}

void ExtendDialogTest::hasASizeGripOnDemand_data()
{
    QTest::addColumn<bool>("flag");
    QTest::newRow("with") << true;
    QTest::newRow("without") << false;
}

void ExtendDialogTest::hasASizeGripOnDemand()
{
    QFETCH(bool, flag);
    QCOMPARE(ExtendDialog(m_window, Qt::WindowFlags(), 1, flag).isSizeGripEnabled(), flag);
}

void ExtendDialogTest::goesWithItsParent()
{
    const QPointer<ExtendDialog> frame = m_frame;
    const QPointer<QWidget> form = new QWidget;
    frame->AddMainWidget(form);
    delete m_window;
    m_window = nullptr;
    QVERIFY(!frame);
    QVERIFY(!form);
}

REGISTER_TEST(ExtendDialogTest)
#include "ExtendDialogTest.moc"
