#pragma once

#include <QIcon>

namespace fleetwright {

/// The icon of the program's windows. None of its sizes is read before the desktop asks for it.
QIcon programIcon();

}  // namespace fleetwright
