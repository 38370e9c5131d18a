#pragma once

#include "Artwork.h"
#include "Catalogue.h"
#include "PictureSet.h"

#include <QImage>

#include <string>

namespace fleetwright {

/// The project's own artwork.
const Artwork& projectArtwork();

/// The records of the delivered catalogue.
const Catalogue& deliveredCatalogue();

/// The three sets, each rendered once.
const PictureSet& renderedCatalogue();
const PictureSet& renderedSheet();
const PictureSet& renderedWindow();

/// The image in a file's bytes; fails the test if they are not of this format.
QImage decode(const std::string& bytes, const char* format);

/// Whether a pixel is pure black; fails the test if it is neither that nor pure white.
bool isInk(const QImage& image, int x, int y);

/// Number of black pixels.
int inkCount(const QImage& image);

}  // namespace fleetwright
