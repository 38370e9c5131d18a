#include "Error.h"
#include "Options.h"
#include "commands.h"
#include "fileSizeLimit.h"

#include <cstdio>
#include <exception>

namespace {

using namespace fleetwright;

int run(const Options& options) {
    switch (options.command) {
    case Command::Report:
        return runReport(options);
    case Command::Figures:
        return runFigures(options);
    case Command::Explain:
        return runExplain(options);
    case Command::Save:
        return runSave(options);
    case Command::Eval:
        return runEval(options);
    case Command::Maps:
        return runMaps(options);
    case Command::Scan:
        return runScan(options);
    case Command::Sheet:
        return runSheet(options);
    case Command::Check:
        return runCheck(options);
    case Command::Unpack:
        return runUnpack(options);
    case Command::Recovered:
        return runRecovered(options);
    case Command::None:
        break;
    }
    std::fputs(options.answer.c_str(), stdout);
    return Done;
}

}  // namespace

int main(int argc, char** argv) {
    letFileSizeLimitFail();
    int status = SomeRefused;
    try {
        status = run(readOptions(argc, argv));
    } catch (const UsageError& error) {
        std::fprintf(stderr, "fleetwright-cli: %s (see fleetwright-cli --help)\n", error.what());
        return WrongUsage;
    } catch (const FileError& error) {
        std::fprintf(stderr, "%s: %s\n", error.file().string().c_str(), error.what());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "fleetwright-cli: %s\n", error.what());
    }
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        std::perror("standard output");
        status = SomeRefused;
    }
    return status;
}
