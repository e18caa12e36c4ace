// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the desktop says of the program, in every language, by the convention of desktop entries: Key[language]=value.

#include <QFile>

#include "Catalogue.h"
#include "Test.h"

class DesktopEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isTranslated_data() { addLanguageRows(); }
    void isTranslated();
    void hasNoOtherLanguages();
    void keepsItsName();

private:
    QMap<QString, QString> m_values; ///< by key, such as "Comment", "Comment[de]" and "quit/Name"
};

static const QStringList translatedKeys = {"GenericName", "Comment", "Keywords", "settings/Name", "quit/Name"};

void DesktopEntryTest::initTestCase()
{
    QFile file(DESKTOP_ENTRY);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    QString action; // whose keys follow
    for (const QString& line : lines) {
        if (line.isEmpty() || line.startsWith('#') || line == "[Desktop Entry]")
            continue;
        if (line.startsWith("[Desktop Action ")) {
            action = line.section(' ', 2).chopped(1) + '/';
            continue;
        }
        const QString key = action + line.section('=', 0, 0);
        QVERIFY2(line.contains('=') && !m_values.contains(key), qPrintable(line));
        m_values.insert(key, line.section('=', 1));
    }
}

void DesktopEntryTest::isTranslated()
{
    QFETCH(QString, language);
    for (const QString& key : translatedKeys) {
        const QString english = m_values.value(key);
        const QString text = language == "en" ? english : m_values.value(QString("%1[%2]").arg(key, language));
        QVERIFY2(!text.isEmpty(), qPrintable(key));
        QCOMPARE(text == english, language == "en");
        QCOMPARE(text.endsWith(';'), key == "Keywords");
    }
}

void DesktopEntryTest::hasNoOtherLanguages()
{
    // English is what has no language.
    const int languages = int(catalogueLanguages().size()) - 1;
    int translations = 0;
    for (auto value = m_values.constBegin(); value != m_values.constEnd(); ++value)
        translations += value.key().contains('[') ? 1 : 0;
    QCOMPARE(translations, languages * int(translatedKeys.size()));
}

void DesktopEntryTest::keepsItsName()
{
    QCOMPARE(m_values.value("Name"), "Vellum Connect");
    QCOMPARE(m_values.value("Actions"), "settings;quit;");
}

REGISTER_TEST(DesktopEntryTest)
#include "DesktopEntryTest.moc"
