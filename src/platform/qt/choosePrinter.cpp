#include "choosePrinter.h"

#include "text.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>

namespace fleetwright {

namespace {

/// Where a document goes that is printed into a file: where the last one went.
QString fileFor(const QString& title, const QPrinter& printer) {
    const QString last = printer.outputFileName();
    const QDir folder = last.isEmpty() ? QDir::home() : QFileInfo(last).dir();
    return folder.filePath(QString(title).replace('/', '-') + ".pdf");
}

}  // namespace

bool choosePrinter(QPrinter& printer, const std::string& title) {
    const QString name =
        title.empty() ? QApplication::applicationName() : QString::fromStdString(shownText(title));
    printer.setDocName(name);
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    dialog.setObjectName("printDialog");
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
    // Of Qt's own dialog; those of other systems ask for the file by themselves.
    if (auto* const file = dialog.findChild<QLineEdit*>("filename")) {
        file->setText(fileFor(name, printer));
    }
    return dialog.exec() == QDialog::Accepted;
}

}  // namespace fleetwright
