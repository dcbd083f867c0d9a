// SPDX-License-Identifier: GPL-3.0-or-later
// From the Calculate button to the painted picture, beside the sweep and one painted frame measured alone.
#include <QApplication>
#include <memory>

#include "kinematics/sweep.h"
#include "qt/qt_port.h"
#include "screens/launch_screens.h"
#include "startup/launch.h"

#include <benchmark/benchmark.h>

namespace kervol::bench {
namespace {

/// The Input screen with the Watt example set to as many steps as the tables hold.
struct InputWindow {
    InputWindow() {
        port.Attach(screens);
        Start_Fresh(program);
        Wire_Screens(screens);
        program.model.ThetaStepDeg = 360.0F / MaxSteps;
        Fill_Screens(screens);
        Activate_Screen(screens, ScreenId::frm_Inputnew);
        form = &port.Form(ScreenId::frm_Inputnew);
        form->resize(1280, 800);
        form->show();
        QApplication::processEvents();
    }

    void Paint() {
        QWidget* picture = form->findChild<QWidget*>("Picture1");
        picture->repaint();
    }

    QtPort port;
    Program program{port};
    Screens screens{program};
    FormWindow* form = nullptr;
};

void Calculate_Until_Painted(benchmark::State& state) {
    const auto window = std::make_unique<InputWindow>();
    for (auto _ : state) {
        window->port.Run(window->screens.frm_Inputnew.cmd_Calc.click);
        window->Paint();
    }
    state.counters["rows"] = window->program.model.NumSteps + 1;
}
BENCHMARK(Calculate_Until_Painted)->Unit(benchmark::kMicrosecond);

void Sweep_Alone(benchmark::State& state) {
    const auto window = std::make_unique<InputWindow>();
    window->screens.frm_Inputnew.cmd_Calc.click();
    Answer response = Answer::None;
    for (auto _ : state) Run_Sweep(window->program, 3, response);
}
BENCHMARK(Sweep_Alone)->Unit(benchmark::kMicrosecond);

void Painted_Frame_Alone(benchmark::State& state) {
    const auto window = std::make_unique<InputWindow>();
    window->screens.frm_Inputnew.cmd_Calc.click();
    for (auto _ : state) window->Paint();
}
BENCHMARK(Painted_Frame_Alone)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kervol::bench
