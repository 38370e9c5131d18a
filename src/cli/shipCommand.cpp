#include "commands.h"

#include "CatalogueFile.h"
#include "Error.h"
#include "ShipOnScreen.h"
#include "console.h"
#include "inOrder.h"
#include "paths.h"
#include "terminal.h"

#include <cstdio>
#include <thread>

namespace fleetwright {

namespace {

/// Shows how far the work has come, where somebody is looking and the results do not show it.
class Progress {
public:
    explicit Progress(std::size_t count) : m_count(count) {}
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() { clear(); }

    void show(std::size_t done) {
        constexpr std::size_t step = 100;
        if (m_isWanted && done % step == 0) {
            std::fprintf(stderr, "\r%zu of %zu", done, m_count);
            m_isShown = true;
        }
    }

    void clear() {
        if (m_isShown) {
            std::fputs("\r\033[K", stderr);
            m_isShown = false;
        }
    }

private:
    std::size_t m_count;
    bool m_isWanted = isTerminal(stderr) && !isTerminal(stdout);
    bool m_isShown = false;
};

}  // namespace

int forEachShip(const Options& options, RefusedLines refusedLines,
                const std::function<std::string(std::size_t, ShipOnScreen&)>& work,
                const std::function<void(std::size_t)>& taken) {
    int status = Done;
    Progress progress(options.words.size());
    const auto catalogueFile = CatalogueFile::readOnce(options.appFolder / "weaps.dat");
    const auto load = [&](std::size_t index) {
        const std::string& file = options.words[index];
        ShipOnScreen screen(options.appFolder, catalogueFile);
        Result result;
        if (const auto fault = screen.load(file)) {
            result.complaints.push_back(complaint(file, *fault));
            return result;
        }
        try {
            result.output = work(index, screen);
        } catch (const Error& error) {
            result.complaints.push_back(complaint(nativePath(file), error));
            return result;
        }
        if (refusedLines == RefusedLines::AsComplaints) {
            for (const RefusedLine& line : screen.ship().refusedLines()) {
                result.complaints.push_back(complaint(file, line.fault));
            }
        }
        return result;
    };
    const auto print = [&](std::size_t index, const Result& result) {
        printResults(result.output);
        for (const std::string& line : result.complaints) {
            progress.clear();
            complain(line);
            status = SomeRefused;
        }
        if (taken) {
            taken(index);
        }
        progress.show(index + 1);
    };
    inOrder(options.words.size(), std::thread::hardware_concurrency(), load, print);
    return status;
}

}  // namespace fleetwright
