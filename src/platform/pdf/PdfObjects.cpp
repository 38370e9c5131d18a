#include "PdfObjects.h"

#include "svgText.h"
#include "text.h"

#include <zlib.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <new>
#include <utility>

namespace fleetwright {

namespace {

constexpr std::string_view pdfHeader = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";

/// A number with zeros in front of it.
std::string tenDigits(std::size_t number) {
    std::string digits = std::to_string(number);
    digits.insert(0, 10 - std::min<std::size_t>(digits.size(), 10), '0');
    return digits;
}

std::string packedBytes(std::string_view bytes) {
    uLongf size = compressBound(static_cast<uLong>(bytes.size()));
    std::string packed(size, '\0');
    if (compress(reinterpret_cast<Bytef*>(packed.data()), &size,
                 reinterpret_cast<const Bytef*>(bytes.data()),
                 static_cast<uLong>(bytes.size())) != Z_OK) {
        throw std::bad_alloc();  // the one way in which it fails
    }
    packed.resize(size);
    return packed;
}

}  // namespace

PdfObjects::PdfObjects(PdfOut out) : m_out(std::move(out)), m_places(1) {
    this->out(pdfHeader);
}

void PdfObjects::out(std::string_view bytes) {
    m_out(bytes);
    m_size += bytes.size();
}

std::size_t PdfObjects::reserve() {
    m_places.push_back(0);
    return m_places.size() - 1;
}

void PdfObjects::write(std::size_t number, std::initializer_list<std::string_view> pieces) {
    m_places.at(number) = m_size;
    out(std::to_string(number) + " 0 obj\n");
    for (const std::string_view piece : pieces) {
        out(piece);
    }
    out("\nendobj\n");
}

std::size_t PdfObjects::add(std::initializer_list<std::string_view> pieces) {
    const std::size_t number = reserve();
    write(number, pieces);
    return number;
}

std::size_t PdfObjects::addStream(std::string_view bytes, std::string_view entries) {
    const std::string packed = packedBytes(bytes);
    const std::string length = "<< /Length " + std::to_string(packed.size());
    return add({length, " /Filter /FlateDecode", entries.empty() ? "" : " ", entries,
                " >>\nstream\n", packed, "\nendstream"});
}

void PdfObjects::finish(std::size_t info, std::size_t catalog) {
    const std::size_t start = m_size;
    const std::string count = std::to_string(m_places.size());
    out("xref\n0 " + count + "\n0000000000 65535 f \n");
    for (std::size_t number = 1; number < m_places.size(); ++number) {
        out(tenDigits(m_places[number]) + " 00000 n \n");
    }
    out("trailer\n<< /Size " + count + " /Info " + pdfReference(info) + " /Root " +
        pdfReference(catalog) + " >>\nstartxref\n" + std::to_string(start) + "\n%%EOF\n");
}

std::string pdfReference(std::size_t number) {
    return std::to_string(number) + " 0 R";
}

void addPdfDigits(std::string& text, std::uint32_t number) {
    static constexpr char digits[] = "0123456789ABCDEF";
    for (int shift = 12; shift >= 0; shift -= 4) {
        text += digits[number >> static_cast<unsigned>(shift) & 0xFU];
    }
}

void addPdfCharacter(std::string& text, std::uint32_t code) {
    if (code > 0xFFFF) {
        addPdfDigits(text, 0xD7C0 + (code >> 10U));
        addPdfDigits(text, 0xDC00 + (code & 0x3FFU));
    } else {
        addPdfDigits(text, code);
    }
}

std::string pdfText(const std::string& text) {
    const std::string shown = shownText(text);
    std::string digits = "<FEFF";
    for (std::string_view rest = shown; !rest.empty(); rest.remove_prefix(characterLength(rest))) {
        addPdfCharacter(digits, static_cast<std::uint32_t>(codePoint(rest)));
    }
    return digits + '>';
}

std::string pdfLength(double length) {
    constexpr double parts = 1000;
    return svgNumber(std::round(length * parts) / parts);
}

std::string pdfFactor(double factor) {
    constexpr int decimals = 8;
    char buffer[64];
    const auto end = std::to_chars(std::begin(buffer), std::end(buffer), factor,
                                   std::chars_format::fixed, decimals);
    std::string_view number(buffer, static_cast<std::size_t>(end.ptr - buffer));
    number = number.substr(0, number.find_last_not_of('0') + 1);
    return std::string(number.ends_with('.') ? number.substr(0, number.size() - 1) : number);
}

std::string pdfColour(std::uint32_t colour) {
    constexpr double most = 255;
    std::string text;
    for (const unsigned shift : {16U, 8U, 0U}) {
        text += svgNumber((colour >> shift & 0xFFU) / most) + ' ';
    }
    return text;
}

}  // namespace fleetwright
