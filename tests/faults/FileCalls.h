// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

/** In place of an error's number: the process is killed at the call. */
const int killFault = -1;

extern "C" {

/**
 * Counts the calls that change files below the folder from now on. From the first-th on (1 for the very next; 0 for
 * none) they fail with the error fault, such as ENOSPC, which spares what needs no room; with killFault the process is
 * killed.
 */
void armFileCalls(const char* below, int first, int fault);

/**
 * Leaves room for so many bytes below the folder from now on, as a disk that is nearly full: what does not fit is not
 * written, and files that go give no room back.
 */
void armFileSpace(const char* below, long left);

/** Notes every call that changes files below the folder in the file journal, as FileJournal.h tells. */
void recordFileCalls(const char* below, const char* journal);

/** Notes in the journal that something has come about by now. */
void markFileCalls(const char* mark);

/** How many bytes were written since then. */
long countedFileBytes();

/** How many calls were counted so far. */
int countedFileCalls();
}
