// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFileInfo>
#include <QString>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

/** Takes root's power over file permissions away while it lives; does nothing for any other user. */
class WithoutPrivileges
{
public:
    WithoutPrivileges()
        : m_user(geteuid())
        // The real user as well: some questions to the system go by that one.
        , m_isDropped(m_user == 0 && setresuid(nobody, nobody, 0) == 0)
    {
    }

    ~WithoutPrivileges()
    {
        if (m_isDropped && setresuid(0, 0, 0) != 0)
            qFatal("cannot become root again");
    }

    /** Whether permissions bind this process now. */
    bool isBound() const { return m_user != 0 || m_isDropped; }

private:
    WithoutPrivileges(const WithoutPrivileges&);
    WithoutPrivileges& operator=(const WithoutPrivileges&);

    static const uid_t nobody = 65534;
    uid_t m_user;
    bool m_isDropped;
};

/** Lowers one limit of the process while it lives. */
class LowerLimit
{
public:
    LowerLimit(int resource, rlim_t limit)
        : m_resource(resource)
        , m_signalHandler(signal(SIGXFSZ, SIG_IGN)) // a file at its limit is then an error like a full disk
    {
        getrlimit(static_cast<__rlimit_resource>(m_resource), &m_before);
        rlimit lowered = m_before;
        lowered.rlim_cur = limit;
        m_isLowered = setrlimit(static_cast<__rlimit_resource>(m_resource), &lowered) == 0;
    }

    ~LowerLimit()
    {
        setrlimit(static_cast<__rlimit_resource>(m_resource), &m_before);
        signal(SIGXFSZ, m_signalHandler);
    }

    bool isLowered() const { return m_isLowered; }

private:
    LowerLimit(const LowerLimit&);
    LowerLimit& operator=(const LowerLimit&);

    int m_resource;
    void (*m_signalHandler)(int);
    rlimit m_before;
    bool m_isLowered;
};

/** Sets the permission bits of a file or folder; false when that fails. */
inline bool setMode(const QString& path, mode_t mode)
{
    return chmod(path.toLocal8Bit().constData(), mode) == 0;
}
