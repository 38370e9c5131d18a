#include "DrawingPack.h"

#include "Error.h"
#include "PackReader.h"
#include "pathSteps.h"
#include "readFile.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <string_view>
#include <system_error>
#include <utility>

namespace fleetwright {

namespace {

constexpr std::string_view firstLine = "FleetWright drawings 1";

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
