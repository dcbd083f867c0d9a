// SPDX-License-Identifier: GPL-3.0-or-later
#include "dynamics/flywheel.h"

namespace kervol {
namespace {

/// The pulses of one sign: which is the current one, and whether the curve is in it.
struct PulseTrain {
    explicit PulseTrain(PulseAreas& the_areas) : areas(the_areas) {}

    void Enter(PulseTrain& other) {
        if (other.inside) ++other.number;
        other.inside = false;
        inside = true;
    }
    void Add(float area) { areas(number) = Single(double(areas(number)) + area); }

    PulseAreas& areas;
    int number = 1;
    bool inside = false;
};

}  // namespace

void Integrate_Pulses(const DeviationCurve& D, std::int16_t Last, float DeltaX, PulseAreas& NegArea,
                      PulseAreas& PosArea, std::int16_t& NPulses, std::int16_t& FirstSign) {
    for (int i = 1; i <= NPulses; ++i) {
        NegArea(i) = 0;
        PosArea(i) = 0;
    }
    PulseTrain positive(PosArea), negative(NegArea);
    for (int i = 2; i <= Last; ++i) {
        const float mean = Single((double(D(i - 1)) + D(i)) / 2);
        const float area = Single(double(mean) * DeltaX);
        const bool is_positive = D(i) >= 0;
        if (i == 2) FirstSign = is_positive ? 1 : -1;
        PulseTrain& current = is_positive ? positive : negative;
        current.Enter(is_positive ? negative : positive);
        current.Add(area);
    }
    NPulses = static_cast<std::int16_t>(positive.number + negative.number);
}

}  // namespace kervol
