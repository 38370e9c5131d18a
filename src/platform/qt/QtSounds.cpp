#include "QtSounds.h"

#include "soundsModule.h"

#include <QLibrary>

namespace fleetwright {

bool QtSounds::hasDevice() {
    return module() != nullptr && module()->hasDevice();
}

void QtSounds::play(const std::filesystem::path& file) {
    if (module() != nullptr) {
        module()->play(file);
    }
}

Sounds* QtSounds::module() {
    if (!m_isAsked) {
        m_isAsked = true;
        // It stays loaded: what Qt has registered of it cannot be taken back.
        QLibrary library(QString::fromStdString((m_appFolder / soundsModule).string()));
        const auto create = reinterpret_cast<CreateSounds>(library.resolve("createSounds"));
        m_module = create == nullptr ? nullptr : create();
    }
    return m_module;
}

}  // namespace fleetwright
