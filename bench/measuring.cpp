#include "measuring.h"

#include "raw_engine.h"
#include "support/file_calls.h"
#include "support/statement_trace.h"
#include "yardstick.h"

#include <QElapsedTimer>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>

namespace
{
constexpr int kRounds = 25;
constexpr double kNanoseconds = 1e6; // of a millisecond

struct Timing
{
    std::string Name;
    double Measured;
    double Floor;
    double Speed; ///< of this machine while it was measured: its yardstick by the reference's
    double Bar;
    int Calls; ///< on the file, which is at hand

    /// On a share whose every call takes so many milliseconds.
    double OnAShare(double call) const { return Measured + Calls * call; }
};

std::vector<Timing>& Verdicts()
{
    static std::vector<Timing> verdicts;
    return verdicts;
}

template <typename Work>
double MillisecondsOf(const Work& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / kNanoseconds;
}

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

bool Writes(const QByteArray& statement)
{
    return statement.startsWith("INSERT") || statement.startsWith("UPDATE") || statement.startsWith("DELETE");
}

/// The statements that the work runs, from a round that also warms everything up.
QList<QByteArray> StatementsOf(Measured& measured)
{
    measured.Prepare();
    QList<QByteArray> statements;
    {
        const StatementTrace trace;
        DefaultWorkspace().PauseReading(); // the trace is connected, but holds no lock before the work
        measured.Work();
        statements = trace.Statements();
    }
    measured.CleanUp();
    statements.removeIf(
        [](const QByteArray& statement) { return !statement.startsWith("SELECT") && !Writes(statement); });
    return statements;
}

/// Counted in the second of two rounds: the first one opens the file.
int CallsOf(Measured& measured)
{
    FileCalls calls;
    int count = 0;
    for (int round = 0; round < 2; ++round) {
        measured.Prepare();
        calls.StartCounting();
        measured.Work();
        count = calls.All();
        measured.CleanUp();
    }
    return count;
}

double StatementsFloor(Measured& measured, const QList<QByteArray>& statements)
{
    return MillisecondsOf([&] {
        RawEngine engine(measured.Company().DatabaseFile());
        for (const QByteArray& statement : statements)
            engine.Run(statement);
    });
}

double CommitFloor(Measured& measured, const QList<QByteArray>& statements)
{
    RawEngine engine(measured.Company().DatabaseFile());
    engine.Run("SELECT COUNT(*) FROM sqlite_master"); // the first statement reads the schema
    return MillisecondsOf([&] {
        engine.Run("BEGIN IMMEDIATE");
        for (const QByteArray& statement : statements)
            if (Writes(statement))
                engine.Run(statement);
        engine.Run("COMMIT");
    });
}

/// Yardstick, floor and work take turns, so that all meet the same disturbances.
void Measure(benchmark::State& state, const std::string& name, Measured& measured, Floor floor, const Bar& bar)
{
    const QList<QByteArray> statements = StatementsOf(measured);
    const Yardstick yardstick(measured.Company().DatabaseFile());
    std::vector<double> yards;
    std::vector<double> floors;
    std::vector<double> works;
    for ([[maybe_unused]] auto round : state) {
        yards.push_back(MillisecondsOf([&] { yardstick.Run(); }));
        measured.Prepare();
        works.push_back(MillisecondsOf([&] { measured.Work(); }));
        state.SetIterationTime(works.back() / 1000);
        floors.push_back(floor == Floor::Commit ? CommitFloor(measured, statements)
                                                : StatementsFloor(measured, statements));
        measured.CleanUp();
    }
    const double least = Median(floors);
    const double speed = Median(yards) / Yardstick::kReference;
    const Timing verdict{
        name, Median(works), least, speed, bar.Floors * least + bar.Milliseconds * speed, CallsOf(measured)};
    Verdicts().push_back(verdict);
    state.counters["median_ms"] = verdict.Measured;
    state.counters["floor_ms"] = verdict.Floor;
    state.counters["bar_ms"] = verdict.Bar;
}
} // namespace

void Register(const char* name, BigCompany& company, Floor floor, const Bar& bar, const MakeMeasured& make)
{
    const auto measure = [name, &company, floor, bar, make](benchmark::State& state) {
        const std::unique_ptr<Measured> measured = make(company);
        Measure(state, name, *measured, floor, bar);
    };
    benchmark::RegisterBenchmark(name, measure)->Iterations(kRounds)->UseManualTime()->Unit(benchmark::kMillisecond);
}

bool TellVerdicts()
{
    int missed = 0;
    std::printf("\n%-40s %10s %10s %10s %10s %8s %8s %8s %8s\n", "median, ms", "measured", "floor", "yardstick", "bar",
                "", "calls", "at 0.5", "at 5");
    for (const Timing& verdict : Verdicts()) {
        const bool met = verdict.Measured <= verdict.Bar;
        missed += met ? 0 : 1;
        std::printf("%-40s %10.2f %10.2f %9.2fx %10.2f %8s %8d %8.0f %8.0f\n", verdict.Name.c_str(), verdict.Measured,
                    verdict.Floor, verdict.Speed, verdict.Bar, met ? "met" : "MISSED", verdict.Calls,
                    verdict.OnAShare(0.5), verdict.OnAShare(5));
    }
    std::printf("%zu bars met, %d missed\n", Verdicts().size() - static_cast<std::size_t>(missed), missed);
    std::printf("yardstick: times the %.1f ms of the reference; the milliseconds of a bar are multiplied by it\n",
                Yardstick::kReference);
    std::printf(
        "calls: on the database and its journal, the file being at hand; at 0.5 and 5: the time on a share whose "
        "every call takes so many ms\n");
    return missed == 0;
}
