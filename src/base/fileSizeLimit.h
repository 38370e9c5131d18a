#pragma once

#include <csignal>

namespace fleetwright {

/// Makes a write beyond the user's limit on the size of files fail as one on a full disk does. Else
/// it would end the program. For the beginning of `main`.
inline void letFileSizeLimitFail() {
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

}  // namespace fleetwright
