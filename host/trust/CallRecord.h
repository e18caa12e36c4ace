// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include "PluginFile.h"
#include "PluginGate.h"

/** A call into a plug-in that did not come back, as far as is known. */
struct UnfinishedCall {
    PluginFile file;
    PluginGate::Call call = PluginGate::Loading;
    bool isHung = false; ///< it had lasted too long before it ended; else it crashed, or was ended early
};

/**
 * The file in which a process notes the plug-in that has the processor, so that the next one can read what a crash left
 * behind. The file is mapped into memory: a note costs no call to the system and no wait for the disk, and outlives the
 * process, however it ends; what a power cut takes of it is no loss. While its process lives the file is locked.
 *
 * Each process has its own, calls/<number> in the user's folder, until the object goes. For one thread at a time.
 */
class CallRecord
{
public:
    /** Takes no note until open(). */
    CallRecord() = default;

    /** Takes the file away. */
    ~CallRecord();

    CallRecord(const CallRecord&) = delete;
    CallRecord& operator=(const CallRecord&) = delete;

    /** Reads what processes that are gone left unfinished in userFolder. */
    static QList<UnfinishedCall> leftBehind(const QString& userFolder);

    /** The same, and takes their files away. */
    static QList<UnfinishedCall> takeLeftBehind(const QString& userFolder);

    /** Makes the file in userFolder, which exists. False when that cannot be done; then nothing is noted. */
    bool open(const QString& userFolder);

    /** Notes a call, in place of the former one. */
    void note(const PluginFile& file, PluginGate::Call call);

    /** Adds that the call lasts too long. */
    void noteHung();

    /** Nobody is called any more. */
    void clear();

private:
    QByteArray m_path;
    char* m_page = nullptr;
    int m_descriptor = -1;
};
