#include "JsonReader.h"

#include "ShipFileLine.h"
#include "designWords.h"
#include "text.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace fleetwright {

namespace {

constexpr std::int64_t leastWhole = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t mostWhole = std::numeric_limits<std::int32_t>::max();
constexpr std::size_t mostLevels = 100;

constexpr std::string_view wantedName = "a text without colons, line ends and blanks at its ends";
constexpr std::string_view wantedSystem =
    "a text without colons, commas, line ends and blanks at its ends";

/// Puts a number of a range into a field; false if it is none.
template <typename Value>
bool takeNumber(const Value& value, std::int64_t least, std::int64_t most, std::int32_t& field) {
    const auto* const number = std::get_if<std::int64_t>(&value);
    if (number == nullptr || *number < least || *number > most) {
        return false;
    }
    field = static_cast<std::int32_t>(*number);
    return true;
}

/// Puts a text into a field if it comes back from a line of a ship file with this key.
template <typename Value>
bool takeName(const Value& value, ShipKey key, const std::string& behind, std::string& field) {
    const auto* const text = std::get_if<std::string>(&value);
    if (text == nullptr || text->find_first_of("\r\n") != std::string::npos) {
        return false;
    }
    std::string line = shipLine(key, *text + behind);
    field = *text;
    return cutShipFileLine(line).value == *text;
}

/// Puts the code of a word into a field; `lineOf` has the words, with exact letters.
template <typename Value>
bool takeWord(const Value& value, std::optional<std::int32_t> (*codeOf)(std::string_view),
              std::string (*lineOf)(std::int32_t), std::int32_t& field) {
    const auto* const word = std::get_if<std::string>(&value);
    const std::optional<std::int32_t> code = word == nullptr ? std::nullopt : codeOf(*word);
    field = code.value_or(field);
    return code && wordOf(lineOf(*code)) == *word;
}

}  // namespace

const JsonReader::Field JsonReader::shipFields[] = {
    {"format", R"("FleetWright ship 1")", true,
     [](JsonReader&, const Value& value) { return value == Value(shipJsonFormat); }},
    {"file", "a text", false,
     [](JsonReader& reader, const Value& value) {
         const auto* const text = std::get_if<std::string>(&value);
         reader.m_ships.back().file = text == nullptr ? "" : text->substr(0, text->rfind('.'));
         return text != nullptr;
     }},
    {"shipName", wantedName, true,
     [](JsonReader& reader, const Value& value) {
         return takeName(value, ShipKey::ShipName, "", reader.design().shipName);
     }},
    {"designerName", wantedName, true,
     [](JsonReader& reader, const Value& value) {
         return takeName(value, ShipKey::DesignerName, "", reader.design().designerName);
     }},
    {"mass", "a whole number from 2 to 2147483647", true,
     [](JsonReader& reader, const Value& value) {
         return takeNumber(value, smallestMass, mostWhole, reader.design().hull.mass);
     }},
    {"thrust", "a whole number of 32 bits", true,
     [](JsonReader& reader, const Value& value) {
         return takeNumber(value, leastWhole, mostWhole, reader.design().hull.thrust);
     }},
    {"type", R"("Warship", "Merchant", "Q-Ship", "Starbase", "Space Station" or "Q-Space Station")",
     true,
     [](JsonReader& reader, const Value& value) {
         return takeWord(value, hullTypeOf, hullLine, reader.design().hull.hullType);
     }},
    {"streamlining", R"("None", "Partial" or "Full")", false,
     [](JsonReader& reader, const Value& value) {
         return value == Value(noStreamliningWord) ||
                takeWord(value, streamlineOf, streamlineLine, reader.design().hull.streamline);
     }},
    {"armor", "0, 1 or 2", false,
     [](JsonReader& reader, const Value& value) {
         return takeNumber(value, 0, mostArmor, reader.design().hull.armor);
     }},
    {"ftl", R"("None", "Normal" or "Tug")", true,
     [](JsonReader& reader, const Value& value) {
         return takeWord(value, ftlOf, ftlLine, reader.design().hull.ftl);
     }},
    {"systems", "an array of objects", false, [](JsonReader&, const Value&) { return false; }},
    {"figures", {}, false}};

const JsonReader::Field JsonReader::systemFields[] = {
    {"name", wantedSystem, true,
     [](JsonReader& reader, const Value& value) {
         return takeName(value, ShipKey::System, ", 1", reader.design().systems.back().first);
     }},
    {"amount", "a whole number from 1 to 2147483647", true,
     [](JsonReader& reader, const Value& value) {
         return takeNumber(value, 1, mostWhole, reader.design().systems.back().second);
     }},
    {"mass", {}, false},
    {"cost", {}, false}};

std::vector<JsonShip> JsonReader::read() {
    if (m_text.empty()) {  // which each version of the library puts in words of its own
        fail("is no JSON: it is empty");
    }
    nlohmann::json_sax<nlohmann::json>* const events = this;
    nlohmann::json::sax_parse(m_stream, events);
    return std::move(m_ships);
}

bool JsonReader::number_unsigned(std::uint64_t number) {
    return take(number > std::uint64_t{mostWhole} ? Value() : static_cast<std::int64_t>(number));
}

