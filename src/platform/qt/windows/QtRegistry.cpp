#include "QtRegistry.h"

#include <QSettings>

namespace fleetwright {

std::optional<Registry::Value> QtRegistry::read(const std::string& key, const std::string& name) {
    const QSettings registry("HKEY_LOCAL_MACHINE\\" + QString::fromStdString(key),
                             QSettings::NativeFormat);
    const QVariant value = registry.value(QString::fromStdString(name));
    return value.isValid() ? std::optional(Value{textType, value.toString().toStdString()})
                           : std::nullopt;
}

}  // namespace fleetwright
