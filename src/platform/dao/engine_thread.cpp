#include "platform/dao/engine_thread.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <future>
#include <mutex>
#include <thread>
#include <unistd.h>

namespace
{
constexpr std::chrono::milliseconds kUntilShown(1000);
constexpr std::chrono::milliseconds kBetweenSigns(200);

std::function<void(bool)>& WaitingSign()
{
    static std::function<void(bool)> sign;
    return sign;
}

/// It must not throw: the thread works with what the waiting caller holds.
void Show(bool waiting) noexcept
{
    if (WaitingSign())
        WaitingSign()(waiting);
}

void WaitFor(const std::future<void>& done)
{
    if (done.wait_for(kUntilShown) == std::future_status::ready)
        return;
    do
        Show(true);
    while (done.wait_for(kBetweenSigns) != std::future_status::ready);
    Show(false);
}

/// One thread that runs one work after the other.
class EngineThread
{
public:
    EngineThread() : process_(getpid())
    {
        std::thread thread([this] { Live(); });
        id_ = thread.get_id();
        thread.detach();
    }

    void Run(const std::function<void()>& work)
    {
        std::packaged_task<void()> task(std::cref(work));
        std::future<void> done = task.get_future();
        {
            const std::lock_guard lock(mutex_);
            works_.push_back(std::move(task));
        }
        added_.notify_one();
        WaitFor(done);
        done.get();
    }

    /// A thread does not follow into a forked process.
    bool IsOfThisProcess() const { return process_ == getpid(); }
    bool IsCurrent() const { return std::this_thread::get_id() == id_; }

private:
    std::packaged_task<void()> Next()
    {
        std::unique_lock lock(mutex_);
        added_.wait(lock, [this] { return !works_.empty(); });
        std::packaged_task<void()> next = std::move(works_.front());
        works_.pop_front();
        return next;
    }

    [[noreturn]] void Live()
    {
        for (;;)
            Next()();
    }

    const pid_t process_;
    std::thread::id id_;
    std::mutex mutex_;
    std::condition_variable added_;
    std::deque<std::packaged_task<void()>> works_;
};

/// Never destroyed: it may wait for a share that has gone when the program ends.
EngineThread& TheThread()
{
    static EngineThread* thread = nullptr;
    if (!thread || !thread->IsOfThisProcess())
        thread = new EngineThread;
    return *thread;
}
} // namespace

void RunOnEngineThread(const std::function<void()>& work)
{
    EngineThread& thread = TheThread();
    thread.IsCurrent() ? work() : thread.Run(work);
}

void SetWaitingSign(std::function<void(bool waiting)> sign)
{
    WaitingSign() = std::move(sign);
}
