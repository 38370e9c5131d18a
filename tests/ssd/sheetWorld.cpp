#include "sheetWorld.h"

#include "Fault.h"

#include <algorithm>

namespace fleetwright {

const std::string_view arcCatalogue = "F,1,1,x,BEAM,F,f.gif\nFP,1,1,x,BEAM,FP,fp.gif\n"
                                      "XSF,1,1,x,BEAM,XSF,xsf.gif\nBAS,1,1,x,BEAM,BAS,bas.gif\n"
                                      "PS,1,1,x,BEAM,PS,ps.gif\n"
                                      "Hidden,1,1,x,BEAM,6F,hidden.gif\n"
                                      "Listed,1,1,x,BEAM,OF,listed.gif\n"
                                      "Damage Control Party,1,1,x,SYSTEMS,O,party.gif\n";

SSDMap mapOf(std::string_view text) {
    const TemporaryFolder folder;
    folder.write("maps/test.map", text);
    SSDMap map(folder.path());
    map.ImageFile("test");
    return map;
}

std::string shownScan(const std::filesystem::path& folder, SSDMaps& maps, std::int16_t& largest) {
    std::string shown;
    for (const DroppedMap& map :
         scanMaps(folder, maps, largest, [&](const auto& text) { shown += text + '\n'; })) {
        shown += complaint(map.file.filename().string(), map.fault) + '\n';
    }
    return shown;
}

Raster box(int width, int height, std::uint32_t colour) {
    Raster raster(width, height);
    for (int y = 0; y < height; ++y) {
        std::fill(raster.row(y).begin(), raster.row(y).end(), colour);
    }
    return raster;
}

std::string pictureOf(const Raster& raster) {
    std::string text;
    for (int y = 0; y < raster.height(); ++y) {
        for (const std::uint32_t colour : raster.row(y)) {
            text += colour == 0               ? '#'
                    : colour == Raster::white ? '.'
                                              : static_cast<char>('a' + colour % 26);
        }
        text += '\n';
    }
    return text;
}

}  // namespace fleetwright
