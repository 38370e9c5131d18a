#include "picturesModule.h"

#include "QtMessages.h"
#include "QtPages.h"
#include "QtPictureFiles.h"
#include "pdfFile.h"
#include "quietApplication.h"

extern "C" Q_DECL_EXPORT const fleetwright::Pictures* createPictures() {
    using namespace fleetwright;
    QtMessages::silence();  // the tool has its own words for what goes wrong
    static QtPictureFiles files;
    static const Pictures pictures{
        files, files,
        [](Paper paper) -> std::unique_ptr<Pages> { return std::make_unique<QtPages>(paper); },
        [](const PageDocument& document) {
            needQuietApplication();
            return pdfFile(document);
        }};
    return &pictures;
}
