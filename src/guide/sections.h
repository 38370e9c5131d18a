#pragma once

// The sections of the table of texts. A row more for a control is all that a new one needs.

#include "ControlTexts.h"

namespace fleetwright {

using ControlRows = std::span<const ControlText>;

// The main window.
ControlRows massTexts();
ControlRows hullTexts();
ControlRows driveTexts();
ControlRows figureTexts();
ControlRows systemTexts();
ControlRows fileMenuTexts();
ControlRows standardHullTexts();
ControlRows extrasMenuTexts();
ControlRows designMenuTexts();
ControlRows helpMenuTexts();
ControlRows popUpTexts();

// The other windows.
ControlRows amountTexts();
ControlRows extrasPageTexts();
ControlRows findingsTexts();
ControlRows compareTexts();
ControlRows putAsideTexts();
ControlRows fleetTexts();
ControlRows fleetMenuTexts();
ControlRows mapperTexts();
ControlRows viewerTexts();
ControlRows mapCreatorTexts();
ControlRows aboutTexts();

}  // namespace fleetwright
