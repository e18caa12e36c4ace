// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The links as the host's menu sees them: how many there are, and an action for each.

#include <climits>

#include <QAction>
#include <QIcon>
#include <QKeySequence>
#include <QMetaMethod>
#include <QPointer>
#include <QVariant>

#include "LoadedPlugin.h"
#include "Test.h"

namespace
{
QuickLinkRecord unlikeTheDefaults(const char* name)
{
    QuickLinkRecord record = makeRecord(name, "internet", "http://www.example.org/");
    record.id = "17";
    record.startconnect = "1";
    record.startmobile = "1";
    record.para = "--fast";
    record.delete_ = "0";
    record.edit = "0";
    return record;
}

QuickLinkRecordList threeLinks()
{
    return QuickLinkRecordList() << makeRecord("Mail", "email", "mailto:")
                                 << makeRecord("Clock", "application", "/usr/bin/xclock") << unlikeTheDefaults("News");
}

/** How many receivers all signals of the object have together. */
int receiverCount(const QObject* object)
{
    int count = 0;
    for (int i = 0; i < object->metaObject()->methodCount(); ++i) {
        const QMetaMethod method = object->metaObject()->method(i);
        if (method.methodType() == QMetaMethod::Signal)
            count += object->receivers(QByteArray('2' + signatureOf(method)).constData());
    }
    return count;
}
} // namespace

class MenuActionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_plugin.make(); }
    void cleanup() { m_plugin.unload(); }

    void withoutList_data();
    void withoutList();
    void afterTheEndThereIsNoList();
    void sizeFollowsTheFile_data();
    void sizeFollowsTheFile();
    void oneActionForEachLink();
    void textIsTheName_data();
    void textIsTheName();
    void actionIsBare();
    void actionHasNoConnections();
    void triggeringOpensNothing();
    void everyCallMakesAnAction();
    void indexOutsideTheList_data();
    void indexOutsideTheList();
    void hiddenLinksCount_data();
    void hiddenLinksCount();
    void recordStaysAsItWas_data();
    void recordStaysAsItWas();
    void askingChangesNothingElse();
    void mapAndActionsOnlyGrow();
    void actionsGoWithTheObject();
    void interfaceGivesTheSame();

private:
    QAction* action(int index) { return m_plugin.page->GetActionFromQuickLink(index); }
    /** Empty when the action belongs to the plug-in and stands for such a link. */
    QString unlike(QAction* made, const QuickLinkRecord& link) const;

    LoadedPlugin m_plugin;
};

QString MenuActionsTest::unlike(QAction* made, const QuickLinkRecord& link) const
{
    if (!made || made->parent() != m_plugin.page || !m_plugin.page->m_actionMap.contains(made))
        return "no action of the plug-in";
    return difference(m_plugin.page->m_actionMap.value(made), link);
}

void MenuActionsTest::withoutList_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("first") << 0;
    QTest::newRow("second") << 1;
    QTest::newRow("before the first") << -1;
    QTest::newRow("largest") << INT_MAX;
    QTest::newRow("smallest") << INT_MIN;
}

void MenuActionsTest::withoutList()
{
    QFETCH(int, index);
    RecordingTrace trace;
    QCOMPARE(m_plugin.page->GetQuickLinkRecordSize(), -1);
    QVERIFY(!action(index));
    QVERIFY(m_plugin.page->m_actionMap.isEmpty());
    QVERIFY(m_plugin.page->findChildren<QAction*>().isEmpty());
    QCOMPARE(trace.countDebug(tracePattern("Arg is NULL: %T: %F: GetActionFromQuickLink %L")), 1);
    QVERIFY(trace.warningLines.isEmpty());
}

void MenuActionsTest::afterTheEndThereIsNoList()
{
    m_plugin.load(threeLinks());
    m_plugin.page->OnDestroy();
    QCOMPARE(m_plugin.page->GetQuickLinkRecordSize(), -1);
    QVERIFY(!action(0));
}

void MenuActionsTest::sizeFollowsTheFile_data()
{
    const QList<QuickLinkRecord> three = threeLinks().toList();
    const QByteArray document = configDocument("1", "3", three);
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<int>("size");
    QTest::newRow("no file") << QByteArray() << 0;
    QTest::newRow("no links") << configDocument("1", "0", QList<QuickLinkRecord>()) << 0;
    QTest::newRow("one link") << configDocument("1", "1", three.mid(0, 1)) << 1;
    QTest::newRow("three links") << document << 3;
    QTest::newRow("cut inside the third link") << document.left(document.lastIndexOf("type=")) << 2;
    QTest::newRow("page hidden") << configDocument("0", "3", three) << 3;
}

void MenuActionsTest::sizeFollowsTheFile()
{
    QFETCH(QByteArray, document);
    QFETCH(int, size);
    if (!document.isEmpty())
        QVERIFY(FakeHost::instance().writeConfig(document));
    QCOMPARE(m_plugin.page->Init(), 1);
    QCOMPARE(m_plugin.page->GetQuickLinkRecordSize(), size);
    for (int i = 0; i < size; ++i)
        QCOMPARE(action(i)->text(), threeLinks().at(i).name);
}

