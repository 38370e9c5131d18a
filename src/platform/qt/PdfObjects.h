#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// A PDF file as its objects, by number, to change what the writer of the file does not offer.
class PdfObjects {
public:
    /// Of a file with one table of objects and none of them packed. Throws Error for another one.
    explicit PdfObjects(std::string_view file);

    /// What describes the document, and where its reading begins.
    std::size_t info() const { return m_info; }
    std::size_t catalog() const { return m_catalog; }

    std::size_t count() const { return m_objects.size(); }
    /// What stands between "obj" and "endobj"; empty for a number that no object has.
    const std::string& at(std::size_t number) const { return m_objects.at(number); }
    void set(std::size_t number, std::string object) { m_objects.at(number) = std::move(object); }
    /// The number of a new object.
    std::size_t add(std::string object);

    /// The file, with its objects in the order of their numbers.
    std::string bytes() const;

private:
    std::vector<std::string> m_objects;
    std::size_t m_info = 0;
    std::size_t m_catalog = 0;
};

/// An object that holds bytes, packed.
std::string pdfStream(std::string_view bytes);

/// The numbers of the objects of the pages, in their order.
std::vector<std::size_t> pdfPages(const PdfObjects& objects);

/// The number of the object that a dictionary names behind a key such as "/Pages". Throws Error if
/// it names none.
std::size_t pdfReference(std::string_view dictionary, std::string_view key);

}  // namespace fleetwright
