#pragma once

#include "Programs.h"

namespace fleetwright {

/// Runs programs with Qt, and loads modules.
class QtPrograms : public Programs {
public:
    bool run(const std::filesystem::path& program, const std::string& argument,
             const std::filesystem::path& folder, int milliseconds,
             const std::function<void()>& onWait) override;
    bool start(const std::filesystem::path& program) override;
    void* loadLibrary(const std::filesystem::path& file) override;
    void* function(void* library, const std::string& name) override;
    void freeLibrary(void* library) override;
};

}  // namespace fleetwright
