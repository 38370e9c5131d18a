#pragma once

#include <QIcon>

#include <string>

namespace fleetwright {

class ImageList;

/// An icon that shows a picture of a list. The picture is looked up, and made ready for the screen,
/// when the icon is first painted: of many nodes of a tree few are ever seen. One that cannot be
/// read leaves its place empty. The list has a picture under this key, and outlives the icon.
QIcon pictureIcon(const ImageList& images, const std::string& key);

}  // namespace fleetwright
