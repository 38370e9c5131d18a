#include "RecoveryFolder.h"

#include "Error.h"
#include "RecoverySteps.h"
#include "Trash.h"
#include "WrittenShip.h"
#include "fileCalls.h"
#include "overwriteFile.h"
#include "paths.h"
#include "readFile.h"
#include "saveFile.h"

#include <algorithm>
#include <set>
#include <system_error>
#include <utility>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// Stands for a run that is not known, and never goes on.
constexpr const char* noRun = "0";

/// What is in a file, if it can be read.
std::optional<std::string> bytesIn(const fs::path& file) {
    try {
        return readBytes(file);
    } catch (const FileError&) {
        return std::nullopt;
    }
}

/// A rename that is not for good yet.
std::error_code renameUnlessThere(const fs::path& from, const fs::path& to) {
    return isInFolder(to) ? std::make_error_code(std::errc::file_exists) : renameFile(from, to);
}

/// Whether records know a fleet by such a name.
bool isFleet(const std::string& name) {
    return name.ends_with(recoveryFleet);
}

/// By which name records know what has such a name.
std::string recordNameOf(const RecoveryName& name) {
    return name.text() + (name.kind == RecoveryKind::Fleet ? recoveryFleet : "");
}

/// What is known of the design that a kill has left, which a run has announced by these names.
RecoveryName leftOver(const std::set<std::string>& announced, const WrittenShip& ship) {
    if (announced.empty() || !isFleet(*announced.begin())) {
        return {.ship = ship.name, .mass = ship.mass, .time = {}};
    }
    return RecoveryName::of(pathText(nativePath(*announced.begin()).stem()), RecoveryKind::Fleet);
}

/// Reads the masses that names do not say, but not of more designs than are read at once.
void readMasses(std::vector<RecoveryDesign>& designs) {
    constexpr std::size_t most = 50;
    for (std::size_t i = 0; i < std::min(designs.size(), most); ++i) {
        if (!designs[i].about.mass && designs[i].about.kind == RecoveryKind::Ship) {
            designs[i].about.mass = WrittenShip::of(bytesIn(designs[i].file).value_or("")).mass;
        }
    }
}

}  // namespace

fs::path RecoveryFolder::ofUser() {
    return putAsideFolder();
}

RecoveryFolder::RecoveryFolder(fs::path folder, std::function<std::string()> now, Trash& trash)
    : m_folder(std::move(folder)), m_now(std::move(now)), m_trash(trash), m_run(m_folder) {}

std::vector<RecoveryDesign> RecoveryFolder::list(const fs::path& folder) {
    std::vector<Design> designs = RecoveryListing(folder).designs;
    sortNewestFirst(designs);
    return designs;
}

std::vector<RecoveryDesign> RecoveryFolder::lookAround() {
    RecoveryListing listing(m_folder);
    const RecoveryRecord known = m_run.allRecords(listing);
    takeUpLeftOvers(listing, known);
    std::vector<Design>& designs = listing.designs;
    const std::set<std::string> running = m_run.running(listing);
    std::erase_if(designs, [&](const Design& each) { return running.contains(each.mark); });
    sortNewestFirst(designs);
    for (Design& design : designs) {
        // A copy stays where a save over a file was cut short: that file may be torn.
        design.isLeftBehind = (!design.mark.empty() || isCopyAsItWas(design.file)) &&
                              !known.isSeen(design.recordName);
    }
    std::stable_partition(designs.begin(), designs.end(),
                          [](const Design& design) { return design.isLeftBehind; });
    readMasses(designs);
    return std::move(designs);
}

void RecoveryFolder::noteSeen(std::vector<Design>& designs) {
    const RecoveryRecord known = m_run.allRecords(RecoveryListing(m_folder));
    std::set<std::string> news;
    bool isRenamed = false;
    for (Design& design : designs) {
        const bool isOfNote = design.isLeftBehind || known.isMade(design.recordName);
        if (!design.mark.empty()) {
            design = Design::in(takeMarkOff(design.file, renameUnlessThere)).value_or(design);
            isRenamed = true;
        }
        if (isOfNote && !known.isSeen(design.recordName)) {
            news.insert(design.recordName);
        }
    }
    if (isRenamed) {
        // Once: there may be many.
        [[maybe_unused]] const std::error_code unsynced = syncFolder(m_folder);
    }
    if (!news.empty()) {
        begin();
        for (const std::string& name : news) {
            m_run.record.noteSeen(name);
        }
        m_run.saveRecord();
    }
}

