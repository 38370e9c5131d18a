#include "bringInOrder.h"

#include "ShipClass.h"

namespace fleetwright {

void bringInOrder(ShipClass& ship) {
    if (isBase(ship.Hull())) {
        ship.FTL(NoDrive);
        ship.THRUST(0);
        ship.Streamline(0);
    }
    ship.mass(ship.mass());
}

}  // namespace fleetwright
