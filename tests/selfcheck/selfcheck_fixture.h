// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of the self-check's tests: examples and random linkages, calculated and loaded.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "dynamics/link_data.h"
#include "dynamics/solve_forces.h"
#include "kinematics/examples.h"
#include "kinematics/step_count.h"
#include "kinematics/sweep.h"
#include "selfcheck/self_check.h"
#include "support/program_test.h"
#include "support/random_linkage.h"

namespace kervol {

class SelfCheckTest : public ProgramTest {
  protected:
    /// Calculates by the model's own mode and solves the forces; returns how many steps have them.
    int Calculate_All() {
        Calculate_Model(*program);
        const int solved = Run_Dynamics(*program);
        while (Boxes_Left() > 0) Take_Box();
        return solved;
    }

    SelfCheck Check_Example(std::string_view name) {
        Load_Example(model, *Find_Example(name));
        model.CalcMode = 3;
        const int solved = Calculate_All();
        return Check_Results(model, tables, solved);
    }

    /// Masses and loads of every kind on every link that can bear them.
    void Put_Loads(RandomLinkages& random) {
        for (int link = 2; link <= NumLinks; ++link) {
            model.LinkMass(link) = random.Between(0.5F, 5);
            model.LinkInertia(link) = random.Between(0.5F, 20);
            model.LinkCG(link, 0) = random.Between(0.5F, 6);
            model.LinkCG(link, 1) = random.Between(-3, 3);
            if (link == 2) continue;
            model.ForceMag(link) = random.Between(10, 50);
            model.ForceAngle(link) = random.Between(-360, 360);
            model.ForcePointDist(link) = random.Between(0, 6);
            model.ForcePointAngle(link) = random.Between(-360, 360);
            model.LinkTorque(link) = random.Between(-100, 100);
            model.LinkFriction(link) = random.Between(1, 20);
        }
    }

    /// A random loaded linkage of the chain in 37 steps of a full turn, as many as assemble.
    int Put_Random_Sweep(RandomLinkages& random, std::string_view chain) {
        random.Next(model, chain);
        model.Omega2Start = model.Omega2;
        model.Alpha2 = 0;
        model.CalcMode = 3;
        model.ThetaMinDeg = 0;
        model.ThetaMaxDeg = 360;
        model.ThetaStepDeg = 10;
        Put_Loads(random);
        port.answer = [](const MessageBox&) { return Answer::Ignore; };
        return Calculate_All();
    }

    static const CheckedValue* Find(const SelfCheck& result, std::string_view name) {
        const auto found =
            std::find_if(result.checks.begin(), result.checks.end(),
                         [&](const CheckedValue& check) { return check.quantity.name == name; });
        return found == result.checks.end() ? nullptr : &*found;
    }

    /// "Omega5, Omega6": those of a verdict.
    static std::string Names(const SelfCheck& result, Verdict verdict) {
        std::string names;
        for (const CheckedValue& check : result.checks)
            if (check.verdict == verdict) names += (names.empty() ? "" : ", ") + check.quantity.name;
        return names;
    }
};

}  // namespace kervol
