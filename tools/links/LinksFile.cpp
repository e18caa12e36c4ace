// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinksFile.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <algorithm>

#include <sys/stat.h>
#include <unistd.h>

#include "CommonUtils.h"
#include "DurableFile.h"
#include "FirstStart.h"
#include "LinkAttributes.h"
#include "LinkFile.h"
#include "LinkFileCheck.h"
#include "LinkHistory.h"
#include "Places.h"
#include "RunningLinks.h"
#include "StoreText.h"
#include "UserFolder.h"

static const QString placeInUserFolder = QStringLiteral("/plugins/QuickLinkUIPlugin/config.xml");

/** Where the store writes: never the user's folder, as it removes the file first. */
static QString& storeFolder()
{
    static QString folder;
    return folder;
}

QString CommonUtils::GetPluginLibraryPath()
{
    return storeFolder();
}

/** The file that is meant, be it by a symbolic link; it need not exist. */
static QString absolutePath(const QString& path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(QDir::current().absoluteFilePath(path)) : canonical;
}

static bool isSame(const QuickLinkRecordList& one, const QuickLinkRecordList& other)
{
    const auto isSameLink = [](const QuickLinkRecord& link, const QuickLinkRecord& twin) {
        return std::all_of(
            std::begin(LinkAttributes::all), std::end(LinkAttributes::all),
            [&](const LinkAttributes::Attribute& attribute) { return link.*attribute.field == twin.*attribute.field; });
    };
    return one.size() == other.size() && std::equal(one.cbegin(), one.cend(), other.cbegin(), isSameLink);
}

/** What a counter or an id says; 0 for what is none, and for what is no longer to be counted from. */
static qlonglong numberOf(const QString& text)
{
    return text.size() > 18 ? 0 : std::max(0LL, text.toLongLong());
}

/** The permissions that a new file has in this session; its mask can be read by setting it only. */
static mode_t usualMode()
{
    const mode_t mask = ::umask(S_IRWXG | S_IRWXO);
    ::umask(mask);
    return (S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH) & ~mask;
}

LinksFile::LinksFile(const QString& path)
    : m_isOwn(path.isEmpty())
    , m_path(absolutePath(m_isOwn ? UserFolder::path() + placeInUserFolder : path))
{
    if (m_path.endsWith(placeInUserFolder))
        m_userFolder = m_path.chopped(placeInUserFolder.size());
}

LinksFile::~LinksFile()
{
    // As it was found: one that a crash left behind is for the program to know of.
    if (m_lock)
        m_lock->giveBack();
}

QString LinksFile::read()
{
    return load(m_isOwn);
}

QString LinksFile::load(bool mayBeMissing)
{
    const LinkFile file = LinkFile::look(m_path);
    if (file.isGood())
        m_content = file.content;
    else if (file.condition != LinkFile::Missing)
        return QStringLiteral("%1 cannot be read as links; \"vellumconnect-links check\" says why.").arg(m_path);
    else if (!mayBeMissing)
        return QStringLiteral("There is no file %1.").arg(m_path);
    parse(m_content, m_store, links);
    return QString();
}

QString LinksFile::readToChange()
{
    QString problem = lock();
    if (!problem.isEmpty())
        return problem;
    if (m_isOwn && !m_isInProgram && !QFileInfo::exists(m_path)) {
        if (QFileInfo::exists(historyFolder()))
            return QStringLiteral("%1 is missing; the program offers to bring it back at its next start.").arg(m_path);
        if (!FirstStart::copyDefaults(Places::defaultsFolder(), m_userFolder) ||
            !DurableFile::makePrivateFolder(QFileInfo(m_path).path()))
            return QStringLiteral("The folder %1 cannot be filled.").arg(m_userFolder);
    }
    if (QFileInfo::exists(m_path) && QFileInfo(m_path).ownerId() != ::geteuid())
        return QStringLiteral("%1 belongs to another user (%2), who alone changes it.")
            .arg(m_path, QString::number(QFileInfo(m_path).ownerId()));
    return load(true);
}

QString LinksFile::lock()
{
    const QString folder = m_userFolder.isEmpty() ? QFileInfo(m_path).path() : m_userFolder;
    if (!m_isOwn && !QFileInfo(folder).isDir())
        return QStringLiteral("There is no folder %1.").arg(folder);
    m_lock = std::make_unique<FolderLock>(folder);
    switch (m_lock->take()) {
    case FolderLock::Taken:
        return QString();
    case FolderLock::Busy:
        m_isInProgram = !m_userFolder.isEmpty() && RunningLinks::isThere(m_userFolder);
        if (m_isInProgram)
            return QString();
        return QStringLiteral("A program, process %1, works with the folder %2: change the links in its settings, or "
                              "end it first.")
            .arg(QString::number(m_lock->owner()), folder);
    case FolderLock::None:
        break;
    }
    return QStringLiteral("The folder %1 cannot be written to.").arg(folder);
}

