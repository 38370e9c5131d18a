#include "checkMapPlaces.h"

#include "Error.h"
#include "HullRules.h"
#include "SheetPictures.h"
#include "arcWords.h"
#include "mapMarks.h"

#include <algorithm>

namespace fleetwright {

namespace {

std::string at(int x, int y) {
    return "(" + std::to_string(x) + "," + std::to_string(y) + ")";
}

/// What is pasted at a place, and so what it covers.
struct PastedBox {
    const MapPlace* place;
    int width;
    int height;

    int right() const { return place->x + width; }
    int bottom() const { return place->y + height; }
    bool overlaps(const PastedBox& other) const {
        return place->x < other.right() && other.place->x < right() && place->y < other.bottom() &&
               other.place->y < bottom();
    }
    std::string name() const {
        return std::string(mapWord(place->keyword)) + " box at " + at(place->x, place->y);
    }
};

bool isWeaponOfNoArc(const MapPlace& place) {
    return place.keyword == MapKeyword::Weap && !isMapArc(place.arc);
}

/// Whether something is pasted over a pixel of the outline, row by row.
std::vector<bool> coveredPixels(const std::vector<PastedBox>& boxes, const Raster& outline) {
    const auto width = static_cast<std::size_t>(outline.width());
    std::vector<bool> covered(width * static_cast<std::size_t>(outline.height()));
    for (const PastedBox& box : boxes) {
        const int left = std::max(box.place->x, 0);
        const int right = std::min(box.right(), outline.width());
        const int bottom = std::min(box.bottom(), outline.height());
        for (int y = std::max(box.place->y, 0); y < bottom; ++y) {
            for (int x = left; x < right; ++x) {
                covered[static_cast<std::size_t>(y) * width + static_cast<std::size_t>(x)] = true;
            }
        }
    }
    return covered;
}

class PlaceCheck {
public:
    PlaceCheck(const MapPlaces& map, const Raster& outline) : m_map(map), m_outline(outline) {
        for (const MapPlace& place : map.places) {
            addBox(place);
        }
    }

    std::vector<Fault> run() {
        checkLines();
        checkArcs();
        checkFigures();
        if (!m_outline.isEmpty()) {
            checkEdges();
            checkMarks();
        }
        checkOverlaps();
        sortByLine(m_faults);
        return std::move(m_faults);
    }

private:
    void complain(int line, const std::string& text) { m_faults.push_back({line, text}); }

    const MapPlace* last(MapKeyword keyword) const {
        const auto found =
            std::find_if(m_map.places.rbegin(), m_map.places.rend(),
                         [&](const MapPlace& place) { return place.keyword == keyword; });
        return found == m_map.places.rend() ? nullptr : &*found;
    }

    /// How many lines of a key there are whose place is not known.
    std::ptrdiff_t unread(MapKeyword keyword) const {
        return std::count(m_map.unread.begin(), m_map.unread.end(), keyword);
    }

    void addBox(const MapPlace& place) {
        const bool isOverridden = !isAppending(place.keyword) && &place != last(place.keyword);
        if (isOverridden || isWeaponOfNoArc(place)) {
            return;
        }
        if (place.keyword != MapKeyword::DamRow) {
            m_boxes.push_back({&place, systemPictureSize, systemPictureSize});
        } else {
            const PictureSize track = trackRoom(m_map.size);
            m_boxes.push_back({&place, track.width, track.height});
        }
    }

    void checkLines() {
        if (m_map.sizeLine == 0) {
            complain(0, "no SIZE line, so that the map is offered to no ship");
        }
        for (const auto& [keyword, what] : {std::pair{MapKeyword::DamRow, "damage track"},
                                            {MapKeyword::Ftl, "FTL drive"},
                                            {MapKeyword::Thrust, "thrust drive"}}) {
            if (last(keyword) == nullptr && unread(keyword) == 0) {
                complain(0, "no " + std::string(mapWord(keyword)) + " line, so that the " + what +
                                " is drawn at (0,0)");
            }
        }
    }

    void checkArcs() {
        std::string missing;
        for (const char arc : sheetArcs) {
            const bool isThere =
                std::any_of(m_map.places.begin(), m_map.places.end(), [&](const MapPlace& place) {
                    return place.keyword == MapKeyword::Weap && place.arc == std::string(1, arc);
                });
            if (!isThere) {
                missing += missing.empty() ? "" : ", ";
                missing += arc;
            }
        }
        if (!missing.empty()) {
            complain(0, "no weapon point for the arc " + missing);
        }
        for (const MapPlace& place : m_map.places) {
            if (isWeaponOfNoArc(place)) {
                complain(place.line, "unknown arc \"" + place.arc +
                                         "\", so that the point is neither used nor covered");
            }
        }
    }

