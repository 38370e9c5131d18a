#pragma once

#include "Raster.h"
#include "Scale.h"

#include <QIcon>
#include <QPalette>

#include <functional>
#include <string>

namespace fleetwright {

/// A picture of a window, at any zoom and resolution: from its drawing, if it has one, and in a
/// dark window then as ink in the colour of that role, without its paper. `read` decodes it when
/// it is first painted; where that throws an Error, nothing is.
QIcon pictureIcon(std::function<Raster()> read, const Scale& scale, QPalette::ColorRole role);

<<<<<<< HEAD
/// An icon that shows a picture of a list. The picture is looked up, and made ready for the screen,
/// when the icon is first painted: of many nodes of a tree few are ever seen. One that cannot be
/// read leaves its place empty. The list has a picture under this key, and outlives the icon.
QIcon pictureIcon(const ImageList& images, const std::string& key);
=======
/// The same of a face that the program carries in itself.
QIcon faceIcon(const std::string& name, const Scale& scale);
>>>>>>> ec6c2bb (Zoom windows, and draw their pictures from drawings where pixels would not do)

}  // namespace fleetwright
