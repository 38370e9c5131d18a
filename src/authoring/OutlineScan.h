#pragma once

#include "Raster.h"
#include "mapMarks.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace fleetwright {

/// The scan of a ship outline, which turns the marks on it into the text of a map.
class OutlineScan {
public:
    /// The picture must outlive the scan. The map names the outline by what stands behind the
    /// last separator of `imageFile`. Throws Error for what a map could not hold: the places in a
    /// picture of more than 32767 pixels a side, or a name with a line break.
    OutlineScan(const Raster& picture, std::string_view imageFile);

    /// Goes through the picture row by row, each from left to right. After each pixel it calls
    /// `afterPixel(x, y)`, a function that shows the progress by painting the pixel at that place
    /// black and returns whether to go on. Behind a weapon the place is that of its arc mark,
    /// which lies outside the picture (x is its width) if the weapon is in the last column.
    ///
    /// Returns false if `afterPixel` has ended the scan; then the text is "Operation Cancelled".
    template <typename AfterPixel>
    bool run(AfterPixel afterPixel) {
        return runInStretches([&afterPixel](int x, int y, int count) {
            for (int i = 0; i < count; ++i) {
                if (!afterPixel(x + i, y)) {
                    return false;
                }
            }
            return true;
        });
    }

    /// The same for who has much to show: calls `afterStretch(x, y, count)` after so many pixels
    /// side by side, from (x, y) on, which are no marks, or after a single one.
    template <typename AfterStretch>
    bool runInStretches(AfterStretch afterStretch) {
        for (int iRow = 0; iRow < m_picture.height(); ++iRow) {
            for (int iCol = 0; iCol < m_picture.width(); ++iCol) {
                const int plain = plainPixels(iCol, iRow);
                if (plain > 0 && !afterStretch(iCol, iRow, plain)) {
                    return cancel();
                }
                iCol += plain;
                if (iCol == m_picture.width()) {
                    break;
                }
                iCol += takePixel(iCol, iRow);
                if (!afterStretch(iCol, iRow, 1)) {
                    return cancel();
                }
            }
        }
        return true;
    }

    /// What the map file holds so far, each line with its CR LF.
    const std::string& text() const { return m_text; }

private:
    /// How many pixels from here to the end of the row have nothing to say.
    int plainPixels(int iCol, int iRow) const;
    /// Takes up what a pixel has to say; the number of pixels to its right that it has used up.
    int takePixel(int iCol, int iRow);
    void measure(std::uint32_t colour);
    void takeMark(std::uint32_t colour, int iCol, int iRow);
    bool cancel();

    const Raster& m_picture;
    std::string m_text;
    bool m_isMeasuring = false;  // the run of black pixels that says how long a track is
    std::int16_t m_iRunLength = 0;
};

/// The arc of the weapon whose mark is at a place: what the pixel at its right says or, if that
/// says nothing, F in the top third of the picture, P and S in the left and right thirds of the
/// rest, A in the bottom third of what is left then, and B in the middle.
char weapArc(const Raster& picture, int iCol, int iRow);

/// The map text of an outline.
std::string scanOutline(const Raster& picture, std::string_view imageFile);

/// What is written to a map file for the text of a scan: the text and one further line end.
std::string mapFileContents(std::string_view text);

}  // namespace fleetwright
