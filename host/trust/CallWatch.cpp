// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "CallWatch.h"

#include <csignal>
#include <utility>

CallWatch::CallWatch(std::chrono::milliseconds limit, std::function<void()> late)
    : m_limit(limit)
    , m_late(std::move(late))
{
}

CallWatch::~CallWatch()
{
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        m_isOver = true;
    }
    m_changed.notify_one();
    if (m_thread.joinable())
        m_thread.join();
}

void CallWatch::begin(const std::function<void()>& start)
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    start();
    const bool isAsleep = m_deadline == Time::max();
    m_deadline = std::chrono::steady_clock::now() + m_limit;
    if (!m_thread.joinable()) {
        // Signals are for the threads that there were before.
        sigset_t all, before;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &before);
        m_thread = std::thread(&CallWatch::run, this);
        pthread_sigmask(SIG_SETMASK, &before, nullptr);
    } else if (isAsleep) {
        m_changed.notify_one();
    }
}

void CallWatch::end(const std::function<void()>& stop)
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    stop();
    m_deadline = Time::max();
}

void CallWatch::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_isOver) {
        const Time deadline = m_deadline;
        if (deadline == Time::max()) {
            m_changed.wait(lock);
        } else if (std::chrono::steady_clock::now() < deadline) {
            m_changed.wait_until(lock, deadline);
        } else {
            m_deadline = Time::max();
            m_late();
        }
    }
}
