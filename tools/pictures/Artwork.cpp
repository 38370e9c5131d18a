#include "Artwork.h"

#include "Error.h"
#include "readFile.h"

#include <QStringList>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace fleetwright {

namespace {

/// Whether an element belongs to the variant.
bool isWanted(const QXmlStreamAttributes& attributes, const Variant& variant) {
    const QString prefix = QStringLiteral("data-");
    for (const QXmlStreamAttribute& attribute : attributes) {
        if (!attribute.qualifiedName().startsWith(prefix)) {
            continue;
        }
        const auto found =
            variant.find(attribute.qualifiedName().mid(prefix.size()).toUtf8().data());
        const QString value =
            found == variant.end() ? QString() : QString::fromStdString(found->second);
        if (!attribute.value().toString().split(' ').contains(value)) {
            return false;
        }
    }
    return true;
}

/// Puts the place, size, weight and colour of a `text` element on its outlines.
void writeText(QXmlStreamWriter& writer, const QXmlStreamAttributes& attributes,
               const std::string& text, const Lettering& lettering) {
    double x = attributes.value("x").toDouble();
    const double y = attributes.value("y").toDouble();
    const double scale = attributes.value("font-size").toDouble() / Lettering::capitalHeight;
    const double spacing = attributes.value("letter-spacing").toDouble() / scale;
    if (attributes.value("text-anchor") == QLatin1String("middle")) {
        x -= lettering.width(text, spacing) * scale / 2;
    }
    writer.writeStartElement("path");
    writer.writeAttribute("transform", QStringLiteral("translate(%1 %2) scale(%3)")
                                           .arg(x, 0, 'f', 3)
                                           .arg(y, 0, 'f', 3)
                                           .arg(scale, 0, 'f', 4));
    writer.writeAttribute("d", QString::fromStdString(lettering.outline(text, spacing)));
    for (const QXmlStreamAttribute& attribute : attributes) {
        const auto name = attribute.qualifiedName();
        if (name.startsWith(QLatin1String("stroke"))) {
            writer.writeAttribute(attribute);
        }
    }
    writer.writeAttribute("fill", "none");
    writer.writeEndElement();
}

/// A text with the values put in for their names in braces.
std::string filledIn(QString text, const Variant& values) {
    for (const auto& [name, value] : values) {
        text.replace(QString::fromStdString('{' + name + '}'), QString::fromStdString(value));
    }
    return text.toStdString();
}

/// What Qt has to say against a picture; it would draw as much as it understands and go on.
std::string drawingFault(const QByteArray& svg) {
    static QString complaint;
    complaint.clear();
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& text) { complaint = text; });
    const bool isValid = QSvgRenderer(svg).isValid();
    qInstallMessageHandler(before);
    return isValid || !complaint.isEmpty() ? complaint.toStdString() : "no SVG picture";
}

}  // namespace

Artwork::Artwork(std::filesystem::path folder, std::string version)
    : m_folder(std::move(folder)), m_version(std::move(version)),
      m_lettering(m_folder / "lettering.txt") {}

QByteArray Artwork::svg(const std::string& name, const Variant& variant) const {
    const std::filesystem::path source = file(name + ".svg");
    QXmlStreamReader reader(QString::fromStdString(readTextFile(source)));
    reader.setNamespaceProcessing(false);
    QByteArray svg;
    QXmlStreamWriter writer(&svg);
    Variant values = variant;
    values["version"] = m_version;
    const auto fail = [&](const std::string& fault) {
        throw FileError(source, "line " + std::to_string(reader.lineNumber()) + ": " + fault);
    };
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::EndElement) {
            writer.writeEndElement();
        }
        if (token == QXmlStreamReader::Characters && !reader.isWhitespace()) {
            writer.writeCharacters(reader.text().toString());
        }
        if (token != QXmlStreamReader::StartElement) {
            continue;
        }
        const QXmlStreamAttributes attributes = reader.attributes();
        if (svg.isEmpty() && reader.qualifiedName() != QLatin1String("svg")) {
            fail("no SVG picture");
        }
        if (!isWanted(attributes, variant)) {
            reader.skipCurrentElement();
        } else if (reader.qualifiedName() == QLatin1String("text")) {
            try {
                writeText(writer, attributes, filledIn(reader.readElementText(), values),
                          m_lettering);
            } catch (const Error& error) {
                fail(error.what());
            }
        } else {
            writer.writeStartElement(reader.qualifiedName().toString());
            writer.writeAttributes(attributes);
        }
    }
    if (reader.hasError()) {
        fail(reader.errorString().toStdString());
    }
    const std::string fault = drawingFault(svg);
    if (!fault.empty()) {
        throw FileError(source, fault);
    }
    return svg;
}

}  // namespace fleetwright
