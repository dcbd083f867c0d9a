// SPDX-License-Identifier: GPL-3.0-or-later
// A sweep of which angles and speeds alone are wanted. Positions are solved many at a time, each kind of work
// in a short loop over all of them, since what costs in a single one is the chain of library calls.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "core/program.h"
#include "kinematics/depth.h"
#include "kinematics/stage1.h"
#include "kinematics/stage2.h"

namespace kervol {

/// Takes crank states and writes `Theta`, and at `Depth::Speeds` also `Omega`, the crank's cell of `Alpha`
/// and the ratios of their rows, with the bits that `Calculate` gives them; all other cells, and the working
/// state, may be left as they were. A position of which a fault might be missed in what is left out, that has
/// a fault or does not assemble goes to `Calculate`, behind others that were taken with it.
///
/// For models and depths that `Safe_Depth` allows, and boxes that are not answered with Abort.
class OutlineRows {
  public:
    OutlineRows(Program& program, Depth depth);

    /// Takes the crank state in `Theta2Rad` and `Omega2` for a row.
    void Take(std::int16_t step, Answer& response);
    /// Writes all rows that were taken. Leaves the crank state of the model as it is.
    void Finish(Answer& response);

  private:
    /// One position: the crank state and what has been found.
    struct Lane {
        std::int16_t step = 0;
        float Theta2Rad = 0, Omega2 = 0;
        Arm crank;
        Line coupler, rocker, input, link5, link6;
        Stage1 stage1{};
        Stage2 stage2{};
    };

    /// Does one kind of work on all lanes that are left; those for which it comes back false are left out.
    template <class Work>
    void Do(Work&& work);
    void Solve();
    void Store(const Lane& lane);
    void Set_Crank(const Lane& lane);

    bool Turn_Crank(Lane& lane) const;
    bool Close_Stage1(Lane& lane) const;
    bool Move_Stage1(Lane& lane) const;
    bool Find_C(Lane& lane) const;
    bool Close_Stage2(Lane& lane, const LoopConstants& K, float g) const;
    bool Close_Watt(Lane& lane) const;
    bool Close_Stephenson(Lane& lane) const;
    bool Move_Watt(Lane& lane) const;
    bool Move_Stephenson(Lane& lane) const;

    static constexpr std::size_t kLanes = 24;

    Program& program_;
    const LinkageModel& model_;
    const Depth depth_;
    const bool watt_;
    const LoopConstants K1_;
    const LoopConstants K2_;  ///< of a Watt chain
    std::array<Lane, kLanes> lanes_;
    std::size_t taken_ = 0;
    std::array<bool, kLanes> left_out_{};
};

}  // namespace kervol
