#include "QtTrash.h"

#include "paths.h"

#include <QFile>

namespace fleetwright {

bool QtTrash::moveToTrash(const std::filesystem::path& file) {
    return QFile::moveToTrash(QString::fromStdString(pathText(file)));
}

}  // namespace fleetwright
