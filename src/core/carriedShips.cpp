#include "carriedShips.h"

#include "Error.h"
#include "PngChunks.h"
#include "XmlReader.h"
#include "base64.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace fleetwright {

namespace {

constexpr std::string_view nameSpace = "https://fleetwright.org/ns/ships/";
constexpr std::string_view listElement = "ships", itemElement = "li", ourPrefix = "fleetwright";
constexpr std::string_view pngKeyword = "FleetWright ship";

enum class SheetFormat { NoSheet, Svg, Png, Pdf, OtherPicture };

bool isSvg(std::string_view bytes) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF", blanks = " \t\r\n";
    bytes.remove_prefix(bytes.starts_with(byteOrderMark) ? byteOrderMark.size() : 0);
    bytes.remove_prefix(std::min(bytes.find_first_not_of(blanks), bytes.size()));
    if (!bytes.starts_with('<')) {
        return false;
    }
    XmlReader xml(bytes);
    XmlReader::Piece piece = xml.next();
    while (piece == XmlReader::Piece::Text) {
        piece = xml.next();
    }
    return piece == XmlReader::Piece::Start && localName(xml.name()) == "svg";
}

/// A bitmap has its two letters and, further on, how long its header is: a ship file may begin with
/// these letters, too.
bool isBitmap(std::string_view bytes) {
    constexpr std::size_t lengthPlace = 14;
    constexpr std::string_view usualLengths = "\x0C\x28\x38\x40\x6C\x7C";
    return bytes.starts_with("BM") && bytes.size() > lengthPlace + 4 &&
           usualLengths.find(bytes[lengthPlace]) != std::string_view::npos &&
           bytes.substr(lengthPlace + 1, 3) == std::string_view("\0\0\0", 3);
}

/// A GIF file has its size and the like behind its letters, of which a text would show nothing.
bool isGif(std::string_view bytes) {
    constexpr std::size_t letters = 6, head = 13;
    return (bytes.starts_with("GIF87a") || bytes.starts_with("GIF89a")) &&
           std::ranges::any_of(bytes.substr(letters, head - letters), [](unsigned char byte) {
               return byte < ' ' && byte != '\t' && byte != '\r' && byte != '\n';
           });
}

bool isWebP(std::string_view bytes) {
    return bytes.starts_with("RIFF") && bytes.size() > 8 && bytes.substr(8).starts_with("WEBP");
}

bool isPdf(std::string_view bytes) {
    constexpr std::string_view beginning = "%PDF-";
    return bytes.starts_with(beginning) && bytes.size() > beginning.size() &&
           bytes[beginning.size()] >= '0' && bytes[beginning.size()] <= '9';
}

/// How files begin that are looked at or packed, and no text of a ship: JPEG, TIFF, what gzip has
/// packed, and XML in UTF-16.
constexpr std::string_view otherBeginnings[] = {"\xFF\xD8\xFF",     {"II*\0", 4},
                                                {"MM\0*", 4},       "\x1F\x8B\x08",
                                                {"\xFF\xFE<\0", 4}, {"\xFE\xFF\0<", 4}};

SheetFormat formatOf(std::string_view bytes) {
    if (bytes.starts_with(pngSignature)) {
        return SheetFormat::Png;
    }
    if (isPdf(bytes)) {
        return SheetFormat::Pdf;
    }
    if (isBitmap(bytes) || isGif(bytes) || isWebP(bytes) ||
        std::ranges::any_of(otherBeginnings, [bytes](std::string_view beginning) {
            return bytes.starts_with(beginning);
        })) {
        return SheetFormat::OtherPicture;
    }
    return isSvg(bytes) ? SheetFormat::Svg : SheetFormat::NoSheet;
}

[[noreturn]] void throwDamaged() {
    throw Error("the ship in it is damaged");
}

[[noreturn]] void throwCutShort() {
    throw Error("is cut short or damaged, and holds no ship");
}

std::string shipFileOf(std::string_view base64) {
    const std::optional<std::string> shipFile = fromBase64(base64);
    if (!shipFile || shipFile->empty() || isSheet(*shipFile)) {
        throwDamaged();
    }
    return *shipFile;
}

std::string qualifiedName(std::string_view prefix, std::string_view name) {
    return (prefix.empty() ? "" : std::string(prefix) + ':') + std::string(name);
}

