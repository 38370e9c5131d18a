#include "DrawingPack.h"

#include "Error.h"
#include "PackReader.h"
#include "readFile.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>
#include <system_error>
#include <utility>

namespace fleetwright {

namespace {

constexpr std::string_view firstLine = "FleetWright drawings 1";

constexpr int largest = 1'000'000;  ///< of all numbers, and more than any picture has pixels

/// Takes digits off a text; how many there were.
std::size_t takeDigits(std::string_view& text) {
    const auto end = std::ranges::find_if(text, [](char c) { return c < '0' || c > '9'; });
    const auto count = static_cast<std::size_t>(end - text.begin());
    text.remove_prefix(count);
    return count;
}

/// Takes a number off a text; false if there is none that can stand in a path.
bool takeNumber(std::string_view& text) {
    constexpr std::size_t mostDigits = 6;
    text.remove_prefix(text.starts_with('-') ? 1 : 0);
    const std::size_t digits = takeDigits(text);
    if (digits == 0 || digits > mostDigits || !text.starts_with('.')) {
        return digits != 0 && digits <= mostDigits;
    }
    text.remove_prefix(1);
    return takeDigits(text) != 0;
}

/// How many numbers follow a letter of path data; less than 0 for one that is none of ours.
int numbersBehind(char letter) {
    switch (letter) {
    case 'M':
    case 'L':
        return 2;
    case 'C':
        return 6;
    case 'Z':
        return 0;
    default:
        return -1;
    }
}

/// Whether a text is path data as packs have it: one blank between numbers, none besides.
bool isPath(std::string_view text) {
    if (!text.starts_with('M')) {
        return false;
    }
    while (!text.empty()) {
        const int numbers = numbersBehind(text.front());
        text.remove_prefix(1);
        for (int i = 0; i < numbers; ++i) {
            if (i > 0 && !text.starts_with(' ')) {
                return false;
            }
            text.remove_prefix(i > 0 ? 1 : 0);
            if (!takeNumber(text)) {
                return false;
            }
        }
        if (numbers < 0) {
            return false;
        }
    }
    return true;
}

std::optional<std::uint32_t> readColour(PackReader& reader) {
    const std::string_view word = reader.word();
    if (word == "-") {
        return std::nullopt;
    }
    return static_cast<std::uint32_t>(reader.hexadecimal(word, 6));
}

/// Which of these words stands here; the first one is 0.
template <typename Choice>
Choice readChoice(PackReader& reader, std::initializer_list<std::string_view> words) {
    const std::string_view word = reader.word();
    const auto* const found = std::find(words.begin(), words.end(), word);
    if (found == words.end()) {
        reader.fail(quote(word) + " cannot stand here");
    }
    return static_cast<Choice>(found - words.begin());
}

DrawnShape readShape(PackReader& reader) {
    DrawnShape shape;
    shape.fill = readColour(reader);
    shape.stroke = readColour(reader);
    shape.strokeWidth = reader.number(0, largest);
    shape.cap = readChoice<DrawnShape::Cap>(reader, {"flat", "round", "square"});
    shape.join = readChoice<DrawnShape::Join>(reader, {"miter", "round", "bevel"});
    shape.opacity = reader.number(0, 1);
    shape.isEvenOdd = readChoice<bool>(reader, {"nonzero", "evenodd"});
    shape.path = reader.restOfLine();
    if (!isPath(shape.path)) {
        reader.fail("there is no path of M, L, C, Z and their numbers");
    }
    return shape;
}

Drawing drawingIn(PackReader reader) {
    Drawing drawing;
    reader.nextLine();
    drawing.ink.x = reader.number(-largest, largest);
    drawing.ink.y = reader.number(-largest, largest);
    drawing.ink.width = reader.number(0, largest);
    drawing.ink.height = reader.number(0, largest);
    while (!reader.isAtEnd()) {
        reader.nextLine();
        drawing.shapes.push_back(readShape(reader));
    }
    reader.endLine();
    return drawing;
}

}  // namespace

void DrawingPack::readIndex() const {
    std::error_code unknown;
    if (m_isRead ||
        std::filesystem::status(m_file, unknown).type() == std::filesystem::file_type::not_found) {
        return;
    }
    m_entries.clear();
    m_text = readBytes(m_file);
    PackReader reader(m_text);
    reader.nextLine();
    if (reader.restOfLine() != firstLine) {
        reader.fail("this is no pack of drawings, or one of another version");
    }
    reader.nextLine();
    const std::size_t count = reader.wholeNumber(m_text.size());
    std::size_t place = 0;  // behind the index, as yet
    while (m_entries.size() < count) {
        reader.nextLine();
        const std::string_view key = reader.word();
        constexpr std::size_t digits = 16;
        Entry entry;
        entry.key = {reader.hexadecimal(key.substr(0, digits), digits),
                     reader.hexadecimal(key.substr(std::min(digits, key.size())), digits)};
        entry.width = static_cast<int>(reader.wholeNumber(largest));
        entry.height = static_cast<int>(reader.wholeNumber(largest));
        entry.place = place;
        entry.length = reader.wholeNumber(m_text.size());
        place += entry.length;
        if (!m_entries.empty() && entry.key <= m_entries.back().key) {
            reader.fail("the keys are not in their order");
        }
        m_entries.push_back(std::move(entry));
    }
    reader.endLine();
    if (place != reader.rest().size()) {
        throw PackError(0,
                        place > reader.rest().size() ? "is cut short" : "goes on behind its end");
    }
    for (Entry& entry : m_entries) {
        entry.place += m_text.size() - reader.rest().size();
    }
    m_isRead = true;
}

void DrawingPack::readDrawing(Entry& entry) const {
    if (entry.drawing != nullptr) {
        return;
    }
    const std::string_view text = m_text;
    const auto drawing = std::make_shared<Drawing>();
    try {
        *drawing = drawingIn(PackReader(text.substr(entry.place, entry.length)));
    } catch (const PackError& error) {
        const auto linesBefore = std::ranges::count(text.substr(0, entry.place), '\n');
        throw PackError(static_cast<int>(linesBefore) + error.line(), error.what());
    }
    drawing->width = entry.width;
    drawing->height = entry.height;
    entry.drawing = drawing;
}

std::shared_ptr<const Drawing> DrawingPack::of(const Raster& picture) const {
    const Raster::Key key = picture.key();
    const std::lock_guard lock(m_mutex);
    try {
        readIndex();
        const auto found = std::ranges::lower_bound(m_entries, key, {}, &Entry::key);
        if (found == m_entries.end() || found->key != key || found->width != picture.width() ||
            found->height != picture.height()) {
            return nullptr;
        }
        readDrawing(*found);
        return found->drawing;
    } catch (const PackError& error) {
        const std::string line =
            error.line() == 0 ? "" : "line " + std::to_string(error.line()) + ": ";
        throw FileError(m_file, line + error.what());
    }
}

std::optional<Fault> DrawingPack::fault() const {
    const std::lock_guard lock(m_mutex);
    try {
        readIndex();
        for (Entry& entry : m_entries) {
            readDrawing(entry);
        }
        return std::nullopt;
    } catch (const PackError& error) {
        return Fault{error.line(), error.what()};
    }
}

}  // namespace fleetwright
