// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Every function that says that it starts says that it ends, whatever the user does.

#include "ShownPage.h"
#include "Test.h"

namespace
{
/** What the user or the host does, and the links that it starts with. */
struct Event {
    const char* name;
    const char* links;
    void (*happens)(ShownPage& page);
};

#define DOES(actions)                                                                                                  \
    [](ShownPage& page) {                                                                                              \
        Q_UNUSED(page)                                                                                                 \
        actions;                                                                                                       \
    }

const Event events[] = {
    {"shown without links", "", DOES(;)},
    {"shown with links", "a b c", DOES(;)},
    {"shown again", "a b", DOES(page.show())},
    {"the only row clicked", "a", DOES(page.select(0))},
    {"another row clicked", "a b c", DOES(page.select(2))},
    {"nothing selected", "a b", DOES(page.table()->clearSelection(); page.page->onClickQuickLinkRow(0))},
    {"type column alone selected", "a",
     DOES(page.table()->item(0, 0)->setFlags(Qt::ItemIsEnabled); page.table()->clearSelection();
          page.table()->item(0, 1)->setSelected(true); page.page->enableDeleteEditButton())},
    {"New", "a", DOES(page.change("New"))},
    {"New with a file", "a", DOES(page.addLink(0, "d", existingFile()))},
    {"New with an address", "a", DOES(page.addLink(2, "f", "www.example.org"))},
    {"New with a used name", "a", DOES(page.addLink(1, "a"))},
    {"New with a path that is not there", "a", DOES(page.addLink(0, "d", "/no/such/file"))},
    {"New cancelled", "a", DOES(page.click("m_newBtn"); page.pressCancel())},
    {"Edit", "a b", DOES(page.change("Edit"))},
    {"Edit cancelled", "a b", DOES(page.click("m_editBtn"); page.pressCancel())},
    {"Delete", "a b", DOES(page.change("Delete"))},
    {"Delete refused", "a b", DOES(FakeHost::instance().messageAnswer = QMessageBox::Cancel; page.change("Delete"))},
    {"Delete when the object goes", "a b",
     DOES(FakeHost::instance().duringMessage =
              [&page] {
                  page.deletePlugin();
              };
          page.change("Delete"))},
    {"Down and Up", "a b", DOES(page.change("Down"); page.change("Up"))},
    {"language", "a b", DOES(page.click("m_editBtn"); page.changeLanguage(); page.page->ChangeLang("de"))},
    {"links opened", "a b",
     DOES(FakeHost::instance().isConnected = true; page.page->Notify(258, 0, 0); page.page->Notify(1536, 0, 0);
          page.page->LaunchQuickLinkAction(page.page->GetActionFromQuickLink(0)))},
    {"hidden and cancelled", "a b", DOES(page.page->HideSetting(); page.page->OnClickSettingCancelButton())},
    {"end", "a b", DOES(page.page->OnDestroy())}};

/** Empty when every start has its end and they lie in each other; else the first that has not. */
QString unpaired(const QStringList& lines)
{
    QStringList open;
    for (int i = 0; i < lines.size(); ++i) {
        const QString function = lines.at(i).section(": ", 1, 1);
        if (lines.at(i).startsWith("Start of ")) {
            open.append(function);
        } else if (lines.at(i).startsWith("End of ")) {
            if (open.isEmpty() || open.last() != function)
                return "ends out of turn: " + function;
            open.removeLast();
        }
    }
    return open.isEmpty() ? QString() : "does not end: " + open.last();
}
} // namespace

class PageTracesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void comeInPairs_data();
    void comeInPairs();

private:
    ShownPage m_page;
};

void PageTracesTest::comeInPairs_data()
{
    QTest::addColumn<int>("number");
    const int count = int(sizeof events / sizeof *events);
    for (int i = 0; i < count; ++i)
        QTest::newRow(events[i].name) << i;
}

void PageTracesTest::comeInPairs()
{
    QFETCH(int, number);
    const Event& event = events[number];
    QStringList lines;
    {
        const RecordingTrace trace;
        m_page.begin(links(event.links));
        event.happens(m_page);
        lines = trace.debugLines;
    }
    QVERIFY(!lines.filter("Start of ").isEmpty());
    QCOMPARE(lines.filter("Arg is NULL"), QStringList());
    QCOMPARE(unpaired(lines), QString());
}

REGISTER_TEST(PageTracesTest)
#include "PageTracesTest.moc"
