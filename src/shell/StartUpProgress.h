#pragma once

#include <string>

namespace fleetwright {

/// Where the load of the main window says how far it has come: the start-up window's line.
class StartUpProgress {
public:
    virtual ~StartUpProgress() = default;

    virtual void setText(const std::string& text) = 0;
    /// Paints the start-up window at once.
    virtual void repaint() = 0;
};

/// Thrown by a step of the start that has failed and has said so: the program ends.
struct EndOfProgram {};

/// Where nobody watches the start.
class NoProgress : public StartUpProgress {
public:
    void setText(const std::string&) override {}
    void repaint() override {}
};

}  // namespace fleetwright
