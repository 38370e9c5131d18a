#include "picturesModule.h"

#include "QtMessages.h"
#include "QtPictureFiles.h"
#include "pagePixels.h"
#include "pdfFile.h"

#include <QtGlobal>

namespace fleetwright {}  // namespace fleetwright

extern "C" Q_DECL_EXPORT const fleetwright::Pictures* createPictures() {
    using namespace fleetwright;
    QtMessages::silence();  // the tool has its own words for what goes wrong
    static QtPictureFiles files;
    static const Pictures pictures{files, files, pdfFile, pagePixels};
    return &pictures;
}
