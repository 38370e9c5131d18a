#pragma once

#include "PageDocument.h"

#include <filesystem>
#include <functional>
#include <string_view>

namespace fleetwright {

/// Where the user wants pages to go that are to be printed.
struct Printout {
    enum class Way { Nowhere, Paper, File };

    Way way = Way::Nowhere;
    std::filesystem::path file = {};  ///< a PDF file; whoever has the pages makes and saves it,
    PageSize paper = {};              ///< on this paper
};

/// Puts pages on paper, on the screen and into PDF files.
class PagePrinter {
public:
    /// Lays a document out for the paper that the user has chosen.
    using Layout = std::function<PageDocument(const PageSize&)>;

    virtual ~PagePrinter() = default;

    /// Lets the user choose a printer, or a file instead, and prints on a printer. Throws Error.
    virtual Printout print(const Layout& layout) = 0;
    /// Shows the pages as they will be printed, until the user closes them or has them printed in
    /// the same way. Throws Error.
    virtual Printout preview(const Layout& layout) = 0;
    /// Hands out the bytes of a PDF file, piece by piece: the same for the same document, wherever
    /// it is made. Throws Error.
    virtual void writePdf(const PageDocument& document,
                          const std::function<void(std::string_view)>& out) = 0;
};

}  // namespace fleetwright
