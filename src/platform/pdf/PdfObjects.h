#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// Takes the next bytes of a file.
using PdfOut = std::function<void(std::string_view bytes)>;

/// A PDF file on its way out: its objects leave as they come, and only their places are kept.
class PdfObjects {
public:
    explicit PdfObjects(PdfOut out);

    /// The number of an object that is yet to be written, for others to name.
    std::size_t reserve();
    /// Writes an object that has a number: what stands between "obj" and "endobj".
    void write(std::size_t number, std::string_view object) { write(number, {object}); }
    /// Writes an object; its number.
    std::size_t add(std::string_view object) { return add({object}); }
    /// The same for one in pieces, which may be too large to be put together.
    std::size_t add(std::initializer_list<std::string_view> pieces);
    /// Writes an object that holds bytes, packed, with these entries in its dictionary; its number.
    std::size_t addStream(std::string_view bytes, std::string_view entries = {});

    /// Ends the file. These describe the document, and where its reading begins.
    void finish(std::size_t info, std::size_t catalog);

private:
    void write(std::size_t number, std::initializer_list<std::string_view> pieces);
    void out(std::string_view bytes);

    PdfOut m_out;
    std::size_t m_size = 0;             ///< of what has left
    std::vector<std::size_t> m_places;  ///< by the number of the object; the first has none
};

/// How other objects name one.
std::string pdfReference(std::size_t number);

/// Adds a number of 16 bits, in four digits.
void addPdfDigits(std::string& text, std::uint32_t number);
/// Adds the digits of a character, in UTF-16.
void addPdfCharacter(std::string& text, std::uint32_t code);
/// A text as PDF has it, be it of any characters.
std::string pdfText(const std::string& text);
/// A length, to a thousandth, as large as any unit of ours needs it.
std::string pdfLength(double length);
/// A factor, to a hundred-millionth.
std::string pdfFactor(double factor);
/// The three parts of a colour 0xRRGGBB, with a blank behind each.
std::string pdfColour(std::uint32_t colour);

}  // namespace fleetwright
