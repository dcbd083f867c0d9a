// SPDX-License-Identifier: GPL-3.0-or-later
// How handlers are hung on the events of a screen.
#pragma once

#include "core/report.h"
#include "screens/screens.h"

namespace kervol {

/// Hangs `handler(screens)` on an event. Its faults are reported under `name` where no procedure below has
/// met them.
class Wiring {
  public:
    explicit Wiring(Screens& screens) : screens_(screens) {}

    template <class Handler>
    void operator()(Event& event, const char* name, Handler handler) const {
        event = [&screens = screens_, name, handler] {
            Procedure(screens.program, name, [&] { handler(screens); });
        };
    }

  private:
    Screens& screens_;
};

}  // namespace kervol
