// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Measure.h"

#include <cstdio>
#include <cstring>
#include <memory>

#include <malloc.h>
#include <time.h>

#include <QApplication>

extern "C" {
/** What is measured, under a name that callgrind's --toggle-collect finds. */
__attribute__((noinline)) void measuredWork(const std::function<void()>& work)
{
    work();
}
}

namespace
{
long long cpuNanoseconds()
{
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return now.tv_sec * 1000000000LL + now.tv_nsec;
}

/** What malloc has handed out, with its own overhead. */
long long heapBytes()
{
    const struct mallinfo2 heap = mallinfo2();
    return static_cast<long long>(heap.uordblks) + static_cast<long long>(heap.hblkhd);
}
} // namespace

void measure(const std::function<void()>& work)
{
    const long long heapBefore = heapBytes();
    const long long before = cpuNanoseconds();
    measuredWork(work);
    const long long after = cpuNanoseconds();
    std::printf("%lld %lld\n", after - before, heapBytes() - heapBefore);
}

int runTask(int argc, char** argv, std::initializer_list<NamedTask> tasks)
{
    for (const NamedTask& task : tasks) {
        if (argc != 3 || std::strcmp(argv[1], task.name) != 0)
            continue;
        const std::unique_ptr<QCoreApplication> application(task.needsScreen ? new QApplication(argc, argv)
                                                                             : new QCoreApplication(argc, argv));
        task.run(QString::fromLocal8Bit(argv[2]));
        std::fflush(stdout);
        // The end of the process frees what the task left.
        std::_Exit(0);
    }
    std::fprintf(stderr, "usage: %s TASK FOLDER\n", argv[0]);
    return 2;
}

int runLinkTask(int argc, char** argv, const LinkTasks& tasks)
{
    return runTask(argc, argv,
                   {{"load", tasks.load, false},
                    {"save", tasks.save, false},
                    {"menu", tasks.menu},
                    {"page", tasks.page},
                    {"paint", tasks.paint},
                    {"up", tasks.up},
                    {"delete", tasks.deleteLink},
                    {"new", tasks.newLink}});
}