void RecoveryFolder::noteOpened(const fs::path& file) {
    if (const std::optional<Design> design = RecoveryDesign::in(file)) {
        m_opened.insert(design->recordName);
    }
}

bool RecoveryFolder::moveToTrash(const Design& design) {
    if (isInFolder(design.file)) {
        return throwAway(design.file);
    }
    // Another run may have taken the mark off it; but a file of that name can be the user's.
    const fs::path plain = fileOf(design.recordName);
    try {
        const RecoveryRecord known = m_run.allRecords(RecoveryListing(m_folder));
        return known.isMade(design.recordName, bytesIn(plain).value_or("")) && throwAway(plain);
    } catch (const FileError&) {
        return false;  // the folder cannot be read any more: nothing is known of the file
    }
}

bool RecoveryFolder::throwAway(const fs::path& design) {
    if (!m_trash.moveToTrash(design)) {
        return false;
    }
    removeSteps(design);  // the trash gets one entry a design
    return true;
}

std::string RecoveryFolder::stepsOf(const fs::path& file) {
    return RecoveryDesign::in(file) ? stepsOfDesign(file) : std::string();
}

void RecoveryFolder::put(const Aside& design) {
    begin();
    writeOwn(design);
}

void RecoveryFolder::keep(const Aside& design) {
    begin();
    if (const auto kept = whereKept(design.shipFile)) {
        m_run.record.noteMade(*kept, m_run.mark(), design.shipFile);  // by this run as well
        writeSteps(fileOf(*kept), design.steps);
        m_run.saveRecord();
        forget(design.kind);
        return;
    }
    writeOwn(design);
    std::optional<OwnFile>& own = ownOf(design.kind);
    takeMarkOff(fileOf(*own), renameToNew);
    own.reset();
    takeOldOnesAway();
}

void RecoveryFolder::keepOther(const Aside& design) {
    std::optional<OwnFile> own = std::exchange(ownOf(design.kind), std::nullopt);
    try {
        keep(design);
    } catch (...) {
        ownOf(design.kind) = std::move(own);
        throw;
    }
    ownOf(design.kind) = std::move(own);
}

void RecoveryFolder::forget(RecoveryKind kind) {
    std::optional<OwnFile>& own = ownOf(kind);
    if (own && isAsWritten(*own)) {
        removeSteps(fileOf(*own));
        [[maybe_unused]] const std::error_code left = removeForGood(fileOf(*own));
        m_run.record.forget(own->name);
        own.reset();
    } else if (own) {
        letGo(own);
    }
}

/// Has the run begun in the folder, which is made if need be.
void RecoveryFolder::begin() {
    makeUserFolder(m_folder);  // which somebody may have taken away meanwhile
    if (!m_run.hasBegun()) {
        // Before anything is saved there, which takes left files away.
        RecoveryListing listing(m_folder);
        takeUpLeftOvers(listing, m_run.allRecords(listing));
        m_run.begin(listing);
        joinSteps(listing, m_run.running(listing));
    }
}

fs::path RecoveryFolder::fileOf(const std::string& name, const std::string& mark) const {
    return m_folder / nativePath(name + (isFleet(name) ? "" : recoveryExtension) +
                                 (mark.empty() ? mark : beforeRecoveryMark + mark));
}

/// Takes the mark of its run off a file, never over another one; where it is then.
fs::path RecoveryFolder::takeMarkOff(const fs::path& file, RenameToNew rename) const {
    constexpr int mostNames = 100;
    const std::string name = file.stem().string(), extension = file.extension().string();
    const std::string ending = extension.substr(0, extension.find(beforeRecoveryMark));
    fs::path plain = m_folder / nativePath(name + ending);
    for (int i = 2; rename(file, plain) == std::errc::file_exists && i < mostNames; ++i) {
        plain = m_folder / nativePath(name + " (" + std::to_string(i) + ')' + ending);
    }
    if (isInFolder(file)) {
        return file;
    }
    rename(stepsBeside(file), stepsBeside(plain));
    return plain;
}

bool RecoveryFolder::isAsWritten(const OwnFile& own) const {
    return bytesIn(fileOf(own)) == own.shipFile;
}

