// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// A library to be preloaded: counts the calls that change files below one folder, and lets those from a chosen one on
// fail, or kills the process there, or notes them. Does nothing before it is armed.

#include "FileCalls.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "FileJournal.h"

namespace
{
const int mostDescriptors = 4096;
const char* folder = nullptr;
bool isBelow[mostDescriptors] = {}; // by descriptor
int calls = 0;
int firstFault = 0;
int fault = 0;
long room = -1; // bytes; -1 for no limit
long bytes = 0; // written since

bool liesBelow(const char* path)
{
    return folder && path && std::strncmp(path, folder, std::strlen(folder)) == 0;
}

bool liesBelow(int descriptor)
{
    return descriptor >= 0 && descriptor < mostDescriptors && isBelow[descriptor];
}

/** What a full disk refuses: new data and new names. Names that only go or change need no room. */
enum Kind { NeedsRoom, NeedsNone };

/** Whether this call fails, with errno set. */
bool fails(Kind kind)
{
    if (room == 0 && kind == NeedsRoom) {
        errno = ENOSPC;
        return true;
    }
    if (!firstFault && !fault)
        return false;
    ++calls;
    if (!firstFault || calls < firstFault)
        return false;
    if (fault == killFault)
        ::kill(::getpid(), SIGKILL);
    if (fault == ENOSPC && kind == NeedsNone)
        return false;
    errno = fault;
    return true;
}

template <class Function>
Function next(const char* name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

int opened(int descriptor, const char* path, int flags)
{
    if (descriptor >= 0 && descriptor < mostDescriptors)
        isBelow[descriptor] = liesBelow(path);
    if (liesBelow(descriptor))
        FileJournal::opened(descriptor, flags, path);
    return descriptor;
}

/** The answer of a call that names files, noted where it is none of an error. */
int named(int answer, const char* call, const char* from, const char* to = nullptr)
{
    if (answer == 0 && liesBelow(to ? to : from))
        FileJournal::named(call, from, to);
    return answer;
}

int synced(int answer, int descriptor)
{
    if (answer == 0 && liesBelow(descriptor))
        FileJournal::synced(descriptor);
    return answer;
}

int truncated(int answer, int descriptor, long length)
{
    if (answer == 0 && liesBelow(descriptor))
        FileJournal::truncated(descriptor, length);
    return answer;
}

ssize_t written(ssize_t answer, int descriptor, long place, const void* data)
{
    if (answer > 0 && liesBelow(descriptor))
        FileJournal::written(descriptor, place, data, static_cast<size_t>(answer));
    return answer;
}

bool mayChange(int flags)
{
    return (flags & O_ACCMODE) != O_RDONLY || (flags & O_CREAT);
}

/** Opening to write fails like a write; a new file needs room. */
bool openFails(const char* path, int flags)
{
    return liesBelow(path) && mayChange(flags) && fails((flags & O_CREAT) ? NeedsRoom : NeedsNone);
}

int openBy(const char* function, const char* path, int flags, mode_t mode)
{
    if (openFails(path, flags))
        return -1;
    return opened(next<int (*)(const char*, int, ...)>(function)(path, flags, mode), path, flags);
}

int openAtBy(const char* function, int at, const char* path, int flags, mode_t mode)
{
    if (openFails(path, flags))
        return -1;
    return opened(next<int (*)(int, const char*, int, ...)>(function)(at, path, flags, mode), path, flags);
}
} // namespace

extern "C" {

void armFileCalls(const char* below, int first, int faultOfAll)
{
    folder = ::strdup(below);
    calls = 0;
    firstFault = first;
    fault = faultOfAll;
}

void armFileSpace(const char* below, long left)
{
    folder = ::strdup(below);
    room = left;
    bytes = 0;
}

void recordFileCalls(const char* below, const char* journal)
{
    folder = ::strdup(below);
    FileJournal::begin(journal);
}

void markFileCalls(const char* mark)
{
    FileJournal::named("mark", mark);
}

long countedFileBytes()
{
    return bytes;
}

int countedFileCalls()
{
    return calls;
}

#define MODE_OF(flags)                                                                                                 \
    mode_t mode = 0;                                                                                                   \
    if ((flags) & (O_CREAT | O_TMPFILE)) {                                                                             \
        va_list arguments;                                                                                             \
        va_start(arguments, flags);                                                                                    \
        mode = va_arg(arguments, mode_t);                                                                              \
        va_end(arguments);                                                                                             \
    }

int open(const char* path, int flags, ...)
{
    MODE_OF(flags)
    return openBy("open", path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
    MODE_OF(flags)
    return openBy("open64", path, flags, mode);
}

int openat(int at, const char* path, int flags, ...)
{
    MODE_OF(flags)
    return openAtBy("openat", at, path, flags, mode);
}

int openat64(int at, const char* path, int flags, ...)
{
    MODE_OF(flags)
    return openAtBy("openat64", at, path, flags, mode);
}

int close(int descriptor)
{
    if (descriptor >= 0 && descriptor < mostDescriptors)
        isBelow[descriptor] = false;
    return next<int (*)(int)>("close")(descriptor);
}

ssize_t write(int descriptor, const void* data, size_t length)
{
    if (!liesBelow(descriptor))
        return next<ssize_t (*)(int, const void*, size_t)>("write")(descriptor, data, length);
    if (fails(NeedsRoom))
        return -1;
    const size_t fitting = room < 0 ? length : std::min(length, size_t(room));
    const long place = FileJournal::isOn() ? ::lseek(descriptor, 0, SEEK_CUR) : 0;
    const ssize_t done = written(next<ssize_t (*)(int, const void*, size_t)>("write")(descriptor, data, fitting),
                                 descriptor, place, data);
    bytes += std::max<ssize_t>(done, 0);
    if (room > 0)
        room -= std::max<ssize_t>(done, 0);
    return done;
}

ssize_t pwrite(int descriptor, const void* data, size_t length, off_t offset)
{
    if (liesBelow(descriptor) && fails(NeedsRoom))
        return -1;
    return written(next<ssize_t (*)(int, const void*, size_t, off_t)>("pwrite")(descriptor, data, length, offset),
                   descriptor, offset, data);
}

int fsync(int descriptor)
{
    if (liesBelow(descriptor) && fails(NeedsRoom))
        return -1;
    return synced(next<int (*)(int)>("fsync")(descriptor), descriptor);
}

int fdatasync(int descriptor)
{
    if (liesBelow(descriptor) && fails(NeedsRoom))
        return -1;
    return synced(next<int (*)(int)>("fdatasync")(descriptor), descriptor);
}

int ftruncate(int descriptor, off_t length)
{
    if (liesBelow(descriptor) && fails(NeedsNone))
        return -1;
    return truncated(next<int (*)(int, off_t)>("ftruncate")(descriptor, length), descriptor, length);
}

int ftruncate64(int descriptor, off64_t length)
{
    if (liesBelow(descriptor) && fails(NeedsNone))
        return -1;
    return truncated(next<int (*)(int, off64_t)>("ftruncate64")(descriptor, length), descriptor, length);
}

int fchmod(int descriptor, mode_t mode)
{
    if (liesBelow(descriptor) && fails(NeedsNone))
        return -1;
    return next<int (*)(int, mode_t)>("fchmod")(descriptor, mode);
}

int chmod(const char* path, mode_t mode)
{
    if (liesBelow(path) && fails(NeedsNone))
        return -1;
    return next<int (*)(const char*, mode_t)>("chmod")(path, mode);
}

int unlink(const char* path)
{
    if (liesBelow(path) && fails(NeedsNone))
        return -1;
    return named(next<int (*)(const char*)>("unlink")(path), "unlink", path);
}

int rename(const char* from, const char* to)
{
    if (liesBelow(to) && fails(NeedsNone))
        return -1;
    return named(next<int (*)(const char*, const char*)>("rename")(from, to), "rename", from, to);
}

int renameat2(int fromAt, const char* from, int toAt, const char* to, unsigned flags)
{
    if (liesBelow(to) && fails(NeedsNone))
        return -1;
    return named(
        next<int (*)(int, const char*, int, const char*, unsigned)>("renameat2")(fromAt, from, toAt, to, flags),
        "rename", from, to);
}

int link(const char* from, const char* to)
{
    if (liesBelow(to) && fails(NeedsRoom))
        return -1;
    return named(next<int (*)(const char*, const char*)>("link")(from, to), "link", from, to);
}

int linkat(int fromAt, const char* from, int toAt, const char* to, int flags)
{
    if (liesBelow(to) && fails(NeedsRoom))
        return -1;
    return named(next<int (*)(int, const char*, int, const char*, int)>("linkat")(fromAt, from, toAt, to, flags),
                 "link", from, to);
}

int mkdir(const char* path, mode_t mode)
{
    if (liesBelow(path) && fails(NeedsRoom))
        return -1;
    return named(next<int (*)(const char*, mode_t)>("mkdir")(path, mode), "mkdir", path);
}

} // extern "C"
