#include "RecordingSheet.h"

#include "Raster.h"

namespace fleetwright {

void RecordingSheet::setPicture(const Raster& picture) {
    m_record = {};
    m_record.outline = pasteOf(picture, 0, 0);
    m_height = picture.height();
}

void RecordingSheet::paint(const Raster& picture, int x, int y) {
    m_record.pastes.push_back(pasteOf(picture, x, y));
}

void RecordingSheet::paintPiece(const Raster& picture, int x, int y, std::string_view system) {
    paint(picture, x, y);
    m_record.pastes.back().system = system;
}

SheetRecord::Paste RecordingSheet::pasteOf(const Raster& picture, int x, int y) {
    SheetRecord::Paste paste{{}, x, y, picture.width(), picture.height(), {}};
    paste.picture.drawing = m_drawings.of(picture);
    if (!paste.picture.drawing) {
        paste.picture.raster = kept(picture);
    }
    return paste;
}

/// The pixels of a picture, once for all its pastes: a file holds them once.
std::shared_ptr<const Raster> RecordingSheet::kept(const Raster& picture) {
    for (const SheetRecord::Paste& paste : m_record.pastes) {
        if (paste.picture.raster && *paste.picture.raster == picture) {
            return paste.picture.raster;
        }
    }
    return std::make_shared<const Raster>(picture);
}

}  // namespace fleetwright
