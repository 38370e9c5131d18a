#include "RecoveryFolder.h"
#include "TextFile.h"
#include "commands.h"
#include "saveFile.h"

#include <cstdio>

namespace fleetwright {

int runRecovered(const Options& options) {
    const std::vector<RecoveryFolder::Design> designs =
        RecoveryFolder::list(RecoveryFolder::ofUser());
    if (options.saveName.empty()) {
        for (const RecoveryFolder::Design& design : designs) {
            std::printf("%s\n", design.name.c_str());
        }
        return Done;
    }
    const std::string& name = options.files.front();
    for (const RecoveryFolder::Design& design : designs) {
        if (design.name == name) {
            const bool isNamed = options.saveName.ends_with(".shp");
            saveFile(nativePath(options.saveName + (isNamed ? "" : ".shp")),
                     readTextFile(design.file));
            return Done;
        }
    }
    std::fprintf(stderr, "%s\n",
                 complaint(name, {0, "no design of this name was put aside"}).c_str());
    return SomeRefused;
}

}  // namespace fleetwright
