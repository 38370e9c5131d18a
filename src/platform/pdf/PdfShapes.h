#pragma once

#include "PageDocument.h"

#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <string>

namespace fleetwright {

class PdfObjects;

/// All of a document's pages but their text, as a PDF file has them. A picture is in the file once,
/// however often it shows, and on however many pages.
class PdfShapes {
public:
    explicit PdfShapes(PdfObjects& objects) : m_objects(objects) {}

    /// The operators that draw the shapes of a page, from the upper left corner of the paper on, in
    /// millimetres, with the axis downwards. Writes pictures that the file does not have yet.
    std::string contentOf(const Page& page);
    /// What the resources of that page say of the pictures on it.
    std::string pictures() const;

private:
    /// A picture that the file has, known by its place in memory for as long as it lives.
    struct Known {
        std::weak_ptr<const void> picture;
        std::size_t object = 0;
    };

    void put(std::string& content, const PageText& text);
    void put(std::string& content, const PageLine& line);
    void put(std::string& content, const PageRectangle& rectangle);
    void put(std::string& content, const PagePicture& picture);
    template <typename Picture, typename Write>
    std::string nameOf(const std::shared_ptr<const Picture>& picture, Write write);
    std::size_t writeDrawing(const Drawing& drawing);
    std::size_t writeRaster(const Raster& raster);
    std::size_t stateOf(double opacity);

    PdfObjects& m_objects;
    std::map<const void*, Known> m_known;
    std::map<double, std::size_t> m_states;  ///< objects, by the opacity
    std::set<std::size_t> m_onPage;
};

}  // namespace fleetwright
