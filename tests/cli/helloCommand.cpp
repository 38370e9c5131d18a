#include "CommandRow.h"

#include <cstdio>

namespace fleetwright {

namespace {

constexpr OptionRow helloOptions[] = {{.name = "--loud", .help = "Say it in capitals"}};

int runHello(const Options& options) {
    std::printf(options.has("--loud") ? "HELLO %s\n" : "hello %s\n", options.words.front().c_str());
    return Done;
}

}  // namespace

extern const CommandRow helloCommand = {
    .name = "hello",
    .words = "WORLD",
    .least = 1,
    .most = 1,
    .options = helloOptions,
    .help = "Greet the WORLD",
    .run = runHello,
};

}  // namespace fleetwright
