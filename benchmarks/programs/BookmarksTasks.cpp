// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What a user of Qt would pick instead: KDE's bookmarks, on a file of the same links in their own format.

#include <QAction>
#include <QMenu>
#include <QUrl>

#include <kbookmark.h>
#include <kbookmarkmanager.h>
#include <kbookmarkmenu.h>

#include "Measure.h"

namespace
{
KBookmarkManager* managerOf(const QString& folder)
{
    return KBookmarkManager::managerForFile(folder + QLatin1String("/bookmarks.xbel"), QString());
}

/** The n-th bookmark; their list has no index. */
KBookmark bookmarkAt(const KBookmarkGroup& group, int n)
{
    KBookmark bookmark = group.first();
    for (int i = 0; i < n; ++i)
        bookmark = group.next(bookmark);
    return bookmark;
}

int sizeOf(const KBookmarkGroup& group)
{
    int size = 0;
    for (KBookmark bookmark = group.first(); !bookmark.isNull(); bookmark = group.next(bookmark))
        ++size;
    return size;
}

/** The file read, and nothing taken from it: the texts stay in the document until they are asked for. */
void load(const QString& folder)
{
    measure([&] { managerOf(folder)->root(); });
}

void save(const QString& folder)
{
    KBookmarkManager* const manager = managerOf(folder);
    manager->root();
    measure([manager] { manager->save(false); });
}

void menu(const QString& folder)
{
    KBookmarkManager* const manager = managerOf(folder);
    manager->root();
    QMenu menu;
    KBookmarkMenu* filled = nullptr;
    measure([&] {
        filled = new KBookmarkMenu(manager, nullptr, &menu);
        filled->ensureUpToDate();
    });
}

void up(const QString& folder)
{
    KBookmarkManager* const manager = managerOf(folder);
    KBookmarkGroup root = manager->root();
    const int middle = sizeOf(root) / 2;
    const KBookmark moved = bookmarkAt(root, middle);
    const KBookmark after = bookmarkAt(root, middle - 2);
    measure([&] {
        root.moveBookmark(moved, after);
        manager->emitChanged(root);
    });
}

void deleteLink(const QString& folder)
{
    KBookmarkManager* const manager = managerOf(folder);
    KBookmarkGroup root = manager->root();
    const KBookmark bookmark = bookmarkAt(root, sizeOf(root) / 2);
    measure([&] {
        root.deleteBookmark(bookmark);
        manager->emitChanged(root);
    });
}

void newLink(const QString& folder)
{
    KBookmarkManager* const manager = managerOf(folder);
    KBookmarkGroup root = manager->root();
    measure([&] {
        root.addBookmark(QStringLiteral("New link"), QUrl(QStringLiteral("http://new.example.org/")),
                         QStringLiteral("text-html"));
        manager->emitChanged(root);
    });
}
} // namespace

int main(int argc, char** argv)
{
    return runTask(
        argc, argv,
        {{"load", load}, {"save", save}, {"menu", menu}, {"up", up}, {"delete", deleteLink}, {"new", newLink}});
}
