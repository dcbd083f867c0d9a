// SPDX-License-Identifier: GPL-3.0-or-later
// A run of the forces allocates nothing for a step. The operators below count for the whole test program.
#include <cstdlib>
#include <new>

#include "dynamics/dynamics_fixture.h"

namespace {
std::size_t allocations = 0;
}

void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace kervol {
namespace {

class Allocations : public DynamicsTest {
  protected:
    std::size_t Of_A_Run(std::int16_t last) {
        model.NumSteps = last;
        const std::size_t before = allocations;
        EXPECT_EQ(Solve_Forces(*program), last + 1);
        return allocations - before;
    }
};

TEST_F(Allocations, AreTheSameForOneStepAsForAllOfThem) {
    RandomLinkages random(3);
    Put_Random_Position(random, "W");
    while (Boxes_Left() > 0) Take_Box();
    for (int row = 1; row <= MaxSteps; ++row) tables.Theta(row) = tables.Theta(0);
    Of_A_Run(0);
    EXPECT_EQ(Of_A_Run(MaxSteps), Of_A_Run(0));
    const std::size_t before = allocations;
    // Through a function that the compiler may not see through: it drops an allocation that nobody looks at.
    void* (*volatile allocate)(std::size_t) = &::operator new;
    ::operator delete(allocate(1));
    EXPECT_GT(allocations, before) << "what counts, counts";
}

}  // namespace
}  // namespace kervol
