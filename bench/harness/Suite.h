#pragma once

#include <QString>

#include <functional>
#include <map>
#include <string>
#include <vector>

/**
 * @file
 * What a benchmark program says about itself: comparisons and limits, each of which becomes a
 * Google Benchmark with manual time, and rows of the table at the end.
 */

/** How the subject of a comparison must stand beside a rival. */
struct Demand
{
    enum class Kind { None, SpeedAtLeast, Faster, TimeAtMost };

    Kind kind = Kind::None;
    double ratio = 1;

    /** The subject's speed as a part of the rival's. */
    static Demand speedAtLeast(double ratio) { return {Kind::SpeedAtLeast, ratio}; }
    static Demand faster() { return {Kind::Faster, 1}; }
    /** The subject's time as a multiple of the rival's. */
    static Demand timeAtMost(double ratio) { return {Kind::TimeAtMost, ratio}; }

    /** The ratio that this demand speaks of, from the times of the two for the same work. */
    double ratioOf(double subjectTime, double rivalTime) const;
    bool isMet(double measuredRatio) const;
    QString text() const;
};

/** One of those who do the same work. */
struct Contender
{
    QString name;
    /** Does the work once and returns the seconds it took; throws std::exception when it fails. */
    std::function<double()> round;
    Demand demand;
    /** Why it does not take part; empty when it does. */
    QString absence;
};

/** How the time of a round is shown: as @c amount per second, or as the time of one of them. */
struct Work
{
    double amount = 1;
    QString unit; ///< "MiB/s", "files/s", or a unit of time when it says the time of one
    double timeUnit = 0; ///< in seconds, 1e-6 for "µs"; 0: a rate

    QString figure(double seconds) const;
};

/** Several do the same work in turn, in each round in another order. */
struct Comparison
{
    QString name;
    Work work;
    Contender subject;
    std::vector<Contender> rivals;
    int rounds = 5;
};

/** A figure with an upper limit. */
struct LimitedFigure
{
    QString name;
    QString unit;
    double atMost = 0;
    std::function<double()> measure;
    int rounds = 1;
};

/** A line of the table. */
struct Row
{
    QString what;
    QString subject;
    QString rival;
    QString rivalFigure;
    QString ratio;
    QString demand;
    enum class Verdict { Pass, Miss, Open } verdict = Verdict::Open;
};

/** What was measured under the name of a benchmark: the medians of its rounds. */
struct Result
{
    std::map<std::string, double> medians;
    std::string error;
};

/** The benchmarks of one program. */
class Suite
{
public:
    void add(const Comparison &comparison);
    void add(const LimitedFigure &figure);

    /** Runs what --benchmark_filter leaves; the rows are in the order of addition. */
    std::vector<Row> run();

private:
    struct Entry
    {
        std::string name;
        std::function<std::vector<Row>(const Result &)> rows;
    };

    std::vector<Entry> m_entries;
};
