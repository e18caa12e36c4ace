// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the operator's links cost the starts of a computer: made-up homes, each with starts that have none, that bring
// them, that have nothing to do, and that follow a change. Files only; the plug-in's reader takes the links in the end.
//
//   bench_layers FIRST COUNT FOLDER
//     the homes of the numbers FIRST to FIRST + COUNT - 1, which come to lie below FOLDER and go again
//
// Prints for each start its name and the milliseconds that passed and that it had the processor. Ends with an error
// where a link of a user is lost or one of the operator is not where it belongs.

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cstdio>

#include <time.h>

#include "LinkKeeper.h"
#include "LinkRewrite.h"
#include "MenuManager.h"
#include "PluginContainer.h"
#include "QuickLinkXmlParse.h"
#include "UserFolder.h"

// As of a task of Measure.h, but that a process has many.
extern "C" {
/** A start, under a name that callgrind's --toggle-collect finds. */
__attribute__((noinline)) void measuredWork(LinkKeeper& keeper)
{
    keeper.prepare(false);
    keeper.seed();
    QuickLinkXmlParse::GetInstance()->ReadXmlInformation();
    keeper.guard().watch();
}
}

namespace
{
const int operatorsLinks = 100;
const int changedLinks = 10; ///< of the operator's, by their second file
const int mostOwn = 60;      ///< links of a user

double milliseconds(clockid_t clock)
{
    timespec now = {};
    clock_gettime(clock, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

LinkItems::Fields link(const QString& name, const QString& address)
{
    return {{QStringLiteral("name"), name},
            {QStringLiteral("type"), QStringLiteral("IDS_LINK_TYPE_INTERNET")},
            {QStringLiteral("url"), address},
            {QStringLiteral("para"), QString()},
            {QStringLiteral("startconnect"), QStringLiteral("0")},
            {QStringLiteral("startmobile"), QStringLiteral("0")},
            {QStringLiteral("delete"), QStringLiteral("1")},
            {QStringLiteral("edit"), QStringLiteral("1")}};
}

QString operatorsName(int number)
{
    return QStringLiteral("Service %1").arg(number);
}

void write(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s cannot be written", qPrintable(path));
}

/** The operator's links of the numbers from first on, below folder. */
void writeLayer(const QString& folder, int first)
{
    LinkRewrite links;
    for (int i = first; i < first + operatorsLinks; ++i)
        links.added.append(link(operatorsName(i), QStringLiteral("https://service%1.example.org/start").arg(i)));
    write(folder + QStringLiteral("/links.d/10-services.xml"), links.applied(LinkFile::withoutLinks()));
}

/** The home of one user, who has links or none. */
class Home
{
public:
    Home(const QString& folder, int number)
        : m_folder(QStringLiteral("%1/home-%2").arg(folder).arg(number))
        , m_file(m_folder + QStringLiteral("/plugins/QuickLinkUIPlugin/config.xml"))
        , m_random(quint32(number))
    {
        LinkRewrite links;
        const int count = 1 + m_random.bounded(mostOwn);
        for (int i = 0; i < count; ++i) {
            const QString name = QStringLiteral("Own %1 & more").arg(i);
            m_names.append(name);
            links.added.append(link(name, QStringLiteral("http://www.example.org/%1/%2").arg(number).arg(i)));
        }
        // A tenth of the users starts for the first time.
        if (number % 10 == 0)
            m_names.clear();
        else
            write(m_file, links.applied(LinkFile::withoutLinks()));
    }

    bool isNew() const { return m_names.isEmpty(); }

    ~Home() { QDir(m_folder).removeRecursively(); }

    Home(const Home&) = delete;
    Home& operator=(const Home&) = delete;

    /** A start of the program with the operator's files below a folder; prints how long it took where it has a name. */
    void start(const QString& operatorFolder, const char* name = nullptr) const
    {
        qputenv("VELLUMCONNECT_OPERATOR_DIRS", QFile::encodeName(operatorFolder));
        UserFolder::setPath(m_folder);
        PluginContainer container;
        MenuManager menu(container);
        LinkKeeper keeper(m_folder, container, menu);
        const double passed = milliseconds(CLOCK_MONOTONIC), worked = milliseconds(CLOCK_PROCESS_CPUTIME_ID);
        measuredWork(keeper);
        if (name)
            std::printf("%s %.3f %.3f\n", name, milliseconds(CLOCK_MONOTONIC) - passed,
                        milliseconds(CLOCK_PROCESS_CPUTIME_ID) - worked);
    }

    /** The user deletes one of the operator's links, and gives another one a name of the user's own. */
    void touch()
    {
        LinkRewrite changes;
        const int own = int(m_names.size()), deleted = m_random.bounded(operatorsLinks);
        const int renamed = (deleted + 1 + m_random.bounded(operatorsLinks - 1)) % operatorsLinks;
        changes.removed.insert(own + deleted);
        changes.changed.insert(own + renamed, {{QStringLiteral("name"), QStringLiteral("Mine now")}});
        write(m_file, changes.applied(LinkFile::look(m_file).content));
        m_deleted = operatorsName(deleted);
        m_renamed = operatorsName(renamed);
    }

    /** Whether the user has all links of their own, and those of the operator from first on. */
    void check(int first) const
    {
        QStringList wanted = m_names;
        for (int i = 0; i < first + operatorsLinks; ++i) {
            const QString name = operatorsName(i);
            if (name == m_renamed)
                wanted.append(QStringLiteral("Mine now"));
            else if (name != m_deleted && i >= first)
                wanted.append(name);
        }
        if (LinkFile::names(LinkFile::look(m_file).content) != wanted)
            qFatal("the links of %s are not those wanted", qPrintable(m_file));
    }

private:
    QString m_folder;
    QString m_file;
    QRandomGenerator m_random;
    QStringList m_names; ///< of the user's own links
    QString m_deleted;   ///< the operator's link that the user deleted; empty for none
    QString m_renamed;
};
} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        std::fprintf(stderr, "usage: bench_layers FIRST COUNT FOLDER\n");
        return 2;
    }
    const int first = arguments.at(1).toInt(), count = arguments.at(2).toInt();
    const QString& folder = arguments.at(3);
    const QString none = folder + QStringLiteral("/none");
    const QString old = folder + QStringLiteral("/old");
    const QString changed = folder + QStringLiteral("/changed");
    writeLayer(old, 0);
    writeLayer(changed, changedLinks);
    for (int number = first; number < first + count; ++number) {
        Home home(folder, number);
        if (!home.isNew()) {
            home.start(none);
            home.start(none, "none");
        }
        home.start(old, home.isNew() ? "first" : "new");
        home.check(0);
        home.start(old, "ordinary");
        home.touch();
        home.start(old, "touched");
        home.check(0);
        home.start(changed, "changed");
        home.check(changedLinks);
    }
    return 0;
}