/// The ships in the elements of ours, wherever they stand.
std::vector<std::string> shipsInXml(XmlReader& xml) {
    std::vector<std::string> ships;
    // The prefix that was declared last counts: no tool gives the namespace two of them.
    std::optional<std::string> ourList;
    bool isInList = false;
    std::optional<std::string> item;
    using Piece = XmlReader::Piece;
    for (Piece piece = xml.next(); piece != Piece::Nothing; piece = xml.next()) {
        const bool isItem =
            piece != Piece::Text && isInList && localName(xml.name()) == itemElement;
        if (piece == Piece::Start) {
            if (const auto prefix = xml.prefixFor(nameSpace)) {
                ourList = qualifiedName(*prefix, listElement);
            }
            isInList = isInList || xml.name() == ourList;
            if (isItem) {
                item.emplace();
            }
        } else if (piece == Piece::Text && item) {
            *item += xml.text();
        } else if (isItem && item) {
            ships.push_back(shipFileOf(*item));
            item.reset();
        } else if (piece == Piece::End && xml.name() == ourList) {
            isInList = false;
        }
    }
    if (isInList) {
        throwDamaged();  // cut short in the midst of them
    }
    return ships;
}

std::vector<std::string> shipsInSvg(std::string_view svg) {
    XmlReader xml(svg);
    std::vector<std::string> ships = shipsInXml(xml);
    if (ships.empty() && !xml.isWhole()) {
        throwCutShort();
    }
    return ships;
}

/// Changes of a PDF file are added at its end, and so are their packets.
std::vector<std::string> shipsInPdf(std::string_view pdf) {
    constexpr std::string_view packetBegin = "<?xpacket begin", packetEnd = "<?xpacket end";
    std::string_view before = pdf;
    for (std::size_t at = pdf.rfind(packetBegin); at != std::string_view::npos;
         at = before.rfind(packetBegin)) {
        std::string_view packet = before.substr(at);
        packet = packet.substr(0, packet.find(packetEnd));
        XmlReader xml(packet);
        if (std::vector<std::string> ships = shipsInXml(xml); !ships.empty()) {
            return ships;
        }
        before = before.substr(0, at);
    }
    constexpr std::string_view fileEnd = "%%EOF";
    constexpr std::size_t endsWithin = 1024;
    if (pdf.substr(pdf.size() - std::min(pdf.size(), endsWithin)).find(fileEnd) ==
        std::string_view::npos) {
        throwCutShort();
    }
    return {};
}

std::vector<std::string> shipsInPng(std::string_view png) {
    constexpr std::size_t keywordSize = pngKeyword.size() + 1;  // with the zero that ends it
    std::vector<std::string> ships;
    PngChunks chunks(png);
    for (PngChunk chunk; chunks.next(chunk);) {
        if (chunk.data.substr(0, chunk.data.find('\0')) != pngKeyword) {
            continue;
        }
        if (chunk.type == "zTXt" || chunk.type == "iTXt") {
            throw Error("the ship in it was packed by another program and cannot be read");
        }
        if (chunk.type == "tEXt") {
            if (!chunk.isSound() || chunk.data.size() < keywordSize) {
                throwDamaged();
            }
            ships.push_back(shipFileOf(chunk.data.substr(keywordSize)));
        }
    }
    if (ships.empty() && !chunks.isWhole()) {
        throwCutShort();
    }
    return ships;
}

}  // namespace

CarriedShips::CarriedShips(std::size_t count, std::size_t bytes) {
    // Thousands of ships are too much to be held twice, as in a text that grows.
    constexpr std::size_t around = 400, aroundEach = 32, lineLength = 50;
    m_element.reserve(around + count * aroundEach + bytes + bytes / 3 + bytes / lineLength);
    m_element += '<' + qualifiedName(ourPrefix, listElement) + " xmlns:" + std::string(ourPrefix) +
                 "=\"" + std::string(nameSpace) +
                 "\" xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n<rdf:Bag>\n";
}

void CarriedShips::add(std::string_view shipFile) {
    (m_element += "<rdf:li>\n") += toBase64(shipFile);
    m_element += "\n</rdf:li>\n";
}

std::string CarriedShips::element() && {
    ((m_element += "</rdf:Bag>\n</") += qualifiedName(ourPrefix, listElement)) += ">\n";
    return std::move(m_element);
}

std::string withShip(std::string_view png, std::string_view shipFile) {
    PngChunk header;
    if (!png.starts_with(pngSignature) || !PngChunks(png).next(header)) {
        throw Error("the picture for the ship is no PNG file");
    }
    std::string text(pngKeyword);
    text += '\0';
    text += toBase64(shipFile);
    const std::size_t behindHeader = pngSignature.size() + header.bytes.size();
    return std::string(png.substr(0, behindHeader)) + pngChunk("tEXt", text) +
           std::string(png.substr(behindHeader));
}

bool isSheet(std::string_view bytes) {
    return formatOf(bytes) != SheetFormat::NoSheet;
}

std::vector<std::string> shipsIn(std::string_view sheet) {
    switch (formatOf(sheet)) {
    case SheetFormat::Svg:
        return shipsInSvg(sheet);
    case SheetFormat::Png:
        return shipsInPng(sheet);
    case SheetFormat::Pdf:
        return shipsInPdf(sheet);
    case SheetFormat::OtherPicture:
    case SheetFormat::NoSheet:
        break;
    }
    return {};
}

}  // namespace fleetwright
