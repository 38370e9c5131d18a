#pragma once

#include "Pages.h"

#include <QBuffer>
#include <QByteArray>
#include <QPainter>
#include <QPdfWriter>

#include <memory>

namespace fleetwright {

/// A PDF document, which Qt writes. It works without an application object.
class QtPages : public Pages {
public:
    explicit QtPages(Paper paper);

    void add(const Raster& picture) override;
    std::string finish() override;

private:
    QByteArray m_bytes;
    QBuffer m_buffer{&m_bytes};
    QPdfWriter m_writer{&m_buffer};
    std::unique_ptr<QPainter> m_painter;  // from the first page to the end of the document
};

}  // namespace fleetwright
