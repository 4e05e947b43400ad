#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace Host::Panel {

/// A thread that runs tasks in the order in which they were posted.
class Worker {
public:
    using Clock = std::chrono::steady_clock;
    using Task = std::function<void()>;
    /// What the thread does when there is no task; @return when to do it again at the latest.
    using Idle = std::function<Clock::time_point()>;

    explicit Worker(Idle whenIdle = nullptr);
    /// Runs the tasks that were posted, and ends.
    ~Worker();
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    /// On any thread. A task must not throw.
    void Post(Task task);
    /// Whether nothing is left to do.
    [[nodiscard]] bool IsIdle() const;

private:
    void Run();

    Idle idle;
    mutable std::mutex mutex;
    std::condition_variable posted;
    std::deque<Task> tasks;
    bool working = false;
    bool ending = false;
    std::thread thread; // last: it uses the others
};

} // namespace Host::Panel
