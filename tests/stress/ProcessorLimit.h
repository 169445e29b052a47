#pragma once
// Ends this process when it has used the processor for three minutes: a step that takes so long is
// a hang, while a busy machine is none. The parent can't see it: Wine gives it no times of others.

#include <windows.h>

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <stop_token>
#include <thread>

class ProcessorLimit
{
public:
    explicit ProcessorLimit(std::FILE* pLog)
        : m_thread([pLog](const std::stop_token& stop) { Watch(stop, pLog); })
    {
    }

private:
    static void Watch(const std::stop_token& stop, std::FILE* pLog)
    {
        constexpr ULONGLONG most = 180 * 10'000'000ULL; // in 100 ns
        std::mutex mutex;
        std::condition_variable_any ended;
        std::unique_lock lock(mutex);
        while (!stop.stop_requested()) {
            ended.wait_for(lock, stop, std::chrono::milliseconds(500), [] { return false; });
            if (Used() > most) {
                std::fputs("three minutes of the processor\n", pLog);
                std::fflush(pLog);
                ::TerminateProcess(::GetCurrentProcess(), 1);
            }
        }
    }

    static ULONGLONG Used()
    {
        FILETIME created, ended, kernel, user;
        ::GetProcessTimes(::GetCurrentProcess(), &created, &ended, &kernel, &user);
        const auto inOne = [](FILETIME time) {
            return (ULONGLONG{time.dwHighDateTime} << 32) + time.dwLowDateTime;
        };
        return inOne(kernel) + inOne(user);
    }

    std::jthread m_thread;
};
