#pragma once

#include "Drawing.h"

#include <map>
#include <optional>
#include <string>

namespace fleetwright {

class Artwork;
class Catalogue;

/// A picture's file, and the lines and areas that its pixels were made from; `icon.svg`, which has
/// no pixels, comes without them.
struct PictureFile {
    std::string bytes;
    std::optional<Drawing> drawing = {};
};

/// Files by name.
using PictureSet = std::map<std::string, PictureFile>;

/// The pictures that the catalogue names, and what sources they are made from.
///
/// The name says how a picture is made: a class in it ("-3") and a mounting ("-fp") choose the
/// variant, the rest is the source in `systems`; the mark of the mounting is laid over it. The
/// picture of a category is the source of that name in `categories` in the common frame.
/// Throws FileError for a source that is missing or faulty.
PictureSet cataloguePictures(const Artwork& artwork, const Catalogue& catalogue);

/// The pictures that sheets are pasted together from besides those of systems.
PictureSet sheetPictureFiles(const Artwork& artwork);

/// The icon of a program for Windows: those of the windows, in one file.
std::string programIconFile(const PictureSet& window);

/// The pictures that the windows bring along: roots of the tree, buttons, faces, icons, splash.
PictureSet windowPictures(const Artwork& artwork);

/// The outlines of ships that sheets are drawn on, with the marks that the scan reads; in
/// `outlines` of the sources. Throws FileError for a source that is faulty.
PictureSet outlinePictures(const Artwork& artwork);

/// What a picture's file name says about its making.
struct PictureName {
    std::string source;       ///< name of the source
    std::string weaponClass;  ///< "1" to "4", or empty
    std::string arc;          ///< "f", "p", … "all", or empty
};

/// Takes the name of a system's picture apart.
PictureName readPictureName(const std::string& fileName);

}  // namespace fleetwright
