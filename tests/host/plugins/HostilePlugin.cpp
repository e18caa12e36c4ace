// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// A plug-in that does what the environment variable DEED says, such as "Init:abort": in its library's start, in its
// constructor, in GetCLSID, Init or OnDestroy, or in its destructor. Its class identifier is CLSID, else its file.

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <thread>

#include <dlfcn.h>
#include <unistd.h>

#include <QFileInfo>
#include <QtPlugin>

#include "FakeAnswers.h"

namespace
{
const char* ownFile()
{
    Dl_info info;
    dladdr(reinterpret_cast<const void*>(&ownFile), &info);
    return info.dli_fname;
}

QString ownName()
{
    return QFileInfo(QString::fromLocal8Bit(ownFile())).completeBaseName().mid(3);
}

volatile int depth = 0;

/** Overflows the stack. */
__attribute__((noinline)) int recur(volatile char* above)
{
    volatile char frame[4096];
    frame[0] = *above;
    ++depth;
    return depth < 0 ? 0 : recur(frame) + frame[0];
}

void crash(const QByteArray& how)
{
    volatile char nothing = 0;
    volatile char* volatile nowhere = nullptr;
    if (how == "segfault")
        *nowhere = 1;
    else if (how == "abort")
        std::abort();
    else if (how == "kill")
        raise(SIGKILL);
    else if (how == "recursion")
        depth = recur(&nothing);
    else if (how == "exit")
        std::exit(0);
    else if (how == "_exit")
        _exit(0);
}

void perform(const QByteArray& how)
{
    if (how == "throw")
        throw std::runtime_error("thrown");
    if (how.contains("remove"))
        unlink(ownFile());
    if (how == "hang")
        std::this_thread::sleep_for(std::chrono::hours(1));
    if (how == "spin") {
        while (!depth) {
        }
    }
    // Waits to be noticed as something that lasts too long, and comes back.
    if (how == "late") {
        const QByteArray seen = qgetenv("SEEN");
        while (access(seen.constData(), F_OK) != 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    crash(how.mid(how.indexOf('+') + 1));
}

/** Acts where it is this plug-in's turn: "<where>:<how>", or "<name>/<where>:<how>" for the one of that name. */
void act(const char* where)
{
    const QList<QByteArray> parts = qgetenv("DEED").split(':');
    if (parts.size() == 2 && (parts.at(0) == where || parts.at(0) == ownName().toLocal8Bit() + '/' + where))
        perform(parts.at(1));
}

__attribute__((constructor)) void startLibrary()
{
    act("library");
}
} // namespace

class HostilePlugin : public QObject, public FakeAnswers<IBasePlugin>
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.norvik.vellumconnect.plugin.IBasePlugin")
    Q_INTERFACES(IBasePlugin)

public:
    HostilePlugin() { act("constructor"); }
    ~HostilePlugin() override { act("destructor"); }
    QString GetCLSID() override
    {
        act("GetCLSID");
        const QByteArray clsid = qgetenv("CLSID");
        return clsid.isEmpty() ? ownName() : QString::fromLatin1(clsid);
    }
    QString GetPluginName() override { return ownName(); }
    int Init() override
    {
        act("Init");
        return 1;
    }
    void OnDestroy() override { act("OnDestroy"); }
};

#include "HostilePlugin.moc"
