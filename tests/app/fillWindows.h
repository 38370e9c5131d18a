#pragma once

#include "Actor.h"

#include <gtest/gtest.h>

namespace fleetwright {

/// Brings the windows to where they have something to say.
inline void fillWindows(Actor& actor) {
    frmMain& main = actor.main;
    TestWindow& test = actor.test;
    // Nobody acts at random here.
    test.inFileDialog = test.inMessage = test.inEachTurn = {};
    test.answer = Answer::Yes;
    main.files.loadFile((test.folder().path() / "ships" / "Gun.shp").string());
    main.fleet.mnuFleet.choose();
    test.fleet().ships.mnuAddShipAtHand.choose();
    main.compare.mnuCompare.choose();
    test.file = (test.folder().path() / "ships" / "Gun.shp").string();
    main.compare.beside.cmdChoose.press();
    main.hull.optMerchant.choose();
    main.mass.txtMass.setText("2");
    main.compare.tmrCompare.tick();
    main.compare.beside.lvLines.select(2);
    main.aboard.lvCurrentWeapons.select(0);
    main.tree.tvWeapons.select(main.tree.tvWeapons.nodes().front());
    main.findings.mnuFindings.choose();
    EXPECT_TRUE(main.mass.lblMassLeft.design().isAlarming);
    EXPECT_FALSE(main.findings.list.lvFindings.rows().empty());
    EXPECT_FALSE(main.compare.beside.lvLines.rows().empty());
    EXPECT_FALSE(test.fleet().ships.lvShips.rows().empty());
}

}  // namespace fleetwright
