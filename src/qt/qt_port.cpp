// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/qt_port.h"

#include <QApplication>
#include <QEventLoop>
#include <QLineEdit>
#include <QScreen>
#include <utility>

#include "plots/plot_sheets.h"
#include "qt/accessibility.h"
#include "qt/picture_menu.h"
#include "qt/wide_registers.h"
#include "rendering/qt_text.h"
#include "screens/control_lists.h"
#include "screens/input_events.h"
#include "screens/launch_screens.h"
#include "screens/plot_events.h"

namespace kervol {
namespace {

/// Centred each time it opens, as large as it was left.
void Place(FormWindow& window) {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) return;
    const QRect room = screen->availableGeometry();
    const QSize wanted = (room.size() * window.screen_share).expandedTo(window.sizeHint());
    if (!window.testAttribute(Qt::WA_Moved)) window.resize(wanted.boundedTo(room.size()));
    window.move(room.center() - window.rect().center());
}

/// A page for the picture and the labels around it.
PageSize Page_Of(const QWidget& picture) {
    return {double(picture.width()) + 140, double(picture.height()) + 90};
}

/// Whether a modal screen leaves the modal one that opened it visible. Over Home all do.
bool Stands_Over(ScreenId screen, ScreenId opener) {
    return (screen == ScreenId::frm_Matrix && opener == ScreenId::frm_MassProp) ||
           (screen == ScreenId::frm_PrintData && opener == ScreenId::frm_PrintSelect);
}

}  // namespace

QtPort::QtPort() {
    Announce_Own_Widgets();
}
QtPort::~QtPort() = default;

void QtPort::Attach(Screens& screens) {
    screens_ = &screens;
    screens.frm_Inputnew.Picture1 = &input_picture_;
    screens.frm_Animate.Picture1 = &animate_picture_;
    screens.frm_MyPlot4.pct_Plot[0] = &polar_picture_;
    for (std::size_t i = 0; i < two_plots_.size(); ++i) screens.frm_Myplot2.pct_Plot[i] = &two_plots_[i];
    for (std::size_t i = 0; i < four_plots_.size(); ++i) screens.frm_MyPlot3.pct_Plot[i] = &four_plots_[i];
}

void QtPort::Run(const Event& event) {
    // All that the gate lets through is the button that started the run.
    if (run_) return run_->Ask_End();
    Clear_Wide_Registers();
    if (event && !ended_) event();
    Push_All();
}

void QtPort::Push_All() {
    for (OpenForm& form : forms_) {
        if (form.binder == nullptr) continue;
        form.binder->Push();
        if (form.window->refresh) form.window->refresh(screens_->program.model);
    }
}

template <class Record>
void QtPort::Bind(OpenForm& form, Record& record) {
    form.binder = std::make_unique<Binder>(*form.window, [this](const Event& event) { Run(event); });
    Visit_Controls(record, [&](const char* name, auto& control) { form.binder->Add(name, control); });
    form.binder->Check_Names();
}

void QtPort::Lay_Out_And_Bind(OpenForm& form, PlotSelectScreen& screen) {
    Lay_Out_Plot_Select(*form.window, screen.kind);
    Bind(form, screen);
}

