#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace fleetwright {

/// Programs and modules outside this process.
class Programs {
public:
    virtual ~Programs() = default;

    /// Runs a program in a folder and waits for its end, `milliseconds` at the most; then it is
    /// stopped. `onWait` is called again and again meanwhile. Whether it ended by itself and well.
    virtual bool run(const std::filesystem::path& program, const std::string& argument,
                     const std::filesystem::path& folder, int milliseconds,
                     const std::function<void()>& onWait) = 0;

    /// Starts a program in a window of its own and goes on; whether it could be started.
    virtual bool start(const std::filesystem::path& program) = 0;

    /// Loads a module; null if it cannot be loaded.
    virtual void* loadLibrary(const std::filesystem::path& file) = 0;
    /// A function that a loaded module exports; null if it has none of that name.
    virtual void* function(void* library, const std::string& name) = 0;
    virtual void freeLibrary(void* library) = 0;
};

}  // namespace fleetwright
