#pragma once

#include <QHash>
#include <QSet>
#include <QString>

#include <functional>

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

    void SetWork(const QString& step, std::function<void()> work) { work_[step] = std::move(work); }
    /// Runs the steps of a phase that are due now; once-per-session steps run a single time.
    void Run(Phase phase);

private:
    QHash<QString, std::function<void()>> work_;
    QSet<QString> done_;
};

/// Tells of requests for leave that wait for the user and asks whether to settle them now; true for Yes. `list` has a
/// line per request; an empty list asks nothing.
bool OfferApproval(const QString& list);
