#include "Suite.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <exception>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

QString ratioText(double ratio)
{
    return QString::number(ratio, 'f', 2);
}

std::string ratioName(const Contender &rival)
{
    return "ratio to " + rival.name.toStdString();
}

/// Keeps the medians, and tells on standard error how far the run has come.
class MedianReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            Result &result = results[run.run_name.function_name];
            if (run.error_occurred) {
                result.error = run.error_message;
            } else if (run.aggregate_name == "median" || run.repetitions == 1) {
                for (const auto &[name, counter] : run.counters) {
                    result.medians[name] = counter.value;
                }
            }
        }
        if (!runs.empty()
            && (runs.back().run_type == Run::RT_Aggregate || runs.back().repetitions == 1)) {
            std::fprintf(stderr, "  %s: done\n", runs.back().run_name.function_name.c_str());
        }
    }

    std::map<std::string, Result> results;
};

void runComparison(benchmark::State &state, const Comparison &comparison, size_t turn)
{
    std::vector<const Contender *> contenders {&comparison.subject};
    for (const Contender &rival : comparison.rivals) {
        if (rival.absence.isEmpty()) {
            contenders.push_back(&rival);
        }
    }
    for ([[maybe_unused]] auto _ : state) {
        for (size_t i = 0; i < contenders.size(); ++i) {
            const Contender &contender = *contenders[(i + turn) % contenders.size()];
            try {
                state.counters[contender.name.toStdString()] = contender.round();
            } catch (const std::exception &exception) {
                state.SkipWithError(
                    (contender.name.toStdString() + ": " + exception.what()).c_str());
                return;
            }
        }
        const double subjectTime = state.counters[comparison.subject.name.toStdString()];
        for (const Contender &rival : comparison.rivals) {
            if (rival.absence.isEmpty()) {
                state.counters[ratioName(rival)] =
                    rival.demand.ratioOf(subjectTime, state.counters[rival.name.toStdString()]);
            }
        }
        state.SetIterationTime(subjectTime);
    }
}

std::vector<Row> rowsOf(const Comparison &comparison, const Result &result)
{
    std::vector<Row> rows;
    for (const Contender &rival : comparison.rivals) {
        Row row;
        row.what = comparison.name;
        row.rival = rival.name;
        row.demand = rival.demand.text();
        const auto subjectTime = result.medians.find(comparison.subject.name.toStdString());
        if (subjectTime != result.medians.end()) {
            row.subject = comparison.work.figure(subjectTime->second);
        }
        const auto rivalTime = result.medians.find(rival.name.toStdString());
        if (!rival.absence.isEmpty()) {
            row.rivalFigure = rival.absence;
        } else if (rivalTime == result.medians.end()) {
            row.rivalFigure = QString::fromStdString(result.error);
            row.verdict = Row::Verdict::Miss;
        } else {
            const double ratio = result.medians.at(ratioName(rival));
            row.rivalFigure = comparison.work.figure(rivalTime->second);
            row.ratio = ratioText(ratio);
            if (rival.demand.kind != Demand::Kind::None) {
                row.verdict = rival.demand.isMet(ratio) ? Row::Verdict::Pass : Row::Verdict::Miss;
            }
        }
        rows.push_back(row);
    }
    return rows;
}

Row rowOf(const LimitedFigure &figure, const Result &result)
{
    Row row;
    row.what = figure.name;
    row.demand = u"at most %1 %2"_s.arg(figure.atMost).arg(figure.unit).trimmed();
    const auto value = result.medians.find("value");
    if (value == result.medians.end()) {
        row.subject = QString::fromStdString(result.error);
        row.verdict = Row::Verdict::Miss;
        return row;
    }
    row.subject = u"%1 %2"_s.arg(value->second, 0, 'g', 3).arg(figure.unit).trimmed();
    row.verdict = value->second <= figure.atMost ? Row::Verdict::Pass : Row::Verdict::Miss;
    return row;
}

benchmark::internal::Benchmark *enlist(const std::string &name,
                                       std::function<void(benchmark::State &)> body, int rounds)
{
    return benchmark::RegisterBenchmark(name.c_str(), std::move(body))
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1)
        ->Repetitions(rounds);
}

} // namespace

double Demand::ratioOf(double subjectTime, double rivalTime) const
{
    return kind == Kind::TimeAtMost ? subjectTime / rivalTime : rivalTime / subjectTime;
}

bool Demand::isMet(double measuredRatio) const
{
    switch (kind) {
    case Kind::None:
        return true;
    case Kind::SpeedAtLeast:
        return measuredRatio >= ratio;
    case Kind::Faster:
        return measuredRatio > ratio;
    case Kind::TimeAtMost:
        return measuredRatio <= ratio;
    }
    return false;
}

QString Demand::text() const
{
    switch (kind) {
    case Kind::None:
        return u"for comparison"_s;
    case Kind::SpeedAtLeast:
        return u"at least %1 of its speed"_s.arg(ratio);
    case Kind::Faster:
        return u"faster"_s;
    case Kind::TimeAtMost:
        return u"at most %1 times its time"_s.arg(ratio);
    }
    return {};
}

QString Work::figure(double seconds) const
{
    const double value = timeUnit > 0 ? seconds / amount / timeUnit : amount / seconds;
    return u"%1 %2"_s.arg(value, 0, 'f', value < 100 ? 1 : 0).arg(unit);
}

void Suite::add(const Comparison &comparison)
{
    auto kept = std::make_shared<Comparison>(comparison);
    auto turn = std::make_shared<size_t>(0);
    const std::string name = comparison.name.toStdString();
    enlist(
        name, [kept, turn](benchmark::State &state) { runComparison(state, *kept, (*turn)++); },
        comparison.rounds);
    m_entries.push_back({name, [kept](const Result &result) { return rowsOf(*kept, result); }});
}

void Suite::add(const LimitedFigure &figure)
{
    auto kept = std::make_shared<LimitedFigure>(figure);
    const std::string name = figure.name.toStdString();
    enlist(
        name,
        [kept](benchmark::State &state) {
            for ([[maybe_unused]] auto _ : state) {
                try {
                    state.counters["value"] = kept->measure();
                } catch (const std::exception &exception) {
                    state.SkipWithError(exception.what());
                    return;
                }
                state.SetIterationTime(0);
            }
        },
        figure.rounds);
    m_entries.push_back(
        {name, [kept](const Result &result) { return std::vector {rowOf(*kept, result)}; }});
}

std::vector<Row> Suite::run()
{
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::vector<Row> rows;
    for (const Entry &entry : m_entries) {
        const auto result = reporter.results.find(entry.name);
        if (result != reporter.results.end()) {
            const std::vector<Row> more = entry.rows(result->second);
            rows.insert(rows.end(), more.begin(), more.end());
        }
    }
    return rows;
}
