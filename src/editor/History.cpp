#include "History.h"

#include "Clock.h"
#include "paths.h"
#include "stepName.h"

#include <cassert>
#include <filesystem>
#include <system_error>
#include <utility>

namespace fleetwright {

namespace {

bool isOneFile(const std::string& one, const std::string& other) {
    std::error_code unknown;
    return one == other || std::filesystem::equivalent(nativePath(one), nativePath(other), unknown);
}

}  // namespace

History::History(const DesignMoment& start, const std::string& safe) : m_now(start) {
    m_marks.push_back({0, 0, 0});
    begin(start, {.kind = {}, .safe = safe, .came = {}, .found = {}});
    m_marks[0].savedAs = start.ship.g_bSaved ? 1 : 0;
}

std::uint32_t History::numberOf(const std::string& text) {
    const auto [found, isNew] =
        m_numbers.try_emplace(text, static_cast<std::uint32_t>(m_texts.size()));
    if (isNew) {
        m_texts.push_back(&found->first);
    }
    return found->second;
}

std::string_view History::step(std::size_t number) const {
    const std::size_t from = m_marks[number].end;
    return std::string_view(m_steps).substr(from, m_marks[number + 1].end - from);
}

void History::setFile(Document& document, const ShipNames& names) {
    document.g_sSaveName = numberOf(names.g_sSaveName);
    document.g_sTrimmedFileName = numberOf(names.g_sTrimmedFileName);
    document.origin = numberOf(names.origin);
}

/// Begins a document behind that of now.
void History::begin(const DesignMoment& moment, const News& news) {
    Document next = {.catalogue = moment.catalogue,
                     .safe = news.safe,
                     .g_sSaveName = 0,
                     .g_sTrimmedFileName = 0,
                     .origin = 0,
                     .came = numberOf(news.came),
                     .found = {}};
    setFile(next, moment.ship);
    m_documents.push_back(std::move(next));
}

bool History::joins(const News& news) const {
    constexpr std::uint32_t second = 1000;
    return canUndo() && !news.kind.empty() && news.kind == m_kind && !canRedo() &&
           ticksBetween(m_time, news.time) <= second;
}

/// What could be redone is gone.
void History::cut() {
    m_steps.resize(m_marks[m_at].end);
    m_marks.resize(m_at + 1);
    m_documents.resize(m_marks[m_at].document + 1);
}

/// A step from the mark of now, which is the last one, into the last document.
void History::push(std::string_view delta) {
    m_steps += delta;
    m_marks.push_back({m_steps.size(), static_cast<std::uint32_t>(m_documents.size() - 1), 0});
    ++m_at;
}

void History::note(const DesignMoment& moment, const News& news) {
    const bool isDesignOther = !isSameDesign(m_now, moment);
    const bool isFileOther = !news.isSaved && !isSameFile(m_now.ship, moment.ship);
    const bool isOther = isFileOther || !isSameCatalogue(moment.catalogue, document().catalogue) ||
                         (news.isReplaced && isDesignOther);
    if (isOther || isDesignOther) {
        if (!isOther && joins(news)) {
            applyDelta(step(m_at - 1), Way::Back, m_now);
            --m_at;
        }
        cut();
        if (isOther) {
            begin(moment, news);
        }
        const bool isStep = isOther || !isSameDesign(m_now, moment);
        if (isStep) {
            push(deltaBetween(m_now, moment));
        }
        // What has come back to where it began is no step, and none can join the one before it.
        m_kind = isStep && !isOther ? news.kind : std::string_view();
        m_time = news.time;
    }
    if (news.isSaved) {
        markSaved(moment.ship);
    } else if (news.isReplaced && moment.ship.g_bSaved && !moment.ship.g_sSaveName.empty()) {
        markRead(moment.ship, news.safe);
    }
    arriveAt(moment, news);
}

void History::adopt(const StoredSteps& steps, const DesignMoment& moment, const News& news) {
    cut();
    begin(moment, news);
    push(deltaBetween(m_now, steps.first()));
    for (const std::string& each : steps.steps) {
        push(each);
    }
    m_at -= steps.steps.size() - steps.at;
    m_kind.clear();
    arriveAt(moment, news);
}

void History::arriveAt(const DesignMoment& moment, const News& news) {
    m_marks[m_at].savedAs = moment.ship.g_bSaved ? document().version : 0;
    document().safe = news.safe;
    if (news.isReplaced) {
        document().found = news.found;
    }
    m_now = moment;
    m_now.catalogue = document().catalogue;
}

/// The file of this document holds the design of now, and nothing else any more.
void History::markSaved(const ShipNames& names) {
    m_kind.clear();
    setFile(document(), names);
    ++document().version;
    document().found.clear();
    loseFile(names, [this](const Document& other) { return &other != &document(); });
}

/// The file of this document was read. Others that are in it may not be what it was at their time.
void History::markRead(const ShipNames& names, const std::string& safe) {
    loseFile(names, [&safe](const Document& other) { return other.safe != safe; });
}

/// What these documents of a file hold is in no file any more.
void History::loseFile(const ShipNames& names, const std::function<bool(const Document&)>& which) {
    std::map<std::uint32_t, bool> areFile;
    for (Document& other : m_documents) {
        const auto [known, isNew] = areFile.try_emplace(other.g_sSaveName, false);
        if (isNew) {
            known->second = isOneFile(*m_texts[other.g_sSaveName], names.g_sSaveName);
        }
        if (known->second && which(other)) {
            ++other.version;
            other.safe.clear();
            other.found.clear();
        }
    }
}

const DesignMoment& History::go(Way way) {
    const bool isForth = way == Way::Forth;
    [[maybe_unused]] const bool isWell = applyDelta(step(isForth ? m_at : m_at - 1), way, m_now);
    assert(isWell);
    isForth ? ++m_at : --m_at;
    m_kind.clear();
    const Document& here = document();
    m_now.ship.g_sSaveName = *m_texts[here.g_sSaveName];
    m_now.ship.g_sTrimmedFileName = *m_texts[here.g_sTrimmedFileName];
    m_now.ship.origin = *m_texts[here.origin];
    m_now.ship.g_bSaved = m_marks[m_at].savedAs == here.version;
    m_now.catalogue = here.catalogue;
    return m_now;
}

bool History::leavesDocument(Way way) const {
    const std::size_t other = way == Way::Forth ? m_at + 1 : m_at - 1;
    return m_marks[other].document != m_marks[m_at].document;
}

bool History::isAhead() const {
    return canRedo() && !leavesDocument(Way::Forth);
}

std::string History::nameOf(std::size_t number, Way way) const {
    const Mark& mark = m_marks[number + 1];
    if (mark.document != m_marks[number].document) {
        return *m_texts[m_documents[mark.document].came];
    }
    DesignMoment other = m_now;
    applyDelta(step(number), way, other);
    return way == Way::Back ? stepName(other, m_now) : stepName(m_now, other);
}

StoredSteps History::steps() const {
    StoredSteps stored = {.now = m_now, .steps = {}};
    const auto isHere = [this](std::size_t mark) {
        return m_marks[mark].document == m_marks[m_at].document;
    };
    std::size_t first = m_at, end = m_at;
    while (first > 0 && m_at - first < StoredSteps::most && isHere(first - 1)) {
        --first;
    }
    while (end + 1 < m_marks.size() && end - m_at < StoredSteps::most && isHere(end + 1)) {
        ++end;
    }
    for (std::size_t number = first; number < end; ++number) {
        stored.steps.emplace_back(step(number));
    }
    stored.at = m_at - first;
    return stored;
}

std::size_t History::size() const {
    std::size_t size = m_steps.capacity() + m_marks.capacity() * sizeof(Mark) +
                       m_documents.capacity() * sizeof(Document);
    for (const Document& each : m_documents) {
        size += each.safe.capacity() + each.found.capacity() * sizeof(ShipFinding);
    }
    for (const std::string* const text : m_texts) {
        constexpr std::size_t node = 2 * sizeof(std::string) + sizeof(void*);
        size += text->capacity() + node;
    }
    return size;
}

}  // namespace fleetwright
