#pragma once

#include "paths.h"
#include "text.h"

#include <filesystem>
#include <map>
#include <string>

namespace fleetwright {

/// Which files the results of a run go to, so that none takes the place of another. Names that
/// differ in their case alone are one file, as some file systems have it.
class ResultFiles {
public:
    /// Notes that a file is to hold what is made of an input. If it holds the result of one before
    /// already, returns that one; else null.
    const std::string* takenBy(const std::filesystem::path& file, const std::string& input) {
        const auto [found, isNew] = m_inputs.try_emplace(toCapitals(pathText(file)), input);
        return isNew ? nullptr : &found->second;
    }

private:
    std::map<std::string, std::string> m_inputs;  // by their files, in capitals
};

}  // namespace fleetwright
