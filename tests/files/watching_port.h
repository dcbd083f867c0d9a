// SPDX-License-Identifier: GPL-3.0-or-later
// A recording port that also tells in which order things happened, and lets a test look at the program while
// a box or a screen is open.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "headless/recording_port.h"

namespace kervol {

class WatchingPort : public RecordingPort {
  public:
    Answer Show_Message(const MessageBox& box) override {
        events.push_back("box: " + box.text);
        if (while_open) while_open();
        return RecordingPort::Show_Message(box);
    }
    void Set_Pointer(Pointer shape) override {
        events.emplace_back(shape == Pointer::Default ? "default pointer" : "busy pointer");
        RecordingPort::Set_Pointer(shape);
    }
    void Show_Screen(ScreenId screen, Modality modality) override {
        const std::string name = screen == ScreenId::frm_Inputnew ? "frm_Inputnew" : "frm_HomeScreen";
        events.push_back((modality == Modality::Modal ? "modal " : "modeless ") + name);
        if (while_open) while_open();
        RecordingPort::Show_Screen(screen, modality);
    }

    std::vector<std::string> events;
    /// Runs while a box or a screen is shown.
    std::function<void()> while_open;
};

}  // namespace kervol
