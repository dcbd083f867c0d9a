// SPDX-License-Identifier: GPL-3.0-or-later
// All that the program needs of its surroundings: what it says to a person and what it asks of the system.
// Texts are UTF-8. The window program, `kervol-batch` and the tests each bring their own implementation.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/printer.h"

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
enum class ScreenId {
    frm_Title,
    frm_Disclaimer,
    frm_User,
    frm_HomeScreen,
    frm_Inputnew,
    frm_Animate,
    frm_MassProp,
    frm_Matrix,
    frm_About,
    frm_PlotType,
    frm_PlotSelect1,
    frm_PlotSelect2,
    frm_PlotSelect3,
    frm_PlotSelect4,
    frm_Plot1,
    frm_Plot2,
    frm_Plot3,
    frm_Plot4,
    frm_Myplot2,
    frm_MyPlot3,
    frm_MyPlot4,
    frm_PrintSelect,
    frm_PrintData,
    frm_Flywheel,
    frm_FFT,
    frm_SelfCheck,
    frm_Quit,
};
inline constexpr std::size_t NumScreens = static_cast<std::size_t>(ScreenId::frm_Quit) + 1;
enum class Modality { Modeless, Modal };

/// A file dialog: its title, its filter as pairs of description and pattern parted by "|", and the proposed
/// name.
struct FileDialog {
    std::string title;
    std::string filter;
    std::string name;
};

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
    /// Opens a screen; a modal one returns when it closes, or at once where it takes the place of the front
    /// screen, which has just been hidden.
    virtual void Show_Screen(ScreenId screen, Modality modality) = 0;
    virtual void Hide_Screen(ScreenId screen) = 0;
    /// Moves the focus to the control of that name.
    virtual void Set_Focus(ScreenId screen, std::string_view control) = 0;
    /// The model was read or replaced: the screens' fields take it.
    virtual void Fill_Screens() = 0;
    /// A stage was classified: the panels that show the classes take the model's texts.
    virtual void Show_Classes() = 0;
    /// Ends the run of the program.
    virtual void End_Program() = 0;

    /// The chosen file; nothing after Cancel. The save dialog asks before a file is overwritten.
    virtual std::optional<std::string> Ask_File_To_Open(const FileDialog& dialog) = 0;
    virtual std::optional<std::string> Ask_File_To_Save(const FileDialog& dialog) = 0;
    /// A run of the animation begins or ends. While it goes on all that a person can do is end it.
    virtual void Set_Running(bool running) = 0;
    /// Shows what was drawn and holds it for this time; false once the person wants the run to end.
    virtual bool Hold_Picture(double milliseconds) = 0;
    /// Prints an image of the screen.
    virtual void Print_Screen(ScreenId screen) = 0;
    /// Puts an image of the screen on the clipboard.
    virtual void Copy_Screen(ScreenId screen) = 0;
    /// Puts a text on the clipboard.
    virtual void Copy_Text(const std::string& text) = 0;
    /// Where the first page of the manual may stand, the best place first.
    virtual std::vector<std::string> Manual_Places() = 0;
    /// Hands a file to the program that the desktop has for it; false where there is none.
    virtual bool Open_File(const std::string& path) = 0;
    /// Shows the printer dialog. A printer with an empty document; nothing after Cancel, or where no lines
    /// can be printed.
    virtual std::unique_ptr<Printer> Ask_Printer() { return nullptr; }
    /// The account's full name, else its login name.
    virtual std::string User_Name() = 0;

    /// The long form of a path given at start-up; empty where the system has none.
    virtual std::string Long_Path(const std::string& path) = 0;
    /// Now, in the system's short form.
    virtual DateAndTime Short_Date_And_Time() = 0;

    /// Whether a fault that repeats within one sweep is shown each time. A window shows it once: a fault in
    /// every step would else raise a thousand boxes.
    virtual bool Shows_Repeated_Faults() const = 0;
};

}  // namespace kervol
