#pragma once

#include "Programs.h"

#include <memory>
#include <vector>

class QLibrary;

namespace fleetwright {

/// Runs programs and loads modules with Qt.
class QtPrograms : public Programs {
public:
    QtPrograms();
    QtPrograms(const QtPrograms&) = delete;
    QtPrograms& operator=(const QtPrograms&) = delete;
    ~QtPrograms() override;

    bool run(const std::filesystem::path& program, const std::string& argument,
             const std::filesystem::path& folder, int milliseconds,
             const std::function<void()>& onWait) override;
    bool start(const std::filesystem::path& program) override;
    void* loadLibrary(const std::filesystem::path& file) override;
    void* function(void* library, const std::string& name) override;
    void freeLibrary(void* library) override;

private:
    /// Those that are loaded and not freed.
    std::vector<std::unique_ptr<QLibrary>> m_libraries;
};

}  // namespace fleetwright
