#include "StepsWalk.h"
#include "forSeeds.h"

using namespace fleetwright;

TEST(Actor, BreaksNoInvariant) {
    forSeeds([](std::mt19937& random) {
        Dice dice(random());
        Actor actor(dice);
        for (int acts = 0; acts < 2500 && !actor.hasEnded(); ++acts) {
            actor.act();
        }
    });
}

// A step goes back to the first byte, and forth to the last.
TEST(Actor, UndoesAndRedoesAllThatItHasDone) {
    forSeeds([](std::mt19937& random) {
        Dice dice(random());
        StepsWalk walk(dice);
        walk.walk(2000);
        EXPECT_GT(walk.history().count(), 100U);
    });
}
