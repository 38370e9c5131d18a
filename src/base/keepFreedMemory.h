#pragma once

// What the system is asked for memory, one source a system.

namespace fleetwright {

/// Lets the program take again what it has freed, however large, and give back nothing before its
/// end. For a program that makes many things one after the other and ends: asked for anew, each of
/// its pages is found and cleared by the system.
void keepFreedMemory();

}  // namespace fleetwright
