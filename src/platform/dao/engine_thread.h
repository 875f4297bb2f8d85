#pragma once

#include <functional>
#include <optional>
#include <type_traits>

/// Runs `work` on the thread of the data engine and returns when it is done; what it throws is thrown here. The caller
/// stands still meanwhile: nothing else of the program runs, but a share that does not answer can be told of.
void RunOnEngineThread(const std::function<void()>& work);

/// The same for work that gives a result.
template <typename Work>
auto OnEngineThread(const Work& work)
{
    if constexpr (std::is_void_v<decltype(work())>) {
        RunOnEngineThread(work);
    } else {
        std::optional<decltype(work())> result;
        RunOnEngineThread([&] { result = work(); });
        return std::move(*result);
    }
}

/// Shows that the program waits for the engine. It is called with true again and again while a work takes longer than
/// a second, on the thread that waits, and once with false when the work is done.
void SetWaitingSign(std::function<void(bool waiting)> sign);
