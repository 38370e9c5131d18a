#include "PdfObjects.h"

#include "Error.h"

#include <QByteArray>

#include <algorithm>
#include <charconv>
#include <iterator>
#include <map>

namespace fleetwright {

namespace {

constexpr std::string_view header = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";

[[noreturn]] void failPdf() {
    throw Error("the document cannot be finished");
}

/// The number at the start of a text, behind blanks, which are taken off with it.
std::size_t takeNumber(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \r\n"), text.size()));
    std::size_t number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc()) {
        failPdf();
    }
    text.remove_prefix(static_cast<std::size_t>(result.ptr - text.data()));
    return number;
}

/// What follows a word in a text, behind its last place there.
std::string_view behindLast(std::string_view text, std::string_view word) {
    const std::size_t found = text.rfind(word);
    if (found == std::string_view::npos) {
        failPdf();
    }
    return text.substr(found + word.size());
}

/// A number with zeros in front of it.
std::string tenDigits(std::size_t number) {
    std::string digits = std::to_string(number);
    digits.insert(0, 10 - std::min<std::size_t>(digits.size(), 10), '0');
    return digits;
}

/// The objects of a file by the places where they begin, and the table of objects behind them.
std::map<std::size_t, std::size_t> placesOf(std::string_view file) {
    std::string_view end = behindLast(file, "startxref");
    const std::size_t table = takeNumber(end);
    if (table >= file.size() || !file.substr(table).starts_with("xref")) {
        failPdf();
    }
    std::string_view rows = file.substr(table + 4);
    std::size_t number = takeNumber(rows);
    const std::size_t last = number + takeNumber(rows);
    std::map<std::size_t, std::size_t> places = {{table, 0}};
    for (; number < last; ++number) {
        const std::size_t place = takeNumber(rows);
        takeNumber(rows);
        if (rows.starts_with(" n")) {
            places[place] = number;
        }
        rows.remove_prefix(std::min<std::size_t>(2, rows.size()));
    }
    return places;
}

}  // namespace

std::size_t pdfReference(std::string_view dictionary, std::string_view key) {
    std::string_view value = behindLast(dictionary, key);
    return takeNumber(value);
}

std::string pdfStream(std::string_view bytes) {
    constexpr int lengthInFront = 4;  // which is Qt's own
    constexpr int fastest = 1;        // files are a hundredth larger than with the best
    const QByteArray packed = qCompress(reinterpret_cast<const uchar*>(bytes.data()),
                                        static_cast<qsizetype>(bytes.size()), fastest)
                                  .mid(lengthInFront);
    return "\n<< /Length " + std::to_string(packed.size()) + " /Filter /FlateDecode >>\nstream\n" +
           packed.toStdString() + "\nendstream\n";
}

std::vector<std::size_t> pdfPages(const PdfObjects& objects) {
    std::vector<std::size_t> pages;
    for (std::size_t number = 0; number < objects.count(); ++number) {
        if (objects.at(number).find("/Type /Page\n") != std::string::npos) {
            pages.push_back(number);
        }
    }
    return pages;
}

PdfObjects::PdfObjects(std::string_view file) {
    const std::string_view trailer = behindLast(file, "trailer");
    m_info = pdfReference(trailer, "/Info");
    m_catalog = pdfReference(trailer, "/Root");
    const std::map<std::size_t, std::size_t> places = placesOf(file);
    for (auto place = places.begin(); std::next(place) != places.end(); ++place) {
        const auto& [start, number] = *place;
        const std::string_view whole = file.substr(start, std::next(place)->first - start);
        const std::size_t begin = whole.find("obj");
        const std::size_t end = whole.rfind("endobj");
        if (end == std::string_view::npos || begin >= end) {
            failPdf();
        }
        m_objects.resize(std::max(m_objects.size(), number + 1));
        m_objects[number] = whole.substr(begin + 3, end - begin - 3);
    }
    if (std::max(m_info, m_catalog) >= m_objects.size()) {
        failPdf();
    }
}

std::size_t PdfObjects::add(std::string object) {
    m_objects.push_back(std::move(object));
    return m_objects.size() - 1;
}

std::string PdfObjects::bytes() const {
    std::string file(header);
    std::string table;
    for (std::size_t number = 0; number < m_objects.size(); ++number) {
        if (m_objects[number].empty()) {
            table += tenDigits(0) + " 65535 f \n";
            continue;
        }
        table += tenDigits(file.size()) + " 00000 n \n";
        file += std::to_string(number) + " 0 obj" + m_objects[number] + "endobj\n";
    }
    const std::string count = std::to_string(m_objects.size());
    const std::string start = std::to_string(file.size());
    return file + "xref\n0 " + count + '\n' + table + "trailer\n<< /Size " + count + " /Info " +
           std::to_string(m_info) + " 0 R /Root " + std::to_string(m_catalog) +
           " 0 R >>\nstartxref\n" + start + "\n%%EOF\n";
}

}  // namespace fleetwright