void QtPort::Lay_Out(ScreenId screen, OpenForm& form) {
    switch (screen) {
        case ScreenId::frm_Title:
            Lay_Out_Title(*form.window);
            return Bind(form, screens_->frm_Title);
        case ScreenId::frm_Disclaimer:
            Lay_Out_Disclaimer(*form.window);
            return Bind(form, screens_->frm_Disclaimer);
        case ScreenId::frm_User:
            Lay_Out_User(*form.window);
            return Bind(form, screens_->frm_User);
        case ScreenId::frm_HomeScreen:
            Lay_Out_Home(*form.window);
            return Bind(form, screens_->frm_HomeScreen);
        case ScreenId::frm_Inputnew:
            Lay_Out_Input(*form.window, input_picture_);
            return Bind(form, screens_->frm_Inputnew);
        case ScreenId::frm_About:
            Lay_Out_About(*form.window);
            return Bind(form, screens_->frm_About);
        case ScreenId::frm_Quit:
            Lay_Out_Quit(*form.window);
            return Bind(form, screens_->frm_Quit);
        case ScreenId::frm_Animate:
            Lay_Out_Animate(*form.window, animate_picture_);
            return Bind(form, screens_->frm_Animate);
        case ScreenId::frm_MassProp:
            Lay_Out_Mass_Prop(*form.window);
            return Bind(form, screens_->frm_MassProp);
        case ScreenId::frm_Matrix:
            Lay_Out_Matrix(*form.window);
            return Bind(form, screens_->frm_Matrix);
        case ScreenId::frm_PlotType:
            Lay_Out_Plot_Type(*form.window);
            return Bind(form, screens_->frm_PlotType);
        case ScreenId::frm_PlotSelect1:
            return Lay_Out_And_Bind(form, screens_->frm_PlotSelect1);
        case ScreenId::frm_PlotSelect2:
            return Lay_Out_And_Bind(form, screens_->frm_PlotSelect2);
        case ScreenId::frm_PlotSelect3:
            return Lay_Out_And_Bind(form, screens_->frm_PlotSelect3);
        case ScreenId::frm_PlotSelect4:
            return Lay_Out_And_Bind(form, screens_->frm_PlotSelect4);
        case ScreenId::frm_Plot1:
            return Lay_Out_And_Bind(form, screens_->frm_Plot1);
        case ScreenId::frm_Plot2:
            return Lay_Out_And_Bind(form, screens_->frm_Plot2);
        case ScreenId::frm_Plot3:
            return Lay_Out_And_Bind(form, screens_->frm_Plot3);
        case ScreenId::frm_Plot4:
            return Lay_Out_And_Bind(form, screens_->frm_Plot4);
        case ScreenId::frm_Myplot2:
            return Lay_Out_And_Bind(form, screens_->frm_Myplot2, two_plots_);
        case ScreenId::frm_MyPlot3:
            return Lay_Out_And_Bind(form, screens_->frm_MyPlot3, four_plots_);
        case ScreenId::frm_MyPlot4:
            return Lay_Out_And_Bind(form, screens_->frm_MyPlot4);
        case ScreenId::frm_PrintSelect:
            Lay_Out_Print_Select(*form.window);
            return Bind(form, screens_->frm_PrintSelect);
        case ScreenId::frm_PrintData:
            Lay_Out_Print_Data(*form.window);
            return Bind(form, screens_->frm_PrintData);
        case ScreenId::frm_Flywheel:
            Lay_Out_Flywheel(*form.window);
            return Bind(form, screens_->frm_Flywheel);
        case ScreenId::frm_FFT:
            Lay_Out_FFT(*form.window);
            return Bind(form, screens_->frm_FFT);
        case ScreenId::frm_SelfCheck:
            Lay_Out_Self_Check(*form.window);
            return Bind(form, screens_->frm_SelfCheck);
    }
}

void QtPort::Lay_Out_And_Bind(OpenForm& form, ChartScreen& screen) {
    Lay_Out_Charts(*form.window, screen.kind);
    Bind(form, screen);
    form.window->clicked = [this, &screen] { Run(screen.click); };
}

void QtPort::Lay_Out_And_Bind(OpenForm& form, OwnPlotScreen& screen, std::span<PictureList> pictures) {
    Lay_Out_Own_Plots(*form.window, screen.kind, pictures);
    Bind(form, screen);
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        auto* picture = form.window->findChild<QWidget*>("pct_Plot_" + QString::number(i));
        const auto sheet = [picture, &screen, &list = pictures[i], i] {
            const PictureList* const lists[] = {&list};
            return Own_Plot_Sheet(screen, screen.kind.plots, i, lists, Page_Of(*picture));
        };
        const auto values = [this, &screen] {
            return Plot_Values(screens_->program, Selection_Of(*screens_, screen), screen.kind.plots);
        };
        Offer_Picture_Menu(*picture, {sheet, values});
    }
}

void QtPort::Lay_Out_And_Bind(OpenForm& form, PolarPlotScreen& screen) {
    Lay_Out_Polar_Plot(*form.window, screen.kind, polar_picture_);
    Bind(form, screen);
    auto* picture = form.window->findChild<QWidget*>("pct_Plot_0");
    const auto sheet = [this, picture, &screen] {
        return Polar_Plot_Sheet(screen, polar_picture_, Page_Of(*picture));
    };
    Offer_Picture_Menu(*picture, {sheet, [this] { return Polar_Plot_Values(screens_->program); }});
}

QtPort::OpenForm& QtPort::Made_Form(ScreenId screen) {
    OpenForm& form = forms_.at(static_cast<std::size_t>(screen));
    if (form.binder != nullptr) return form;
    form.window = std::make_unique<FormWindow>();
    form.window->setObjectName(Qt_Text(Screen_Name(screen)));
    form.window->close_asked = [this, screen] { Close_By_User(screen); };
    form.window->save_picture = [this](const Sheet& sheet) { Run([&] { Save_Picture(sheet); }); };
    Lay_Out(screen, form);
    Name_Toolkit_Parts(*form.window);
    return form;
}

FormWindow& QtPort::Form(ScreenId screen) {
    return *Made_Form(screen).window;
}

void QtPort::Close_By_User(ScreenId screen) {
    Made_Form(screen).binder->Leave_Field();
    Run([this, screen] { Close_Screen(*screens_, screen); });
}

QWidget* QtPort::Front_Window() {
    if (!stack_.empty() && !stack_.back()->closed && Form(stack_.back()->screen).isVisible())
        return &Form(stack_.back()->screen);
    const OpenForm& home = forms_[static_cast<std::size_t>(ScreenId::frm_HomeScreen)];
    return home.window && home.window->isVisible() ? home.window.get() : nullptr;
}

