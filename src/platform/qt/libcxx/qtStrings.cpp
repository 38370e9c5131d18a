// The functions of Qt that take or give a std::string and are no part of its headers, for a
// standard library that Qt was not built on.

#include <QByteArray>

QByteArray QByteArray::fromStdString(const std::string& text) {
    return {text.data(), static_cast<qsizetype>(text.size())};
}

std::string QByteArray::toStdString() const {
    return {constData(), static_cast<std::size_t>(size())};
}
