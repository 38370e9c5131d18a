#include "SvgPictures.h"

#include "KeptSvgParts.h"
#include "PictureFiles.h"
#include "Raster.h"
#include "base64.h"
#include "svgText.h"

#include <string_view>
#include <utility>

namespace fleetwright {

namespace {

void setStroke(SvgTag& tag, const DrawnShape& shape) {
    static constexpr const char* caps[] = {"butt", "round", "square"};
    static constexpr const char* joins[] = {"miter", "round", "bevel"};
    tag.setPaint("stroke", shape.stroke);
    if (shape.strokeWidth != 1) {
        tag.set("stroke-width", shape.strokeWidth);
    }
    if (shape.cap != DrawnShape::Cap::Flat) {
        tag.set("stroke-linecap", caps[static_cast<int>(shape.cap)]);
    }
    if (shape.join != DrawnShape::Join::Miter) {
        tag.set("stroke-linejoin", joins[static_cast<int>(shape.join)]);
    }
}

void addShape(std::string& text, const DrawnShape& shape) {
    SvgTag path(text, "path");
    path.set("d", shape.path);  // of letters that are no markup
    path.setPaint("fill", shape.fill);
    if (shape.fill && shape.isEvenOdd) {
        path.set("fill-rule", "evenodd");
    }
    if (shape.stroke) {
        setStroke(path, shape);
    }
    if (shape.opacity != 1) {
        path.set("opacity", shape.opacity);
    }
    path.close();
    text += '\n';
}

void addShapesOf(const Drawing& drawing, const Box& paper, std::string& text) {
    SvgTag rectangle(text, "rect");
    rectangle.set(paper);
    rectangle.set("fill", "#fff").close();
    text += '\n';
    for (const DrawnShape& shape : drawing.shapes) {
        addShape(text, shape);
    }
}

bool isInside(const Box& inner, const Box& outer) {
    constexpr double hair = 1e-6;
    return inner.x >= outer.x - hair && inner.y >= outer.y - hair &&
           inner.x + inner.width <= outer.x + outer.width + hair &&
           inner.y + inner.height <= outer.y + outer.height + hair;
}

/// The measures of a picture, in pixels.
std::pair<double, double> sizeOf(const PagePicture& picture) {
    return picture.drawing
               ? std::pair<double, double>(picture.drawing->width, picture.drawing->height)
               : std::pair<double, double>(picture.raster->width(), picture.raster->height());
}

bool hasArea(const PagePicture& picture) {
    const auto [width, height] = sizeOf(picture);
    return width > 0 && height > 0;
}

}  // namespace

/// What refers to a clip path of this box, which is defined once.
const std::string& SvgPictures::clipOf(const Box& box) {
    const auto [known, isNew] =
        m_clips.try_emplace({box.x, box.y, box.width, box.height}, std::string());
    if (isNew) {
        const std::string name = "clip" + std::to_string(m_clips.size());
        known->second = "url(#" + name + ')';
        SvgTag(m_definitions, "clipPath").set("id", name).open();
        SvgTag rectangle(m_definitions, "rect");
        rectangle.set(box);
        rectangle.close();
        m_definitions += "</clipPath>\n";
    }
    return known->second;
}

void SvgPictures::defineDrawing(const std::string& name,
                                const std::shared_ptr<const Drawing>& drawing, bool isOnlyHere) {
    const Box paper = {0, 0, double(drawing->width), double(drawing->height)};
    const std::string clip = isInside(drawing->ink, paper) ? std::string() : clipOf(paper);
    SvgTag group(m_definitions, "g");
    group.set("id", name);
    if (!clip.empty()) {
        group.set("clip-path", clip);
    }
    group.open();
    const auto addShapes = [&](std::string& text) { addShapesOf(*drawing, paper, text); };
    if (m_kept == nullptr || isOnlyHere) {
        addShapes(m_definitions);
    } else {
        m_definitions += *m_kept->drawing(drawing, [&addShapes] {
            std::string shapes;
            addShapes(shapes);
            return shapes;
        });
    }
    m_definitions += "</g>\n";
}

void SvgPictures::defineRaster(const std::string& name, const Raster& raster) {
    const std::string png = toBase64(m_encoder.encode(raster, "png"), Base64Lines::One);
    SvgTag(m_definitions, "image")
        .set("id", name)
        .set("width", double(raster.width()))
        .set("height", double(raster.height()))
        .set("preserveAspectRatio", "none")
        .set("image-rendering", "pixelated")
        .set("href", "data:image/png;base64," + png)
        .close();
    m_definitions += '\n';
}

/// The name of a picture's definition, which is written when it is first asked for.
const std::string& SvgPictures::nameOf(const PagePicture& picture) {
    const void* const key = picture.drawing ? static_cast<const void*>(picture.drawing.get())
                                            : static_cast<const void*>(picture.raster.get());
    const auto [known, isNew] = m_pictures.try_emplace(key, std::string());
    if (isNew) {
        known->second = "picture" + std::to_string(m_pictures.size());
        if (picture.drawing) {
            defineDrawing(known->second, picture.drawing, picture.isOnlyHere);
        } else {
            defineRaster(known->second, *picture.raster);
        }
    }
    return known->second;
}

void SvgPictures::define(const PagePicture& picture) {
    if (hasArea(picture)) {
        nameOf(picture);
        if (!isInside(picture.place, picture.clip)) {
            clipOf(picture.clip);
        }
    }
}

void SvgPictures::use(const PagePicture& picture, std::string& body) {
    if (!hasArea(picture)) {
        return;
    }
    const auto [width, height] = sizeOf(picture);
    const bool isWhole = isInside(picture.place, picture.clip);
    const std::string& name = nameOf(picture);
    if (!isWhole) {
        SvgTag(body, "g").set("clip-path", clipOf(picture.clip)).open();
    }
    BackwardText use;
    use.put(isWhole ? ")\"/>\n" : ")\"/></g>\n");
    use.putNumber(picture.place.height / height);
    use.put(' ');
    use.putNumber(picture.place.width / width);
    use.put(") scale(");
    use.putNumber(picture.place.y);
    use.put(' ');
    use.putNumber(picture.place.x);
    use.put("\" transform=\"translate(");
    use.put(name);
    use.put("<use href=\"#");
    body += use.text();
}

std::string SvgPictures::takeDefinitions() {
    if (m_definitions == definitionsStart) {
        return {};
    }
    m_definitions += "</defs>\n";
    return std::exchange(m_definitions, std::string());
}

}  // namespace fleetwright
