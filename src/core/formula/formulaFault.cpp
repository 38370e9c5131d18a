#include "formulaFault.h"

#include "Fault.h"
#include "FormulaReader.h"
#include "text.h"

#include <algorithm>

namespace fleetwright {

namespace {

/// The word, number or character at the start of `text`, as the author will recognise it.
std::string quoted(std::string_view text) {
    if (text.empty()) {
        return "the end";
    }
    const auto isWord = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               c == '_';
    };
    const auto wordEnd = std::find_if_not(text.begin(), text.end(), isWord);
    const auto length = static_cast<std::size_t>(wordEnd - text.begin());
    return quote(text.substr(0, length == 0 ? characterLength(text) : length));
}

std::string describe(FormulaReader::Fault fault, std::string_view rest) {
    using Fault = FormulaReader::Fault;
    switch (fault) {
    case Fault::OperandMissing:
        return "a number, a name or ( is expected here, not " + quoted(rest);
    case Fault::UnknownName:
        return "unknown name " + quoted(rest);
    case Fault::ParenthesisOpen:
        return ") is expected here, not " + quoted(rest);
    case Fault::ArgumentsMissing:
        return "a function needs its arguments in ( )";
    case Fault::ArgumentsTooMany:
        return "this function takes one argument";
    case Fault::ColonMissing:
        return ": is expected here, not " + quoted(rest);
    case Fault::TooDeep:
        return "nested deeper than " + std::to_string(FormulaReader::mostLevels) + " levels";
    case Fault::Unexpected:
    case Fault::None:
        break;
    }
    return "an operator or the end is expected here, not " + quoted(rest);
}

}  // namespace

std::optional<FormulaFault> formulaFault(std::string_view formula) {
    // Whether a text can be read does not depend on the ship.
    const std::string text(formula);
    FormulaReader reader(text.c_str(), {});
    reader.read();
    if (reader.fault() == FormulaReader::Fault::None) {
        return std::nullopt;
    }
    const std::string_view readable = std::string_view(text).substr(0, text.find('\0'));
    const auto place = static_cast<std::size_t>(reader.faultPlace() - text.c_str());
    return FormulaFault{static_cast<int>(characterCount(readable.substr(0, place))) + 1,
                        describe(reader.fault(), readable.substr(place))};
}

}  // namespace fleetwright
