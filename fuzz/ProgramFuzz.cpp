// The windows and the ship behind them. An input is a course of acts.

#include "Actor.h"

using namespace fleetwright;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bytes choices({data, size});
    Actor actor(choices);
    while (!choices.areOver() && !actor.hasEnded()) {
        actor.act();  // throws what is wrong
    }
    return 0;
}
