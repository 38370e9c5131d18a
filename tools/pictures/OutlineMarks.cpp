#include "OutlineMarks.h"

#include "Error.h"
#include "HullRules.h"
#include "SheetPictures.h"
#include "drawing.h"
#include "readFile.h"

#include <QStringList>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

namespace fleetwright {

namespace {

/// A whole number of pixels; throws Error.
int pixels(const QString& text) {
    bool isWhole = false;
    const int number = text.toInt(&isWhole);
    if (!isWhole) {
        throw Error('"' + text.toStdString() + "\" is no whole number of pixels");
    }
    return number;
}

QSize sizeOf(const QXmlStreamAttributes& attributes) {
    const QStringList viewBox = attributes.value("viewBox").toString().split(' ');
    if (viewBox.size() != 4 || viewBox[0] != "0" || viewBox[1] != "0") {
        throw Error("an outline has a viewBox from 0 0 on");
    }
    return {pixels(viewBox[2]), pixels(viewBox[3])};
}

void nameKeyword(OutlineMark& mark, const std::string& word) {
    if (isMapArc(word)) {
        mark.keyword = MapKeyword::Weap;
        mark.arc = word.front();
        return;
    }
    for (const MapMark& known : mapMarks) {
        if (known.keyword != MapKeyword::Weap && mapWord(known.keyword) == word) {
            mark.keyword = known.keyword;
            return;
        }
    }
    throw Error("unknown mark \"" + word + '"');
}

bool isOfSize(const QRect& box, PictureSize size) {
    return box.size() == QSize(size.width, size.height);
}

/// Whether something is pasted in this size.
bool isPasted(const OutlineMark& mark) {
    if (mark.keyword != MapKeyword::DamRow) {
        return mark.box.size() == systemSize;
    }
    return trackLength(mark) != nullptr || isOfSize(mark.box, trackRoom(capitalMass + 1)) ||
           isOfSize(mark.box, trackRoom(greatMass));
}

OutlineMark readMark(const QXmlStreamAttributes& attributes) {
    OutlineMark mark;
    nameKeyword(mark, attributes.value("data-mark").toString().toStdString());
    const auto number = [&](const char* name) { return pixels(attributes.value(name).toString()); };
    mark.box = {number("x"), number("y"), number("width"), number("height")};
    if (!isPasted(mark)) {
        throw Error("nothing is pasted in the size of this mark");
    }
    return mark;
}

}  // namespace

const TrackLength* trackLength(const OutlineMark& mark) {
    const auto* const found =
        std::find_if(trackLengths.begin(), trackLengths.end(), [&](const TrackLength& length) {
            return isOfSize(mark.box, trackPictureSize(trackSize(length.size)));
        });
    return mark.keyword == MapKeyword::DamRow && found != trackLengths.end() ? found : nullptr;
}

OutlineLayout readOutlineLayout(const std::filesystem::path& source) {
    QXmlStreamReader reader(QString::fromStdString(readTextFile(source)));
    OutlineLayout layout;
    try {
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement) {
                continue;
            }
            if (reader.name() == QLatin1String("svg")) {
                layout.size = sizeOf(reader.attributes());
            } else if (reader.attributes().hasAttribute("data-mark")) {
                layout.marks.push_back(readMark(reader.attributes()));
                if (!QRect(QPoint(), layout.size).contains(layout.marks.back().box)) {
                    throw Error("a mark leaves the picture");
                }
            }
        }
    } catch (const Error& error) {
        throw FileError(source,
                        "line " + std::to_string(reader.lineNumber()) + ": " + error.what());
    }
    return layout;
}

}  // namespace fleetwright
