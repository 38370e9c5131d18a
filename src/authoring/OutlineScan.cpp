#include "OutlineScan.h"

#include "Error.h"

#include <algorithm>
#include <limits>

namespace fleetwright {

namespace {

constexpr std::string_view lineEnd = "\r\n";

/// Begins a line of a map.
std::string& beginLine(std::string& text, MapKeyword keyword) {
    return text.append(mapWord(keyword)).append(": ");
}

constexpr auto longestRun = std::numeric_limits<std::int16_t>::max();

}  // namespace

OutlineScan::OutlineScan(const Raster& picture, std::string_view imageFile) : m_picture(picture) {
    if (std::max(picture.width(), picture.height()) > longestRun) {
        throw Error("is too large for a map");
    }
    const std::string_view name = imageFile.substr(imageFile.find_last_of("\\/") + 1);
    if (name.find_first_of("\r\n") != std::string_view::npos) {
        throw Error("has a line break in its name, which no map can hold");
    }
    beginLine(m_text, MapKeyword::Image).append(name).append(lineEnd);
}

int OutlineScan::plainPixels(int iCol, int iRow) const {
    if (m_isMeasuring) {
        return 0;
    }
    return static_cast<int>(
        pixelsBeforeMark(m_picture.row(iRow).subspan(static_cast<std::size_t>(iCol))));
}

int OutlineScan::takePixel(int iCol, int iRow) {
    const std::uint32_t colour = m_picture.pixel(iCol, iRow);
    if (m_isMeasuring) {
        measure(colour);
    }
    if (isMark(colour)) {
        takeMark(colour, iCol, iRow);
    }
    return colour == Yellow ? 1 : 0;
}

/// The run may go on in the next row. It ends before the pixel that ends it is taken up.
void OutlineScan::measure(std::uint32_t colour) {
    if (colour == Black) {
        m_iRunLength = std::min<std::int16_t>(m_iRunLength, longestRun - 1);
        ++m_iRunLength;
        return;
    }
    for (const TrackLength& track : trackLengths) {
        if (m_iRunLength == track.blackPixels + 1) {  // the mark itself counts too
            beginLine(m_text, MapKeyword::Size).append(std::to_string(track.size)).append(lineEnd);
        }
    }
    m_isMeasuring = false;
}

void OutlineScan::takeMark(std::uint32_t colour, int iCol, int iRow) {
    beginLine(m_text, markKeyword(colour)).append("(").append(std::to_string(iCol));
    m_text.append(",").append(std::to_string(iRow));
    if (colour == Yellow) {
        m_text.append(",").append(1, weapArc(m_picture, iCol, iRow));
    }
    m_text.append(")").append(lineEnd);
    if (colour == Magenta) {
        m_isMeasuring = true;
        m_iRunLength = 1;
    }
}

bool OutlineScan::cancel() {
    m_text = "Operation Cancelled";
    return false;
}

char weapArc(const Raster& picture, int iCol, int iRow) {
    if (iCol + 1 < picture.width()) {
        for (const ArcMark& mark : arcMarks) {
            if (picture.pixel(iCol + 1, iRow) == mark.colour) {
                return mark.arc;
            }
        }
    }
    const int w = picture.width() / 3;
    const int h = picture.height() / 3;
    if (iRow <= h) {
        return 'F';
    }
    if (iCol <= w) {
        return 'P';
    }
    if (iCol >= 2 * w) {
        return 'S';
    }
    return iRow >= 2 * h ? 'A' : 'B';
}

std::string scanOutline(const Raster& picture, std::string_view imageFile) {
    OutlineScan scan(picture, imageFile);
    scan.run([](int, int) { return true; });
    return scan.text();
}

std::string mapFileContents(std::string_view text) {
    return std::string(text).append(lineEnd);
}

}  // namespace fleetwright
