#include "CatalogueFile.h"

#include "FileStamp.h"
#include "readFile.h"
#include "strfcns.h"
#include "text.h"

#include <mutex>
#include <optional>

namespace fleetwright {

namespace {

CatalogueLine cutCatalogueLine(std::string_view line, int number) {
    LineCutter cutter(line);
    return {.number = number,
            .whole = line,
            .name = cutter.next(','),
            .massform = cutter.next(','),
            .costform = cutter.next(','),
            .parentKey = cutter.next(','),
            .categoryKey = cutter.next(','),
            .arclist = cutter.next(','),
            .icon = cutter.rest()};
}

}  // namespace

bool isCatalogueComment(std::string_view line) {
    return line.empty() || line.front() == '#';
}

CatalogueText::CatalogueText(std::string text) : m_text(std::move(text)) {
    // Room for short lines: what is not used of it is never touched, but growing would move all.
    constexpr std::size_t shortLineLength = 40;
    m_lines.reserve(m_text.size() / shortLineLength);
    LineReader reader(m_text);
    std::string_view line;
    while (reader.next(line)) {
        if (!isCatalogueComment(line)) {
            m_lines.push_back(cutCatalogueLine(line, reader.lineNumber()));
        } else if (line.starts_with(rulesMark)) {
            takeRules(line, reader.lineNumber());
        }
    }
}

/// Gives a rules line to the record before it.
void CatalogueText::takeRules(std::string_view line, int number) {
    if (m_lines.empty() || m_lines.back().number != number - 1 || m_lines.back().isCategory()) {
        m_strayRules.push_back(number);
    } else {
        m_lines.back().rules = trimmed(line.substr(rulesMark.size()));
    }
}

/// What was read last, and the stamp that the file had before it was read.
struct CatalogueFile::Cache {
    std::filesystem::path path;
    bool isReadOnce = false;
    std::mutex mutex{};
    std::optional<FileStamp> stamp{};
    std::shared_ptr<const CatalogueText> catalogue{};
};

std::shared_ptr<CatalogueFile::Cache> CatalogueFile::make(std::filesystem::path path) {
    return std::shared_ptr<Cache>(new Cache{.path = std::move(path)});
}

CatalogueFile CatalogueFile::readOnce(const std::filesystem::path& path) {
    CatalogueFile file(path);
    file.m_cache->isReadOnce = true;
    return file;
}

CatalogueFile CatalogueFile::holding(std::shared_ptr<const CatalogueText> catalogue) {
    CatalogueFile file = readOnce({});
    file.m_cache->catalogue = std::move(catalogue);
    return file;
}

const std::filesystem::path& CatalogueFile::path() const {
    return m_cache->path;
}

std::shared_ptr<const CatalogueText> CatalogueFile::read() const {
    const std::lock_guard lock(m_cache->mutex);
    if (m_cache->isReadOnce && m_cache->catalogue) {
        return m_cache->catalogue;
    }
    const std::optional<FileStamp> stamp = fileStamp(m_cache->path);
    if (!stamp || stamp->isFresh || stamp != m_cache->stamp) {
        std::string text = readTextFile(m_cache->path);
        if (!m_cache->catalogue || m_cache->catalogue->text() != text) {
            m_cache->catalogue = std::make_shared<CatalogueText>(std::move(text));
        }
        m_cache->stamp = stamp;
    }
    return m_cache->catalogue;
}

}  // namespace fleetwright
