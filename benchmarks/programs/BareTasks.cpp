// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The same work with the toolkit alone: the limit.

#include <QAction>
#include <QHash>
#include <QTableWidget>

#include "BareLinks.h"
#include "BarePage.h"
#include "Measure.h"
#include "ShowAndPaint.h"

namespace
{
void load(const QString& folder)
{
    BareLinks links;
    measure([&] { links = bareLoad(folder); });
}

void save(const QString& folder)
{
    const BareLinks links = bareLoad(folder);
    measure([&] { bareSave(folder, links); });
}

void menu(const QString& folder)
{
    const BareLinks links = bareLoad(folder);
    const QWidget window; // the first widget costs more than the rest, and is none of the menu's
    QObject parent;
    QHash<QAction*, BareLink> copies;
    measure([&] {
        for (const BareLink& link : links.links)
            copies.insert(new QAction(link.name, &parent), link);
    });
}

void page(const QString& folder)
{
    BarePage bare(folder);
    measure([&bare] { bare.show(); });
}

void paint(const QString& folder)
{
    BarePage bare(folder);
    bare.show();
    measure([&bare] { showAndPaint(&bare.window, bare.table->viewport()); });
}

/** The page on the screen, the link in the middle selected. */
void showAtMiddle(BarePage& bare)
{
    bare.show();
    showAndPaint(&bare.window, bare.table->viewport());
    bare.selectMiddle();
}

void up(const QString& folder)
{
    BarePage bare(folder);
    showAtMiddle(bare);
    measure([&bare] { bare.moveUp(); });
}

void deleteLink(const QString& folder)
{
    BarePage bare(folder);
    showAtMiddle(bare);
    measure([&bare] { bare.deleteLink(); });
}

void newLink(const QString& folder)
{
    BarePage bare(folder);
    showAtMiddle(bare);
    BareLink link;
    link.name = QStringLiteral("New link");
    link.type = QStringLiteral("IDS_LINK_TYPE_INTERNET");
    link.url = QStringLiteral("http://new.example.org/");
    link.startconnect = link.startmobile = QStringLiteral("0");
    link.mayDelete = link.mayEdit = link.visible = QStringLiteral("1");
    measure([&] { bare.appendLink(link); });
}
} // namespace

int main(int argc, char** argv)
{
    return runLinkTask(argc, argv, {load, save, menu, page, paint, up, deleteLink, newLink});
}
