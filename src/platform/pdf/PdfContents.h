#pragma once

#include "PdfObjects.h"

#include <cstddef>
#include <string>

namespace fleetwright {

/// The list of contents that readers show beside a document. It leaves entry by entry, so that one
/// of thousands takes no memory. A document with one entry has none: its title says it all.
class PdfContents {
public:
    explicit PdfContents(PdfObjects& objects) : m_objects(objects) {}

    /// An entry that leads to a page, which has this number.
    void add(const std::string& name, std::size_t page);
    /// Ends the list. What the catalog has to say of it, from the end of a line on, or nothing.
    std::string finish();

private:
    void writeLast(std::size_t next);

    PdfObjects& m_objects;
    std::size_t m_count = 0, m_root = 0, m_first = 0;
    // The entry that waits for the next one, which it has to name.
    std::size_t m_number = 0, m_before = 0, m_page = 0;
    std::string m_name;
};

}  // namespace fleetwright
