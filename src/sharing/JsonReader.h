#pragma once

#include "shipJson.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <span>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

namespace fleetwright {

/// The value of the key "format".
inline constexpr const char* shipJsonFormat = "FleetWright ship 1";
/// The word for no streamlining, for which a ship file has no line.
inline constexpr const char* noStreamliningWord = "None";

/// Reads the ships of a JSON text as the parser comes upon them, and keeps nothing else: what
/// others have written can be large and deep.
class JsonReader : private nlohmann::json_sax<nlohmann::json> {
public:
    explicit JsonReader(const std::string& text) : m_text(text), m_stream(text) {}

    /// Can be called once. Throws FaultError.
    std::vector<JsonShip> read();

private:
    /// A text, a whole number, or anything else.
    using Value = std::variant<std::monostate, std::string, std::int64_t>;

    /// A key of an object, and what becomes of its value.
    struct Field {
        std::string_view key;
        std::string_view wanted = {};  ///< what its value has to be; nothing for a figure
        bool isNeeded = true;
        /// Takes a value, or returns false if it is not as wanted.
        bool (*take)(JsonReader& reader, const Value& value) = nullptr;
    };
    static const Field shipFields[], systemFields[];

    /// What the parser is in.
    enum class Place { Text, Ships, Ship, Systems, System, Figure };

    // What the parser comes upon.
    bool null() override { return take({}); }
    bool boolean(bool) override { return take({}); }
    bool number_integer(std::int64_t number) override { return take(number); }
    bool number_unsigned(std::uint64_t number) override;
    bool number_float(double number, const std::string& text) override;
    bool string(std::string& text) override { return take(text); }
    bool binary(nlohmann::json::binary_t&) override { return take({}); }
    bool start_object(std::size_t) override;
    bool key(std::string& name) override;
    bool end_object() override;
    bool start_array(std::size_t) override;
    bool end_array() override;
    bool parse_error(std::size_t, const std::string&,
                     const nlohmann::detail::exception& error) override;

    bool take(const Value& value);
    bool open(Place place);
    bool isFigure() const;
    [[noreturn]] void failUnwanted();
    [[noreturn]] void fail(const std::string& fault);
    int line();

    ShipDesign& design() { return m_ships.back().design; }

    const std::string& m_text;
    std::istringstream m_stream;
    std::size_t m_counted = 0;  ///< bytes of the text whose line ends are in `m_line`
    int m_line = 1;
    std::vector<Place> m_places = {Place::Text};
    const Field* m_field = nullptr;  ///< that of the last key, in a ship or a system
    std::vector<const Field*> m_fieldsOfShip, m_fieldsOfSystem;  ///< those there were
    std::vector<JsonShip> m_ships;
};

}  // namespace fleetwright
