// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "FileJournal.h"

#include <cstdarg>
#include <cstdio>
#include <string>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{
int journal = -1;

/** By the system's own call: the library's would come round here again. */
void append(const std::string& line)
{
    if (journal >= 0)
        ::syscall(SYS_write, journal, line.data(), line.size());
}

std::string hexadecimal(const void* data, size_t length)
{
    static const char digits[] = "0123456789abcdef";
    std::string text;
    for (size_t i = 0; i < length; ++i) {
        const unsigned char byte = static_cast<const unsigned char*>(data)[i];
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text;
}
} // namespace

void FileJournal::begin(const char* path)
{
    journal = static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600));
}

bool FileJournal::isOn()
{
    return journal >= 0;
}

void FileJournal::opened(int descriptor, int flags, const char* path)
{
    const bool isNew = (flags & O_CREAT) != 0;
    const bool isUnnamed = (flags & O_TMPFILE) == O_TMPFILE;
    const bool isEmptied = (flags & O_TRUNC) != 0;
    append("open\t" + std::to_string(descriptor) + '\t' + path + (isNew ? "\tcreate" : "\t") +
           (isUnnamed ? "\tunnamed" : "\t") + (isEmptied ? "\tempty\n" : "\t\n"));
}

void FileJournal::written(int descriptor, long place, const void* data, size_t length)
{
    append("write\t" + std::to_string(descriptor) + '\t' + std::to_string(place) + '\t' + hexadecimal(data, length) +
           '\n');
}

void FileJournal::truncated(int descriptor, long length)
{
    append("truncate\t" + std::to_string(descriptor) + '\t' + std::to_string(length) + '\n');
}

void FileJournal::synced(int descriptor)
{
    append("sync\t" + std::to_string(descriptor) + '\n');
}

void FileJournal::named(const char* call, const char* from, const char* to)
{
    append(std::string(call) + '\t' + from + (to ? std::string("\t") + to : std::string()) + '\n');
}
