#include "QtPrinter.h"

#include "Error.h"
#include "choosePrinter.h"

#include <QMarginsF>
#include <QPainter>
#include <QPrinter>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <utility>
#include <vector>

namespace fleetwright {

namespace {

/// A line with its tabs turned into blanks, up to the next column that is a multiple of eight.
QString withoutTabs(std::string_view line) {
    constexpr qsizetype step = 8;
    QString text;
    for (const QChar c : QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size()))) {
        if (c == '\t') {
            text.append(QString(step - text.size() % step, ' '));
        } else {
            text.append(c);
        }
    }
    return text;
}

/// A line in parts that are no wider than this: one at the least. A part ends where a character
/// does, and some characters are wider than others, whatever the font.
std::vector<QString> brokenLine(const QString& line, const QFont& font, int width) {
    QTextOption anywhere;
    anywhere.setWrapMode(QTextOption::WrapAnywhere);
    QTextLayout layout(line, font);
    layout.setTextOption(anywhere);
    layout.beginLayout();
    std::vector<QString> parts;
    for (QTextLine part = layout.createLine(); part.isValid(); part = layout.createLine()) {
        part.setLineWidth(width);
        parts.push_back(line.mid(part.textStart(), part.textLength()));
    }
    layout.endLayout();
    return parts;
}

}  // namespace

QtPrinter::QtPrinter() = default;

QtPrinter::~QtPrinter() {
    m_painter.reset();  // before the printer that it paints on
}

QPrinter& QtPrinter::printer() {
    if (m_printer == nullptr) {
        // Late: asking for the printers of a network is not quick.
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        constexpr double margin = 15;  // millimetres
        m_printer->setPageMargins({margin, margin, margin, margin}, QPageLayout::Millimeter);
    }
    return *m_printer;
}

std::optional<int> QtPrinter::choose() {
    if (!choosePrinter(printer(), m_title)) {
        return std::nullopt;
    }
    const int copies = std::max(1, printer().copyCount());
    printer().setCopyCount(1);  // each copy is printed as a document of its own
    return copies;
}

void QtPrinter::chooseFile(const std::string& pdf) {
    printer().setOutputFormat(QPrinter::PdfFormat);
    printer().setOutputFileName(QString::fromStdString(pdf));
}

void QtPrinter::setTitle(const std::string& title) {
    m_title = title;
}

std::string QtPrinter::fontName() const {
    return m_font.family().toStdString();
}

void QtPrinter::setFontName(const std::string& name) {
    m_font.setFamily(QString::fromStdString(name));
    // Where that font is missing, another whose letters are all equally wide.
    m_font.setStyleHint(QFont::TypeWriter);
    m_font.setFixedPitch(true);
}

int QtPrinter::fontSize() const {
    return m_font.pointSize();
}

void QtPrinter::setFontSize(int points) {
    m_font.setPointSize(points);
}

void QtPrinter::beginDocument() {
    m_painter = std::make_unique<QPainter>();
    if (!m_painter->begin(&printer())) {
        m_painter.reset();
        throw Error("the printer does not print");
    }
    m_y = 0;
    m_last.clear();
}

void QtPrinter::printLine(std::string_view line) {
    if (m_painter == nullptr) {
        beginDocument();
    }
    const QFont font(m_font, &printer());
    for (const QString& part : brokenLine(withoutTabs(line), font, m_painter->viewport().width())) {
        m_last.push_back({font, part});
    }
    while (m_last.size() > keptTogether) {
        printPart(m_last.front());
        m_last.pop_front();
    }
}

int QtPrinter::heightOf(const Part& part) const {
    return QFontMetrics(part.font, &*m_printer).lineSpacing();
}

void QtPrinter::printPart(const Part& part) {
    m_painter->setFont(part.font);
    const QFontMetrics metrics = m_painter->fontMetrics();
    if (m_y + metrics.height() > m_painter->viewport().height()) {
        breakPage();
    }
    m_painter->drawText(0, m_y + metrics.ascent(), part.text);
    m_y += metrics.lineSpacing();
}

void QtPrinter::breakPage() {
    if (!printer().newPage()) {
        m_painter.reset();  // the next line begins anew
        throw Error("the printer does not print");
    }
    m_y = 0;
}

void QtPrinter::endDocument() {
    if (m_painter == nullptr) {
        return;
    }
    int height = 0;
    for (const Part& part : m_last) {
        height += heightOf(part);
    }
    if (m_y > 0 && m_y + height > m_painter->viewport().height()) {
        breakPage();
    }
    for (const Part& part : std::exchange(m_last, {})) {
        printPart(part);
    }
    const bool isPrinted = m_painter->end();
    m_painter.reset();
    if (!isPrinted) {
        throw Error("the printer does not print");
    }
}

}  // namespace fleetwright
