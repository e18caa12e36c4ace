// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include <chrono>

#include "CallRecord.h"
#include "CallWatch.h"
#include "FileTrust.h"
#include "LeftOutPlugins.h"
#include "PluginGate.h"

/**
 * Lets in the plug-ins that nobody else could have put there, that did not crash or hang before, and that do not pass
 * themselves off as the quick links. For the GUI thread only.
 */
class Gatekeeper : public PluginGate
{
public:
    enum Problem {
        ForeignOwner, ///< see FileTrust
        OthersWrite,  ///< see FileTrust
        NotKnown,     ///< see FileTrust
        FalseLinks    ///< has the quick links' class identifier and is another file
    };

    /** A plug-in that was not let in. */
    struct Refusal {
        QString file;
        Problem problem;
        QString place; ///< the file or folder that has the problem
    };

    /** Lets every plug-in in until open(). A call that lasts for limit is noted as hung. */
    explicit Gatekeeper(std::chrono::milliseconds limit = std::chrono::seconds(10));

    /**
     * Begins to look after the plug-ins of pluginFolder: from now on calls are noted in userFolder, which exists, and
     * what a former process noted there and did not finish is left out. Where nothing can be noted, plug-ins are let in
     * all the same.
     */
    void open(const QString& userFolder, const QString& pluginFolder);

    /** The same for a program that only looks: nothing is noted and nothing is kept. */
    void look(const QString& userFolder, const QString& pluginFolder);

    /** Those that were not let in and are not left out, in the order in which they came. */
    QList<Refusal> refusals() const { return m_refusals; }

    /** Those that did not come back from a call. */
    LeftOutPlugins& leftOut() { return m_leftOut; }

    QString objectionTo(const QString& file) override;
    QString objectionTo(const QString& file, const QString& clsid) override;
    void begin(const QString& file, Call call) override;
    void end() override;

private:
    struct Running {
        PluginFile file;
        Call call;
    };

    QString refuse(const QString& file, Problem problem, const QString& place);
    void note();

    QString m_pluginFolder;
    QList<Refusal> m_refusals;
    QList<Running> m_running; ///< the innermost call last
    LeftOutPlugins m_leftOut;
    CallRecord m_record; ///< used by the thread of the watch as well, never at the same time
    CallWatch m_watch;
};
