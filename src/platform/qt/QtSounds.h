#pragma once

#include "Sounds.h"

namespace fleetwright {

/// The machine's sound devices, through a module beside the program that is loaded when it is first
/// asked. Without the module there is no device.
class QtSounds : public Sounds {
public:
    explicit QtSounds(std::filesystem::path programFolder)
        : m_programFolder(std::move(programFolder)) {}

    bool hasDevice() override;
    void play(const std::filesystem::path& file) override;

private:
    Sounds* module();

    std::filesystem::path m_programFolder;
    Sounds* m_module = nullptr;
    bool m_isAsked = false;
};

}  // namespace fleetwright