/// A fraction of zero makes a number no less whole.
bool JsonReader::number_float(double number, const std::string&) {
    const bool isWhole = std::abs(number) <= double(mostWhole) && std::trunc(number) == number;
    return take(isWhole ? Value(static_cast<std::int64_t>(number)) : Value());
}

bool JsonReader::start_object(std::size_t) {
    const Place place = m_places.back();
    if (place == Place::Text || place == Place::Ships) {
        m_ships.emplace_back().line = line();
        m_fieldsOfShip.clear();
        return open(Place::Ship);
    }
    if (place == Place::Systems) {
        design().systems.emplace_back();
        m_ships.back().systemLines.push_back(line());
        m_fieldsOfSystem.clear();
        return open(Place::System);
    }
    return isFigure() ? open(Place::Figure) : (failUnwanted(), false);
}

bool JsonReader::start_array(std::size_t) {
    if (m_places.back() == Place::Text) {
        return open(Place::Ships);
    }
    if (m_places.back() == Place::Ship && m_field->key == "systems") {
        return open(Place::Systems);
    }
    return isFigure() ? open(Place::Figure) : (failUnwanted(), false);
}

bool JsonReader::key(std::string& name) {
    if (m_places.back() == Place::Figure) {
        return true;
    }
    const bool isShip = m_places.back() == Place::Ship;
    const std::span<const Field> fields =
        isShip ? std::span<const Field>(shipFields) : std::span<const Field>(systemFields);
    const auto field = std::ranges::find(fields, name, &Field::key);
    if (field == fields.end()) {
        fail("a " + std::string(isShip ? "ship" : "system") + " has no " + quote(name));
    }
    std::vector<const Field*>& earlier = isShip ? m_fieldsOfShip : m_fieldsOfSystem;
    if (std::ranges::find(earlier, &*field) != earlier.end()) {
        fail("a second " + quote(name));
    }
    m_field = earlier.emplace_back(&*field);
    return true;
}

bool JsonReader::end_object() {
    const Place place = m_places.back();
    m_places.pop_back();
    if (place == Place::Figure) {
        return true;
    }
    const bool isShip = place == Place::Ship;
    const std::vector<const Field*>& there = isShip ? m_fieldsOfShip : m_fieldsOfSystem;
    for (const Field& field :
         isShip ? std::span<const Field>(shipFields) : std::span<const Field>(systemFields)) {
        if (field.isNeeded && std::ranges::find(there, &field) == there.end()) {
            const JsonShip& ship = m_ships.back();
            throw FaultError(
                {isShip ? ship.line : ship.systemLines.back(),
                 std::string(isShip ? "a ship" : "a system") + " without " + quote(field.key)});
        }
    }
    return true;
}

bool JsonReader::end_array() {
    m_places.pop_back();
    return true;
}

/// Says what the library says behind its own names for what is wrong and for the place.
bool JsonReader::parse_error(std::size_t, const std::string&,
                             const nlohmann::detail::exception& error) {
    std::string_view words = error.what();
    for (const std::string_view end : {"] ", ", column ", ": "}) {
        if (const std::size_t at = words.find(end); at < words.find('\'')) {
            words.remove_prefix(at + end.size());
        }
    }
    const bool isJson = dynamic_cast<const nlohmann::json::out_of_range*>(&error) != nullptr;
    fail((isJson ? "" : "is no JSON: ") + shownText(words));
}

bool JsonReader::take(const Value& value) {
    if (isFigure()) {
        return true;
    }
    const Place place = m_places.back();
    if ((place != Place::Ship && place != Place::System) || !m_field->take(*this, value)) {
        failUnwanted();
    }
    return true;
}

bool JsonReader::open(Place place) {
    m_places.push_back(place);
    if (m_places.size() > mostLevels) {
        fail("is nested too deep");
    }
    return true;
}

/// Whether a value here is passed over.
bool JsonReader::isFigure() const {
    const Place place = m_places.back();
    return place == Place::Figure ||
           ((place == Place::Ship || place == Place::System) && m_field->wanted.empty());
}

void JsonReader::failUnwanted() {
    switch (m_places.back()) {
    case Place::Text:
        fail("is neither a ship nor an array of ships");
    case Place::Ships:
        fail("a ship is an object");
    case Place::Systems:
        fail("a system is an object");
    default:
        fail(quote(m_field->key) + " has to be " + std::string(m_field->wanted));
    }
}

void JsonReader::fail(const std::string& fault) {
    throw FaultError({line(), fault});
}

/// The line that the parser has come to. It has read one character beyond a number, which may be a
/// line's end and does not count yet.
int JsonReader::line() {
    const auto at = static_cast<std::size_t>(
        std::streamoff(m_stream.rdbuf()->pubseekoff(0, std::ios::cur, std::ios::in)));
    const std::size_t end = std::clamp(at, m_counted + 1, m_text.size() + 1) - 1;
    m_line += static_cast<int>(
        std::count(m_text.begin() + std::ptrdiff_t(m_counted),
                   m_text.begin() + std::ptrdiff_t(std::min(end, m_text.size())), '\n'));
    m_counted = end;
    return m_line;
}

}  // namespace fleetwright
