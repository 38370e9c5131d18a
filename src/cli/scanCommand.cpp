#include "commands.h"

#include "Error.h"
#include "OutlineScan.h"
#include "PictureFiles.h"
#include "ResultFiles.h"
#include "ToolPictures.h"
#include "console.h"
#include "inOrder.h"
#include "paths.h"
#include "saveResult.h"
#include "text.h"

#include <span>
#include <system_error>
#include <thread>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

Result scanFile(PictureFiles& pictures, const std::string& file) {
    try {
        return {.output = scanOutline(pictures.load(nativePath(file)), file), .complaints = {}};
    } catch (const FileError& error) {
        return {.output = {}, .complaints = {complaint(nativePath(file), error)}};
    } catch (const Error& error) {
        return {.output = {}, .complaints = {complaint(file, {0, error.what()})}};
    }
}

/// Where the texts go: to standard output, into a file, or into a folder of maps that are named
/// after their outlines.
class MapWriter {
public:
    explicit MapWriter(const Options& options)
        : m_output(nativePath(options.value(outOption.name))),
          m_isFolder(!m_output.empty() &&
                     (options.words.size() > 1 || !m_output.has_filename() || isFolder(m_output))) {
        if (m_isFolder) {
            makeFolder(m_output);
        }
    }

    /// Throws Error.
    void write(const std::string& outline, const std::string& text) {
        if (m_output.empty()) {
            printResults(text);
            return;
        }
        saveResultOf(std::span(&outline, 1), m_isFolder ? m_output / mapName(outline) : m_output,
                     mapFileContents(text));
    }

private:
    static bool isFolder(const fs::path& path) {
        std::error_code unknown;
        return fs::is_directory(path, unknown);
    }

    fs::path mapName(const std::string& outline) {
        fs::path name = nativePath(outline).filename().replace_extension(".map");
        if (const std::string* const other = m_made.takenBy(name, outline)) {
            throw Error("the map " + quote(pathText(name)) + " is already made from " +
                        shownText(*other));
        }
        return name;
    }

    fs::path m_output;
    bool m_isFolder;
    ResultFiles m_made;
};

int runScan(const Options& options) {
    ToolPictures pictures(options.programFolder);
    int status = Done;
    MapWriter writer(options);
    const auto refuse = [&status](const std::string& line) {
        complain(line);
        status = SomeRefused;
    };
    const auto take = [&](std::size_t index, const Result& result) {
        const std::string& outline = options.words[index];
        for (const std::string& line : result.complaints) {
            refuse(line);
        }
        if (!result.complaints.empty()) {
            return;
        }
        try {
            writer.write(outline, result.output);
        } catch (const FileError& error) {
            refuse(complaint(error));
        } catch (const Error& error) {
            refuse(complaint(nativePath(outline), error));
        }
    };
    inOrder(
        options.words.size(), std::thread::hardware_concurrency(),
        [&](std::size_t index) { return scanFile(pictures, options.words[index]); }, take);
    return status;
}

}  // namespace

constexpr OptionRow scanOptions[] = {outOption};

extern const CommandRow scanCommand = {
    .name = "scan",
    .words = "OUTLINE... [-o OUT]",
    .least = 1,
    .most = CommandRow::any,
    .options = scanOptions,
    .help = "Make maps from marked outlines; OUT is a file or, for several, a folder",
    .details = "Without -o the maps are printed.",
    .run = runScan,
};

}  // namespace fleetwright