    /// The figures grow with the mass, so that the largest ships of the map have the most.
    void checkFigures() {
        HullFigures most;
        for (const std::int32_t type :
             {Warship, Merchant, QShip, Starbase, SpaceStation, QSpaceStation}) {
            const HullFigures figures = hullFigures({.mass = m_map.size, .hullType = type});
            most.fireControls = std::max(most.fireControls, figures.fireControls);
            most.damageControlParties =
                std::max(most.damageControlParties, figures.damageControlParties);
        }
        checkCount(MapKeyword::FireCon, "fire controls", most.fireControls);
        checkCount(MapKeyword::Dcp, "damage control parties", most.damageControlParties);
    }

    void checkCount(MapKeyword keyword, const char* what, int most) {
        const auto count =
            std::count_if(m_map.places.begin(), m_map.places.end(),
                          [&](const MapPlace& place) { return place.keyword == keyword; });
        if (m_map.sizeLine != 0 && count + unread(keyword) < most) {
            complain(m_map.sizeLine, std::to_string(count) + " " + std::string(mapWord(keyword)) +
                                         " points, but ships of this SIZE have up to " +
                                         std::to_string(most) + " " + what);
        }
    }

    void checkEdges() {
        for (const PastedBox& box : m_boxes) {
            if (box.place->x < 0 || box.place->y < 0 || box.right() > m_outline.width() ||
                box.bottom() > m_outline.height()) {
                complain(box.place->line, "the " + box.name() + " leaves the outline, which is " +
                                              std::to_string(m_outline.width()) + " by " +
                                              std::to_string(m_outline.height()) + " pixels");
            }
        }
    }

    void checkOverlaps() {
        for (auto box = m_boxes.begin(); box != m_boxes.end(); ++box) {
            const auto other = std::find_if(m_boxes.begin(), box,
                                            [&](const PastedBox& b) { return b.overlaps(*box); });
            if (other != box) {
                complain(box->place->line, "the " + box->name() + " overlaps the " + other->name() +
                                               " of line " + std::to_string(other->place->line));
            }
        }
    }

    void checkMarks() {
        constexpr int mostNamed = 10;
        const std::vector<bool> covered = coveredPixels(m_boxes, m_outline);
        int bare = 0;
        auto coveredInRow = covered.begin();
        for (int y = 0; y < m_outline.height(); ++y, coveredInRow += m_outline.width()) {
            const auto row = m_outline.row(y);
            for (std::size_t x = 0; (x += pixelsBeforeMark(row.subspan(x))) < row.size(); ++x) {
                if (!coveredInRow[static_cast<std::ptrdiff_t>(x)] && ++bare <= mostNamed) {
                    complain(0, "the mark at " + at(static_cast<int>(x), y) +
                                    " is covered by nothing");
                }
            }
        }
        if (bare > mostNamed) {
            complain(0, std::to_string(bare - mostNamed) + " more marks are covered by nothing");
        }
        checkTrackMark();
    }

    /// The black pixels that say the size are a mark, too.
    void checkTrackMark() {
        for (const PastedBox& box : m_boxes) {
            const int y = box.place->y;
            if (box.place->keyword != MapKeyword::DamRow || box.place->x < 0 || y < 0 ||
                box.place->x >= m_outline.width() || y >= m_outline.height() ||
                m_outline.pixel(box.place->x, y) != Magenta) {
                continue;
            }
            int end = box.place->x + 1;
            while (end < m_outline.width() && m_outline.pixel(end, y) == Black) {
                ++end;
            }
            if (end > box.right()) {
                complain(box.place->line, "the mark of the damage track is " +
                                              std::to_string(end - box.right()) +
                                              " pixels longer than the track");
            }
        }
    }

    const MapPlaces& m_map;
    const Raster& m_outline;
    std::vector<PastedBox> m_boxes;
    std::vector<Fault> m_faults;
};

void readPlaces(MapPlaces& map, const SSDMapLine& line) {
    switch (line.keyword) {
    case MapKeyword::Unknown:
        return;
    case MapKeyword::Size:
        map.sizeLine = line.number;
        map.size = mapNumber(line.value);
        return;
    case MapKeyword::Image:
        map.imageLine = line.number;
        map.image = line.value;
        return;
    default:
        const SSDPoint point = mapPoint(line);
        map.places.push_back({.keyword = line.keyword,
                              .x = point.iPntX,
                              .y = point.iPntY,
                              .arc = point.sArc,
                              .line = line.number});
    }
}

}  // namespace

MapPlaces readMapPlaces(std::string_view text) {
    MapPlaces map;
    SSDMapLines lines(text);
    SSDMapLine line;
    while (lines.next(line)) {
        try {
            readPlaces(map, line);
        } catch (const Error&) {
            if (line.keyword != MapKeyword::Size) {
                map.unread.push_back(line.keyword);
            }
        }
    }
    return map;
}

std::vector<Fault> checkMapPlaces(const MapPlaces& map, const Raster& outline) {
    return PlaceCheck(map, outline).run();
}

}  // namespace fleetwright
