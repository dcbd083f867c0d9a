// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of tests on real windows: the whole program over its port, and a hand that uses the dialogs it
// opens.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>
#include <vector>

#include "qt/qt_port.h"
#include "screens/screens.h"

#include <gtest/gtest.h>

namespace kervol {

class WindowTest : public ::testing::Test {
  protected:
    WindowTest();
    ~WindowTest() override;
    void TearDown() override;

    /// Opens the screen modally, runs `act` on its window, closes it.
    void In(ScreenId screen, const std::function<void(FormWindow& form)>& act);
    /// What to do with the next dialog. One that nobody awaits fails the test and is closed.
    void Await(std::function<void(QDialog& dialog)> use) { awaited_.push_back(std::move(use)); }

    template <class Widget>
    static Widget& Find(const QWidget& form, const char* name) {
        auto* widget = form.findChild<Widget*>(name);
        if (widget == nullptr) throw std::runtime_error(std::string("no widget ") + name);
        return *widget;
    }
    static void Click(QWidget& form, const char* name);
    static void Type(QWidget& form, const char* name, const QString& text);

    static void Press(FormWindow& form, const char* name);

    /// Runs `look` again and again, also while a window that it opened waits.
    void Every_Moment(const std::function<void()>& look);

    /// Calculates an example and selects these functions, with this component, on every selection screen.
    void Select(const char* example, std::initializer_list<const char*> functions,
                const char* component = "Mag");

    struct Stop {
        ScreenId screen;
        std::function<void(FormWindow& form)> act;
    };
    /// Runs the route's stops one after the other, each when the window of its screen has become the active
    /// one. Stops that are never reached fail the test.
    void Follow(std::vector<Stop> route);

    QtPort port;
    std::unique_ptr<Program> program = std::make_unique<Program>(port);
    Screens screens{*program};

  private:
    void Use_Dialog();

    std::deque<std::function<void(QDialog&)>> awaited_;
    std::deque<Stop> stops_;
    QTimer watchdog_;
};

/// One notch towards the person, over the middle of the widget.
void Turn_Wheel(QWidget& widget);

inline constexpr ScreenId kScreensWithWindow[] = {
    ScreenId::frm_Title,       ScreenId::frm_Disclaimer,  ScreenId::frm_User,
    ScreenId::frm_HomeScreen,  ScreenId::frm_Inputnew,    ScreenId::frm_Animate,
    ScreenId::frm_MassProp,    ScreenId::frm_Matrix,      ScreenId::frm_About,
    ScreenId::frm_Quit,        ScreenId::frm_PlotType,    ScreenId::frm_PlotSelect1,
    ScreenId::frm_PlotSelect2, ScreenId::frm_PlotSelect3, ScreenId::frm_PlotSelect4,
    ScreenId::frm_PrintSelect, ScreenId::frm_PrintData,   ScreenId::frm_Flywheel,
    ScreenId::frm_FFT,         ScreenId::frm_SelfCheck,
};
/// They open without a box only where functions are selected.
inline constexpr ScreenId kPlotScreens[] = {
    ScreenId::frm_Plot1,   ScreenId::frm_Plot2,   ScreenId::frm_Plot3,   ScreenId::frm_Plot4,
    ScreenId::frm_Myplot2, ScreenId::frm_MyPlot3, ScreenId::frm_MyPlot4,
};

}  // namespace kervol
