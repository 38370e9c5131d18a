#include "pdfFile.h"

#include "Error.h"
#include "PdfObjects.h"
#include "PdfText.h"
#include "drawPageShapes.h"
#include "text.h"

#include <QBuffer>
#include <QByteArray>
#include <QDateTime>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QString>
#include <QTimeZone>

#include <cmath>

namespace fleetwright {

namespace {

constexpr double millimetresPerInch = 25.4;

double toPoints(double millimetres) {
    constexpr double pointsPerInch = 72;
    return millimetres * pointsPerInch / millimetresPerInch;
}

/// The paper in whole points, which is all that Qt writes.
QSize wholePoints(const PageSize& size) {
    return {static_cast<int>(std::ceil(toPoints(size.width))),
            static_cast<int>(std::ceil(toPoints(size.height)))};
}

/// The document as Qt writes it: without text, with the time of now, and without most of what is
/// said of it.
std::string drawnPages(const PageDocument& document) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(static_cast<int>(millimetresPerInch * pageUnits));
    writer.setPageLayout(
        QPageLayout(QPageSize(wholePoints(document.size), QString(), QPageSize::ExactMatch),
                    QPageLayout::Portrait, QMarginsF()));
    QPainter painter;
    bool isDrawn = painter.begin(&writer);
    for (const Page& page : document.pages) {
        isDrawn = isDrawn && (&page == document.pages.data() || writer.newPage());
        if (isDrawn) {
            drawPageShapes(painter, page);
        }
    }
    if (!isDrawn || !painter.end()) {
        throw Error("the document has no room for another page");
    }
    return bytes.toStdString();
}

/// A text as PDF has it, be it of any characters.
std::string pdfText(const std::string& text) {
    std::string digits = "<FEFF";
    for (const QChar unit : QString::fromStdString(shownText(text))) {
        digits += QString("%1").arg(unit.unicode(), 4, 16, QChar('0')).toStdString();
    }
    return digits + '>';
}

QDateTime dateOf(const PageDocument& document) {
    return QDateTime::fromSecsSinceEpoch(*document.date, Qt::UTC);
}

std::string infoOf(const PageDocument& document) {
    std::string info = "\n<<\n/Title " + pdfText(document.title) + "\n/Author " +
                       pdfText(document.author) + "\n/Subject " + pdfText(document.subject) +
                       "\n/Creator (FleetWright)\n";
    if (document.date) {
        info += "/CreationDate (D:" + dateOf(document).toString("yyyyMMddHHmmss").toStdString() +
                "Z)\n";
    }
    return info + ">>\n";
}

std::string xmlText(const std::string& text) {
    return QString::fromStdString(shownText(text)).toHtmlEscaped().toStdString();
}

std::string inLanguage(const std::string& name, const std::string& text) {
    return '<' + name + "><rdf:Alt><rdf:li xml:lang=\"x-default\">" + xmlText(text) +
           "</rdf:li></rdf:Alt></" + name + ">\n";
}

/// All that is said of a document, for readers of metadata, and what it carries.
std::string packetOf(const PageDocument& document) {
    std::string packet =
        "<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
        "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
        "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
        "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\""
        " xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\">\n";
    packet += inLanguage("dc:title", document.title) +
              inLanguage("dc:description", document.subject) + "<dc:creator><rdf:Seq><rdf:li>" +
              xmlText(document.author) +
              "</rdf:li></rdf:Seq></dc:creator>\n<dc:language><rdf:Bag><rdf:li>" +
              xmlText(document.language) +
              "</rdf:li></rdf:Bag></dc:language>\n<xmp:CreatorTool>FleetWright</xmp:CreatorTool>\n";
    if (document.date) {
        packet += "<xmp:CreateDate>" + dateOf(document).toString(Qt::ISODate).toStdString() +
                  "</xmp:CreateDate>\n";
    }
    return packet + document.metadata +
           "</rdf:Description>\n</rdf:RDF>\n</x:xmpmeta>\n<?xpacket end=\"r\"?>\n";
}

/// Gives the pages their exact size. The upper edge stays, from where all is drawn.
void setPageSize(PdfObjects& objects, const PageSize& size) {
    constexpr std::string_view key = "/MediaBox";
    const int top = wholePoints(size).height();
    const std::string box = QString("/MediaBox [0 %1 %2 %3]")
                                .arg(top - toPoints(size.height), 0, 'f', 3)
                                .arg(toPoints(size.width), 0, 'f', 3)
                                .arg(top)
                                .toStdString();
    for (const std::size_t number : pdfPages(objects)) {
        std::string object = objects.at(number);
        if (const std::size_t start = object.find(key); start != std::string::npos) {
            objects.set(number, object.replace(start, object.find(']', start) + 1 - start, box));
        }
    }
}

}  // namespace

std::string pdfFile(const PageDocument& document) {
    PdfObjects objects(drawnPages(document));
    setPageSize(objects, document.size);
    PdfText(document).putInto(objects);
    objects.set(objects.info(), infoOf(document));
    const std::string packet = packetOf(document);
    // Not compressed, so that other programs find it without reading the document.
    const std::size_t metadata =
        objects.add("\n<< /Type /Metadata /Subtype /XML /Length " + std::to_string(packet.size()) +
                    " >>\nstream\n" + packet + "\nendstream\n");
    const std::size_t pages = pdfReference(objects.at(objects.catalog()), "/Pages");
    objects.set(objects.catalog(), "\n<<\n/Type /Catalog\n/Pages " + std::to_string(pages) +
                                       " 0 R\n/Metadata " + std::to_string(metadata) +
                                       " 0 R\n/Lang " + pdfText(document.language) +
                                       "\n/ViewerPreferences << /DisplayDocTitle true >>\n>>\n");
    return objects.bytes();
}

}  // namespace fleetwright
