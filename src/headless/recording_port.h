// SPDX-License-Identifier: GPL-3.0-or-later
// The port of runs without a person: boxes are recorded and answered by a rule.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/port.h"

namespace kervol {

class RecordingPort : public Port {
  public:
    struct Shown {
        MessageBox box;
        Answer answer;
    };

    Answer Show_Message(const MessageBox& box) override;
    void Set_Pointer(Pointer shape) override { pointer = shape; }
    void Show_Screen(ScreenId screen, Modality modality) override;
    std::string Long_Path(const std::string& path) override;
    DateAndTime Short_Date_And_Time() override;
    bool Shows_Repeated_Faults() const override { return shows_repeated_faults; }

    /// Answers a box; without one, and for `Answer::None`, the box's preset button is pressed.
    std::function<Answer(const MessageBox&)> answer;
    bool shows_repeated_faults = true;

    std::vector<Shown> messages;
    std::vector<ScreenId> screens;  ///< in the order in which they were shown
    Pointer pointer = Pointer::Default;
};

}  // namespace kervol
