#include "Acts.h"

#include "Error.h"
#include "forSeeds.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

/// Acts on a text. What it is, and what is said of it, is written down.
class OnText : public testing::Test {
protected:
    std::string text;
    std::string log;
    bool isThere = true;
    Acts acts{{.isThere = [this] { return isThere; },
               .remember = [this] { return [this, old = text] { text = old; }; },
               .overflowed = [this] { log += "too large; "; }}};

    void write(const std::string& what) {
        acts.act([&] { text += what; });
    }
    /// An act that writes this, does more, and overflows.
    void overflow(const std::string& what, const Acts::Work& more = [] {}) {
        acts.act([&] {
            write(what);
            more();
            throw OverflowError();
        });
    }
    void whenIdle(const std::string& name, const Acts::Work& more = [] {}) {
        acts.whenIdle([this, name, more] {
            log += '<' + name;
            more();
            log += "> ";
        });
    }
    void end() {
        acts.endWhenIdle([this] {
            log += "end; ";
            isThere = !acts.isIdle();
        });
    }
};

/// Does at random whatever can be done, as deep as it gets, and holds it against the promises.
class RandomActs {
public:
    explicit RandomActs(std::mt19937& random) : m_random(random) {}

    void run() {
        for (int step = 0; step < 300; ++step) {
            m_mostAsked = m_asked + 20;
            doAnything();
            EXPECT_TRUE(m_acts.isIdle());
            EXPECT_EQ(m_done, m_asked) << "something still waits";
        }
    }

private:
    enum Level { Rest, Act, Turn, Work };

    void doAnything() {
        switch (anyOf(m_random, 0, m_depth == 6 ? 0 : m_asked < m_mostAsked ? 3 : 2)) {
        case 0:
            // Only in an act is anything changed, or does anything overflow.
            if (m_level == Act && anyOf(m_random, 0, 3) == 0) {
                throw OverflowError();
            }
            m_value += m_level == Act ? 1 : 0;
            break;
        case 1:
            if (m_level == Act) {
                m_acts.act([this] { inside(Act); });
            } else {
                m_begun.push_back(m_value);
                m_acts.act([this] { inside(Act); });
                m_begun.pop_back();
            }
            break;
        case 2:
            m_acts.letActsIn([this] { inside(Turn); });
            break;
        default:
            m_acts.whenIdle([this, number = m_asked++] {
                EXPECT_EQ(m_level, Rest) << "in the middle of something";
                EXPECT_EQ(m_done++, number) << "out of order";
                inside(Work);
            });
        }
    }

    /// Does a few things on this level, and comes back from there in whatever way.
    void inside(Level level) {
        const Level outside = std::exchange(m_level, level);
        ++m_depth;
        bool overflows = false;
        try {
            for (int things = anyOf(m_random, 0, 4); things > 0; --things) {
                doAnything();
            }
        } catch (const OverflowError&) {
            overflows = true;
        }
        --m_depth;
        m_level = outside;
        if (overflows) {
            throw OverflowError();
        }
    }

    std::mt19937& m_random;
    int m_value = 0;
    std::vector<int> m_begun;  ///< what the acts of their own have begun with
    Level m_level = Rest;
    int m_depth = 0, m_asked = 0, m_done = 0, m_mostAsked = 0;
    Acts m_acts{{.isThere = [] { return true; },
                 .remember = [this] { return [this, old = m_value] { m_value = old; }; },
                 .overflowed = [this] { EXPECT_EQ(m_value, m_begun.back()); }}};
};

}  // namespace

TEST_F(OnText, AnActIsUndoneAsAWholeAndOneThatIsLetInByItself) {
    write("a");
    overflow("b", [&] { write("c"); });
    EXPECT_EQ(text + ' ' + log, "a too large; ");
    acts.act([&] {
        write("d");
        acts.letActsIn([&] {
            overflow("e");
            write("f");
            acts.act([&] { acts.letActsIn([&] { overflow("g"); }); });
        });
        EXPECT_FALSE(acts.isIdle());
        write("h");
    });
    EXPECT_EQ(text + ' ' + log, "adfh too large; too large; too large; ");
    // What overflows in a part of an act takes the act with it, and what it has let in.
    acts.act([&] {
        acts.letActsIn([&] { write("i"); });
        overflow("j");
        write("k");
    });
    EXPECT_EQ(text, "adfh");
}

TEST_F(OnText, OtherFailuresGoThroughAndLeaveOrder) {
    const auto fail = [] { throw Error("other"); };
    EXPECT_THROW(acts.act([&] { acts.letActsIn(fail); }), Error);
    EXPECT_THROW(acts.whenIdle(fail), Error);
    EXPECT_TRUE(acts.isIdle());
    acts.act([&] { EXPECT_THROW(overflow("a"), OverflowError) << "a part of the act"; });
    EXPECT_EQ(log, "");
}

TEST_F(OnText, WorkWaitsForActsAndTheEndForWork) {
    acts.act([&] {
        end();
        whenIdle("save", [&] {
            overflow("b");  // an act of its own
            whenIdle("load");
            write("c");
        });
        acts.letActsIn([&] { whenIdle("print"); });
        write("a");
        EXPECT_EQ(log, "");
    });
    EXPECT_EQ(text, "ac");
    EXPECT_EQ(log, "<savetoo large; > <print> <load> end; ");
    write("d");
    whenIdle("nothing");
    end();
    isThere = true;
    write("e");
    EXPECT_EQ(text, "ace");
    EXPECT_EQ(log, "<savetoo large; > <print> <load> end; ") << "what came too late is dropped";
}

TEST_F(OnText, AnEndThatIsRefusedLetsTheRestGoOn) {
    acts.act([&] { acts.endWhenIdle([&] { log += "kept; "; }); });
    whenIdle("save", [&] { end(); });
    EXPECT_EQ(log, "kept; <save> end; ");
    EXPECT_FALSE(isThere);
}

TEST(Acts, KeepTheirPromisesWhateverComesTogether) {
    forSeeds([](std::mt19937& random) { RandomActs(random).run(); });
}
