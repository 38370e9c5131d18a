// Runs the sessions in transcripts/. A line "$ COMMAND" is typed into a shell that knows what
// prelude.sh says; behind it stands what comes back: "> " from standard output, "! " from standard
// error, "= " the exit status if it is not 0. All other lines are for the reader.
// If something else comes back, the transcript as it would have to be is left in the folder of
// temporary files.

#include "TemporaryFolder.h"
#include "readFile.h"
#include "saveFile.h"
#include "text.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sys/wait.h>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

const fs::path transcripts = SOURCE_FOLDER "/tests/cli/transcripts";

/// What a command has said, line by line.
std::string marked(const std::string& text, char mark) {
    std::string lines;
    bool isLineBegin = true;
    for (const char c : text) {
        lines += isLineBegin ? std::string(1, mark) + (c == '\n' ? "" : " ") : "";
        lines += c == '\r' ? "\\r" : c == '\t' ? "\\t" : std::string(1, c);
        isLineBegin = c == '\n';
    }
    return isLineBegin ? lines : lines + "\\\n";
}

/// A transcript as it comes out today.
std::string played(const std::string& transcript) {
    const TemporaryFolder folder;
    const TemporaryFolder captured;
    const std::string output = captured.write("output", "");
    const std::string errors = captured.write("errors", "");
    std::string text;
    LineReader lines(transcript);
    for (std::string_view line; lines.next(line);) {
        if (!line.starts_with('>') && !line.starts_with('!') && !line.starts_with('=')) {
            text.append(line) += '\n';
        }
        if (!line.starts_with("$ ")) {
            continue;
        }
        const std::string script = captured.write(
            "script", "cd " + folder.path().string() +
                          "\nAPP=" APP_FOLDER "\nHELLO=" CLI_WITH_HELLO "\nMANUAL=" MANUAL
                          "\nCOMPLETION=" COMPLETION "\nSOURCE=" SOURCE_FOLDER "\n. " +
                          (transcripts / "prelude.sh").string() + '\n' +
                          std::string(line.substr(2)) + '\n');
        const int status = std::system(
            ("bash " + script + " >" + output + " 2>" + errors + " </dev/null").c_str());
        text += marked(captured.read("output"), '>') + marked(captured.read("errors"), '!');
        if (status != 0) {
            text += "= " + std::to_string(WEXITSTATUS(status)) + '\n';
        }
    }
    return text;
}

class Transcript : public testing::TestWithParam<std::string> {};

std::vector<std::string> names() {
    std::vector<std::string> found;
    for (const fs::directory_entry& entry : fs::directory_iterator(transcripts)) {
        if (entry.path().extension() == ".txt") {
            found.push_back(entry.path().stem().string());
        }
    }
    return found;
}

}  // namespace

TEST_P(Transcript, ComesOutAsItIsWritten) {
    const fs::path file = transcripts / (GetParam() + ".txt");
    const std::string expected = readTextFile(file);
    const std::string text = played(expected);
    EXPECT_EQ(text, expected);
    if (text != expected) {
        saveFile(fs::temp_directory_path() / file.filename(), text);
    }
}

INSTANTIATE_TEST_SUITE_P(Tool, Transcript, testing::ValuesIn(names()),
                         [](const auto& test) { return test.param; });
