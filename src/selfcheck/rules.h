// SPDX-License-Identifier: GPL-3.0-or-later
// Where the tables depart from the mechanics of rigid links on purpose. Each such rule can be switched on by
// itself, so that its effect on a model can be told.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>

namespace kervol {

enum class Deviation : std::size_t {
    Stage2Speeds,  ///< Stephenson: link 6 enters the loop's speeds along x with the opposite sign
    CrankAlpha,    ///< `Alpha2` of the solution is not that of the drive
    Link5CG,       ///< the centre of gravity of link 5 turns about a pin that stands still
    ArmOfD,        ///< Watt: link 5 pulls on link 4 at the length of `Link6`, not of `LinkO4D`
    ArmOfC,        ///< Stephenson: link 5 pulls on link 3 at `CouplerAC` along link 3, without `Delta3`
    FrictionArm,   ///< friction of a coupler point gives no moment
    ForceFrame,    ///< directions of external forces count from the ground link
    Transmission,  ///< transmission angles are differences of tabulated angles, not the acute angle
};
inline constexpr std::size_t NumDeviations = static_cast<std::size_t>(Deviation::Transmission) + 1;
inline constexpr std::array<Deviation, NumDeviations> AllDeviations = {
    Deviation::Stage2Speeds, Deviation::CrankAlpha,  Deviation::Link5CG,    Deviation::ArmOfD,
    Deviation::ArmOfC,       Deviation::FrictionArm, Deviation::ForceFrame, Deviation::Transmission};

/// Which of the deviations hold.
class Rules {
  public:
    /// Those of the tables: all.
    static Rules Tabulated() {
        Rules rules;
        rules.on_.set();
        return rules;
    }
    /// Those of rigid links: none.
    static Rules Consistent() { return {}; }
    static Rules Only(Deviation deviation) {
        Rules rules;
        rules.on_.set(static_cast<std::size_t>(deviation));
        return rules;
    }

    bool Has(Deviation deviation) const { return on_.test(static_cast<std::size_t>(deviation)); }

  private:
    std::bitset<NumDeviations> on_;
};

}  // namespace kervol
