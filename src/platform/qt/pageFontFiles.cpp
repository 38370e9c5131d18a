#include "pageFontFiles.h"

#include "Error.h"

#include <QFontDatabase>
#include <QResource>
#include <QStringList>

// Outside of any namespace, as Qt wants it.
static void openPageFonts() {
    Q_INIT_RESOURCE(page_fonts);
}

namespace fleetwright {

namespace {

/// Makes a font file known to Qt; the name of its family.
QString addFont(const char* file) {
    openPageFonts();
    // Its bytes, and not its name, or each thread would read, and unpack, a copy of its own.
    const int id = QFontDatabase::addApplicationFontFromData(QResource(file).uncompressedData());
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    if (families.isEmpty()) {
        throw Error("the fonts of pages cannot be used");
    }
    return families.front();
}

QString mainFamily() {
    static const QString family = (addFont(":/fonts/bold.ttf"), addFont(":/fonts/regular.ttf"));
    return family;
}

/// Qt tells fonts apart, and orders them in files, by when they came: this one is always the last.
QString fallbackFamily() {
    static const QString family = (mainFamily(), addFont(":/fonts/fallback.otf"));
    return family;
}

}  // namespace

QFont pageFont(PageFace face) {
    QFont font(face == PageFace::Fallback ? fallbackFamily() : mainFamily());
    font.setPixelSize(pageFontSize);
    font.setBold(face == PageFace::Bold);
    // The same on every machine: no letters of other fonts, none moved to where pixels are.
    font.setStyleStrategy(QFont::StyleStrategy(QFont::NoFontMerging | QFont::ForceOutline));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}  // namespace fleetwright
