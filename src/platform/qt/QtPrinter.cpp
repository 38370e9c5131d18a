#include "QtPrinter.h"

#include "Error.h"

#include <QApplication>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include <algorithm>

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

}  // namespace

QtPrinter::QtPrinter() = default;

QtPrinter::~QtPrinter() {
    m_painter.reset();  // before the printer that it paints on
}

QPrinter& QtPrinter::printer() {
    if (m_printer == nullptr) {
        // Late: asking for the printers of a network is not quick.
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        m_printer->setDocName(QApplication::applicationName());
    }
    return *m_printer;
}

std::optional<int> QtPrinter::choose() {
    QPrintDialog dialog(&printer(), QApplication::activeWindow());
    dialog.setObjectName("printDialog");
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
    if (dialog.exec() != QDialog::Accepted) {
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
}

void QtPrinter::printLine(std::string_view line) {
    if (m_painter == nullptr) {
        beginDocument();
    }
    m_painter->setFont(QFont(m_font, &printer()));
    const QString text = withoutTabs(line);
    const int letter = std::max(1, m_painter->fontMetrics().horizontalAdvance('0'));
    const qsizetype most = std::max(1, m_painter->viewport().width() / letter);
    qsizetype printed = 0;
    do {
        printPart(text.mid(printed, most));
        printed += most;
    } while (printed < text.size());
}

void QtPrinter::printPart(const QString& part) {
    const QFontMetrics metrics = m_painter->fontMetrics();
    if (m_y + metrics.height() > m_painter->viewport().height()) {
        if (!printer().newPage()) {
            m_painter.reset();  // the next line begins anew
            throw Error("the printer does not print");
        }
        m_y = 0;
    }
    m_painter->drawText(0, m_y + metrics.ascent(), part);
    m_y += metrics.lineSpacing();
}

void QtPrinter::endDocument() {
    if (m_painter == nullptr) {
        return;
    }
    const bool isPrinted = m_painter->end();
    m_painter.reset();
    if (!isPrinted) {
        throw Error("the printer does not print");
    }
}

}  // namespace fleetwright
