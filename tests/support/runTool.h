#pragma once

#include <string>
#include <vector>

namespace fleetwright {

struct ToolRun {
    int status = -1;
    std::string output;  ///< what it wrote to standard output
    std::string errors;  ///< what it wrote to standard error
};

/// What the tool takes for standard output.
enum class ToolOutput { File, Terminal };

/// Runs the delivered command line tool in `folder`, with nothing in its environment but what is
/// given, "NAME=value".
ToolRun runTool(const std::string& folder, std::vector<std::string> arguments,
                std::string variable = {}, ToolOutput kind = ToolOutput::File);

}  // namespace fleetwright
