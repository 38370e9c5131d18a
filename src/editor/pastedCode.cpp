#include "pastedCode.h"

#include "Clipboard.h"
#include "ShipFileLine.h"
#include "designCode.h"

namespace fleetwright {

std::string pastedCode(Clipboard& clipboard) {
    const std::string text = clipboard.text();
    if (hasDesignCode(text)) {
        return designCode(shipInCode(text));
    }
    if (!valueIn(text, ShipKey::ShipName) || !valueIn(text, ShipKey::Mass)) {
        throw DesignCodeError("there is neither a design code nor a ship file on the clipboard");
    }
    return designCode(text);
}

std::string nothingPasted(const DesignCodeError& error) {
    return std::string("Nothing was pasted: ") + error.what();
}

}  // namespace fleetwright
