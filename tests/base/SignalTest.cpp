#include "Signal.h"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>

using namespace fleetwright;

TEST(Signal, CallsListenersInOrderUntilTheyAreDetached) {
    Signal<int> signal;
    signal.raise(0);
    std::string heard;
    const Connection first = signal.connect([&](int n) { heard += "a" + std::to_string(n); });
    {
        const Connection second = signal.connect([&](int n) { heard += "b" + std::to_string(n); });
        signal.raise(1);
    }
    signal.raise(2);
    EXPECT_EQ(heard, "a1b1a2");
}

TEST(Signal, ListenersMayRaiseAttachAndDetachWhileItIsRaised) {
    Signal<> signal;
    std::string heard;
    std::optional<Connection> late;
    std::optional<Connection> self;
    int depth = 0;
    const Connection nesting = signal.connect([&] {
        heard += '(';
        if (++depth < 3) {
            signal.raise();
        }
        heard += ')';
    });
    self = signal.connect([&] {
        heard += 's';
        self.reset();
        late = signal.connect([&] { heard += 'l'; });
    });
    signal.raise();
    // The innermost raise reaches `self` first, which is gone for the outer ones.
    EXPECT_EQ(heard, "((()s))");
    heard.clear();
    signal.raise();
    EXPECT_EQ(heard, "()l");
}

TEST(Signal, SurvivesItsOwnEndAndExceptionsOfListeners) {
    auto signal = std::make_unique<Signal<>>();
    int heard = 0;
    const Connection ending = signal->connect([&] { signal.reset(); });
    const Connection last = signal->connect([&] { ++heard; });
    signal->raise();
    EXPECT_EQ(heard, 1);

    Signal<> throwing;
    Connection fault = throwing.connect([] { throw std::runtime_error("fault"); });
    EXPECT_THROW(throwing.raise(), std::runtime_error);
    fault = Connection();
    const Connection after = throwing.connect([&] { ++heard; });
    throwing.raise();
    EXPECT_EQ(heard, 2);
}
