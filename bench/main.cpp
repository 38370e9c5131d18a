#include "Error.h"
#include "GoalTable.h"
#include "PerformancePage.h"

#include <QApplication>

#include <cstdio>
#include <string_view>

namespace {

/// Takes "--page FILE" out of the arguments and returns the file; null if it is not among them.
const char* takePage(int& argc, char** argv) {
    if (argc < 3 || std::string_view(argv[argc - 2]) != "--page") {
        return nullptr;
    }
    argc -= 2;
    return argv[argc + 1];
}

}  // namespace

// benchmarks [OPTION OF THE LIBRARY...] [--page FILE]: the page is written only by a whole run.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const char* const page = takePage(argc, argv);
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    fleetwright::GoalTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();
    if (page && table.isWhole()) {
        try {
            fleetwright::writePerformancePage(page, table.results());
        } catch (const fleetwright::Error& error) {
            std::fprintf(stderr, "%s\n", error.what());
            return 2;
        }
    }
    return table.areAllMet() ? 0 : 1;
}
