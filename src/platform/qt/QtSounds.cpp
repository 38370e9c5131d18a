#include "QtSounds.h"

#include "Error.h"
#include "OpenFile.h"
#include "modules.h"
#include "soundsModule.h"

namespace fleetwright {

bool QtSounds::hasDevice() {
    return module() != nullptr && module()->hasDevice();
}

void QtSounds::play(const std::filesystem::path& file) {
    // Qt opens it by its name once more, and would wait for ever at a pipe.
    std::error_code error;
    if (OpenFile(file, OpenFile::Use::Read, error); error) {
        throw FileError(file, "cannot be read: " + error.message());
    }
    if (module() != nullptr) {
        module()->play(file);
    }
}

Sounds* QtSounds::module() {
    if (!m_isAsked) {
        m_isAsked = true;
        // It stays loaded: what Qt has registered of it cannot be taken back.
        const auto create = moduleFunction<CreateSounds>(loadModule(m_programFolder / soundsModule),
                                                         "createSounds");
        m_module = create == nullptr ? nullptr : create();
    }
    return m_module;
}

}  // namespace fleetwright
