#include "StagedFiles.h"

#include "Error.h"
#include "OpenFile.h"
#include "fileCalls.h"

#include <set>
#include <string>
#include <system_error>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

void checkWritten(const fs::path& file, const std::error_code& error) {
    if (error) {
        throw FileError(file, "cannot be written: " + error.message());
    }
}

std::error_code writeNew(const fs::path& file, std::string_view bytes) {
    std::error_code error;
    OpenFile open(file, OpenFile::Use::Create, error);
    error = error ? error : open.write(bytes);
    if (error) {
        return error;
    }
    open.startSync();
    return open.close();
}

std::error_code syncFile(const fs::path& file) {
    std::error_code error;
    OpenFile open(file, OpenFile::Use::Write, error);
    error = error ? error : open.sync();
    return error ? error : open.close();
}

}  // namespace

StagedFiles::StagedFiles(fs::path folder) : m_folder(std::move(folder)) {
    checkWritten(m_folder.parent_path(), makeNewFolder(m_folder));
}

StagedFiles::~StagedFiles() {
    [[maybe_unused]] std::error_code left = removeTree(m_folder);
    for (const fs::path& file : m_placed) {
        left = removeFile(file);
    }
}

fs::path StagedFiles::stagedPath(std::size_t index) const {
    return m_folder / std::to_string(index);
}

void StagedFiles::add(const fs::path& target, std::string_view bytes) {
    checkWritten(target, writeNew(stagedPath(m_targets.size()), bytes));
    m_targets.push_back(target);
}

void StagedFiles::place() {
    for (std::size_t i = 0; i < m_targets.size(); ++i) {
        checkWritten(m_targets[i], syncFile(stagedPath(i)));
    }
    std::set<fs::path> folders = {m_folder.parent_path()};
    for (std::size_t i = 0; i < m_targets.size(); ++i) {
        const fs::path& target = m_targets[i];
        std::error_code unknown;
        const fs::file_status before = fs::symlink_status(target, unknown);
        if (!fs::status_known(before)) {
            checkWritten(target, unknown);
        }
        const bool isNew = !fs::exists(before);
        checkWritten(target, renameFile(stagedPath(i), target));
        if (isNew) {
            m_placed.push_back(target);
        }
        folders.insert(target.parent_path());
    }
    // Empty now. Were it taken away behind the syncs, a power cut could bring it back.
    checkWritten(m_folder, removeTree(m_folder));
    for (const fs::path& folder : folders) {
        checkWritten(folder, syncFolder(folder));
    }
    m_placed.clear();
}

}  // namespace fleetwright
