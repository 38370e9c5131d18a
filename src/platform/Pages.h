#pragma once

#include "Raster.h"

#include <string>

namespace fleetwright {

enum class Paper { A4, Letter };

/// A printable document with one picture a page, each of them whole, in the middle of its page's
/// width: at its natural size of 96 pixels to the inch, or shrunk to what the margins leave.
class Pages {
public:
    virtual ~Pages() = default;

    virtual void add(const Raster& picture) = 0;
    /// Ends the document: its bytes. Nothing can be added afterwards.
    virtual std::string finish() = 0;
};

}  // namespace fleetwright
