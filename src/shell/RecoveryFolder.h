#pragma once

#include "RecoveryListing.h"
#include "RecoveryRun.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <system_error>
#include <vector>

namespace fleetwright {

class Trash;

/// Where designs are put aside, so that none is lost: the one at work again and again, as the file
/// of this run, and every other that was given up without being saved. What the name of a file says
/// is in RecoveryName. That of a run has the run's mark behind it: "… #12.shp~MARK". The steps of
/// the design are beside it, "… #12.steps~MARK", and go where it goes. If that fails, or one of the
/// two is newer after a crash, the design does not care. A fleet is such a design, too; a run has a
/// file for the one at work beside that of the ship, "… #13.fleet~MARK".
///
/// Only what a run has made, and nobody has changed, is ever taken away without being asked for. Of
/// that, old designs that the user has been shown go into the trash, but never the last one of a
/// run, nor the last ten of all.
class RecoveryFolder {
public:
    using Design = RecoveryDesign;

    /// A design to be put aside.
    struct Aside {
        std::string shipName;    ///< or the fleet's
        std::int32_t mass;       ///< or how many ships the fleet has
        std::string shipFile;    ///< all of it
        std::string steps = {};  ///< see RecoverySteps.h; or none
        RecoveryKind kind = RecoveryKind::Ship;

        friend bool operator==(const Aside&, const Aside&) = default;
    };

    /// How many of the designs that runs have made stay in any case.
    static constexpr std::size_t mostKept = 10;

    /// The user's folder of designs put aside, which need not exist yet. Throws FileError if the
    /// user has no home.
    static std::filesystem::path ofUser();

    /// `now` says the time as it is to stand in the name of a file.
    RecoveryFolder(std::filesystem::path folder, std::function<std::string()> now, Trash& trash);

    const std::filesystem::path& folder() const { return m_folder; }

    /// All designs but those at work in some run: first those that a crash has left behind, then
    /// the newest first. Takes up what the kill of a save has left. Throws FileError as `list`
    /// does.
    std::vector<Design> lookAround();
    /// The user has been shown these designs. They are nobody's at work from then on, which may
    /// change the names of their files. Throws FileError.
    void noteSeen(std::vector<Design>& designs);
    /// The user opens this file. If it is a design put aside, this run takes it away no more.
    void noteOpened(const std::filesystem::path& file);
    /// Moves a design into the trash because the user wants it; whether it is there.
    bool moveToTrash(const Design& design);

    /// Writes the design at work as the file of this run. Throws FileError.
    void put(const Aside& design);
    /// Puts a design aside for good, unless it is there already as it is; old ones may go for it.
    /// Throws FileError.
    void keep(const Aside& design);
    /// The same for one that is not at work: the file of this run stays as it is.
    void keepOther(const Aside& design);
    /// Takes the file of this run away, if there is one. What somebody else has made of it stays.
    void forget(RecoveryKind kind = RecoveryKind::Ship);

    /// The steps that were put aside with the design in this file; empty if there are none.
    static std::string stepsOf(const std::filesystem::path& file);

    /// All designs in a folder, the newest first. Throws FileError if the folder is there and
    /// cannot be read.
    static std::vector<Design> list(const std::filesystem::path& folder);

private:
    /// The file of this run, as it was written last.
    struct OwnFile {
        std::string name;  ///< as records know it
        std::uint64_t number;
        std::string shipFile;
        std::string steps;  ///< beside it; empty if they could not be written
    };

    void begin();
    std::filesystem::path fileOf(const std::string& name, const std::string& mark = {}) const;
    std::optional<OwnFile>& ownOf(RecoveryKind kind) {
        return kind == RecoveryKind::Fleet ? m_ownFleet : m_own;
    }
    using RenameToNew = std::error_code (*)(const std::filesystem::path&,
                                            const std::filesystem::path&);
    std::filesystem::path takeMarkOff(const std::filesystem::path& file, RenameToNew rename) const;

    std::filesystem::path fileOf(const OwnFile& own) const {
        return fileOf(own.name, m_run.mark());
    }
    bool isAsWritten(const OwnFile& own) const;
    void letGo(std::optional<OwnFile>& own);
    void writeOwn(const Aside& design);
    bool throwAway(const std::filesystem::path& design);

    std::optional<std::string> whereKept(const std::string& shipFile) const;
    void takeUpLeftOvers(RecoveryListing& listing, const RecoveryRecord& known) const;
    void takeOldOnesAway();

    std::filesystem::path m_folder;
    std::function<std::string()> m_now;
    Trash& m_trash;
    RecoveryRun m_run;
    std::optional<OwnFile> m_own, m_ownFleet;
    std::set<std::string> m_opened;  ///< by the names in records
};

}  // namespace fleetwright
