// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

/**
 * Notices that something lasts too long, from a thread of its own: the one that is watched may never come back. The
 * thread begins with the first watch and ends with the object.
 */
class CallWatch
{
public:
    /** Runs late() on the watching thread when something has lasted for limit, once for each begin(). */
    CallWatch(std::chrono::milliseconds limit, std::function<void()> late);

    /** Waits for a late() that runs. */
    ~CallWatch();

    CallWatch(const CallWatch&) = delete;
    CallWatch& operator=(const CallWatch&) = delete;

    /** Something begins. Runs start() while late() cannot run. */
    void begin(const std::function<void()>& start);

    /** It has ended. Runs stop() while late() cannot run, and late() is not run for it any more. */
    void end(const std::function<void()>& stop);

private:
    using Time = std::chrono::steady_clock::time_point;

    void run();

    const std::chrono::milliseconds m_limit;
    const std::function<void()> m_late;
    std::mutex m_mutex; ///< for all below
    std::condition_variable m_changed;
    Time m_deadline = Time::max();
    bool m_isOver = false;
    std::thread m_thread;
};
