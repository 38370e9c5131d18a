#include "playData.h"

#include "DamageTrack.h"
#include "HullRules.h"
#include "SvgPictures.h"
#include "damageBoxes.h"
#include "designWords.h"
#include "fingerprint.h"
#include "scaledDrawing.h"
#include "sheetBlocks.h"
#include "sheetHeader.h"
#include "svgText.h"
#include "text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <map>

namespace fleetwright {

namespace {

using Json = nlohmann::ordered_json;

constexpr double roomAround = 4;  // a drawing, in pixels of the outline

/// How many boxes each damage row has.
Json rowLengths(const SheetFacts& facts) {
    constexpr int ample = 1 << 20;
    std::map<int, int> boxes;  // by their heights
    if (facts.damagePoints > 0) {
        const std::int32_t rows = std::max(facts.damageRows, 1);
        for (const TrackBox& box : damageTrack(facts.damagePoints, rows, {ample, ample}).boxes) {
            ++boxes[box.y];
        }
    }
    Json lengths = Json::array();
    for (const auto& [y, count] : boxes) {
        lengths.push_back(count);
    }
    return lengths;
}

/// The label of the figure in a sheet's head that a system is behind; or nothing.
std::string figureOf(const std::string& system) {
    if (system.starts_with(thrustDriveWords)) {
        return "THRUST";
    }
    return system == ftlDriveName(NormalDrive) || system == ftlDriveName(TugDrive) ? "DRIVE" : "";
}

Json figuresData(const SheetFacts& facts) {
    Json figures = Json::array();
    for (const HeadFigure& figure : headFigures(facts)) {
        figures.push_back({figure.label, shownText(figure.value)});
    }
    return figures;
}

Json systemsData(const SheetFacts& facts, SvgPictures& pictures) {
    Json systems = Json::array();
    for (const LegendRow& row : facts.legend) {
        const bool hasPicture = row.picture.drawing || row.picture.raster;
        const PagePicture picture{row.picture.drawing, row.picture.raster, {}, {}};
        systems.push_back({{"name", shownText(row.name)},
                           {"count", row.count},
                           {"particulars", shownLines(particulars(row))},
                           {"rules", shownLines(row.rules)},
                           {"figure", figureOf(row.name)},
                           {"picture", hasPicture ? pictures.nameOf(picture) : std::string()}});
    }
    return systems;
}

/// A place on a drawing: [x, y, width, height].
Json placeData(const Box& box, const Box& shown) {
    return {box.x - shown.x, box.y - shown.y, box.width, box.height};
}

/// Where the pieces of systems are drawn: the number of the piece, counted through the legend, and
/// its place. A piece of which only the list tells is not among them.
Json piecesData(const VectorSheet& sheet, const Box& shown) {
    struct Pieces {
        std::int32_t next = 0;
        std::int32_t end = 0;
    };
    std::map<std::string_view, Pieces> known;
    std::int32_t first = 0;
    for (const LegendRow& row : sheet.facts.legend) {
        known[row.name] = {first, first + row.count};
        first += row.count;
    }
    Json places = Json::array();
    for (const SheetRecord::Paste& paste : sheet.record.pastes) {
        const auto pieces = known.find(paste.system);
        if (pieces != known.end() && pieces->second.next < pieces->second.end) {
            const Box box{double(paste.x), double(paste.y), double(paste.width),
                          double(paste.height)};
            places.push_back({pieces->second.next++, placeData(box, shown)});
        }
    }
    return places;
}

Json sheetData(const VectorSheet& sheet, const PlayDrawing& drawing, SvgPictures& pictures) {
    Json boxes = Json::array();
    for (const Box& box : damageBoxes(sheet)) {
        boxes.push_back(placeData(box, drawing.shown));
    }
    const SheetFacts& facts = sheet.facts;
    return {{"kind", facts.designation + ", " + facts.shipClass + " class"},
            {"designer", shownText(facts.designer)},
            {"figures", figuresData(facts)},
            {"rows", rowLengths(facts)},
            {"size", {drawing.shown.width, drawing.shown.height}},
            {"boxes", std::move(boxes)},
            {"systems", systemsData(facts, pictures)},
            {"pieces", piecesData(sheet, drawing.shown)}};
}

/// Tells fleets apart by whose they are and by what can be marked: what a game that was saved has
/// to fit.
std::string gameId(const Json& data) {
    Json known = Json::array({data["name"]});
    if (const Json& player = data["player"]; player != "") {
        known.push_back(player);
    }
    for (const Json& ship : data["ships"]) {
        const Json& sheet = data["sheets"][ship["sheet"].get<std::size_t>()];
        known.push_back({ship["name"], sheet["rows"]});
        for (const Json& system : sheet["systems"]) {
            known.push_back({system["name"], system["count"]});
        }
    }
    return fingerprint(known.dump());
}

/// JSON of ASCII in which nothing begins or ends an element.
std::string scriptText(const Json& data) {
    std::string text;
    for (const char letter : data.dump(-1, ' ', true, Json::error_handler_t::replace)) {
        switch (letter) {
        case '<':
            text += "\\u003c";
            break;
        case '>':
            text += "\\u003e";
            break;
        case '&':
            text += "\\u0026";
            break;
        default:
            text += letter;
        }
    }
    return text;
}

}  // namespace

PlayDrawing playDrawing(const VectorSheet& sheet, SvgPictures& pictures) {
    const Box ink = inkOf(sheet.record);
    const Box shown{ink.x - roomAround, ink.y - roomAround, ink.width + 2 * roomAround,
                    ink.height + 2 * roomAround};
    Page page;
    putDrawing(page, sheet.record, shown, 0, 0, 1);
    std::string svg;
    SvgTag(svg, "svg")
        .set("viewBox", "0 0 " + svgNumber(shown.width) + ' ' + svgNumber(shown.height))
        .open();
    svg += '\n';
    for (const PageItem& item : page.items) {
        pictures.use(std::get<PagePicture>(item), svg);
    }
    svg += "</svg>\n";
    return {shown, std::move(svg)};
}

std::string playData(const PlayFleet& fleet, const std::vector<PlayDrawing>& drawings,
                     SvgPictures& pictures) {
    Json data = {{"name", shownText(fleet.name)},
                 {"player", shownText(fleet.player)},
                 {"notes", shownLines(fleet.notes)},
                 {"sheets", Json::array()},
                 {"ships", Json::array()}};
    for (std::size_t i = 0; i < fleet.sheets.size(); ++i) {
        data["sheets"].push_back(sheetData(fleet.sheets[i], drawings[i], pictures));
    }
    for (const PlayShip& ship : fleet.ships) {
        data["ships"].push_back({{"name", shownText(ship.name)},
                                 {"notes", shownLines(ship.notes)},
                                 {"sheet", ship.sheet}});
    }
    data["id"] = gameId(data);
    return scriptText(data);
}

}  // namespace fleetwright
