// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkTable.h"

#include <QAction>
#include <QCoreApplication>
#include <QVector>

#include <algorithm>
#include <array>

#include "IQuickLinkPlugin.h"
#include "ShownText.h"

namespace
{
using Row = std::array<QString, 3>;

/** The context of the table's texts. */
class LinkTable
{
    Q_DECLARE_TR_FUNCTIONS(LinkTable)
};

void addLinks(QVector<Row>& rows, const PluginWith<IQuickLinkPlugin>& plugin)
{
    const int count = plugin.interface->GetQuickLinkRecordSize();
    for (int i = 0; i < count; ++i) {
        if (QAction* const action = plugin.interface->GetActionFromQuickLink(i))
            rows.append(Row{QString::number(rows.size()), ShownText::onOneLine(action->text()), plugin.name});
    }
}
} // namespace

QString linkTable(const QList<PluginWith<IQuickLinkPlugin>>& plugins)
{
    QVector<Row> rows{Row{QStringLiteral("#"), LinkTable::tr("Name"), LinkTable::tr("Plug-in")}};
    for (const PluginWith<IQuickLinkPlugin>& plugin : plugins)
        addLinks(rows, plugin);
    if (rows.size() == 1)
        return LinkTable::tr("No quick links") + QLatin1Char('\n');

    std::array<int, 2> widths{};
    for (const Row& row : qAsConst(rows)) {
        for (std::size_t column = 0; column < widths.size(); ++column)
            widths[column] = std::max(widths[column], int(row[column].size()));
    }
    QString table;
    for (const Row& row : qAsConst(rows)) {
        table += row[0].rightJustified(widths[0]) + QStringLiteral("  ") + row[1].leftJustified(widths[1]) +
                 QStringLiteral("  ") + row[2] + QLatin1Char('\n');
    }
    return table;
}
