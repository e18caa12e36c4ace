// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Every text of the sources is translated into every language, and nothing else is.

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>

#include "Catalogue.h"
#include "QuickLinkKeys.h"
#include "Test.h"

namespace
{
/** All that a pattern finds in a text, sorted. */
QStringList allIn(const QString& text, const char* pattern)
{
    QStringList found;
    QRegularExpressionMatchIterator matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured());
    found.sort();
    return found;
}

/** A readable list of what one of two lists lacks; empty when they are alike. */
QString difference(QStringList actual, QStringList expected)
{
    actual.sort();
    expected.sort();
    QStringList lines;
    for (const QString& text : qAsConst(expected)) {
        if (actual.count(text) < expected.count(text))
            lines.append("missing: " + text);
    }
    for (const QString& text : qAsConst(actual)) {
        if (expected.count(text) < actual.count(text))
            lines.append("too much: " + text);
    }
    return lines.join('\n');
}

QStringList idsOf(const QList<CatalogueText>& texts)
{
    QStringList ids;
    for (const CatalogueText& text : texts)
        ids.append(text.isPlural ? text.id() + " [plural]" : text.id());
    return ids;
}

/** English shows the texts of the sources; only a key and a plural form are none that one could show. */
bool needsTranslation(const CatalogueText& text, const QString& language)
{
    return language != "en" || text.isPlural || text.source.startsWith("IDS_");
}
} // namespace

class CataloguesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void keysAreThoseThatThePluginUses();
    void speaksTheLanguagesOfItsUsers();
    void everyTextOfTheSourcesIsFound();
    void holdsTheTextsOfTheSources_data() { addLanguageRows(); }
    void holdsTheTextsOfTheSources();
    void isTranslated_data() { addLanguageRows(); }
    void isTranslated();
    void keepsPlaceHoldersAndMarkup_data() { addLanguageRows(); }
    void keepsPlaceHoldersAndMarkup();
    void underlinesNoLetterThatJoins_data() { addLanguageRows(); }
    void underlinesNoLetterThatJoins();

private:
    QTemporaryDir m_folder;
    QByteArray m_complaints;
    QList<CatalogueText> m_sources; ///< what lupdate finds in the host's sources
};

void CataloguesTest::initTestCase()
{
    const QString catalogue = m_folder.filePath("sources.ts");
    QProcess lupdate;
    lupdate.start(QString(LUPDATE), {"-silent", "-locations", "none", QString(HOST_SOURCES), "-ts", catalogue});
    QVERIFY(lupdate.waitForFinished());
    QCOMPARE(lupdate.exitCode(), 0);
    m_complaints = lupdate.readAllStandardError();
    m_sources = readCatalogue(catalogue);
    QVERIFY(!m_sources.isEmpty());
}

void CataloguesTest::keysAreThoseThatThePluginUses()
{
    // The way in which config.xml spells a type is no text.
    const QString spelling = "\"IDS_LINK_TYPE_E_MAIL\"";
    QStringList used;
    const QDir folder(QString(PLUGIN_SOURCES));
    const QStringList files = folder.entryList({"*.cpp", "*.h"}, QDir::Files);
    for (const QString& name : files) {
        QFile file(folder.filePath(name));
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(name));
        used += allIn(QString::fromUtf8(file.readAll()), "\"IDS_[A-Z_-]+\"");
    }
    QVERIFY(used.removeAll(spelling) > 0);
    used.removeDuplicates();

    QStringList listed;
    for (const char* const key : quickLinkKeys)
        listed.append(QString("\"%1\"").arg(key));
    const QString unlike = difference(listed, used);
    QVERIFY2(unlike.isEmpty(), qPrintable(unlike));
}

void CataloguesTest::speaksTheLanguagesOfItsUsers()
{
    const QString unlike =
        difference(catalogueLanguages(), QString("ar de en es fr hi ja pl pt pt_PT ru tr zh_CN").split(' '));
    QVERIFY2(!unlike.contains("missing"), qPrintable(unlike));
}

void CataloguesTest::everyTextOfTheSourcesIsFound()
{
    // A tr() of which lupdate cannot tell the context is never translated.
    QCOMPARE(QString::fromLocal8Bit(m_complaints), QString());
}

void CataloguesTest::holdsTheTextsOfTheSources()
{
    QFETCH(QString, language);
    const QString unlike = difference(idsOf(readCatalogue(cataloguePath(language))), idsOf(m_sources));
    QVERIFY2(unlike.isEmpty(), qPrintable(unlike));
}

void CataloguesTest::isTranslated()
{
    QFETCH(QString, language);
    QStringList wrong;
    const QList<CatalogueText> texts = readCatalogue(cataloguePath(language));
    for (const CatalogueText& text : texts) {
        const bool isEmpty = text.translations.isEmpty() || text.translations.contains(QString());
        if (needsTranslation(text, language) ? isEmpty || !text.isFinished : !isEmpty)
            wrong.append(text.id());
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
}

void CataloguesTest::keepsPlaceHoldersAndMarkup()
{
    QFETCH(QString, language);
    const char placeHolder[] = "%L?(\\d{1,2}|n)", markup[] = "<[^>]*>";
    QStringList wrong;
    const QList<CatalogueText> texts = readCatalogue(cataloguePath(language));
    for (const CatalogueText& text : texts) {
        for (const QString& translation : text.translations) {
            const QStringList kept = allIn(translation, placeHolder);
            QStringList expected = allIn(text.source, placeHolder);
            // A form that stands for one number only may say it in words.
            if (text.isPlural && !kept.contains("%n"))
                expected.removeAll("%n");
            const bool isKept = kept == expected && allIn(translation, markup) == allIn(text.source, markup);
            if (!translation.isEmpty() && !isKept)
                wrong.append(text.id() + " -> " + translation);
        }
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
}

/** The toolkit draws an underlined letter apart from those that it would join, or be one sign with. */
void CataloguesTest::underlinesNoLetterThatJoins()
{
    QFETCH(QString, language);
    QStringList wrong;
    const QList<CatalogueText> texts = readCatalogue(cataloguePath(language));
    for (const CatalogueText& text : texts) {
        for (const QString& translation : text.translations)
            wrong += allIn(translation, "&[\\p{Arabic}\\p{Devanagari}]");
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
}

REGISTER_TEST(CataloguesTest)
#include "CataloguesTest.moc"
