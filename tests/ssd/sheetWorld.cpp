#include "sheetWorld.h"

namespace fleetwright {

const std::string_view arcCatalogue = "F,1,1,x,BEAM,F,f.gif\nFP,1,1,x,BEAM,FP,fp.gif\n"
                                      "XSF,1,1,x,BEAM,XSF,xsf.gif\nBAS,1,1,x,BEAM,BAS,bas.gif\n"
                                      "PS,1,1,x,BEAM,PS,ps.gif\n"
                                      "Hidden,1,1,x,BEAM,6F,hidden.gif\n"
                                      "Listed,1,1,x,BEAM,OF,listed.gif\n"
                                      "Damage Control Party,1,1,x,SYSTEMS,O,party.gif\n";

SSDMap MapFolder::map(std::string_view text) const {
    write("test", text);
    SSDMap map(path());
    map.ImageFile("test");
    return map;
}

std::vector<ListView::Row>
rows(std::initializer_list<std::pair<const char*, const char*>> systems) {
    std::vector<ListView::Row> rows;
    for (const auto& [name, count] : systems) {
        rows.push_back({.key = name, .text = name, .subItem = count});
    }
    return rows;
}

}  // namespace fleetwright
