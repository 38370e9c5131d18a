#include "CommandRow.h"
#include "Error.h"
#include "console.h"
#include "helpText.h"
#include "keepFreedMemory.h"
#include "saveFile.h"
#include "terminal.h"

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

namespace {

using namespace fleetwright;

int run(const std::vector<std::string>& commandLine) {
    const Options options = readOptions(commandRows(), commandLine);
    if (options.command != nullptr) {
        return options.command->run(options);
    }
    std::fputs(options.answer.c_str(), stdout);
    return Done;
}

void complainOf(const UsageError& error) {
    complain(std::string("fleetwright-cli: ") + error.what() + " (see fleetwright-cli --help)");
}

}  // namespace

int main(int argc, char** argv) {
    letFileSizeLimitFail();
    keepFreedMemory();
    int status = SomeRefused;
    try {
        status = run(commandLine(argc, argv));
    } catch (const NoCommandError& error) {
        complainOf(error);
        std::fputs(helpText(commandRows()).c_str(), stderr);
        return WrongUsage;
    } catch (const UsageError& error) {
        complainOf(error);
        return WrongUsage;
    } catch (const FileError& error) {
        complain(complaint(error));
    } catch (const std::exception& error) {
        complain(std::string("fleetwright-cli: ") + error.what());
    } catch (...) {
        complain(
            "fleetwright-cli: cannot go on");  // a window that ends its program does not say why
    }
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        std::perror("standard output");
        status = SomeRefused;
    }
    return status;
}
