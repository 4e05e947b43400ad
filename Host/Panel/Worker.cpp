#include "Host/Panel/Worker.h"

#include <utility>

namespace Host::Panel {

Worker::Worker(Idle whenIdle) : idle(std::move(whenIdle)), thread([this] { Run(); }) {}

Worker::~Worker() {
    {
        const std::lock_guard lock(mutex);
        ending = true;
    }
    posted.notify_one();
    thread.join();
}

void Worker::Post(Task task) {
    {
        const std::lock_guard lock(mutex);
        tasks.push_back(std::move(task));
    }
    posted.notify_one();
}

bool Worker::IsIdle() const {
    const std::lock_guard lock(mutex);
    return tasks.empty() && !working;
}

void Worker::Run() {
    Clock::time_point due = Clock::now();
    bool isTurnOfTask = true; // many tasks do not keep the thread from what is due
    std::unique_lock lock(mutex);
    while (true) {
        const auto isWanted = [&] { return ending || !tasks.empty(); };
        idle ? static_cast<void>(posted.wait_until(lock, due, isWanted)) : posted.wait(lock, isWanted);
        if (tasks.empty() && ending) {
            return;
        }
        Task task;
        if (!tasks.empty() && (isTurnOfTask || !idle || Clock::now() < due)) {
            task = std::move(tasks.front());
            tasks.pop_front();
        }
        isTurnOfTask = !task;
        working = true;
        lock.unlock();
        if (task) {
            task();
        } else {
            due = idle();
        }
        task = nullptr; // what it holds is not needed under the lock
        lock.lock();
        working = false;
    }
}

} // namespace Host::Panel
