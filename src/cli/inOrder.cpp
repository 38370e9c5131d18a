#include "inOrder.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>

namespace fleetwright {

namespace {

class OrderedWork {
public:
    OrderedWork(std::size_t count, unsigned threads, const std::function<Result(std::size_t)>& work,
                const std::function<void(std::size_t, const Result&)>& take)
        : m_count(count), m_work(work), m_take(take), m_waiting(threads * resultsPerThread) {}

    /// One thread's share: works until no input is left.
    void run() {
        try {
            for (std::size_t input = 0; next(input);) {
                deliver(input, m_work(input));
            }
        } catch (...) {
            const std::lock_guard lock(m_mutex);
            m_failure = m_failure ? m_failure : std::current_exception();
            m_roomMade.notify_all();
        }
    }

    void rethrow() const {
        if (m_failure) {
            std::rethrow_exception(m_failure);
        }
    }

private:
    static constexpr std::size_t resultsPerThread = 64;

    bool next(std::size_t& input) {
        std::unique_lock lock(m_mutex);
        if (m_next == m_count) {
            return false;
        }
        input = m_next++;
        m_roomMade.wait(lock, [&] { return m_failure || input < m_taken + m_waiting.size(); });
        return !m_failure;
    }

    /// Puts a result into its place; whoever brings the one that is due hands on all that follow.
    void deliver(std::size_t input, Result result) {
        const std::lock_guard lock(m_mutex);
        slot(input) = std::move(result);
        const std::size_t takenBefore = m_taken;
        while (!m_failure && m_taken < m_count && slot(m_taken)) {
            const Result due = std::move(*slot(m_taken));
            slot(m_taken).reset();
            try {
                m_take(m_taken++, due);
            } catch (...) {
                // Still under the lock: nobody may hand on what follows.
                m_failure = std::current_exception();
            }
        }
        if (m_taken != takenBefore) {
            m_roomMade.notify_all();
        }
    }

    std::optional<Result>& slot(std::size_t input) { return m_waiting[input % m_waiting.size()]; }

    std::size_t m_count;
    const std::function<Result(std::size_t)>& m_work;
    const std::function<void(std::size_t, const Result&)>& m_take;

    std::mutex m_mutex;
    std::condition_variable m_roomMade;
    std::vector<std::optional<Result>> m_waiting;
    std::size_t m_next = 0;
    std::size_t m_taken = 0;
    std::exception_ptr m_failure;
};

}  // namespace

void inOrder(std::size_t count, unsigned threads, const std::function<Result(std::size_t)>& work,
             const std::function<void(std::size_t, const Result&)>& take) {
    const auto useful =
        static_cast<unsigned>(std::clamp<std::size_t>(count, 1, std::max(threads, 1U)));
    OrderedWork ordered(count, useful, work, take);
    std::vector<std::jthread> others;
    try {
        for (unsigned i = 1; i < useful; ++i) {
            others.emplace_back([&ordered] { ordered.run(); });
        }
    } catch (const std::system_error&) {
        // There are threads enough to go on with: this one.
    }
    ordered.run();
    others.clear();
    ordered.rethrow();
}

}  // namespace fleetwright
