#include "designCode.h"

#include "designDictionary.h"
#include "text.h"

#include <zlib.h>

#include <cstddef>
#include <cstdint>
#include <new>
#include <optional>
#include <utility>

namespace fleetwright {

namespace {

constexpr std::string_view codeStart = "FW1:";

/// Five bits each. Chats take none of them for a mark, people mistake none for another, and the
/// alphanumeric mode of QR codes has them all.
constexpr std::string_view codeLetters = "0123456789ABCDEFGHJKMNPQRSTVWXYZ";
constexpr std::size_t bitsOfLetter = 5, bitsOfByte = 8;

constexpr std::size_t checksumSize = 4;

/// Raw deflate: a window of 32 KiB, and neither a header nor a checksum of zlib's.
constexpr int rawWindow = -15;

[[noreturn]] void throwDamagedCode() {
    throw DesignCodeError("the design code is damaged, or a part of it is missing");
}

constexpr std::size_t letterCount(std::size_t bytes) {
    return (bytes * bitsOfByte + bitsOfLetter - 1) / bitsOfLetter;
}

std::string lettersOf(std::string_view bytes) {
    std::string letters;
    letters.reserve(letterCount(bytes.size()));
    std::uint32_t bits = 0;
    std::size_t count = 0;
    const auto put = [&](std::uint32_t value) { letters += codeLetters[value & 0x1FU]; };
    for (const char byte : bytes) {
        bits = (bits << bitsOfByte | static_cast<unsigned char>(byte)) & 0xFFFFU;
        for (count += bitsOfByte; count >= bitsOfLetter;) {
            count -= bitsOfLetter;
            put(bits >> count);
        }
    }
    if (count > 0) {
        put(bits << (bitsOfLetter - count));
    }
    return letters;
}

char asciiCapital(char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                                : character;
}

/// What a letter stands for, also one that somebody has typed who took 0 for O or 1 for I or L.
std::optional<std::uint32_t> valueOf(char character) {
    const char letter = asciiCapital(character);
    const std::size_t value = codeLetters.find(letter == 'O'                    ? '0'
                                               : letter == 'I' || letter == 'L' ? '1'
                                                                                : letter);
    return value == std::string_view::npos ? std::nullopt
                                           : std::optional(static_cast<std::uint32_t>(value));
}

/// White space, and what has no picture, as mails and chats put it anywhere.
bool isPassedOver(char32_t character) {
    constexpr char32_t noBreakSpace = 0xA0, narrowNoBreakSpace = 0x202F;
    return character == U' ' || character == noBreakSpace || character == narrowNoBreakSpace ||
           isInvisible(character);
}

/// Steps through the letters of a code, up to the first character that is neither one of them nor
/// passed over. So is ">" at the front of a line, with which answers quote what they answer to.
class Letters {
public:
    explicit Letters(std::string_view text) : m_text(text) {}

    std::optional<std::uint32_t> next() {
        while (m_at < m_text.size()) {
            const std::string_view rest = m_text.substr(m_at);
            if (const auto value = valueOf(rest.front())) {
                ++m_at;
                m_isAtFront = false;
                return value;
            }
            const char32_t character = codePoint(rest);
            if (!isPassedOver(character) && !(m_isAtFront && character == U'>')) {
                break;
            }
            m_isAtFront = m_isAtFront || character == U'\n' || character == U'\r';
            m_at += characterLength(rest);
        }
        return std::nullopt;
    }

