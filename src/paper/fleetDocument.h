#pragma once

#include "FleetRow.h"
#include "sheetDocument.h"

#include <memory>
#include <string>
#include <vector>

namespace fleetwright {

/// The sheets of a fleet, one for each of its designs; null for one that has none.
using FleetSheets = std::vector<std::shared_ptr<const VectorSheet>>;

/// The most sheets of a document.
inline constexpr int mostSheets = 100'000;

/// Throws Error for a fleet of more ships than that.
void checkCanBePrinted(const Fleet& fleet);

/// A fleet as a document: the roster, and behind it a sheet for each of its ships under its own
/// name. There are a row and a sheet for each design of the fleet. The pages of sheets are made
/// when they are asked for. On smaller paper the roster has no room: then they have the shape of
/// that paper, for whoever shrinks them. Throws Error for more than `mostSheets`.
PageDocument fleetDocument(const Fleet& fleet, const FleetRows& rows, const FleetSheets& sheets,
                           const SheetOptions& options);

/// A sheet under another name.
VectorSheet renamedSheet(VectorSheet sheet, const std::string& name);

}  // namespace fleetwright
