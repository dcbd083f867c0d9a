// SPDX-License-Identifier: GPL-3.0-or-later
// What the controls of the Fourier screen do.
#pragma once

#include "screens/screens.h"

namespace kervol {

/// Names the events of the Fourier screen's controls.
void Wire_FFT_Screen(Screens& screens);

/// Each time the screen opens: nothing chosen, component X, as many harmonics as the sweep has; the transform
/// before this is gone.
void FFT_Form_Activate(Screens& screens);

}  // namespace kervol
