// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of the force tests: positions put into the tables by hand or solved for random linkages, and random
// link data.
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "core/constants.h"
#include "dynamics/link_data.h"
#include "dynamics/solve_forces.h"
#include "kinematics/calculate.h"
#include "support/compare.h"
#include "support/program_test.h"
#include "support/random_linkage.h"

namespace kervol {

class DynamicsTest : public ProgramTest {
  protected:
    /// Zero link data throughout.
    void Clear_Link_Data() {
        for (LinkArray* array : {&model.LinkMass, &model.LinkInertia, &model.ForceMag, &model.ForceAngle,
                                 &model.ForceX, &model.ForceY, &model.ForcePointDist, &model.ForcePointAngle,
                                 &model.LinkTorque, &model.LinkFriction})
            array->Fill(0);
        model.LinkCG.Fill(0);
    }

    /// Loads of any size and direction on every link that can bear them.
    void Put_Random_Link_Data(RandomLinkages& random) {
        Clear_Link_Data();
        for (int link = 2; link <= NumLinks; ++link) {
            model.LinkMass(link) = random.Between(0, 5);
            model.LinkInertia(link) = random.Between(0, 20);
            model.LinkCG(link, 0) = random.Between(-4, 6);
            model.LinkCG(link, 1) = random.Between(-3, 3);
            if (link == 2) continue;
            model.ForceMag(link) = random.Between(-50, 50);
            model.ForceAngle(link) = random.Between(-360, 360);
            model.ForcePointDist(link) = random.Between(0, 6);
            model.ForcePointAngle(link) = random.Between(-360, 360);
            model.LinkTorque(link) = random.Between(-100, 100);
            model.LinkFriction(link) = random.Between(0, 20);
        }
        Resolve_External_Forces(model);
    }

    /// Solves row `row` of the kinematic tables at a random crank angle; false where it does not assemble.
    bool Solve_Position(RandomLinkages& random, std::int16_t row = 0) {
        model.Theta2Rad = random.Between(-6, 6);
        Answer response = Answer::Ignore;
        Calculate(*program, row, response);
        return tables.StepValid(row);
    }

    /// A random linkage of the chain with loads, its step 0 assembled.
    void Put_Random_Position(RandomLinkages& random, std::string_view chain) {
        model.NumSteps = 0;
        do random.Next(model, chain);
        while (!Solve_Position(random));
        Put_Random_Link_Data(random);
    }

    /// Angles of links 2, 3, 4, the Stage 2 input line, links 5 and 6 in degrees, local frame.
    void Put_Angles(int row, const std::array<float, 6>& degrees) {
        for (int column = 0; column < 6; ++column)
            tables.Theta(row, column) = degrees[static_cast<std::size_t>(column)] + model.GroundAngleDeg;
    }

    void Expect_Force(int entry, double x, double y, double tolerance, int step = 0) const {
        EXPECT_NEAR(tables.ForceTable(step, entry, 0), x, tolerance) << "X of entry " << entry;
        EXPECT_NEAR(tables.ForceTable(step, entry, 1), y, tolerance) << "Y of entry " << entry;
    }

    /// Entries of `ForceTable`.
    enum Entry {
        F32,
        F43,
        Inertia3,
        Inertia2,
        Inertia4,
        F12,
        F14,
        Shaking,
        F54,
        F65,
        F16,
        Inertia5,
        Inertia6
    };
};

}  // namespace kervol