    /// Behind the last letter.
    std::size_t place() const { return m_at; }

private:
    std::string_view m_text;
    std::size_t m_at = 0;
    bool m_isAtFront = false;  // of a line behind the first one
};

/// The bytes of all letters that follow each other.
std::string bytesOfLetters(std::string_view text) {
    std::string bytes;
    std::uint32_t bits = 0;
    std::size_t count = 0;
    Letters letters(text);
    while (const auto value = letters.next()) {
        bits = (bits << bitsOfLetter | *value) & 0xFFFFU;
        count += bitsOfLetter;
        if (count >= bitsOfByte) {
            count -= bitsOfByte;
            bytes += static_cast<char>(bits >> count & 0xFFU);
        }
    }
    return bytes;
}

Bytef* zlibBytes(std::string_view bytes) {
    return reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
}

uInt zlibSize(std::string_view bytes) {
    return static_cast<uInt>(bytes.size());
}

/// Covers both what is packed and how, for several packings mean the same.
std::string checksumOf(std::string_view packing, std::string_view text) {
    const uLong ofPacking = crc32_z(0, zlibBytes(packing), packing.size());
    const uLong crc = crc32_z(ofPacking, zlibBytes(text), text.size());
    std::string bytes;
    for (const unsigned shift : {24U, 16U, 8U, 0U}) {
        bytes += static_cast<char>(crc >> shift & 0xFFU);
    }
    return bytes;
}

/// What zlib is to take of memory, which it fills with zeros first: that takes longer than packing
/// a ship does, and so it is no more than a text needs.
struct PackingRoom {
    int window = 9;   ///< bits; the least of zlib's
    int symbols = 4;  ///< memLevel

    bool operator==(const PackingRoom&) const = default;

    explicit PackingRoom(std::size_t textSize) {
        constexpr std::size_t ahead = 262;  // which zlib keeps of a window for itself
        const std::size_t all = designDictionary().size() + textSize + ahead;
        while (window < -rawWindow && (std::size_t{1} << window) < all) {
            ++window;
        }
        // One block for all of the text, as if there were room for any.
        constexpr std::size_t symbolsOfLevelZero = 64;
        while (symbols < MAX_MEM_LEVEL && (symbolsOfLevelZero << symbols) <= textSize) {
            ++symbols;
        }
    }
};

/// A stream that has read the dictionary, which takes it longer than to pack a ship.
class PreparedStream {
public:
    explicit PreparedStream(const PackingRoom& room) : m_room(room) {
        if (deflateInit2(&m_stream, Z_BEST_COMPRESSION, Z_DEFLATED, -room.window, room.symbols,
                         Z_DEFAULT_STRATEGY) != Z_OK) {
            throw std::bad_alloc();
        }
        deflateSetDictionary(&m_stream, zlibBytes(designDictionary()),
                             zlibSize(designDictionary()));
    }
    PreparedStream(const PreparedStream&) = delete;
    PreparedStream& operator=(const PreparedStream&) = delete;
    ~PreparedStream() { deflateEnd(&m_stream); }

