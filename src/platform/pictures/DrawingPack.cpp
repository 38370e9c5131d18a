#include "DrawingPack.h"

#include "Error.h"
#include "PackReader.h"
#include "pathSteps.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <string_view>
#include <system_error>
#include <utility>

namespace fleetwright {

namespace {

constexpr std::string_view firstLine = "FleetWright drawings 2";

/// The most that a line of the index takes, in bytes.
constexpr std::size_t longestLine = 100;
/// What is read at first, in bytes: the index of all delivered drawings, of which a sheet needs
/// few.
constexpr std::size_t firstPiece = 100'000;

constexpr int largest = 1'000'000;  ///< of all numbers, and more than any picture has pixels

bool isPath(std::string_view text) {
    const auto isFar = [](const PathStep::Point& point) {
        return !(std::abs(point.x) < largest && std::abs(point.y) < largest);
    };
    bool isWell = text.starts_with('M');
    while (isWell && !text.empty()) {
        const std::optional<PathStep> step = takePathStep(text);
        isWell = step && std::ranges::none_of(step->points, isFar);
    }
    return isWell;
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

Raster::Key readKey(PackReader& reader) {
    constexpr std::size_t digits = 16;
    const std::string_view key = reader.word();
    return {reader.hexadecimal(key.substr(0, digits), digits),
            reader.hexadecimal(key.substr(std::min(digits, key.size())), digits)};
}

/// How many drawings there are.
std::size_t readHead(PackReader& reader, std::size_t most) {
    reader.nextLine();
    if (reader.restOfLine() != firstLine) {
        reader.fail("this is no pack of drawings, or one of another version");
    }
    reader.nextLine();
    return reader.wholeNumber(most);
}

}  // namespace

void DrawingPack::readEntry(PackReader& reader) const {
    Entry entry;
    entry.picture.key = readKey(reader);
    entry.picture.width = static_cast<int>(reader.wholeNumber(largest));
    entry.picture.height = static_cast<int>(reader.wholeNumber(largest));
    entry.length = reader.wholeNumber(m_pack->size());
    if (!m_entries.empty()) {
        const Entry& before = m_entries.back();
        entry.place = before.place + before.length;
        if (entry.picture.key <= before.picture.key) {
            reader.fail("the keys are not in their order");
        }
    }
    m_files.emplace_back(readKey(reader), m_entries.size());
    m_entries.push_back(std::move(entry));
}

void DrawingPack::readIndex() const {
    std::error_code unknown;
    if (m_isRead ||
        std::filesystem::status(m_file, unknown).type() == std::filesystem::file_type::not_found) {
        return;
    }
    m_entries.clear();
    m_files.clear();
    m_pack.emplace(m_file);
    const std::size_t size = m_pack->size();
    std::string text = m_pack->piece(0, std::min(firstPiece, size));
    PackReader reader(text);
    const std::size_t count = readHead(reader, size);
    const std::size_t most = std::min(text.size() + count * longestLine, size);
    if (count * longestLine > reader.rest().size()) {
        text += m_pack->piece(text.size(), most - text.size());
        reader = PackReader(text);
        readHead(reader, size);
    }
    while (m_entries.size() < count) {
        reader.nextLine();
        readEntry(reader);
    }
    reader.endLine();
    // As yet, places are behind the index.
    const std::size_t indexEnd = text.size() - reader.rest().size();
    const std::size_t end =
        indexEnd + (m_entries.empty() ? 0 : m_entries.back().place + m_entries.back().length);
    if (end != size) {
        throw FaultError({0, end > size ? "is cut short" : "goes on behind its end"});
    }
    for (Entry& entry : m_entries) {
        entry.place += indexEnd;
    }
    std::ranges::sort(m_files);
    m_isRead = true;
}

void DrawingPack::readDrawing(Entry& entry) const {
    if (entry.drawing != nullptr) {
        return;
    }
    const std::string text = m_pack->piece(entry.place, entry.length);
    const auto drawing = std::make_shared<Drawing>();
    try {
        *drawing = drawingIn(PackReader(text));
    } catch (const FaultError& error) {
        const auto linesBefore = std::ranges::count(m_pack->piece(0, entry.place), '\n');
        throw FaultError({static_cast<int>(linesBefore) + error.fault().line, error.what()});
    }
    drawing->width = entry.picture.width;
    drawing->height = entry.picture.height;
    entry.drawing = drawing;
}

void DrawingPack::fail(const FaultError& error) const {
    const Fault fault = error.fault();
    const std::string line = fault.line == 0 ? "" : "line " + std::to_string(fault.line) + ": ";
    throw FileError(m_file, line + fault.text);
}

std::shared_ptr<const Drawing> DrawingPack::of(const Raster& picture) const {
    const Raster::Key key = picture.key();
    const std::lock_guard lock(m_mutex);
    try {
        readIndex();
        const auto found = std::ranges::lower_bound(
            m_entries, key, {}, [](const Entry& entry) { return entry.picture.key; });
        if (found == m_entries.end() || found->picture.key != key ||
            found->picture.width != picture.width() || found->picture.height != picture.height()) {
            return nullptr;
        }
        readDrawing(*found);
        return found->drawing;
    } catch (const FaultError& error) {
        fail(error);
    }
}

std::optional<DrawingPack::Picture> DrawingPack::pictureIn(std::string_view fileBytes) const {
    const Raster::Key key = Raster::fileKey(fileBytes);
    const std::lock_guard lock(m_mutex);
    try {
        readIndex();
    } catch (const FaultError& error) {
        fail(error);
    }
    const auto found = std::ranges::lower_bound(m_files, std::pair(key, std::size_t{0}));
    if (found == m_files.end() || found->first != key) {
        return std::nullopt;
    }
    return m_entries[found->second].picture;
}

std::optional<Fault> DrawingPack::fault() const {
    const std::lock_guard lock(m_mutex);
    try {
        readIndex();
        for (Entry& entry : m_entries) {
            readDrawing(entry);
        }
        return std::nullopt;
    } catch (const FaultError& error) {
        return error.fault();
    }
}

}  // namespace fleetwright
