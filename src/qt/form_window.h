// SPDX-License-Identifier: GPL-3.0-or-later
// The window of one screen, and the list of functions that lay the windows out.
#pragma once

#include <QWidget>
#include <functional>
#include <span>

#include "core/model.h"

namespace kervol {

class PictureList;
struct PlotKind;
struct SelectionKind;
struct Sheet;

class FormWindow : public QWidget {
  public:
    /// The close box, or Escape where `escape_closes`.
    std::function<void()> close_asked;
    /// Shows what stands on the form beyond the controls of its record. Runs whenever the records are shown.
    std::function<void(const LinkageModel& model)> refresh;
    /// Asks for a file and writes the sheet there as a picture.
    std::function<void(const Sheet& sheet)> save_picture;
    /// A click beside all controls.
    std::function<void()> clicked;
    QWidget* first_focus = nullptr;
    bool escape_closes = true;
    bool any_click_closes = false;
    double screen_share = 0;  ///< how much of the screen the window opens on, if its contents allow

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
};

void Lay_Out_Title(FormWindow& form);
void Lay_Out_Disclaimer(FormWindow& form);
void Lay_Out_User(FormWindow& form);
void Lay_Out_Home(FormWindow& form);
void Lay_Out_Input(FormWindow& form, PictureList& picture);
void Lay_Out_Animate(FormWindow& form, PictureList& picture);
void Lay_Out_Mass_Prop(FormWindow& form);
void Lay_Out_Matrix(FormWindow& form);
void Lay_Out_About(FormWindow& form);
void Lay_Out_Plot_Type(FormWindow& form);
void Lay_Out_Plot_Select(FormWindow& form, const SelectionKind& kind);
void Lay_Out_Charts(FormWindow& form, const PlotKind& kind);
void Lay_Out_Own_Plots(FormWindow& form, const PlotKind& kind, std::span<PictureList> pictures);
void Lay_Out_Polar_Plot(FormWindow& form, const PlotKind& kind, PictureList& picture);
void Lay_Out_Print_Select(FormWindow& form);
void Lay_Out_Print_Data(FormWindow& form);
void Lay_Out_Flywheel(FormWindow& form);
void Lay_Out_FFT(FormWindow& form);
void Lay_Out_Self_Check(FormWindow& form);
void Lay_Out_Quit(FormWindow& form);

}  // namespace kervol
