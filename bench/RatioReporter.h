// The report of the boundary benchmarks: each figure in ns per operation and as a ratio
// to its floor, printed as one table and written as JSON.
#pragma once

#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace zebbench {

// Reads the counters of each group's median aggregate (or of its one repetition without
// aggregates): a figure's CPU ns per operation, and a case's ratio to its floor, both
// medians over the repetitions. A ratio is thus not the quotient of the two medians shown
// beside it. Prints a line to stderr per figure as its group finishes, and the table to
// stdout at the end.
class RatioReporter : public benchmark::BenchmarkReporter {
public:
    // jsonPath empty: no file. commit is copied into the JSON for comparisons over time.
    RatioReporter(std::string jsonPath, std::string commit);

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    // False when the JSON file could not be written.
    bool ok() const { return mOk; }

private:
    struct Row {
        std::string id;
        std::string label;
        std::string floor;  // empty for a floor
        double nsPerOp;
        double floorNsPerOp;  // 0 for a floor, or when the floor did not run
        double ratio;         // 0 likewise, or when the repetitions gave none
    };

    std::vector<Row> rows() const;
    void printTable(const std::vector<Row>& rows) const;
    bool writeJSON(const std::vector<Row>& rows) const;
    // How the ratios were taken, for the table's header and the JSON's context.
    std::string ratioMethod() const;

    std::string mJsonPath;
    std::string mCommit;
    std::string mStatistic = "median";
    int mRepetitions = 0;
    int mCpus = 0;
    double mMhz = 0;
    std::map<std::string, double> mNsPerOp;  // by figure id
    std::map<std::string, double> mRatio;    // by case id
    bool mOk = true;
};

}  // namespace zebbench
