#include "calendar/minute_work.h"

#include "foundation/session_state.h"

#include <algorithm>

namespace
{
using Phase = MinuteWork::Phase;

struct Step
{
    const char* Name;
    Phase When;
    bool OncePerSession;
    bool (*IsDue)();
};

bool Always()
{
    return true;
}

bool MayOnlyRequest()
{
    return SessionState.SelfLevelCreate == 0;
}

bool EntersRecords()
{
    return SessionState.GroupLevelCreate == 1 || SessionState.SelfLevelCreate == 1;
}

constexpr Step kSteps[] = {
    {"DownloadRedemption", Phase::Open, false, [] { return SessionState.LastUpgradeDate == 0; }},
    {"DoesUserNeedTraining", Phase::Open, true, Always},
    {"UpgradeMailerDLL", Phase::Open, true, Always},
    {"SpecifyMailerComponent", Phase::Open, true, [] { return SessionState.LastUpgradeDate == 333; }},
    {"WereRequestsApproved", Phase::Locked, true, MayOnlyRequest},
    {"IsFYClosingScheduled", Phase::Locked, true, EntersRecords},
    {"AreThereRequestsToApprove", Phase::Locked, false, [] { return SessionState.IsAuthorizedToApprove == 1; }},
};
} // namespace

const MinuteWork::Work* MinuteWork::DueWork(const QString& step) const
{
    const auto work = work_.constFind(step);
    const bool due = work != work_.constEnd() && !done_.contains(step) && (!work->Waits || work->Waits());
    return due ? &*work : nullptr;
}

bool MinuteWork::IsDue(Phase phase) const
{
    return std::any_of(std::begin(kSteps), std::end(kSteps),
                       [&](const Step& step) { return step.When == phase && step.IsDue() && DueWork(step.Name); });
}

void MinuteWork::Run(Phase phase)
{
    for (const Step& step : kSteps) {
        const Work* work = step.When == phase && step.IsDue() ? DueWork(step.Name) : nullptr;
        if (!work)
            continue;
        done_.insert(step.Name); // also when it fails: it would fail anew each minute
        if (!work->Do() || !step.OncePerSession)
            done_.remove(step.Name);
    }
}