void MenuActionsTest::oneActionForEachLink()
{
    const QuickLinkRecordList links = threeLinks();
    m_plugin.load(links);
    QCOMPARE(m_plugin.page->GetQuickLinkRecordSize(), 3);
    for (int i = 0; i < 3; ++i) {
        QAction* const made = action(i);
        QCOMPARE(unlike(made, links.at(i)), QString());
        QCOMPARE(made->text(), links.at(i).name);
    }
}

void MenuActionsTest::textIsTheName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "News";
    QTest::newRow("empty") << QString();
    QTest::newRow("ampersand") << "R&D";
    QTest::newRow("two ampersands") << "R&&D";
    QTest::newRow("blanks around") << "  News  ";
    QTest::newRow("tab") << "News\tCtrl+N";
    QTest::newRow("line feed") << "News\nof today";
    QTest::newRow("markup") << "<b>News</b>";
    QTest::newRow("percent") << "100%1 %s";
    QTest::newRow("key") << "IDS_LINK_PROMPT";
    QTest::newRow("umlauts") << QString::fromUtf8("B\xc3\xbc\x63her");
    QTest::newRow("right to left") << QString::fromUtf8("\xd7\x97\xd7\x93\xd7\xa9\xd7\x95\xd7\xaa");
    QTest::newRow("beyond the basic plane") << QString::fromUtf8("\xf0\x9f\x8c\x8d");
    QTest::newRow("long") << QString(5000, 'x');
}

void MenuActionsTest::textIsTheName()
{
    QFETCH(QString, name);
    QuickLinkRecord record = makeRecord("", "email", "mailto:");
    record.name = name;
    m_plugin.load(QuickLinkRecordList() << record);
    QCOMPARE(action(0)->text(), name);
}

void MenuActionsTest::actionIsBare()
{
    m_plugin.load(threeLinks());
    const QAction* const made = action(2);
    QVERIFY(made->icon().isNull());
    QVERIFY(made->shortcuts().isEmpty());
    QVERIFY(!made->data().isValid());
    QVERIFY(made->statusTip().isEmpty());
    QVERIFY(made->whatsThis().isEmpty());
    QCOMPARE(made->toolTip(), made->text());
    QVERIFY(made->objectName().isEmpty());
    QVERIFY(!made->isCheckable());
    QVERIFY(!made->isSeparator());
    QVERIFY(made->isEnabled());
    QVERIFY(made->isVisible());
    QVERIFY(!made->actionGroup());
    QVERIFY(made->dynamicPropertyNames().isEmpty());
}

void MenuActionsTest::actionHasNoConnections()
{
    m_plugin.load(threeLinks());
    QAction* const made = action(0);
    QCOMPARE(receiverCount(made), 0);
    connect(made, SIGNAL(triggered(bool)), this, SLOT(deleteLater()));
    QVERIFY(receiverCount(made) > 0);
}

void MenuActionsTest::triggeringOpensNothing()
{
    m_plugin.load(threeLinks());
    for (int i = 0; i < 3; ++i)
        action(i)->trigger();
    QCOMPARE(FakeHost::instance().openings, QStringList());
    QCOMPARE(FakeHost::instance().messages.size(), 0);
}

void MenuActionsTest::everyCallMakesAnAction()
{
    m_plugin.load(threeLinks());
    QAction* const first = action(1);
    QAction* const second = action(1);
    QVERIFY(first != second);
    QCOMPARE(m_plugin.page->m_actionMap.size(), 2);
    QCOMPARE(unlike(first, threeLinks().at(1)), QString());
    QCOMPARE(unlike(second, threeLinks().at(1)), QString());
}

void MenuActionsTest::indexOutsideTheList_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("size");
    QTest::newRow("before the first") << -1 << 3;
    QTest::newRow("behind the last") << 3 << 3;
    QTest::newRow("far behind") << 1000000 << 3;
    QTest::newRow("largest") << INT_MAX << 3;
    QTest::newRow("smallest") << INT_MIN << 3;
    QTest::newRow("empty list, first") << 0 << 0;
    QTest::newRow("empty list, before the first") << -1 << 0;
}

void MenuActionsTest::indexOutsideTheList()
{
    QFETCH(int, index);
    QFETCH(int, size);
    m_plugin.load(threeLinks().mid(0, size));
    QAction* const made = action(index);
    QCOMPARE(unlike(made, QuickLinkRecord()), QString());
    QVERIFY(made->text().isEmpty());
    QCOMPARE(m_plugin.page->GetQuickLinkRecordSize(), size);
    m_plugin.page->LaunchQuickLinkAction(made);
    QCOMPARE(FakeHost::instance().openings, QStringList());
    QCOMPARE(FakeHost::instance().messages.size(), 0);
}