void QtPort::Show_Screen(ScreenId screen, Modality modality) {
    if (ended_) return;
    if (modality == Modality::Modal) return Wait_For(screen);
    Open_Window(screen, modality);
}

void QtPort::Open_Window(ScreenId screen, Modality modality) {
    OpenForm& form = Made_Form(screen);
    FormWindow& window = *form.window;
    form.binder->Forget_Field();
    if (window.first_focus != nullptr) window.first_focus->setFocus(Qt::OtherFocusReason);
    Activate_Screen(*screens_, screen);
    if (modality == Modality::Modal && (stack_.empty() || stack_.back()->closed)) return;
    window.setWindowTitle(Qt_Text(Screen_Caption(*screens_, screen)).trimmed());
    window.setWindowModality(modality == Modality::Modal ? Qt::ApplicationModal : Qt::NonModal);
    Push_All();
    Place(window);
    if (stack_.size() > 1) {
        const ScreenId opener = stack_[stack_.size() - 2]->screen;
        if (!Stands_Over(screen, opener)) Form(opener).hide();
    }
    window.show();
    // Shows the focus from the start, not only once a key has moved it.
    window.setAttribute(Qt::WA_KeyboardFocusChange);
    window.raise();
    window.activateWindow();
    // A window that becomes active passes the focus to its first field without the field noticing.
    if (auto* edit = qobject_cast<QLineEdit*>(window.focusWidget())) edit->selectAll();
}

/// Off the stack again also where a fault ends the waiting.
class QtPort::OnStack {
  public:
    OnStack(std::vector<StackEntry*>& stack, StackEntry& entry) : stack_(stack) { stack_.push_back(&entry); }
    ~OnStack() { stack_.pop_back(); }
    OnStack(const OnStack&) = delete;
    OnStack& operator=(const OnStack&) = delete;

  private:
    std::vector<StackEntry*>& stack_;
};

void QtPort::Wait_For(ScreenId screen) {
    if (!stack_.empty() && stack_.back()->closed) {
        stack_.back()->next = screen;
        return;
    }
    QEventLoop loop;
    StackEntry entry{screen, &loop};
    {
        const OnStack stands(stack_, entry);
        for (std::optional<ScreenId> next = screen; next && !ended_; next = std::exchange(entry.next, {})) {
            entry.screen = *next;
            entry.closed = false;
            Open_Window(*next, Modality::Modal);
            if (!entry.closed) loop.exec();
        }
    }
    if (!ended_) Return_To_Opener();
}

/// A modal opener comes back, unless it has closed; one that stayed visible comes to the front, as Home does.
void QtPort::Return_To_Opener() {
    if (!stack_.empty()) {
        if (stack_.back()->closed) return;
        FormWindow& opener = Form(stack_.back()->screen);
        if (opener.isVisible()) Activate_Screen(*screens_, stack_.back()->screen);
        Push_All();
        opener.show();
        opener.activateWindow();
        return;
    }
    const OpenForm& home = forms_[static_cast<std::size_t>(ScreenId::frm_HomeScreen)];
    if (!home.window || !home.window->isVisible()) return;
    Activate_Screen(*screens_, ScreenId::frm_HomeScreen);
    Push_All();
    home.window->activateWindow();
}

void QtPort::Hide_Screen(ScreenId screen) {
    for (StackEntry* entry : stack_) {
        if (entry->screen != screen) continue;
        entry->closed = true;
        entry->loop->quit();
    }
    const OpenForm& form = forms_.at(static_cast<std::size_t>(screen));
    if (form.window) form.window->hide();
}

void QtPort::Set_Focus(ScreenId screen, std::string_view control) {
    Made_Form(screen).binder->Set_Focus(control);
}

void QtPort::Fill_Screens() {
    kervol::Fill_Screens(*screens_);
    Push_All();
}

void QtPort::Show_Classes() {
    kervol::Show_Classes(*screens_);
}

void QtPort::End_Program() {
    ended_ = true;
    for (StackEntry* entry : stack_) entry->closed = true;
    for (OpenForm& form : forms_)
        if (form.window) form.window->hide();
    QCoreApplication::exit(0);
}

void QtPort::Set_Running(bool running) {
    Push_All();
    run_.reset();
    if (!running) return;
    FormWindow& form = Form(ScreenId::frm_Animate);
    run_ = std::make_unique<RunGate>(*form.findChild<QWidget*>("Picture1"),
                                     *form.findChild<QWidget*>("cmd_Run"));
}

bool QtPort::Hold_Picture(double milliseconds) {
    run_->Hold(milliseconds);
    return !run_->Is_End_Asked();
}

void QtPort::Set_Pointer(Pointer pointer) {
    const bool busy = pointer == Pointer::Busy;
    if (busy == busy_) return;
    busy_ = busy;
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

}  // namespace kervol
