#include "pageFontFiles.h"

#include "Error.h"

#include <QFontDatabase>
#include <QStringList>

// Outside of any namespace, as Qt wants it.
static void openPageFonts() {
    Q_INIT_RESOURCE(page_fonts);
}

namespace fleetwright {

namespace {

/// Makes a font file known to Qt; the name of its family.
QString addFont(const QString& file) {
    openPageFonts();
    const int id = QFontDatabase::addApplicationFont(":/fonts/" + file);
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    if (families.isEmpty()) {
        throw Error("the fonts of pages cannot be used");
    }
    return families.front();
}

QString familyOf(PageFace face) {
    if (face == PageFace::Fallback) {
        static const QString fallback = addFont("fallback.otf");
        return fallback;
    }
    static const QString family = (addFont("bold.ttf"), addFont("regular.ttf"));
    return family;
}

}  // namespace

QFont pageFont(PageFace face, int size) {
    QFont font(familyOf(face));
    font.setPixelSize(size);
    font.setBold(face == PageFace::Bold);
    // The same on every machine: no letters of other fonts, none moved to where pixels are.
    font.setStyleStrategy(QFont::StyleStrategy(QFont::NoFontMerging | QFont::ForceOutline));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}  // namespace fleetwright
