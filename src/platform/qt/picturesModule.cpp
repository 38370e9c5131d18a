#include "picturesModule.h"

#include "QtMessages.h"
#include "QtPictureFiles.h"
#include "pageFontFiles.h"
#include "pdfFile.h"
#include "quietApplication.h"

namespace fleetwright {

namespace {

void prepareForPdf() {
    needQuietApplication();
    pageFont(PageFace::Regular);
}

std::string quietPdfFile(const PageDocument& document) {
    needQuietApplication();
    return pdfFile(document);
}

}  // namespace

}  // namespace fleetwright

extern "C" Q_DECL_EXPORT const fleetwright::Pictures* createPictures() {
    using namespace fleetwright;
    QtMessages::silence();  // the tool has its own words for what goes wrong
    static QtPictureFiles files;
    static const Pictures pictures{files, files, prepareForPdf, quietPdfFile};
    return &pictures;
}
