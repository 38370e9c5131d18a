#include "QtPagePrinter.h"

#include "Error.h"
#include "choosePrinter.h"
#include "drawPage.h"
#include "drawPageShapes.h"
#include "paths.h"
#include "pdfFile.h"

#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QScreen>
#include <QToolBar>

#include <algorithm>
#include <exception>
#include <functional>
#include <utility>

namespace fleetwright {

namespace {

/// The paper of a printer; of a label, one of the same shape on which pages have room.
PageSize paperOf(const QPrinter& printer) {
    constexpr double leastSide = 105;  // millimetres
    const QSizeF size = printer.pageLayout().fullRect(QPageLayout::Millimeter).size();
    const double scale = std::max(1.0, leastSide / std::min(size.width(), size.height()));
    return {size.width() * scale, size.height() * scale};
}

void printPages(QPrinter& printer, const PageDocument& document) {
    const int width = printer.pageLayout().fullRectPixels(printer.resolution()).width();
    const double scale = width / document.size.width / pageUnits;
    QPainter painter;
    bool isPrinted = painter.begin(&printer);
    bool isFirst = true;
    document.eachPage([&](const Page& page) {
        isPrinted = isPrinted && (std::exchange(isFirst, false) || printer.newPage());
        if (isPrinted) {
            painter.save();
            painter.scale(scale, scale);
            drawPage(painter, page);
            painter.restore();
        }
    });
    if (!isPrinted || !painter.end()) {
        throw Error("the printer does not print");
    }
}

/// Has the button that prints from a preview do this instead of what Qt does.
void onPrint(QPrintPreviewDialog& dialog, const std::function<void()>& act) {
    const QString text = QCoreApplication::translate("QPrintPreviewDialog", "Print");
    const auto actions = dialog.findChildren<QAction*>();
    const auto action = std::ranges::find(actions, text, &QAction::text);
    if (action != actions.end()) {
        (*action)->disconnect(&dialog);
        QObject::connect(*action, &QAction::triggered, &dialog, act);
    }
}

/// Gives the preview room for all of its buttons, of which Qt would show but the first ones, and
/// for a page that can be made out.
void enlarge(QPrintPreviewDialog& dialog) {
    constexpr QSize comfortable(800, 900), frame(10, 40);
    QSize size = dialog.size().expandedTo(comfortable);
    for (const auto* const buttons : dialog.findChildren<QToolBar*>()) {
        size = size.expandedTo(buttons->sizeHint());
    }
    dialog.resize(size.boundedTo(dialog.screen()->availableSize() - frame));
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

Printout QtPagePrinter::send(const Layout& layout) {
    const PageSize paper = paperOf(printer());
    const QString file = printer().outputFileName();
    if (printer().outputFormat() == QPrinter::PdfFormat && !file.isEmpty()) {
        return {Printout::Way::File, nativePath(file.toStdString()), paper};
    }
    printPages(printer(), layout(paper));
    return {.way = Printout::Way::Paper};
}

Printout QtPagePrinter::print(const Layout& layout) {
    return choosePrinter(printer(), layout(paperOf(printer())).title) ? send(layout) : Printout();
}

Printout QtPagePrinter::preview(const Layout& layout) {
    const std::string title = layout(paperOf(printer())).title;
    setTitle(printer(), title);
    QPrintPreviewDialog dialog(&printer(), QApplication::activeWindow());
    dialog.setObjectName("printPreview");
    enlarge(dialog);
    std::exception_ptr failure;  // which is not thrown through Qt
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* paper) {
        try {
            printPages(*paper, layout(paperOf(*paper)));
        } catch (const Error&) {
            failure = std::current_exception();
            dialog.reject();
        }
    });
    onPrint(dialog, [&] {
        if (choosePrinter(printer(), title)) {
            dialog.accept();
        }
    });
    const bool isToBePrinted = dialog.exec() == QDialog::Accepted;
    if (failure != nullptr) {
        std::rethrow_exception(failure);
    }
    return isToBePrinted ? send(layout) : Printout();
}

void QtPagePrinter::writePdf(const PageDocument& document,
                             const std::function<void(std::string_view)>& out) {
    fleetwright::writePdf(document, out);
}

}  // namespace fleetwright