/// Somebody else has written over the file of this run, or taken it away: it is theirs.
void RecoveryFolder::letGo(std::optional<OwnFile>& own) {
    if (isInFolder(fileOf(*own))) {
        takeMarkOff(fileOf(*own), renameToNew);
    }
    m_run.record.forget(own->name);
    own.reset();
}

void RecoveryFolder::writeOwn(const Aside& design) {
    std::optional<OwnFile>& own = ownOf(design.kind);
    if (own && !isAsWritten(*own)) {
        letGo(own);  // never removed before the next one is written
    }
    if (own && own->shipFile == design.shipFile) {
        if (own->steps != design.steps && writeSteps(fileOf(*own), design.steps)) {
            own->steps = design.steps;
        }
        return;
    }
    const std::uint64_t number = own ? own->number : RecoveryListing(m_folder).highest + 1;
    const RecoveryName name = {design.shipName, design.mass, m_now(), number, design.kind};
    const OwnFile next = {recordNameOf(name), number, design.shipFile, {}};
    // Noted first: so it is known for certain whose the file is, and what is whole, at any time.
    m_run.record.forget(next.name);
    if (own) {
        m_run.record.noteMade(next.name, m_run.mark(), own->shipFile);
    }
    m_run.record.noteMade(next.name, m_run.mark(), next.shipFile);
    m_run.saveRecord();
    const fs::path file = fileOf(next.name, m_run.mark());
    // First, since the design before is among its steps, but not the next one.
    const std::string steps = writeSteps(file, design.steps) ? design.steps : std::string();
    const fs::path before = own ? fileOf(*own) : file;
    if (before != file) {
        if (const std::error_code error = renameFile(before, file)) {
            throw FileError(file, "cannot be saved: " + error.message());
        }
        m_run.record.forget(std::exchange(own->name, next.name));
    }
    saveFile(file, next.shipFile);
    if (before != file) {
        removeSteps(before);
    }
    own = next;
    own->steps = steps;
}

/// Under which name this run, or one that has ended, has put the same design aside for good.
std::optional<std::string> RecoveryFolder::whereKept(const std::string& shipFile) const {
    for (const std::string& name : m_run.record.namesOf(shipFile)) {
        if (bytesIn(fileOf(name)) == shipFile) {
            return name;
        }
    }
    return std::nullopt;
}

/// Of what the kill of a save has left, whole designs become designs like those of a crash, and the
/// rest goes.
void RecoveryFolder::takeUpLeftOvers(RecoveryListing& listing, const RecoveryRecord& known) const {
    for (const fs::path& file : std::exchange(listing.leftOvers, {})) {
        const FileLock lock(file);
        const std::optional<std::string> bytes = lock.isHeld() ? bytesIn(file) : std::nullopt;
        if (!bytes) {
            continue;  // somebody is writing it, or it cannot be read
        }
        const std::set<std::string> names = known.namesOf(*bytes);
        const WrittenShip ship = WrittenShip::of(*bytes);
        if (names.empty() && (!ship.isWhole || known.isCut(*bytes))) {
            [[maybe_unused]] const std::error_code left = removeFile(file);
            continue;
        }
        RecoveryName name = leftOver(names, ship);
        name.time = m_now();
        name.number = listing.highest + 1;
        const fs::path taken = fileOf(recordNameOf(name), noRun);
        if (!renameToNew(file, taken)) {
            listing.take(taken);
        }
    }
}

void RecoveryFolder::takeOldOnesAway() {
    try {
        RecoveryListing listing(m_folder);
        m_run.record.keepOnly(listing.recordNames());
        const RecoveryRecord known = m_run.allRecords(listing);
        std::erase_if(listing.designs, [&known](const Design& design) {
            return design.about.number == 0 || !design.mark.empty() ||
                   !known.isMade(design.recordName);
        });
        sortNewestFirst(listing.designs);
        std::size_t count = 0;
        std::set<std::string> runs;  // whose last one has come
        for (const Design& design : listing.designs) {
            const std::string& name = design.recordName;
            bool isLast = false;
            for (const std::string& run : known.makersOf(name)) {
                isLast = runs.insert(run).second || isLast;
            }
            if (++count > mostKept && !isLast && known.isSeen(name) && !m_opened.contains(name) &&
                known.isMade(name, bytesIn(design.file).value_or(""))) {
                throwAway(design.file);
            }
        }
    } catch (const FileError&) {
        // What cannot be listed stays.
    }
}

}  // namespace fleetwright
