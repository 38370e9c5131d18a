#include "QtRegistry.h"

#include <QSettings>

namespace fleetwright {

std::optional<Registry::Value> QtRegistry::read([[maybe_unused]] const std::string& key,
                                                [[maybe_unused]] const std::string& name) {
#ifdef Q_OS_WIN
    const QSettings registry("HKEY_LOCAL_MACHINE\\" + QString::fromStdString(key),
                             QSettings::NativeFormat);
    const QVariant value = registry.value(QString::fromStdString(name));
    if (value.isValid()) {
        return Value{textType, value.toString().toStdString()};
    }
#endif
    return std::nullopt;
}

}  // namespace fleetwright
