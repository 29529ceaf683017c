// Figures to ratios: the table on stdout and report.json.
#include "bench/RatioReporter.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <functional>
#include <utility>

#include "bench/BenchGroup.h"
#include "bench/BenchRegistry.h"

namespace zebbench {

namespace {

using Run = benchmark::BenchmarkReporter::Run;

// A counter of run, or 0 when the run has none of that name.
double counter(const Run& run, const std::string& name, bool& found) {
    const auto value = run.counters.find(name);
    found = value != run.counters.end();
    return found ? value->second.value : 0.0;
}

// The run that stands for the group: the median aggregate when there were repetitions.
const Run* representative(const std::vector<Run>& runs) {
    const Run* chosen = nullptr;
    for (const Run& run : runs) {
        if (run.error_occurred) continue;
        if (run.run_type == Run::RT_Aggregate) {
            if (run.aggregate_name == "median") return &run;
        } else {
            chosen = &run;
        }
    }
    return chosen;
}

std::string jsonString(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') quoted += '\\';
        quoted += c;
    }
    return quoted + "\"";
}

std::string jsonNumber(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.4g", value);
    return text;
}

std::string utcNow() {
    char text[32];
    const std::time_t now = std::time(nullptr);
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", std::gmtime(&now));
    return text;
}

}  // namespace

RatioReporter::RatioReporter(std::string jsonPath, std::string commit)
    : mJsonPath(std::move(jsonPath)), mCommit(std::move(commit)) {}

bool RatioReporter::ReportContext(const Context& context) {
    mCpus = context.cpu_info.num_cpus;
    mMhz = context.cpu_info.cycles_per_second / 1e6;
    std::fprintf(stderr, "zeblua boundary benchmarks: %zu figures on %d CPUs\n", Figures().size(),
                 mCpus);
    return true;
}

// A group's run carries a counter per figure of the group, and one per case for its ratio;
// the median aggregate holds the median of each over the repetitions.
void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    const Run* run = representative(runs);
    if (!run) return;
    if (run->run_type == Run::RT_Aggregate)
        mRepetitions = static_cast<int>(run->repetitions);
    else
        mStatistic = "single repetition";
    for (const Figure& figure : Figures()) {
        bool found = false;
        const double ns = counter(*run, NsPerOpCounter(figure.id), found);
        if (!found) continue;
        mNsPerOp[figure.id] = ns;
        const double ratio = counter(*run, RatioCounter(figure.id), found);
        if (found) mRatio[figure.id] = ratio;
        std::fprintf(stderr, "  %-28s %12.2f ns/op\n", figure.id.c_str(), ns);
    }
}

void RatioReporter::Finalize() {
    const std::vector<Row> table = rows();
    printTable(table);
    if (!mJsonPath.empty()) mOk = writeJSON(table);
}

// Floors in registration order, each followed by its cases; a case whose floor did not
// run comes last, without a ratio.
std::vector<RatioReporter::Row> RatioReporter::rows() const {
    std::vector<Row> result;
    auto value = [](const std::map<std::string, double>& values, const std::string& id) {
        const auto found = values.find(id);
        return found == values.end() ? 0.0 : found->second;
    };
    auto ran = [this](const std::string& id) { return mNsPerOp.count(id) > 0; };
    // Each case is followed by the cases it is the floor of.
    std::function<void(const std::string&)> addCases = [&](const std::string& floor) {
        for (const Figure& figure : Figures()) {
            if (figure.floor.empty() || figure.floor != floor || !ran(figure.id)) continue;
            result.push_back(Row{figure.id, figure.label, figure.floor, value(mNsPerOp, figure.id),
                                 value(mNsPerOp, floor), value(mRatio, figure.id)});
            addCases(figure.id);
        }
    };
    for (const Figure& figure : Figures()) {
        if (!figure.floor.empty() || !ran(figure.id)) continue;
        result.push_back(Row{figure.id, figure.label, "", value(mNsPerOp, figure.id), 0.0, 0.0});
        addCases(figure.id);
    }
    std::vector<std::string> unmeasured;
    for (const Figure& figure : Figures()) {
        if (figure.floor.empty() || ran(figure.floor)) continue;
        if (std::find(unmeasured.begin(), unmeasured.end(), figure.floor) != unmeasured.end())
            continue;
        unmeasured.push_back(figure.floor);
        addCases(figure.floor);
    }
    return result;
}

void RatioReporter::printTable(const std::vector<Row>& table) const {
    std::FILE* out = stdout;
    std::fprintf(out, "\nCPU ns per operation (%s", mStatistic.c_str());
    if (mRepetitions > 0) std::fprintf(out, " of %d", mRepetitions);
    std::fprintf(out, "); ratio = %s.\n\n", ratioMethod().c_str());
    std::fprintf(out, "%-50s %12s %12s %9s\n", "figure", "ns/op", "floor ns/op", "ratio");
    for (const Row& row : table) {
        if (row.floor.empty()) {
            std::fprintf(out, "%-50s %12.2f\n", ("[floor] " + row.label).c_str(), row.nsPerOp);
        } else if (row.ratio > 0) {
            std::fprintf(out, "%-50s %12.2f %12.2f %8.2fx\n", ("  " + row.label).c_str(),
                         row.nsPerOp, row.floorNsPerOp, row.ratio);
        } else {
            std::fprintf(out, "%-50s %12.2f %12s %9s\n", ("  " + row.label).c_str(), row.nsPerOp,
                         "-", "-");
        }
    }
    std::fflush(out);
}

std::string RatioReporter::ratioMethod() const {
    return mRepetitions > 0 ? "median of per-repetition ratios, case and floor alternating"
                            : "ratio of the one repetition, case and floor alternating";
}

bool RatioReporter::writeJSON(const std::vector<Row>& table) const {
    std::ofstream out(mJsonPath);
    if (!out) return false;
    out << "{\n  \"context\": {\n"
        << "    \"date\": " << jsonString(utcNow()) << ",\n"
        << "    \"commit\": " << jsonString(mCommit) << ",\n"
        << "    \"num_cpus\": " << mCpus << ",\n"
        << "    \"mhz_per_cpu\": " << jsonNumber(mMhz) << ",\n"
        << "    \"time\": \"cpu\",\n"
        << "    \"statistic\": " << jsonString(mStatistic) << ",\n"
        << "    \"ratio\": " << jsonString(ratioMethod()) << ",\n"
        << "    \"repetitions\": " << mRepetitions << "\n"
        << "  },\n  \"figures\": [";
    const char* separator = "\n";
    for (const Row& row : table) {
        out << separator << "    {\"id\": " << jsonString(row.id)
            << ", \"label\": " << jsonString(row.label)
            << ", \"ns_per_op\": " << jsonNumber(row.nsPerOp);
        if (!row.floor.empty()) {
            out << ", \"floor\": " << jsonString(row.floor);
            if (row.ratio > 0)
                out << ", \"floor_ns_per_op\": " << jsonNumber(row.floorNsPerOp)
                    << ", \"ratio\": " << jsonNumber(row.ratio);
        }
        out << "}";
        separator = ",\n";
    }
    out << "\n  ]\n}\n";
    return static_cast<bool>(out);
}

}  // namespace zebbench
