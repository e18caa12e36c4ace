// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "FuzzedStore.h"

#include <QBuffer>
#include <QDir>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include "CommonUtils.h"
#include "LinkAttributes.h"
#include "Require.h"

/** The program's own folder, which goes with it. */
static QString folder()
{
    static const QTemporaryDir made;
    return made.path();
}

QString CommonUtils::GetPluginLibraryPath()
{
    return folder();
}

static bool& hasReaderError()
{
    static bool hasError = false;
    return hasError;
}

static bool prepare()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    return QDir().mkpath(folder() + QLatin1String("/plugins/QuickLinkUIPlugin"));
}

QuickLinkXmlParse& FuzzedStore::fresh()
{
    static const bool isPrepared = prepare();
    require(isPrepared, "the folder for config.xml can be made");
    if (QuickLinkXmlParse::m_spInstance)
        delete QuickLinkXmlParse::m_spInstance->m_recordList;
    QuickLinkXmlParse::Destroy();
    return *QuickLinkXmlParse::GetInstance();
}

QuickLinkXmlParse& FuzzedStore::read(const uint8_t* bytes, size_t size)
{
    QuickLinkXmlParse& store = fresh();
    store.m_recordList = new QuickLinkRecordList;
    QBuffer buffer;
    buffer.setData(reinterpret_cast<const char*>(bytes), static_cast<int>(size));
    // As the file is opened.
    buffer.open(QIODevice::ReadOnly | QIODevice::Text);
    QXmlStreamReader reader(&buffer);
    store.parseCallLogConfig(reader);
    hasReaderError() = reader.hasError();
    return store;
}

bool FuzzedStore::hasStopped()
{
    return hasReaderError();
}

QString FuzzedStore::file()
{
    return folder() + QLatin1String("/plugins/QuickLinkUIPlugin/config.xml");
}

void FuzzedStore::saveAndRead(QuickLinkXmlParse& store, QuickLinkRecordList& links)
{
    require(store.SaveToConfigFile(&links, 1) == QuickLinkXmlParse::Done, "the links are written");
    require(store.ReadXmlInformation() == QuickLinkXmlParse::Done, "the links are read");
}

QString FuzzedStore::xmlCharacters(const QString& text)
{
    QString characters;
    for (int i = 0; i < text.size(); ++i) {
        const ushort unit = text.at(i).unicode();
        if (text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            characters += text.mid(i++, 2);
        else if (unit == 0x9 || unit == 0xa || unit == 0xd || (unit >= 0x20 && unit <= 0xd7ff) ||
                 (unit >= 0xe000 && unit <= 0xfffd))
            characters += text.at(i);
    }
    return characters;
}

void FuzzedStore::requireLinks(const QuickLinkXmlParse& store, const QuickLinkRecordList& expected)
{
    const QuickLinkRecordList& links = *store.m_recordList;
    require(links.size() == expected.size(), "as many links are read as were written",
            QStringLiteral("(%1, not %2)").arg(links.size()).arg(expected.size()));
    for (int i = 0; i < links.size(); ++i) {
        for (const LinkAttributes::Attribute& attribute : LinkAttributes::all) {
            const QString& text = links.at(i).*attribute.field;
            require(text == expected.at(i).*attribute.field, attribute.name,
                    QStringLiteral("of link %1 is \"%2\"").arg(i).arg(text));
        }
    }
}
