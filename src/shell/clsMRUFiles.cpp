#include "clsMRUFiles.h"

#include "SettingsStore.h"

#include <algorithm>
#include <exception>

namespace fleetwright {

namespace {

constexpr const char* section = "Files";

std::string keyOf(std::size_t index) {
    return "File" + std::to_string(index + 1);
}

}  // namespace

clsMRUFiles::~clsMRUFiles() {
    if (m_sBaseName.empty()) {
        return;
    }
    try {
        saveList();
    } catch (const std::exception&) {
        // Settings that cannot be written cost the list of recent files, and not the end.
    }
}

void clsMRUFiles::BaseName(const std::string& insArg) {
    if (m_sBaseName.empty()) {
        m_sBaseName = insArg;
        loadList();
    }
}

void clsMRUFiles::addFile(const std::string& insArg) {
    const auto found = std::find(m_sFiles.begin(), m_sFiles.end(), insArg);
    const auto last = found == m_sFiles.end() ? std::prev(m_sFiles.end()) : found;
    std::rotate(m_sFiles.begin(), last, std::next(last));
    m_sFiles.front() = insArg;
}

std::string clsMRUFiles::getFile(std::int16_t inout_iNDX) const {
    const bool isInside = inout_iNDX >= 1 && inout_iNDX <= maxFiles;
    return isInside ? m_sFiles[static_cast<std::size_t>(inout_iNDX - 1)] : std::string();
}

void clsMRUFiles::clearList() {
    if (m_sBaseName.empty()) {
        return;
    }
    for (std::size_t i = 0; i < m_sFiles.size(); ++i) {
        m_settings.write(section, keyOf(i), "");
    }
    loadList();
}

void clsMRUFiles::loadList() {
    for (std::size_t i = 0; i < m_sFiles.size(); ++i) {
        m_sFiles[i] = m_settings.read(section, keyOf(i), "");
    }
}

void clsMRUFiles::saveList() {
    for (std::size_t i = 0; i < m_sFiles.size(); ++i) {
        m_settings.write(section, keyOf(i), m_sFiles[i]);
    }
}

}  // namespace fleetwright