void MenuActionsTest::hiddenLinksCount_data()
{
    QTest::addColumn<QString>("visible");
    QTest::newRow("0") << "0";
    QTest::newRow("empty") << QString();
    QTest::newRow("a word") << "true";
    QTest::newRow("blank and 1") << " 1";
}

void MenuActionsTest::hiddenLinksCount()
{
    QFETCH(QString, visible);
    QuickLinkRecordList links = threeLinks();
    links[1].visible = visible;
    m_plugin.load(links);
    QCOMPARE(m_plugin.page->GetQuickLinkRecordSize(), 3);
    QAction* const made = action(1);
    QVERIFY(made->isVisible());
    QCOMPARE(unlike(made, links.at(1)), QString());
    QCOMPARE(action(2)->text(), links.at(2).name);
}

void MenuActionsTest::recordStaysAsItWas_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("edited in place") << "edit";
    QTest::newRow("link removed") << "remove";
    QTest::newRow("order changed") << "reorder";
    QTest::newRow("file read again") << "read";
    QTest::newRow("action renamed by the host") << "rename";
    QTest::newRow("other actions made") << "ask";
}

void MenuActionsTest::recordStaysAsItWas()
{
    QFETCH(QString, change);
    m_plugin.load(threeLinks());
    QAction* const made = action(2);
    QuickLinkRecordList& list = *m_plugin.page->m_recordList;
    if (change == "edit")
        list[2] = makeRecord("Other", "email", "mailto:other");
    else if (change == "remove")
        list.remove(2);
    else if (change == "reorder")
        qSwap(list[0], list[2]);
    else if (change == "read")
        m_plugin.page->Init();
    else if (change == "rename")
        made->setText("Other");
    else
        for (int i = 0; i < 200; ++i)
            action(i % 4);
    QCOMPARE(unlike(made, threeLinks().at(2)), QString());
    if (change != "rename")
        QCOMPARE(made->text(), threeLinks().at(2).name);
    m_plugin.page->LaunchQuickLinkAction(made);
    QCOMPARE(FakeHost::instance().openings, QStringList() << "host http://www.example.org/");
}

void MenuActionsTest::askingChangesNothingElse()
{
    const QuickLinkRecordList links = threeLinks();
    m_plugin.load(links);
    {
        RecordingTrace trace;
        for (int i = -1; i <= 3; ++i)
            action(i);
        // A menu asks for every link; two lines each would be most of what is traced.
        QCOMPARE(trace.debugLines, QStringList());
        QCOMPARE(trace.warningLines, QStringList());
    }
    QCOMPARE(listDifference(*m_plugin.page->m_recordList, links), QString());
    QVERIFY(FakeHost::instance().readConfig().isEmpty());
    QCOMPARE(FakeHost::instance().lookups.size(), 0);
    QCOMPARE(FakeHost::instance().notifications, QStringList());
}

void MenuActionsTest::mapAndActionsOnlyGrow()
{
    m_plugin.load(threeLinks());
    for (int rebuild = 1; rebuild <= 4; ++rebuild) {
        for (int i = 0; i < 3; ++i)
            action(i);
        QCOMPARE(m_plugin.page->m_actionMap.size(), 3 * rebuild);
        QCOMPARE(m_plugin.page->findChildren<QAction*>().size(), 3 * rebuild);
    }
    m_plugin.page->m_recordList->clear();
    m_plugin.page->sendNotifyToMenu();
    m_plugin.page->Init();
    QCOMPARE(m_plugin.page->m_actionMap.size(), 12);
    m_plugin.page->OnDestroy();
    QCOMPARE(m_plugin.page->m_actionMap.size(), 12);
    QCOMPARE(m_plugin.page->findChildren<QAction*>().size(), 12);
}

void MenuActionsTest::actionsGoWithTheObject()
{
    m_plugin.load(threeLinks());
    QList<QPointer<QAction>> made;
    for (int i = -1; i <= 3; ++i)
        made.append(action(i));
    m_plugin.page->OnDestroy();
    for (int i = 0; i < made.size(); ++i)
        QVERIFY(made.at(i));
    m_plugin.unload();
    for (int i = 0; i < made.size(); ++i)
        QVERIFY(!made.at(i));
}

void MenuActionsTest::interfaceGivesTheSame()
{
    m_plugin.load(threeLinks());
    IQuickLinkPlugin* const links = qobject_cast<IQuickLinkPlugin*>(static_cast<QObject*>(m_plugin.page));
    QVERIFY(links);
    QCOMPARE(links->GetQuickLinkRecordSize(), 3);
    QAction* const made = links->GetActionFromQuickLink(0);
    QCOMPARE(made->text(), "Mail");
    links->LaunchQuickLinkAction(made);
    QCOMPARE(FakeHost::instance().openings, QStringList() << "desktop mailto:");
}

REGISTER_TEST(MenuActionsTest)
#include "MenuActionsTest.moc"
