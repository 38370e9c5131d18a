#include "pdfFile.h"

#include "PdfContents.h"
#include "PdfShapes.h"
#include "PdfText.h"
#include "svgText.h"

#include <chrono>
#include <string_view>

namespace fleetwright {

namespace {

constexpr double pointsPerMillimetre = 72 / 25.4;

/// A moment of UTC, with these between the parts of the day, the day and the time, and its parts.
std::string dateText(std::int64_t seconds, const char* inDay, const char* between,
                     const char* inTime) {
    using namespace std::chrono;
    const sys_seconds moment{std::chrono::seconds(seconds)};
    const auto day = floor<days>(moment);
    const year_month_day date(day);
    const hh_mm_ss time(moment - day);
    const auto two = [](auto number) {
        const std::string digits = std::to_string(number);
        return digits.size() < 2 ? '0' + digits : digits;
    };
    return std::to_string(static_cast<int>(date.year())) + inDay +
           two(static_cast<unsigned>(date.month())) + inDay +
           two(static_cast<unsigned>(date.day())) + between + two(time.hours().count()) + inTime +
           two(time.minutes().count()) + inTime + two(time.seconds().count());
}

std::string infoOf(const PageDocument& document) {
    std::string info = "<<\n/Title " + pdfText(document.title) + "\n/Author " +
                       pdfText(document.author) + "\n/Subject " + pdfText(document.subject) +
                       "\n/Creator (FleetWright)\n";
    if (document.date) {
        info += "/CreationDate (D:" + dateText(*document.date, "", "", "") + "Z)\n";
    }
    return info + ">>";
}

std::string inLanguage(const std::string& name, const std::string& text) {
    return '<' + name + "><rdf:Alt><rdf:li xml:lang=\"x-default\">" + svgText(text) +
           "</rdf:li></rdf:Alt></" + name + ">\n";
}

/// All that is said of a document, for readers of metadata. What it carries comes behind that, and
/// then the end of the packet.
std::string packetOf(const PageDocument& document) {
    std::string packet =
        "<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
        "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
        "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
        "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\""
        " xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\">\n";
    packet += inLanguage("dc:title", document.title) +
              inLanguage("dc:description", document.subject) + "<dc:creator><rdf:Seq><rdf:li>" +
              svgText(document.author) +
              "</rdf:li></rdf:Seq></dc:creator>\n<dc:language><rdf:Bag><rdf:li>" +
              svgText(document.language) +
              "</rdf:li></rdf:Bag></dc:language>\n<xmp:CreatorTool>FleetWright</xmp:CreatorTool>\n";
    if (document.date) {
        packet +=
            "<xmp:CreateDate>" + dateText(*document.date, "-", "T", ":") + "Z</xmp:CreateDate>\n";
    }
    return packet;
}

constexpr std::string_view packetEnd =
    "</rdf:Description>\n</rdf:RDF>\n</x:xmpmeta>\n<?xpacket end=\"r\"?>\n";

/// Writes the pages of a document, and notes what begins on them; the number of the object that
/// lists them.
std::size_t writePages(PdfObjects& objects, const PageDocument& document, PdfContents& contents) {
    const std::string width = pdfLength(document.size.width * pointsPerMillimetre);
    const std::string height = pdfLength(document.size.height * pointsPerMillimetre);
    const std::string scale = pdfFactor(pointsPerMillimetre);
    const std::string toMillimetres =
        scale + " 0 0 -" + scale + " 0 " + height + " cm\n";  // from the upper left corner on
    const std::size_t list = objects.reserve(), fonts = objects.reserve();
    PdfShapes shapes(objects);
    PdfText texts;
    std::string numbers;
    std::size_t count = 0;
    document.eachPage([&](const Page& page) {
        const std::string content =
            toMillimetres + "q\n" + shapes.contentOf(page) + "Q\n" + texts.contentOf(page);
        const std::size_t written = objects.addStream(content);
        const std::size_t number =
            objects.add("<< /Type /Page /Parent " + pdfReference(list) + " /MediaBox [0 0 " +
                        width + ' ' + height + "] /Resources << /Font " + pdfReference(fonts) +
                        ' ' + shapes.pictures() + " >> /Contents " + pdfReference(written) + " >>");
        for (const std::string& name : page.contents) {
            contents.add(name, number);
        }
        numbers += pdfReference(number) + '\n';
        ++count;
    });
    objects.write(fonts, texts.writeFonts(objects));
    objects.write(list, "<< /Type /Pages /Count " + std::to_string(count) + " /Kids [\n" + numbers +
                            "] >>");
    return list;
}

}  // namespace

void writePdf(const PageDocument& document, const PdfOut& out) {
    PdfObjects objects(out);
    PdfContents contents(objects);
    const std::size_t pages = writePages(objects, document, contents);
    const std::string packet = packetOf(document);
    const std::size_t length = packet.size() + document.metadata.size() + packetEnd.size();
    // Not compressed, so that other programs find it without reading the document.
    const std::size_t metadata =
        objects.add({"<< /Type /Metadata /Subtype /XML /Length " + std::to_string(length),
                     " >>\nstream\n", packet, document.metadata, packetEnd, "\nendstream"});
    const std::size_t catalog = objects.add(
        "<<\n/Type /Catalog\n/Pages " + pdfReference(pages) + "\n/Metadata " +
        pdfReference(metadata) + contents.finish() + "\n/Lang " + pdfText(document.language) +
        "\n/ViewerPreferences << /DisplayDocTitle true >>\n>>");
    const std::size_t info = objects.add(infoOf(document));
    objects.finish(info, catalog);
}

std::string pdfFile(const PageDocument& document) {
    std::string file;
    writePdf(document, [&file](std::string_view bytes) { file += bytes; });
    return file;
}

}  // namespace fleetwright
