// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the page is made of: widgets, layouts, texts, slots, connections and first states.

#include <QBoxLayout>
#include <QMetaMethod>
#include <QTabWidget>

#include "ShownPage.h"
#include "Test.h"

class PageConstructionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void widget_data();
    void widget();
    void childrenInOrderOfMaking_data();
    void childrenInOrderOfMaking();
    void layout_data();
    void layout();
    void buttonColumn();
    void tabWidgetSize_data();
    void tabWidgetSize();
    void oneTab();
    void textsWithoutTab();
    void textsComeFromTheirContext();
    void slotsAndNothingElse();
    void connection_data();
    void connection();
    void firstStates();

private:
    /** The page as it is before the table is filled. */
    void buildOnly();
    QString textOf(const QObject* object) const;
    QString nameOf(const QObject* object) const;

    ShownPage m_page;
};

void PageConstructionTest::buildOnly()
{
    m_page.beginHidden(links("One Two"));
    m_page.page->createWidgetMemory(m_page.host);
    m_page.page->initializeUI();
}

QString PageConstructionTest::textOf(const QObject* object) const
{
    const QTabWidget* const tabs = m_page.page->m_QLinkTabWidget;
    if (object == m_page.page->m_QLinkTab)
        return tabs->tabText(tabs->indexOf(m_page.page->m_QLinkTab));
    return object->property("text").toString();
}

QString PageConstructionTest::nameOf(const QObject* object) const
{
    if (object == m_page.host)
        return "host";
    for (const PointerMember& member : membersOf(m_page.page)) {
        if (member.object == object)
            return member.name;
    }
    return "?";
}

void PageConstructionTest::widget_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QString>("key");
    const char* const rows[][4] = {{"m_QLinkTabWidget", "QTabWidget", "m_pageWidget", ""},
                                   {"m_QLinkTab", "QWidget", "m_QLinkTabWidget", "IDS_LINK_SETTING_TAB"},
                                   {"m_QLinkListTblView", "QTableWidget", "m_QLinkTab", ""},
                                   {"m_launchOrderLbl", "QLabel", "m_QLinkTab", "IDS_LINK_SETTING_ORDER"},
                                   {"m_upBtn", "QPushButton", "m_QLinkTab", "IDS_LINK_SETTING_UP"},
                                   {"m_downBtn", "QPushButton", "m_QLinkTab", "IDS_LINK_SETTING_DOWN"},
                                   {"m_newBtn", "QPushButton", "m_pageWidget", "IDS_LINK_SETTING_NEW"},
                                   {"m_editBtn", "QPushButton", "m_pageWidget", "IDS_LINK_SETTING_EDIT"},
                                   {"m_deleteBtn", "QPushButton", "m_pageWidget", "IDS_LINK_SETTING_DEL"},
                                   {"m_pageWidget", "QWidget", "host", ""}};
    for (const char* const* row : rows)
        QTest::newRow(row[0]) << QString(row[0]) << QString(row[1]) << QString(row[2]) << QString(row[3]);
}

void PageConstructionTest::widget()
{
    QFETCH(QString, member);
    QFETCH(QString, className);
    QFETCH(QString, parent);
    QFETCH(QString, key);
    m_page.beginHidden(QuickLinkRecordList());
    m_page.page->createWidgetMemory(m_page.host);
    const QWidget* const widget = static_cast<QWidget*>(memberOf(m_page.page, member).object);
    QVERIFY(widget);
    QCOMPARE(QString(widget->metaObject()->className()), className);
    QCOMPARE(nameOf(widget->parent()), parent);
    QCOMPARE(widget->windowFlags(), QWidget(m_page.host).windowFlags());
    QCOMPARE(widget->objectName(), QString());

    m_page.page->initializeUI();
    QCOMPARE(widget->objectName(), member == "m_pageWidget" ? QString() : member);
    QCOMPARE(textOf(widget), key.isEmpty() ? QString() : "en:" + key);
    if (member != "m_QLinkTabWidget") {
        QCOMPARE(widget->minimumSize(), QSize(0, 0));
        QCOMPARE(widget->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    }
    FakeHost::instance().language = "de";
    m_page.page->setDisplayString();
    QCOMPARE(textOf(widget), key.isEmpty() ? QString() : "de:" + key);
}

void PageConstructionTest::childrenInOrderOfMaking_data()
{
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QString>("children");
    QTest::newRow("host") << "host"
                          << "m_pageWidget";
    QTest::newRow("page") << "m_pageWidget"
                          << "m_QLinkTabWidget m_newBtn m_editBtn m_deleteBtn";
    QTest::newRow("tab") << "m_QLinkTab"
                         << "m_QLinkListTblView m_launchOrderLbl m_upBtn m_downBtn";
}

void PageConstructionTest::childrenInOrderOfMaking()
{
    QFETCH(QString, parent);
    QFETCH(QString, children);
    m_page.beginHidden(QuickLinkRecordList());
    m_page.page->createWidgetMemory(m_page.host);
    const QObject* const object = parent == "host" ? m_page.host.data() : memberOf(m_page.page, parent).object;
    QStringList names;
    for (const QObject* child : object->children())
        names.append(nameOf(child));
    QCOMPARE(names.join(" "), children);
    const QLayout* const unparented[] = {m_page.page->m_pageLayout, m_page.page->m_tabLayout,
                                         m_page.page->m_buttonColumnLayout, m_page.page->m_orderButtonsLayout};
    for (const QLayout* made : unparented)
        QVERIFY(made && !made->parent());
}

void PageConstructionTest::layout_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("installedOn");
    QTest::addColumn<QString>("items");
    const char* const rows[][4] = {
        {"m_pageLayout", "QHBoxLayout", "m_pageWidget", "m_QLinkTabWidget m_buttonColumnLayout"},
        {"m_tabLayout", "QVBoxLayout", "m_QLinkTab", "m_launchOrderLbl m_QLinkListTblView m_orderButtonsLayout"},
        {"m_orderButtonsLayout", "QHBoxLayout", "m_tabLayout", "m_upBtn m_downBtn"},
        {"m_buttonColumnLayout", "QVBoxLayout", "m_pageLayout", "35 m_newBtn m_editBtn m_deleteBtn"}};
    for (const char* const* row : rows)
        QTest::newRow(row[0]) << QString(row[0]) << QString(row[1]) << QString(row[2]) << QString(row[3]);
}

