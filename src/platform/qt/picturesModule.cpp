#include "picturesModule.h"

#include "QtPages.h"
#include "QtPictureFiles.h"

extern "C" Q_DECL_EXPORT const fleetwright::Pictures* createPictures() {
    using namespace fleetwright;
    static QtPictureFiles files;
    static const Pictures pictures{files, files, [](Paper paper) -> std::unique_ptr<Pages> {
                                       return std::make_unique<QtPages>(paper);
                                   }};
    return &pictures;
}
