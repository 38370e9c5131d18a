#include "Actor.h"
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
