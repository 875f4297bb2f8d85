#pragma once

#include <QHash>
#include <QSet>
#include <QString>

#include <functional>
#include <type_traits>

/// What the main window's timer does in the background, step by step in a fixed order. The work of a step is given by
/// the floor that it belongs to; a step without work is passed over.
class MinuteWork
{
public:
    /// Steps that leave the window usable come first; before the others the window locks its controls.
    enum class Phase
    {
        Open,
        Locked
    };

    /// Work that gives false has found nothing to do yet: a step that is done once per session comes again then. A step
    /// is passed over while `waits`, where it is given, says that there is nothing to do.
    template <typename Function>
    void SetWork(const QString& step, Function work, const std::function<bool()>& waits = {})
    {
        if constexpr (std::is_void_v<decltype(work())>)
            work_[step] = {[work] { return work(), true; }, waits};
        else
            work_[step] = {work, waits};
    }
    /// A step of the phase has something to look at now.
    bool IsDue(Phase phase) const;
    /// Runs the steps of a phase that are due now; once-per-session steps are done a single time. What fails is not
    /// tried again in this session. Throws what the work throws.
    void Run(Phase phase);

private:
    struct Work
    {
        std::function<bool()> Do;
        std::function<bool()> Waits; ///< may be empty
    };
    /// The work of a step that is to be done now; null for none.
    const Work* DueWork(const QString& step) const;

    QHash<QString, Work> work_;
    QSet<QString> done_;
};
