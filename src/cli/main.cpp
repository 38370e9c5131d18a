#include "CommandRow.h"
#include "Error.h"
#include "files.h"
#include "helpText.h"

#include <cstdio>
#include <exception>

namespace {

using namespace fleetwright;

int run(int argc, char** argv) {
    const Options options = readOptions(commandRows(), argc, argv);
    if (options.command != nullptr) {
        return options.command->run(options);
    }
    std::fputs(options.answer.c_str(), stdout);
    return Done;
}

void complain(const UsageError& error) {
    std::fprintf(stderr, "fleetwright-cli: %s (see fleetwright-cli --help)\n", error.what());
}

}  // namespace

int main(int argc, char** argv) {
    letFileSizeLimitFail();
    int status = SomeRefused;
    try {
        status = run(argc, argv);
    } catch (const NoCommandError& error) {
        complain(error);
        std::fputs(helpText(commandRows()).c_str(), stderr);
        return WrongUsage;
    } catch (const UsageError& error) {
        complain(error);
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
