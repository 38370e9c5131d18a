#pragma once

#include "PageDocument.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <tuple>

namespace fleetwright {

class KeptSvgParts;
class PictureEncoder;

/// The pictures of an SVG document. Each is defined once and used wherever it shows. Those without
/// a drawing are in it as PNG files, which the encoder makes.
class SvgPictures {
public:
    /// The encoder outlives this, and so do all pictures, which are told apart by their places in
    /// memory. Whoever makes many documents keeps parts of them.
    explicit SvgPictures(PictureEncoder& encoder, KeptSvgParts* kept = nullptr)
        : m_encoder(encoder), m_kept(kept) {
        constexpr std::size_t usualSize = 1U << 16U;  // bytes of all pictures of a sheet
        m_definitions.reserve(usualSize);
        m_definitions = definitionsStart;
    }

    /// Makes sure of the definitions of a picture and of what shows of it, as `use` does for those
    /// that have none: for whoever writes all of them in front of their uses. Throws Error.
    void define(const PagePicture& picture);
    /// Adds the element that shows a picture. Throws Error.
    void use(const PagePicture& picture, std::string& body);
    /// The id of a picture's definition, in pixels of the picture. Throws Error.
    const std::string& nameOf(const PagePicture& picture);
    /// The element "defs" for all that was asked for; nothing if that is nothing. Called once.
    std::string takeDefinitions();

private:
    using BoxKey = std::tuple<double, double, double, double>;

    static constexpr std::string_view definitionsStart = "<defs>\n";

    void defineDrawing(const std::string& name, const std::shared_ptr<const Drawing>& drawing,
                       bool isOnlyHere);
    void defineRaster(const std::string& name, const Raster& raster);
    const std::string& clipOf(const Box& box);

    PictureEncoder& m_encoder;
    KeptSvgParts* m_kept;
    std::string m_definitions;
    std::map<const void*, std::string> m_pictures;  // names of definitions
    std::map<BoxKey, std::string> m_clips;
};

}  // namespace fleetwright
