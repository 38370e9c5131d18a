#pragma once

#include "Printer.h"

#include <QFont>
#include <QString>

#include <cstddef>
#include <deque>
#include <memory>

class QPainter;
class QPrinter;

namespace fleetwright {

/// Prints through the system's print service, or into a PDF file.
class QtPrinter : public Printer {
public:
    QtPrinter();
    QtPrinter(const QtPrinter&) = delete;
    QtPrinter& operator=(const QtPrinter&) = delete;
    ~QtPrinter() override;

    std::optional<int> choose() override;
    /// Prints into this file from now on, without a dialog; only tests do that.
    void chooseFile(const std::string& pdf);

    void setTitle(const std::string& title) override;
    std::string fontName() const override;
    void setFontName(const std::string& name) override;
    int fontSize() const override;
    void setFontSize(int points) override;
    void printLine(std::string_view line) override;
    void endDocument() override;

private:
    /// What goes into one line of the paper.
    struct Part {
        QFont font;
        QString text;
    };
    /// So many lines at the end of a document are not parted by the end of a page.
    static constexpr std::size_t keptTogether = 3;

    QPrinter& printer();
    void beginDocument();
    void printPart(const Part& part);
    void breakPage();
    int heightOf(const Part& part) const;

    std::unique_ptr<QPrinter> m_printer;
    std::unique_ptr<QPainter> m_painter;  ///< of the document that is being printed
    std::deque<Part> m_last;              ///< the last lines, which are not yet on the page
    std::string m_title;
    QFont m_font;
    int m_y = 0;  ///< upper edge of the next line, in the printer's pixels
};

}  // namespace fleetwright
