// SPDX-License-Identifier: GPL-3.0-or-later
// All that the program needs of its surroundings: what it says to a person and what it asks of the system.
// Texts are UTF-8. The window program, `kervol-batch` and the tests each bring their own implementation.
#pragma once

#include <cstdint>
#include <string>

namespace kervol {

enum class Icon { None, Exclamation, Information, Question };
enum class Buttons { OK, OKCancel, YesNo, AbortRetryIgnore };

/// Answer to a message box, numbered as sweeps and handlers test it. `None` is no box yet.
enum class Answer : std::int16_t {
    None = 0,
    OK = 1,
    Cancel = 2,
    Abort = 3,
    Retry = 4,
    Ignore = 5,
    Yes = 6,
    No = 7,
};

struct MessageBox {
    std::string text;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::OK;
    Answer preset = Answer::OK;  ///< the button that Enter presses
};

enum class Pointer { Default, Busy };
enum class ScreenId { frm_HomeScreen, frm_Inputnew };
enum class Modality { Modeless, Modal };

struct DateAndTime {
    std::string date;
    std::string time;
};

class Port {
  public:
    virtual ~Port() = default;

    /// Shows the box and waits for its answer.
    virtual Answer Show_Message(const MessageBox& box) = 0;
    virtual void Set_Pointer(Pointer pointer) = 0;
    /// Opens a screen; a modal one returns when it closes.
    virtual void Show_Screen(ScreenId screen, Modality modality) = 0;

    /// The long form of a path given at start-up; empty where the system has none.
    virtual std::string Long_Path(const std::string& path) = 0;
    /// Now, in the system's short form.
    virtual DateAndTime Short_Date_And_Time() = 0;

    /// Whether a fault that repeats within one sweep is shown each time. A window shows it once: a fault in
    /// every step would else raise a thousand boxes.
    virtual bool Shows_Repeated_Faults() const = 0;
};

}  // namespace kervol
