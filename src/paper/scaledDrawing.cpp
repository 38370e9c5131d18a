#include "scaledDrawing.h"

#include "Raster.h"

#include <algorithm>

namespace fleetwright {

namespace {

bool isEmptyBox(const Box& box) {
    return box.width <= 0 || box.height <= 0;
}

Box united(const Box& a, const Box& b) {
    if (isEmptyBox(a) || isEmptyBox(b)) {
        return isEmptyBox(a) ? b : a;
    }
    const double x = std::min(a.x, b.x), y = std::min(a.y, b.y);
    return {x, y, std::max(a.x + a.width, b.x + b.width) - x,
            std::max(a.y + a.height, b.y + b.height) - y};
}

/// What two boxes share; empty if that is nothing.
Box shared(const Box& a, const Box& b) {
    const double x = std::max(a.x, b.x), y = std::max(a.y, b.y);
    return {x, y, std::max(std::min(a.x + a.width, b.x + b.width) - x, 0.0),
            std::max(std::min(a.y + a.height, b.y + b.height) - y, 0.0)};
}

Box placeOf(const SheetRecord::Paste& paste) {
    return {double(paste.x), double(paste.y), double(paste.width), double(paste.height)};
}

Box inkOfPixels(const Raster& raster) {
    Box ink;
    for (int y = 0; y < raster.height(); ++y) {
        ink = united(ink, inkOfRow(raster, y));
    }
    return ink;
}

}  // namespace

Box inkOfRow(const Raster& raster, int y) {
    const auto row = raster.row(y);
    const auto isInk = [](std::uint32_t colour) { return colour != Raster::white; };
    const auto first = std::find_if(row.begin(), row.end(), isInk);
    if (first == row.end()) {
        return {};
    }
    const auto end = std::find_if(row.rbegin(), row.rend(), isInk).base();
    return {double(first - row.begin()), double(y), double(end - first), 1};
}

Box inkOf(const SheetRecord::Picture& picture) {
    if (picture.drawing) {
        return picture.drawing->ink;
    }
    return picture.raster ? inkOfPixels(*picture.raster) : Box();
}

Box inkOf(const SheetRecord& record) {
    const Box outline = placeOf(record.outline);
    Box ink = shared(inkOf(record.outline.picture), outline);
    for (const SheetRecord::Paste& paste : record.pastes) {
        Box inked = inkOf(paste.picture);
        inked.x += paste.x;
        inked.y += paste.y;
        ink = united(ink, shared(inked, shared(placeOf(paste), outline)));
    }
    return isEmptyBox(ink) ? outline : ink;
}

void putDrawing(Page& page, const SheetRecord& record, const Box& shown, double x, double y,
                double scale) {
    const auto onPage = [&](const Box& box) {
        return Box{x + (box.x - shown.x) * scale, y + (box.y - shown.y) * scale, box.width * scale,
                   box.height * scale};
    };
    const auto put = [&](const SheetRecord::Paste& paste) {
        const Box place = placeOf(paste);
        const Box clip = shared(place, shown);
        if (!isEmptyBox(clip)) {
            page.items.emplace_back(PagePicture{paste.picture.drawing, paste.picture.raster,
                                                onPage(place), onPage(clip)});
        }
    };
    put(record.outline);
    std::for_each(record.pastes.begin(), record.pastes.end(), put);
}

}  // namespace fleetwright