    const PackingRoom& room() const { return m_room; }
    /// A stream that goes on from here, which whoever has it ends. Any number of threads may ask.
    z_stream copy() const {
        z_stream stream{};
        if (deflateCopy(&stream, const_cast<z_stream*>(&m_stream)) != Z_OK) {  // it only reads
            throw std::bad_alloc();
        }
        return stream;
    }

private:
    PackingRoom m_room;
    z_stream m_stream{};
};

std::string packed(std::string_view text) {
    constexpr std::size_t usualSize = 512;  // bytes of a ship file
    static const PreparedStream usual{PackingRoom(usualSize)};
    const PackingRoom room(text.size());
    z_stream stream = room == usual.room() ? usual.copy() : PreparedStream(room).copy();
    std::string bytes(deflateBound(&stream, zlibSize(text)), '\0');
    stream.next_in = zlibBytes(text);
    stream.avail_in = zlibSize(text);
    stream.next_out = zlibBytes(bytes);
    stream.avail_out = zlibSize(bytes);
    deflate(&stream, Z_FINISH);
    bytes.resize(stream.total_out);
    deflateEnd(&stream);
    return bytes;
}

/// The text that bytes begin with, and how many of them it takes.
std::pair<std::string, std::size_t> unpacked(std::string_view bytes) {
    z_stream stream{};
    if (inflateInit2(&stream, rawWindow) != Z_OK) {
        throw std::bad_alloc();
    }
    inflateSetDictionary(&stream, zlibBytes(designDictionary()), zlibSize(designDictionary()));
    stream.next_in = zlibBytes(bytes);
    stream.avail_in = zlibSize(bytes);
    std::string text;
    int state = Z_OK;
    while (state == Z_OK && text.size() <= longestCodedShip) {
        constexpr std::size_t step = 4096;
        text.resize(text.size() + step);
        stream.next_out = zlibBytes(std::string_view(text).substr(text.size() - step));
        stream.avail_out = step;
        state = inflate(&stream, Z_NO_FLUSH);
        text.resize(text.size() - stream.avail_out);
    }
    inflateEnd(&stream);
    if (text.size() > longestCodedShip) {
        throw DesignCodeError("the design in the code is too large");
    }
    if (state != Z_STREAM_END) {
        throwDamagedCode();
    }
    return {std::move(text), bytes.size() - stream.avail_in};
}

bool isLetterOrDigit(char character) {
    const char letter = asciiCapital(character);
    return (letter >= '0' && letter <= '9') || (letter >= 'A' && letter <= 'Z');
}

/// How long "FW1:" at the front of a text is, as people and what corrects their typing write it:
/// some put a space before a colon, some have wide ones. 0 if the text does not begin with it.
std::size_t startLength(std::string_view text) {
    constexpr char32_t wideColon = 0xFF1A;
    constexpr std::size_t word = 3;
    if (text.size() <= word || asciiCapital(text[0]) != codeStart[0] ||
        asciiCapital(text[1]) != codeStart[1] || valueOf(text[2]) != 1U) {
        return 0;
    }
    for (std::size_t at = word; at < text.size(); at += characterLength(text.substr(at))) {
        const std::string_view rest = text.substr(at);
        const char32_t character = codePoint(rest);
        if (character == U':' || character == wideColon) {
            return at + characterLength(rest);
        }
        if (!isPassedOver(character)) {
            break;
        }
    }
    return 0;
}

/// Takes the first code, which begins at the front of `text`, from it: its ship file. What packs it
/// tells where it ends, so that words behind it do it no harm.
std::string takeCode(std::string_view& text) {
    text.remove_prefix(startLength(text));
    const std::string held = bytesOfLetters(text);
    const std::string_view bytes = held;
    auto [ship, size] = unpacked(bytes);
    if (bytes.substr(size, checksumSize) != checksumOf(bytes.substr(0, size), ship)) {
        throwDamagedCode();
    }
    size += checksumSize;
    Letters letters(text);
    std::uint32_t last = 0;
    for (std::size_t count = letterCount(size); count > 0; --count) {
        last = letters.next().value_or(0);
    }
    text.remove_prefix(letters.place());
    const std::size_t unused = letterCount(size) * bitsOfLetter - size * bitsOfByte;
    if ((last & ((1U << unused) - 1)) != 0 || (!text.empty() && isLetterOrDigit(text.front()))) {
        throwDamagedCode();
    }
    return std::move(ship);
}

/// The rest of a text from where its first code begins; empty if there is none.
std::string_view fromCodeOn(std::string_view text) {
    while (!text.empty() && startLength(text) == 0) {
        text.remove_prefix(1);
    }
    return text;
}

}  // namespace

std::string designCode(std::string_view shipFile) {
    if (shipFile.size() > longestCodedShip) {
        throw DesignCodeError("the design is too large for a code");
    }
    const std::string packing = packed(shipFile);
    return std::string(codeStart) + lettersOf(packing + checksumOf(packing, shipFile));
}

bool hasDesignCode(std::string_view text) {
    return !fromCodeOn(text).empty();
}

bool isDesignCode(std::string_view text) {
    constexpr std::u32string_view marks = U"<>[(\"'`*_~“”„‘’‚«»‹›";
    while (!text.empty() && (isPassedOver(codePoint(text)) ||
                             marks.find(codePoint(text)) != std::u32string_view::npos)) {
        text.remove_prefix(characterLength(text));
    }
    return startLength(text) > 0;
}

std::string shipInCode(std::string_view text) {
    std::string_view rest = fromCodeOn(text);
    if (rest.empty()) {
        throw DesignCodeError("there is no design code in it");
    }
    std::string ship = takeCode(rest);
    while (!(rest = fromCodeOn(rest)).empty()) {
        if (takeCode(rest) != ship) {
            throw DesignCodeError("there are codes of several designs in it");
        }
    }
    return ship;
}

}  // namespace fleetwright
