#include "commands.h"

#include "console.h"
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

int printInOrder(std::size_t count, const std::function<Result(std::size_t)>& work,
                 const std::function<void(std::size_t)>& taken) {
    int status = Done;
    Progress progress(count);
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
    inOrder(count, std::thread::hardware_concurrency(), work, print);
    return status;
}

}  // namespace fleetwright
