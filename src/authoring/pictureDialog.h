#pragma once

#include "Desktop.h"

namespace fleetwright {

/// The dialog in which a picture is chosen, which opens in this folder.
inline FileDialog pictureDialog(std::filesystem::path folder) {
    return {.filter = "All Files (*.*)|*.*|Bitmaps(*.bmp)|*.bmp|Gif Files (*.gif)|*.gif|"
                      "Jpeg Files (*.jpg)|*.jpg",
            .filterIndex = 2,
            .initialFolder = std::move(folder)};
}

}  // namespace fleetwright
