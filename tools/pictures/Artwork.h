#pragma once

#include "Lettering.h"

#include <QByteArray>

#include <filesystem>
#include <map>
#include <string>

namespace fleetwright {

/// What tells the pictures apart that are made from one source, such as "class" = "2".
using Variant = std::map<std::string, std::string>;

/// The folder of picture sources.
///
/// A source is plain SVG that any viewer shows. Two things are added to that. An element with an
/// attribute such as data-class="2 3" is only there in the variants whose "class" is one of the
/// values, so that one source serves all classes and mountings of a weapon. And `text` elements
/// become outlines of the program's own lettering, so that a picture does not depend on the fonts
/// of the machine that it is made on; "{version}" in them becomes the program's version, and the
/// name of anything else that tells variants apart becomes its value.
class Artwork {
public:
    /// Throws FileError when the lettering cannot be read.
    Artwork(std::filesystem::path folder, std::string version);

    /// The SVG of one variant of a source, by its path in the folder without ".svg".
    /// Throws FileError for what cannot be read or is no SVG.
    QByteArray svg(const std::string& name, const Variant& variant = {}) const;

    std::filesystem::path file(const std::string& name) const { return m_folder / name; }
    const Lettering& lettering() const { return m_lettering; }

private:
    std::filesystem::path m_folder;
    std::string m_version;
    Lettering m_lettering;
};

}  // namespace fleetwright
