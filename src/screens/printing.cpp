// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/printing.h"

namespace kervol {

bool Confirm_Printing(Port& port, ScreenId screen) {
    std::string text =
        screen == ScreenId::frm_Animate ? "" : "You can print this form directly to a printer from here.\n";
    text +=
        "Note: The image on this screen may not print correctly on some printers.\n"
        "You can also copy it to the clipboard and paste it in a document.\n"
        "Do you want to send it to the printer now anyway?";
    return port.Show_Message({text, Icon::Exclamation, Buttons::YesNo, Answer::Yes}) == Answer::Yes;
}

void Print_Form(Port& port, ScreenId screen) {
    if (Confirm_Printing(port, screen)) port.Print_Screen(screen);
}

void Copy_Form(Port& port, ScreenId screen, Icon icon) {
    port.Copy_Screen(screen);
    port.Show_Message({"Use the Alt-PrintScrn key combo to copy the screen to the clipboard", icon});
}

}  // namespace kervol
