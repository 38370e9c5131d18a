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

std::string shapesOf(const Drawing& drawing, const Box& paper) {
    std::string text;
    SvgTag rectangle(text, "rect");
    rectangle.set(paper);
    rectangle.set("fill", "#fff").close();
    text += '\n';
    for (const DrawnShape& shape : drawing.shapes) {
        addShape(text, shape);
    }
    return text;
}

bool isInside(const Box& inner, const Box& outer) {
    constexpr double hair = 1e-6;
    return inner.x >= outer.x - hair && inner.y >= outer.y - hair &&
           inner.x + inner.width <= outer.x + outer.width + hair &&
           inner.y + inner.height <= outer.y + outer.height + hair;
}

}  // namespace

/// What refers to a clip path of this box, which is defined once.
std::string SvgPictures::clipOf(const Box& box) {
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
                                const std::shared_ptr<const Drawing>& drawing) {
    const Box paper = {0, 0, double(drawing->width), double(drawing->height)};
    const std::string clip = isInside(drawing->ink, paper) ? std::string() : clipOf(paper);
    SvgTag group(m_definitions, "g");
    group.set("id", name);
    if (!clip.empty()) {
        group.set("clip-path", clip);
    }
    group.open();
    const auto shapes = [&] { return shapesOf(*drawing, paper); };
    if (m_kept != nullptr) {
        m_definitions += *m_kept->drawing(drawing, shapes);
    } else {
        m_definitions += shapes();
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
std::string SvgPictures::nameOf(const PagePicture& picture) {
    const void* const key = picture.drawing ? static_cast<const void*>(picture.drawing.get())
                                            : static_cast<const void*>(picture.raster.get());
    const auto [known, isNew] = m_pictures.try_emplace(key, std::string());
    if (isNew) {
        constexpr std::size_t usualSize = 1U << 16U;  // bytes of all pictures of a sheet
        m_definitions.reserve(usualSize);
        known->second = "picture" + std::to_string(m_pictures.size());
        if (picture.drawing) {
            defineDrawing(known->second, picture.drawing);
        } else {
            defineRaster(known->second, *picture.raster);
        }
    }
    return known->second;
}

void SvgPictures::use(const PagePicture& picture, std::string& body) {
    const double width = picture.drawing ? picture.drawing->width : picture.raster->width();
    const double height = picture.drawing ? picture.drawing->height : picture.raster->height();
    const bool isWhole = isInside(picture.place, picture.clip);
    if (width <= 0 || height <= 0) {
        return;
    }
    const std::string name = nameOf(picture);
    if (!isWhole) {
        SvgTag(body, "g").set("clip-path", clipOf(picture.clip)).open();
    }
    ((body += "<use href=\"#") += name) += "\" transform=\"translate(";
    addSvgNumber(body, picture.place.x);
    addSvgNumber(body += ' ', picture.place.y);
    addSvgNumber(body += ") scale(", picture.place.width / width);
    addSvgNumber(body += ' ', picture.place.height / height);
    body += isWhole ? ")\"/>\n" : ")\"/></g>\n";
}

std::string SvgPictures::takeDefinitions() {
    if (!m_definitions.empty()) {
        m_definitions.insert(0, "<defs>\n") += "</defs>\n";
    }
    return std::exchange(m_definitions, std::string());
}

}  // namespace fleetwright
