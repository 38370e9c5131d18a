#include "QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace fleetwright {

std::string QtClipboard::text() {
    return QGuiApplication::clipboard()->text().toStdString();
}

void QtClipboard::setText(const std::string& text) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

}  // namespace fleetwright
