// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <unistd.h>

#include <QtGlobal>

/** The process as a user without rights, for as long as this lives; nothing changes for who is none already. */
class WithoutPrivileges
{
public:
    WithoutPrivileges()
        : m_isRoot(geteuid() == 0)
    {
        m_done = !m_isRoot || setresuid(65534, 65534, 0) == 0;
    }
    ~WithoutPrivileges()
    {
        if (m_isRoot && setresuid(0, 0, 0) != 0)
            qFatal("cannot go back to the privileged user");
    }
    bool isDone() const { return m_done; }

private:
    bool m_isRoot, m_done;
};
