// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What a parser can do at best: the same file read by pugixml into the same ten texts a link.

#include <QFile>

#include <pugixml.hpp>

#include "BareLinks.h"
#include "Measure.h"

namespace
{
QString text(const pugi::xml_node& item, const char* name)
{
    return QString::fromUtf8(item.attribute(name).value());
}

void load(const QString& folder)
{
    const QByteArray path = QFile::encodeName(bareConfigPath(folder));
    QVector<BareLink> links;
    measure([&] {
        pugi::xml_document document;
        document.load_file(path.constData());
        for (const pugi::xml_node& item : document.child("tovadoc").child("menu").children("item")) {
            BareLink link;
            link.id = text(item, "id");
            link.name = text(item, "name");
            link.type = text(item, "type");
            link.url = text(item, "url");
            link.para = text(item, "para");
            link.startconnect = text(item, "startconnect");
            link.startmobile = text(item, "startmobile");
            link.mayDelete = text(item, "delete");
            link.mayEdit = text(item, "edit");
            link.visible = text(item, "visible");
            if (link.visible == QLatin1String("1"))
                links.append(link);
        }
    });
}
} // namespace

int main(int argc, char** argv)
{
    return runTask(argc, argv, {{"load", load, false}});
}
