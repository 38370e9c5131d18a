#pragma once

#include "PageDocument.h"

#include <string>

namespace fleetwright {

/// The bytes of a PDF file: the same for the same document, wherever it is made. Any number of
/// threads may make files. Throws Error.
std::string pdfFile(const PageDocument& document);

}  // namespace fleetwright
