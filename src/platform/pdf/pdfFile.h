#pragma once

#include "PageDocument.h"
#include "PdfObjects.h"

#include <string>

namespace fleetwright {

/// The bytes of a PDF file: the same for the same document, wherever it is made. Any number of
/// threads may make files. Throws Error.
std::string pdfFile(const PageDocument& document);

/// The same, piece by piece: nothing of a page stays in memory when the next one comes.
void writePdf(const PageDocument& document, const PdfOut& out);

}  // namespace fleetwright
