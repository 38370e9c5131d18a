#include "RecoveryFolder.h"

#include "Error.h"
#include "applicationFolder.h"
#include "paths.h"
#include "saveFile.h"
#include "text.h"

#include <algorithm>
#include <random>
#include <string_view>
#include <system_error>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view extension = ".shp";
constexpr std::string_view lockExtension = ".lock";
constexpr char beforeMark = '~';

/// A ship's name as the name of a file: without what some file system does not take, and short.
std::string fileNameOf(const std::string& shipName) {
    constexpr std::size_t mostCharacters = 60;
    constexpr std::size_t mostBytes = 200;  // file systems take 255, and time and mark follow
    constexpr std::string_view forbidden = "/\\:*?\"<>|~";
    std::string name;
    for (const char c : shipName) {
        const bool isControl = static_cast<unsigned char>(c) < ' ';
        name += isControl || forbidden.find(c) != std::string_view::npos ? '_' : c;
    }
    if (const std::size_t length = characterCount(name); length > mostCharacters) {
        name = withoutLastCharacters(name, length - mostCharacters);
    }
    while (name.size() > mostBytes) {
        name = withoutLastCharacters(name, 1);
    }
    const std::size_t first = name.find_first_not_of(" .");
    return first == std::string::npos ? "Unnamed" : name.substr(first);
}

/// The mark of the run that a file belongs to; empty for one that is kept.
std::string markOf(const fs::path& file) {
    const std::string mark = file.extension().string();
    return mark.size() > extension.size() + 1 && mark.starts_with(extension) &&
                   mark[extension.size()] == beforeMark
               ? mark.substr(extension.size() + 1)
               : std::string();
}

bool isDesign(const fs::path& file) {
    return file.extension() == extension || !markOf(file).empty();
}

fs::file_time_type timeOf(const fs::path& file) {
    std::error_code gone;
    return fs::last_write_time(file, gone);
}

}  // namespace

fs::path RecoveryFolder::ofUser() {
    return userDataFolder() / "recovered";
}

RecoveryFolder::RecoveryFolder(fs::path folder, std::function<std::string()> now)
    : m_folder(std::move(folder)), m_now(std::move(now)) {}

RecoveryFolder::~RecoveryFolder() {
    if (m_lock) {
        std::error_code ignored;
        fs::remove(lockOf(m_mark), ignored);
    }
}

fs::path RecoveryFolder::lockOf(const std::string& mark) const {
    return m_folder / (mark + std::string(lockExtension));
}

/// Gives this run its mark, if it has none yet.
void RecoveryFolder::takeMark() {
    while (!m_lock || m_lock->isLost()) {
        m_mark = std::to_string(std::random_device()());
        saveFile(lockOf(m_mark), "");
        m_lock.emplace(lockOf(m_mark));
    }
}

/// Whether the run with this mark goes on. The lock of one that does not is taken away.
bool RecoveryFolder::isRunning(const std::string& mark) const {
    const fs::path file = lockOf(mark);
    const FileLock lock(file);
    if (lock.isHeld()) {
        std::error_code ignored;
        fs::remove(file, ignored);
    }
    return lock.isWithOthers();
}

std::vector<RecoveryFolder::Design> RecoveryFolder::keepLeftBehind() {
    std::vector<Design> leftBehind;
    for (const fs::path& lock : listFolder(m_folder, lockExtension)) {
        isRunning(lock.stem().string());  // of runs that have left nothing else
    }
    for (const Design& design : list(m_folder)) {
        const std::string mark = markOf(design.file);
        if (!mark.empty() && mark != m_mark && !isRunning(mark)) {
            const fs::path kept = keepFile(design.file);
            leftBehind.push_back({kept.stem().string(), kept});
        }
    }
    takeOldestAway();
    std::erase_if(leftBehind, [](const Design& design) { return !fs::exists(design.file); });
    return leftBehind;
}

void RecoveryFolder::put(const std::string& shipName, const std::string& shipFile) {
    makeUserFolder(m_folder);
    takeMark();
    const std::string ship = fileNameOf(shipName);
    if (!m_ownFile.empty() && ship == m_ownShip) {
        saveFile(m_ownFile, shipFile);
        return;
    }
    const fs::path file =
        m_folder / (ship + ' ' + m_now() + std::string(extension) + beforeMark + m_mark);
    saveFile(file, shipFile);
    forget();  // under its old name
    m_ownFile = file;
    m_ownShip = ship;
}

void RecoveryFolder::keep() {
    if (!m_ownFile.empty()) {
        keepFile(m_ownFile);
        m_ownFile.clear();
        takeOldestAway();
    }
}

void RecoveryFolder::forget() {
    if (!m_ownFile.empty()) {
        std::error_code gone;
        fs::remove(m_ownFile, gone);
        m_ownFile.clear();
    }
}

/// Takes the mark of its run off a file. Never over another one.
fs::path RecoveryFolder::keepFile(const fs::path& file) {
    const fs::path plain = m_folder / file.stem();
    fs::path kept = plain.string() + std::string(extension);
    for (int i = 2; fs::exists(kept); ++i) {
        kept = plain.string() + " (" + std::to_string(i) + ')' + std::string(extension);
    }
    std::error_code error;
    fs::rename(file, kept, error);
    return error ? file : kept;
}

void RecoveryFolder::takeOldestAway() {
    std::vector<Design> designs;
    try {
        designs = list(m_folder);
    } catch (const FileError&) {
        // What cannot be listed stays.
    }
    std::size_t kept = 0;
    for (const Design& design : designs) {
        if (markOf(design.file).empty() && ++kept > mostKept) {
            std::error_code gone;
            fs::remove(design.file, gone);
        }
    }
}

std::vector<RecoveryFolder::Design> RecoveryFolder::list(const fs::path& folder) {
    std::vector<Design> designs;
    for (const fs::path& file : listFolder(folder, "")) {
        if (isDesign(file)) {
            designs.push_back({file.stem().string(), file});
        }
    }
    std::sort(designs.begin(), designs.end(), [](const Design& a, const Design& b) {
        const auto timeOfA = timeOf(a.file);
        const auto timeOfB = timeOf(b.file);
        return timeOfA != timeOfB ? timeOfA > timeOfB : a.name > b.name;
    });
    return designs;
}

}  // namespace fleetwright
