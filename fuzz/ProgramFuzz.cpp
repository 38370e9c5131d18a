// The windows and the ship behind them. An input is a course of acts.

#include "Actor.h"
#include "require.h"

using namespace fleetwright;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bytes choices({data, size});
    Actor actor(choices);
    try {
        while (!choices.areOver() && !actor.hasEnded()) {
            actor.act();
        }
    } catch (const std::exception& fault) {
        require(false, fault.what());
    }
    return 0;
}