void PageConstructionTest::layout()
{
    QFETCH(QString, member);
    QFETCH(QString, className);
    QFETCH(QString, installedOn);
    QFETCH(QString, items);
    buildOnly();
    const QBoxLayout* const box = qobject_cast<QBoxLayout*>(memberOf(m_page.page, member).object);
    QVERIFY(box);
    QCOMPARE(QString(box->metaObject()->className()), className);
    QCOMPARE(nameOf(box->parent()), installedOn);
    QStringList names;
    for (int i = 0; i < box->count(); ++i) {
        QLayoutItem* const item = box->itemAt(i);
        if (item->spacerItem())
            names.append(QString::number(item->sizeHint().height()));
        else
            names.append(nameOf(item->widget() ? static_cast<QObject*>(item->widget()) : item->layout()));
        QCOMPARE(box->stretch(i), 0);
        if (item->layout() != m_page.page->m_buttonColumnLayout)
            QCOMPARE(int(item->alignment()), 0);
    }
    QCOMPARE(names.join(" "), items);

    // Margins and spacings are what the toolkit gives.
    QWidget plain(m_page.host);
    QBoxLayout* const inner = new QBoxLayout(box->direction());
    QBoxLayout* const outer = new QBoxLayout(QBoxLayout::LeftToRight, &plain);
    outer->addLayout(inner);
    const bool isInner = qobject_cast<QLayout*>(box->parent()) != nullptr;
    QCOMPARE(box->contentsMargins(), isInner ? inner->contentsMargins() : outer->contentsMargins());
    if (box != m_page.page->m_buttonColumnLayout)
        QCOMPARE(box->spacing(), inner->spacing());
}

void PageConstructionTest::buttonColumn()
{
    buildOnly();
    const QVBoxLayout* const column = m_page.page->m_buttonColumnLayout;
    QCOMPARE(column->spacing(), 20);
    QCOMPARE(int(column->alignment()), int(Qt::AlignTop | Qt::AlignRight));

    // As it is on the screen: pushed to the top right, 35 pixels below where the column begins.
    m_page.page->m_pageWidget->resize(600, 500);
    m_page.page->m_pageWidget->show();
    QCoreApplication::processEvents();
    int left, top, right, bottom;
    m_page.page->m_pageLayout->getContentsMargins(&left, &top, &right, &bottom);
    const QRect inside = m_page.page->m_pageWidget->rect().adjusted(left, top, -right, -bottom);
    QCOMPARE(m_page.page->m_newBtn->y(), inside.top() + 35);
    QCOMPARE(m_page.page->m_editBtn->y(), m_page.page->m_newBtn->geometry().bottom() + 1 + 20);
    QCOMPARE(m_page.page->m_deleteBtn->y(), m_page.page->m_editBtn->geometry().bottom() + 1 + 20);
    QCOMPARE(m_page.page->m_newBtn->geometry().right(), inside.right());
}

void PageConstructionTest::tabWidgetSize_data()
{
    QTest::addColumn<QRect>("area");
    QTest::newRow("small") << QRect(0, 0, 50, 40);
    QTest::newRow("empty") << QRect();
    QTest::newRow("usual") << QRect(0, 0, 450, 400);
    QTest::newRow("large") << QRect(0, 0, 2000, 1500);
}

