#include "QtPagePrinter.h"

#include "Error.h"
#include "choosePrinter.h"
#include "drawPage.h"
#include "pdfFile.h"

#include <QApplication>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include <exception>

namespace fleetwright {

namespace {

PageSize paperOf(const QPrinter& printer) {
    const QSizeF size = printer.pageLayout().fullRect(QPageLayout::Millimeter).size();
    return {size.width(), size.height()};
}

void printPages(QPrinter& printer, const PageDocument& document) {
    constexpr double millimetresPerInch = 25.4;
    const double scale = printer.resolution() / millimetresPerInch / pageUnits;
    QPainter painter;
    bool isPrinted = painter.begin(&printer);
    for (const Page& page : document.pages) {
        isPrinted = isPrinted && (&page == document.pages.data() || printer.newPage());
        if (isPrinted) {
            painter.save();
            painter.scale(scale, scale);
            drawPage(painter, page);
            painter.restore();
        }
    }
    if (!isPrinted || !painter.end()) {
        throw Error("the printer does not print");
    }
}

}  // namespace

QtPagePrinter::QtPagePrinter() = default;
QtPagePrinter::~QtPagePrinter() = default;

QPrinter& QtPagePrinter::printer() {
    if (m_printer == nullptr) {
        // Late: asking for the printers of a network is not quick.
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        m_printer->setFullPage(true);
    }
    return *m_printer;
}

bool QtPagePrinter::print(const Layout& layout) {
    if (!choosePrinter(printer(), layout(paperOf(printer())).title)) {
        return false;
    }
    printPages(printer(), layout(paperOf(printer())));
    return true;
}

void QtPagePrinter::preview(const Layout& layout) {
    printer().setDocName(QString::fromStdString(layout(paperOf(printer())).title));
    QPrintPreviewDialog dialog(&printer(), QApplication::activeWindow());
    dialog.setObjectName("printPreview");
    std::exception_ptr failure;  // which is not thrown through Qt
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* paper) {
        try {
            printPages(*paper, layout(paperOf(*paper)));
        } catch (const Error&) {
            failure = std::current_exception();
            dialog.reject();
        }
    });
    dialog.exec();
    if (failure != nullptr) {
        std::rethrow_exception(failure);
    }
}

std::string QtPagePrinter::pdf(const PageDocument& document) {
    return pdfFile(document);
}

}  // namespace fleetwright
