// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The plug-in's own work, task by task.

#include <QPushButton>
#include <QTableWidget>

#include "FakeAnswers.h"
#include "Measure.h"
#include "QuickLinkSettingPluginDlg.h"
#include "QuickLinkXmlParse.h"
#include "ShowAndPaint.h"

namespace
{
/** The plug-in after Init(), and a widget of the host for its page. */
struct Loaded {
    explicit Loaded(const QString& folder)
    {
        FakeAnswers::setUserFolder(folder);
        plugin.Init();
    }

    void showPage()
    {
        QRect area(0, 0, 420, 380);
        plugin.ShowSettingDialog(&window, area);
        table = window.findChild<QTableWidget*>(QStringLiteral("m_QLinkListTblView"));
    }

    /** The page on the screen, the link in the middle selected. */
    void showPageAtMiddle()
    {
        showPage();
        showAndPaint(&window, table->viewport());
        table->setCurrentCell(table->rowCount() / 2, 0);
    }

    void callSlot(const char* name) { QMetaObject::invokeMethod(&plugin, name); }

    QWidget window;
    QuickLinkSettingPluginDlg plugin;
    QTableWidget* table = nullptr;
};

void load(const QString& folder)
{
    FakeAnswers::setUserFolder(folder);
    QuickLinkXmlParse* const store = QuickLinkXmlParse::GetInstance();
    measure([store] { store->ReadXmlInformation(); });
}

void save(const QString& folder)
{
    FakeAnswers::setUserFolder(folder);
    QuickLinkXmlParse* const store = QuickLinkXmlParse::GetInstance();
    store->ReadXmlInformation();
    measure([store] { store->SaveToConfigFile(store->m_recordList, 1); });
}

void menu(const QString& folder)
{
    Loaded loaded(folder);
    measure([&loaded] {
        for (int i = 0; i < loaded.plugin.GetQuickLinkRecordSize(); ++i)
            loaded.plugin.GetActionFromQuickLink(i);
    });
}

void page(const QString& folder)
{
    Loaded loaded(folder);
    measure([&loaded] { loaded.showPage(); });
}

void paint(const QString& folder)
{
    Loaded loaded(folder);
    loaded.showPage();
    measure([&loaded] { showAndPaint(&loaded.window, loaded.table->viewport()); });
}

void up(const QString& folder)
{
    Loaded loaded(folder);
    loaded.showPageAtMiddle();
    measure([&loaded] { loaded.callSlot("onUpBtnClick"); });
}

void deleteLink(const QString& folder)
{
    Loaded loaded(folder);
    loaded.showPageAtMiddle();
    measure([&loaded] { loaded.callSlot("onDeleteBtnClick"); });
}

void newLink(const QString& folder)
{
    Loaded loaded(folder);
    loaded.showPageAtMiddle();
    // What the dialog emits; the row takes it over.
    QuickLinkRecord* const record = new QuickLinkRecord;
    record->name = QStringLiteral("New link");
    record->url = QStringLiteral("http://new.example.org/");
    record->type = LinkType::internet();
    measure(
        [&loaded, record] { QMetaObject::invokeMethod(&loaded.plugin, "AddRecord", Q_ARG(QuickLinkRecord*, record)); });
}
} // namespace

int main(int argc, char** argv)
{
    return runLinkTask(argc, argv, {load, save, menu, page, paint, up, deleteLink, newLink});
}