void PageConstructionTest::tabWidgetSize()
{
    QFETCH(QRect, area);
    m_page.beginHidden(links("One"));
    m_page.show(area);
    QCoreApplication::processEvents();
    QCOMPARE(m_page.page->m_QLinkTabWidget->size(), QSize(280, 340));
    QCOMPARE(m_page.page->m_QLinkTabWidget->minimumSize(), QSize(280, 340));
    QCOMPARE(m_page.page->m_QLinkTabWidget->maximumSize(), QSize(280, 340));
}

void PageConstructionTest::oneTab()
{
    m_page.begin(links("One"));
    QCOMPARE(m_page.page->m_QLinkTabWidget->count(), 1);
    QCOMPARE(m_page.page->m_QLinkTabWidget->widget(0), m_page.page->m_QLinkTab);
    QVERIFY(m_page.page->m_QLinkTabWidget->tabIcon(0).isNull());
}

void PageConstructionTest::textsWithoutTab()
{
    // The tab page is not among what is checked: the other texts are set all the same.
    m_page.begin(links("One"));
    FakeHost::instance().language = "de";
    const NullMember missing(memberOf(m_page.page, "m_QLinkTab"));
    m_page.page->setDisplayString();
    QCOMPARE(m_page.button("m_deleteBtn")->text(), "de:IDS_LINK_SETTING_DEL");
    QCOMPARE(m_page.page->m_QLinkTabWidget->tabText(0), "en:IDS_LINK_SETTING_TAB");
}

void PageConstructionTest::textsComeFromTheirContext()
{
    m_page.begin(links("One Two Three"));
    QCOMPARE(FakeHost::instance().translationContexts, QStringList() << "QuickLinkUIPlugin");
    QCOMPARE(m_page.page->tr(QString("IDS_ANY")), "en:IDS_ANY");
}

void PageConstructionTest::slotsAndNothingElse()
{
    const QMetaObject& meta = QuickLinkSettingPluginDlg::staticMetaObject;
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        signatures.append(signatureOf(method));
        QCOMPARE(int(method.methodType()), int(QMetaMethod::Slot));
        QCOMPARE(int(method.access()), int(QMetaMethod::Private));
        QCOMPARE(returnTypeOf(method), "void");
    }
    QCOMPARE(signatures.join(" "),
             "onNewBtnClick() onEditBtnClick() onDeleteBtnClick() onUpBtnClick() ondownBtnClick() "
             "AddRecord(QuickLinkRecord*) onClickQuickLinkRow(int) onTableSelectionChanged() onCancelNewEditor() "
             "launchOnConnection()");
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void PageConstructionTest::connection_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QByteArray>("slot");
    const char* const rows[][3] = {
        {"m_newBtn", SIGNAL(clicked()), SLOT(onNewBtnClick())},
        {"m_editBtn", SIGNAL(clicked()), SLOT(onEditBtnClick())},
        {"m_deleteBtn", SIGNAL(clicked()), SLOT(onDeleteBtnClick())},
        {"m_upBtn", SIGNAL(clicked()), SLOT(onUpBtnClick())},
        {"m_downBtn", SIGNAL(clicked()), SLOT(ondownBtnClick())},
        {"m_QLinkListTblView", SIGNAL(cellClicked(int, int)), SLOT(onClickQuickLinkRow(int))},
        {"m_QLinkListTblView", SIGNAL(itemSelectionChanged()), SLOT(onTableSelectionChanged())}};
    for (const char* const* row : rows)
        QTest::newRow(row[2] + 1) << QString(row[0]) << QMetaObject::normalizedSignature(row[1]) << QByteArray(row[2]);
}

void PageConstructionTest::connection()
{
    QFETCH(QString, member);
    QFETCH(QByteArray, signal);
    QFETCH(QByteArray, slot);
    buildOnly();
    QObject* const sender = memberOf(m_page.page, member).object;
    QCOMPARE(sender->receivers(signal.constData()), 1);
    QVERIFY(QObject::disconnect(sender, signal.constData(), m_page.page, slot.constData()));
    QCOMPARE(sender->receivers(signal.constData()), 0);
}

void PageConstructionTest::firstStates()
{
    buildOnly();
    QCOMPARE(m_page.enabledButtons(), "New");
    QCOMPARE(m_page.table()->rowCount(), 0);
    QCOMPARE(m_page.table()->columnCount(), 0);
    QVERIFY(!m_page.page->m_nameHeaderItem);
    QVERIFY(!m_page.page->m_typeHeaderItem);
    QVERIFY(!m_page.page->m_gridDelegate);
}

REGISTER_TEST(PageConstructionTest)
#include "PageConstructionTest.moc"
