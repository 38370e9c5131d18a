#pragma once

#include "PageDocument.h"

#include <functional>

namespace fleetwright {

/// Puts pages on paper, on the screen and into PDF files.
class PagePrinter {
public:
    /// Lays a document out for the paper that the user has chosen.
    using Layout = std::function<PageDocument(const PageSize&)>;

    virtual ~PagePrinter() = default;

    /// Lets the user choose a printer and prints. False if that was cancelled. Throws Error.
    virtual bool print(const Layout& layout) = 0;
    /// Shows the pages as they will be printed, until the user closes them. Throws Error.
    virtual void preview(const Layout& layout) = 0;
    /// The bytes of a PDF file: the same for the same document, wherever it is made. Throws Error.
    virtual std::string pdf(const PageDocument& document) = 0;
};

}  // namespace fleetwright
