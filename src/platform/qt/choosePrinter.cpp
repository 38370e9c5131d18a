#include "choosePrinter.h"

#include "contrast.h"
#include "paths.h"
#include "text.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>

namespace fleetwright {

namespace {

/// Where a document goes that is printed into a file: to where the last one went.
QString fileFor(const QPrinter& printer) {
    const std::string name = fileNameOf(printer.docName().toStdString());
    const QString last = printer.outputFileName();
    const QDir folder = last.isEmpty() ? QDir::home() : QFileInfo(last).dir();
    return folder.filePath(QString::fromStdString(name + ".pdf"));
}

/// Says that a system whose own dialog only knows printers has none.
void sayThatThereIsNone() {
    QMessageBox::information(QApplication::activeWindow(), QApplication::applicationName(),
                             "There is no printer. One can be added in the settings of the system."
                             "\n\nSheets can be saved as PDF files instead: Export Sheet in the "
                             "menu Design.");
}

}  // namespace

void setTitle(QPrinter& printer, const std::string& title) {
    printer.setDocName(title.empty() ? QApplication::applicationName()
                                     : QString::fromStdString(shownText(title)));
}

bool choosePrinter(QPrinter& printer, const std::string& title) {
    setTitle(printer, title);
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    dialog.setObjectName("printDialog");
    dialog.setPalette(readableColours(QApplication::palette()));
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
    // Of Qt's own dialog; those of other systems ask for the file by themselves.
    if (auto* const file = dialog.findChild<QLineEdit*>("filename")) {
        file->setText(fileFor(printer));
    } else if (printer.setOutputFormat(QPrinter::NativeFormat);
               printer.outputFormat() != QPrinter::NativeFormat) {
        sayThatThereIsNone();
        return false;
    }
    return dialog.exec() == QDialog::Accepted;
}

}  // namespace fleetwright
