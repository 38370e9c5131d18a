#pragma once

#include "FleetRow.h"
#include "sheetDocument.h"

#include <vector>

namespace fleetwright {

/// A fleet as a document: the roster, and behind it a sheet for each of its ships under its own
/// name. There are a row and a sheet for each design of the fleet; no sheet for one that has none.
PageDocument fleetDocument(const Fleet& fleet, const FleetRows& rows,
                           const std::vector<const VectorSheet*>& sheets,
                           const SheetOptions& options);

/// A sheet under another name.
VectorSheet renamedSheet(VectorSheet sheet, const std::string& name);

}  // namespace fleetwright
