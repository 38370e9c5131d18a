#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace fleetwright {

/// The printer that the user chooses. Choosing, printing and ending a document throw Error where
/// there is none or it fails.
class Printer {
public:
    virtual ~Printer() = default;

    /// What the documents are called that are printed from now on, and their files.
    virtual void setTitle(const std::string& title) = 0;

    /// Lets the user choose the printer; the number of copies wanted, or nothing when it was
    /// cancelled.
    virtual std::optional<int> choose() = 0;

    virtual std::string fontName() const = 0;
    virtual void setFontName(const std::string& name) = 0;
    virtual int fontSize() const = 0;  ///< points
    virtual void setFontSize(int points) = 0;

    /// Prints a line; one that is too long goes on in the next.
    virtual void printLine(std::string_view line) = 0;
    /// Sends what was printed; the next line begins another document.
    virtual void endDocument() = 0;
};

}  // namespace fleetwright