void LinksFile::parse(const QByteArray& content, QuickLinkXmlParse& store, QuickLinkRecordList& to) const
{
    to.clear();
    store.m_recordList = &to;
    QBuffer buffer;
    buffer.setData(content);
    // As the plug-in opens its file.
    buffer.open(QIODevice::ReadOnly | QIODevice::Text);
    QXmlStreamReader reader(&buffer);
    store.parseCallLogConfig(reader);
    store.m_recordList = nullptr;
}

int LinksFile::hiddenLinks() const
{
    const Findings findings = LinkFileCheck::of(m_path);
    return int(std::count_if(findings.cbegin(), findings.cend(),
                             [](const Finding& finding) { return finding.code == FindingCode::HiddenLink; }));
}

bool LinksFile::openInProgram(int index) const
{
    const QString& name = links.at(index).name;
    // The program goes by names.
    const bool isOnlyOne = std::count_if(links.cbegin(), links.cend(),
                                         [&name](const QuickLinkRecord& link) { return link.name == name; }) == 1;
    return isOnlyOne && !m_userFolder.isEmpty() && QFileInfo::exists(m_userFolder + QStringLiteral("/lock")) &&
           RunningLinks::open(m_userFolder, name);
}

/** What the counter says, unless an id is as large. */
qlonglong LinksFile::nextId() const
{
    qlonglong next = numberOf(m_store.m_currentId);
    for (const QuickLinkRecord& link : links)
        next = std::max(next, numberOf(link.id) + 1);
    return next;
}

void LinksFile::append(QuickLinkRecord link)
{
    for (const LinkAttributes::Attribute& attribute : LinkAttributes::all)
        link.*attribute.field = StoreText::writable(link.*attribute.field);
    if (m_nextId < 0)
        m_nextId = nextId();
    link.id = QString::number(m_nextId++);
    m_store.m_currentId = QString::number(m_nextId);
    links.append(link);
}

/** The links as the store writes them; empty, with the reason in problem, where it could not, as on a full disk. */
QByteArray LinksFile::written(QString& problem)
{
    const QTemporaryDir folder;
    storeFolder() = folder.path();
    QDir().mkpath(QFileInfo(folder.path() + placeInUserFolder).path());
    m_store.SaveToConfigFile(&links, 1);
    const LinkFile file = LinkFile::look(folder.path() + placeInUserFolder);
    // The store itself misses nothing that fails after the file is open.
    QuickLinkXmlParse store;
    QuickLinkRecordList readBack;
    parse(file.content, store, readBack);
    if (file.isGood() && isSame(links, readBack))
        return file.content;
    const bool isTooLarge = file.condition == LinkFile::TooLarge;
    problem =
        isTooLarge
            ? QStringLiteral("These are more links than a file holds, which has %1 bytes at most; %2 is as it was.")
                  .arg(QString::number(LinkFile::largest), m_path)
            : QStringLiteral("The links cannot be written; %1 is as it was.").arg(m_path);
    return QByteArray();
}

QString LinksFile::historyFolder() const
{
    return m_userFolder + QStringLiteral("/history");
}

QString LinksFile::save()
{
    QString problem;
    const QByteArray content = written(problem);
    if (!problem.isEmpty())
        return problem;
    if (m_isInProgram) {
        // With very many links the answer may come too late; what counts is the file.
        const bool isDone =
            RunningLinks::replace(m_userFolder, m_content, content) || LinkFile::look(m_path).content == content;
        return isDone ? QString()
                      : QStringLiteral("The program that runs with %1 does not take the change: its settings are open, "
                                       "or the links are others meanwhile.")
                            .arg(m_userFolder);
    }
    const LinkHistory history(m_userFolder, historyFolder());
    const bool hasHistory = !m_userFolder.isEmpty() && (m_isOwn || history.exists());
    if (hasHistory && !m_content.isEmpty() && !history.keep(m_content))
        return QStringLiteral("The links of before cannot be kept in %1; nothing was changed.").arg(historyFolder());
    const bool isNew = !QFileInfo::exists(m_path);
    const QFile::Permissions permissions = QFile::permissions(m_path);
    if (!DurableFile::write(m_path, content))
        return QStringLiteral("%1 cannot be written; it is as it was.").arg(m_path);
    // Whoever could read it still can, as with files that a computer's users share.
    if (!isNew)
        QFile::setPermissions(m_path, permissions);
    else if (m_userFolder.isEmpty())
        ::chmod(QFile::encodeName(m_path).constData(), usualMode());
    if (hasHistory)
        history.keep(content);
    m_content = content;
    return QString();
}
