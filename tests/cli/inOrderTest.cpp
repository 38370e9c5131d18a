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
            std::string taken;
            std::string expected;
            const auto work = [](std::size_t input) {
                if (input % 97 == 0) {
                    std::this_thread::sleep_for(std::chrono::milliseconds(1));
                }
                return Result{.output = std::to_string(input), .complaints = {}};
            };
            inOrder(count, threads, work, [&](std::size_t input, const Result& result) {
                EXPECT_EQ(result.output, std::to_string(input));
                taken += result.output + ' ';
            });
            for (std::size_t input = 0; input < count; ++input) {
                expected += std::to_string(input) + ' ';
            }
            EXPECT_EQ(taken, expected);
        }
    }
}

TEST(InOrder, OneSlowInputHoldsBackOnlyAFixedNumberOfResults) {
    std::atomic<std::size_t> started = 0;
    std::atomic<bool> isReleased = false;
    std::size_t startedBeforeFirst = 0;
    const auto work = [&](std::size_t input) {
        ++started;
        if (input == 0) {
            std::size_t seen = 0;
            // Wait until the others have come to a stop.
            while (seen != started) {
                seen = started;
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
            }
            startedBeforeFirst = seen;
            isReleased = true;
        }
        return Result{};
    };
    inOrder(10'000, 2, work, [&](std::size_t, const Result&) { EXPECT_TRUE(isReleased); });
    EXPECT_EQ(started, 10'000U);
    EXPECT_LE(startedBeforeFirst, 2 * 64 + 2);
}

TEST(InOrder, AFaultWhileOthersWaitForRoomFreesThem) {
    std::atomic<int> started = 0;
    const auto work = [&](std::size_t input) {
        ++started;
        if (input == 0) {
            // Until the other thread waits for this one's result.
            for (int seen = -1; seen != started;) {
                seen = started;
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
            }
            throw std::runtime_error("fault");
        }
        return Result{};
    };
    EXPECT_THROW(inOrder(10'000, 2, work, [](std::size_t, const Result&) {}), std::runtime_error);
    EXPECT_LT(started, 1000);
}

TEST(InOrder, AFaultOfTheTakerEndsTheWorkAndNothingIsTakenTwice) {
    std::vector<std::size_t> taken;
    const auto work = [](std::size_t) { return Result{}; };
    const auto take = [&](std::size_t input, const Result&) {
        taken.push_back(input);
        if (input == 20) {
            throw std::runtime_error("fault");
        }
    };
    EXPECT_THROW(inOrder(10'000, 2, work, take), std::runtime_error);
    EXPECT_EQ(taken.size(), 21U);
}
