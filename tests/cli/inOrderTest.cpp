#include "inOrder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <string>
#include <thread>

using namespace fleetwright;

TEST(InOrder, ResultsComeInTheOrderOfTheInputs) {
    for (const unsigned threads : {0U, 1U, 2U, 8U}) {
        for (const std::size_t count : {0U, 1U, 1000U}) {
            std::size_t taken = 0;
            const auto work = [](std::size_t input) {
                if (input % 97 == 0) {
                    std::this_thread::sleep_for(std::chrono::milliseconds(1));
                }
                return Result{.output = std::to_string(input), .complaints = {}};
            };
            inOrder(count, threads, work, [&](std::size_t input, const Result& result) {
                EXPECT_EQ(input, taken++);
                EXPECT_EQ(result.output, std::to_string(input));
            });
            EXPECT_EQ(taken, count);
        }
    }
}

TEST(InOrder, OneSlowInputHoldsBackAFixedNumberOfResultsAndItsFaultFreesThem) {
    for (const bool isFaulty : {false, true}) {
        std::atomic<std::size_t> started = 0;
        std::size_t startedBeforeFirst = 0;
        std::size_t taken = 0;
        const auto work = [&](std::size_t input) {
            ++started;
            while (input == 0 && startedBeforeFirst != started) {
                // Until the other thread waits for this one's result.
                startedBeforeFirst = started;
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
            }
            if (isFaulty && input == 0) {
                throw std::runtime_error("fault");
            }
            return Result{};
        };
        const auto run = [&] {
            inOrder(10'000, 2, work, [&](std::size_t, const Result&) { ++taken; });
        };
        if (isFaulty) {
            EXPECT_THROW(run(), std::runtime_error);
        } else {
            run();
        }
        EXPECT_LE(startedBeforeFirst, 2 * 64 + 2);
        EXPECT_TRUE(isFaulty ? started <= 2 * 64 + 2 : started == 10'000U) << started;
        EXPECT_EQ(taken, isFaulty ? 0U : 10'000U);
    }
}

TEST(InOrder, AFaultOfTheTakerEndsTheWorkAndNothingIsTakenTwice) {
    std::vector<std::size_t> taken;
    const auto take = [&](std::size_t input, const Result&) {
        taken.push_back(input);
        if (input == 20) {
            throw std::runtime_error("fault");
        }
    };
    EXPECT_THROW(
        inOrder(10'000, 2, [](std::size_t) { return Result{}; }, take), std::runtime_error);
    EXPECT_EQ(taken.size(), 21U);
}
