#include "ShipClass.h"

#include "Error.h"
#include "ShipFileLine.h"
#include "designWords.h"
#include "paths.h"
#include "readShip.h"
#include "saveFile.h"
#include "strfcns.h"
#include "text.h"
#include "wholeNumber.h"

#include <algorithm>
#include <exception>

namespace fleetwright {

namespace {

constexpr std::string_view extension = shipExtension;

/// A hull as the window will bring it in order: no mass below the smallest, no moving base.
HullDesign asShown(HullDesign hull) {
    hull.mass = std::max(hull.mass, smallestMass);
    if (isBase(hull.hullType)) {
        hull.ftl = NoDrive;
        hull.thrust = 0;
        hull.streamline = 0;
    }
    return hull;
}

}  // namespace

std::string ShipClass::withExtension(std::string fileName) {
    return fileName.ends_with(extension) ? fileName : fileName.append(extension);
}

bool ShipClass::saveShip(std::string& in_sFileName) {
    in_sFileName = withExtension(in_sFileName);
    const bool isSaved = succeeds([&](int&) {
        saveFile(nativePath(in_sFileName), shipFile());
        takeFileName(in_sFileName);
        g_bSaved = true;
    });
    if (isSaved) {
        try {
            ShipSaved.raise();
        } catch (const std::exception&) {
            // The file is there, whatever a listener makes of the news.
        }
    }
    return isSaved;
}

bool ShipClass::loadShip(const std::string& in_sFileName) {
    m_refusedLines.clear();
    return succeeds([&](int& line) {
        const ShipText file = readShip(in_sFileName);
        g_bAutoMass = false;
        readShipFile(file.text, line);
        if (file.source != ShipSource::Code) {
            takeFileName(in_sFileName);
        }
        if (file.source == ShipSource::Sheet) {
            g_sSaveName.clear();
        }
        ShipLoaded.raise();
        g_bSaved = file.source != ShipSource::Code;
    });
}

bool ShipClass::loadText(std::string_view shipFile) {
    m_refusedLines.clear();
    return succeeds([&](int& line) {
        g_bAutoMass = false;
        readShipFile(shipFile, line);
        ShipLoaded.raise();
        g_bSaved = true;
    });
}

/// Everything here fails by an exception. The given file operations say it in another way: what
/// ends `fileOperation` becomes the fault of the file, in the line that it has come to.
bool ShipClass::succeeds(const std::function<void(int& line)>& fileOperation) {
    m_fileFault.reset();
    int line = 0;
    try {
        fileOperation(line);
        return true;
    } catch (const std::exception& error) {
        m_fileFault = Fault{line, error.what()};
        return false;
    }
}

ShipDesign ShipClass::design() const {
    ShipDesign design{g_sShipName, g_sDesignerName, hull, {}};
    for (const WeapRec& record : systemsAboard()) {
        design.systems.emplace_back(record.name, record.amount);
    }
    return design;
}

std::string ShipClass::shipFile() const {
    return shipFileOf(design());
}

void ShipClass::readShipFile(std::string_view text, int& lineNumber) {
    LineReader lines(text);
    std::string_view line;
    while (lines.next(line)) {
        lineNumber = lines.lineNumber();
        std::string cuttable(line);
        readShipLine(cuttable, lineNumber);
    }
    lineNumber = 0;
    // Without systems nothing has been recalculated yet. A ship whose figures will not fit
    // their fields is refused here, and not when it is first shown.
    workOut(asShown(hull));
}

void ShipClass::readShipLine(std::string& line, int lineNumber) {
    const ShipFileLine cut = cutShipFileLine(line);
    switch (cut.key) {
    case ShipKey::ShipName:
        g_sShipName = cut.value;
        break;
    case ShipKey::DesignerName:
        g_sDesignerName = cut.value;
        break;
    case ShipKey::Mass:
        hull.mass = wholeNumber(cut.value);
        break;
    case ShipKey::Thrust:
        hull.thrust = wholeNumber(cut.value);
        break;
    case ShipKey::Type:
        hull.hullType = hullTypeOf(cut.value).value_or(hull.hullType);
        break;
    case ShipKey::Streamlining:
        hull.streamline = streamlineOf(cut.value).value_or(hull.streamline);
        break;
    case ShipKey::Armor:
        if (const std::int32_t level = wholeNumber(cut.value); level == 1 || level == 2) {
            hull.armor = level;
        }
        break;
    case ShipKey::Ftl:
        hull.ftl = ftlOf(cut.value).value_or(hull.ftl);
        break;
    case ShipKey::System: {
        const std::int32_t amount = wholeNumber(cut.amount);
        if (!addWeap(cut.value, amount)) {
            const Refusal why =
                weapNameToIndex(cut.value) == -1 ? Refusal::UnknownSystem : Refusal::CloakRule;
            m_refusedLines.push_back({.text = line,
                                      .system = cut.value,
                                      .why = why,
                                      .fault = {lineNumber, refusalText(why, cut.value)}});
        }
        break;
    }
    case ShipKey::Unknown:
        break;
    }
}

void ShipClass::takeFileName(const std::string& fileName) {
    constexpr const char* separators = "\\/";
    g_sSaveName = origin = fileName;
    std::string reversed = strReverse(fileName);
    const std::string name = strReverse(strTok(reversed, separators, true));
    if (characterCount(name) < extension.size()) {
        throw Error("file name is too short");
    }
    g_sTrimmedFileName = withoutLastCharacters(name, extension.size());
}

}  // namespace fleetwright
