#include "unpackFiles.h"

#include "Error.h"

#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>
#include <vector>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void fail(const fs::path& file, const std::error_code& why) {
    throw FileError(file, "cannot be written: " + why.message());
}

/// Removes what was begun, unless the work has come to its end.
class Unpacking {
public:
    explicit Unpacking(const fs::path& folder)
        : m_folder(folder), m_staging(folder / ".unpacking") {
        std::error_code error;
        fs::remove_all(m_staging, error);  // what a run that was killed has left
        if (!fs::create_directory(m_staging, error)) {
            if (error) {
                fail(folder, error);
            }
            throw FileError(folder, "cannot be written: another run is at work in it");
        }
    }
    Unpacking(const Unpacking&) = delete;
    Unpacking& operator=(const Unpacking&) = delete;
    ~Unpacking() {
        std::error_code ignored;
        fs::remove_all(m_staging, ignored);
        for (const fs::path& file : m_placed) {
            fs::remove(file, ignored);
        }
    }

    void write(const ArchivedFile& file) const {
        const fs::path target = m_staging / file.name;
        std::FILE* const stream = std::fopen(target.string().c_str(), "wb");
        if (stream == nullptr) {
            fail(m_folder / file.name, lastError());
        }
        std::error_code error;
        if (std::fwrite(file.bytes.data(), 1, file.bytes.size(), stream) != file.bytes.size()) {
            error = lastError();
        }
        if (std::fclose(stream) != 0 && !error) {
            error = lastError();
        }
        if (error) {
            fail(m_folder / file.name, error);
        }
    }

    void place(const ArchivedFile& file) {
        const fs::path target = m_folder / file.name;
        std::error_code error;
        const bool isNew = !fs::exists(target, error);
        fs::rename(m_staging / file.name, target, error);
        if (error) {
            fail(target, error);
        }
        if (isNew) {
            m_placed.push_back(target);
        }
    }

    void keep() { m_placed.clear(); }

private:
    static std::error_code lastError() { return {errno, std::generic_category()}; }

    fs::path m_folder;
    fs::path m_staging;
    std::vector<fs::path> m_placed;  // and was not there before
};

}  // namespace

void unpackFiles(std::span<const ArchivedFile> files, const fs::path& folder) {
    Unpacking unpacking(folder);
    for (const ArchivedFile& file : files) {
        unpacking.write(file);
    }
    for (const ArchivedFile& file : files) {
        unpacking.place(file);
    }
    unpacking.keep();
}

}  // namespace fleetwright
