// The command line. An input is its words, a line each.

#include "CommandRow.h"
#include "inputLines.h"
#include "require.h"
#include "text.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

using namespace fleetwright;

namespace {

using Words = std::vector<std::string>;

Options read(const Words& words) {
    Words line = {"fleetwright-cli"};
    line.insert(line.end(), words.begin(), words.end());
    return readOptions(commandRows(), line);
}

/// The options that were given, each value in the word of its option or in one of its own.
Words optionWords(const Options& options, bool isJoined) {
    auto values = options.values;
    values["--app"] = options.appFolder.string();
    Words words;
    for (const auto& [name, value] : values) {
        const auto row = std::ranges::find(options.command->options, name, &OptionRow::name);
        const bool isFlag = row != options.command->options.end() && row->value.empty();
        words.push_back(name + (isFlag || !isJoined ? "" : '=' + value));
        if (!isFlag && !isJoined) {
            words.push_back(value);
        }
    }
    return words;
}

/// What was asked for must be the same in other words.
void checkOptions(const Options& options) {
    require(options.words.size() >= options.command->least &&
                options.words.size() <= options.command->most,
            "a command gets as many words as it takes");
    const bool mayStandFirst = std::ranges::none_of(
        options.words, [](const std::string& word) { return word.starts_with('-'); });
    for (const bool isJoined : {true, false}) {
        const Words given = optionWords(options, isJoined);
        Words inFront = {std::string(options.command->name)};
        Words behind = inFront;
        inFront.insert(inFront.end(), given.begin(), given.end());
        inFront.emplace_back("--");
        inFront.insert(inFront.end(), options.words.begin(), options.words.end());
        behind.insert(behind.end(), options.words.begin(), options.words.end());
        behind.insert(behind.end(), given.begin(), given.end());
        for (const Words& words : {inFront, mayStandFirst ? behind : inFront}) {
            const Options again = read(words);
            require(again.command == options.command && again.words == options.words &&
                        again.values == options.values && again.appFolder == options.appFolder,
                    "the same in other words is the same command line");
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const Options options = read(inputLines(data, size));
        require((options.command == nullptr) != options.answer.empty(),
                "there is a command or an answer");
        if (options.command != nullptr) {
            checkOptions(options);
        }
    } catch (const UsageError& error) {
        requireSame(shownText(error.what(), size + 200), error.what(),
                    "what is wrong is said in one line that only shows");
    }
    return 0;
}
