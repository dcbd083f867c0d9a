// SPDX-License-Identifier: GPL-3.0-or-later
// The way from Home over the kind of a plot to its functions, and back.
#include "screens/launch_screens.h"
#include "screens/selection_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;

class PlotType : public SelectionTest {
  protected:
    PlotTypeScreen& types = screens->frm_PlotType;

    std::vector<std::string> Trace_Of(const std::function<void()>& act) {
        port.trace.clear();
        act();
        return std::exchange(port.trace, {});
    }
};

TEST_F(PlotType, HomeOpensItWithListsToBeLoaded) {
    model.NewData = false;
    EXPECT_THAT(Trace_Of([&] { home.cmd_Plot.click(); }),
                ElementsAre("show frm_PlotType modal", "focus frm_PlotType.opt_PickPlot_0"));
    EXPECT_TRUE(model.NewData);
    model.NewData = false;
    bool seen = false;
    port.opening[ScreenId::frm_PrintSelect] = [&] { seen = model.NewData; };
    home.cmd_Print.click();
    EXPECT_TRUE(seen);
    EXPECT_EQ(port.screens.back(), ScreenId::frm_PrintSelect);
}

TEST_F(PlotType, NamesTheKinds) {
    EXPECT_EQ(types.opt_PickPlot[0].caption, "Single Window - One to Four Functions");
    EXPECT_EQ(types.opt_PickPlot[1].caption, "Two Windows - Two Functions");
    EXPECT_EQ(types.opt_PickPlot[2].caption, "Four Windows - Four Functions");
    EXPECT_EQ(types.opt_PickPlot[3].caption, "Polar Plot - One to Four Functions");
    EXPECT_TRUE(types.opt_PickPlot[0].on);
}

TEST_F(PlotType, NextOpensTheSelectionOfTheChosenKind) {
    const char* names[] = {"frm_PlotSelect1", "frm_PlotSelect2", "frm_PlotSelect3", "frm_PlotSelect4"};
    for (const std::size_t pick : {1U, 2U, 3U, 0U}) {
        Choose(types.opt_PickPlot, pick);
        const auto trace = Trace_Of([&] { types.cmd_PickPlotDone.click(); });
        ASSERT_GE(trace.size(), 2U);
        EXPECT_EQ(trace[0], "hide frm_PlotType");
        EXPECT_EQ(trace[1], std::string("show ") + names[pick] + " modal");
        EXPECT_EQ(selections.PlotTypePick, static_cast<int>(pick) + 1);
    }
}

TEST_F(PlotType, APictureChoosesTheKindOfItsPair) {
    for (const std::size_t at : {7U, 0U, 2U, 5U, 1U, 3U, 4U, 6U}) {
        EXPECT_THAT(Trace_Of([&] { types.pct_PickPlot.at(at).click(); }), ElementsAre());
        for (std::size_t pick = 0; pick < 4; ++pick)
            EXPECT_EQ(types.opt_PickPlot.at(pick).on, pick == at / 2) << at;
    }
}

TEST_F(PlotType, ADoubleClickOnAPictureGoesOn) {
    const auto trace = Trace_Of([&] { types.pct_PickPlot[5].double_click(); });
    EXPECT_EQ(trace.at(1), "show frm_PlotSelect3 modal");
    EXPECT_EQ(selections.PlotTypePick, 3);
}

TEST_F(PlotType, BackLeadsHomeAndFromASelectionToTheKinds) {
    EXPECT_THAT(Trace_Of([&] { types.cmd_CancelPickPlot.click(); }), ElementsAre("hide frm_PlotType"));
    Choose(types.opt_PickPlot, 2);
    for (const PlotSelectScreen* form : {&single, &two, &four, &polar}) {
        const std::string name(Screen_Name(form->kind.screen));
        EXPECT_THAT(
            Trace_Of([&] { form->cmd_Cancel.click(); }),
            ElementsAre("hide " + name, "show frm_PlotType modal", "focus frm_PlotType.opt_PickPlot_2"));
    }
}

TEST_F(PlotType, AFaultOnTheWayBackNamesTheScreenThatWasLeft) {
    port.opening[ScreenId::frm_PlotType] = [] { Raise(fault::OutOfMemory); };
    for (const PlotSelectScreen* form : {&single, &two, &four, &polar}) {
        form->cmd_Cancel.click();
        Expect_Fault(7, std::string(Screen_Name(form->kind.screen)) + ".cmd_Cancel");
    }
}

TEST_F(PlotType, CloseBoxesDoAsTheWayBack) {
    for (const ScreenId screen : {ScreenId::frm_PlotType, ScreenId::frm_PrintSelect, ScreenId::frm_PrintData})
        EXPECT_THAT(Trace_Of([&] { Close_Screen(*screens, screen); }),
                    ElementsAre("hide " + std::string(Screen_Name(screen))));
    for (const PlotSelectScreen* form : {&single, &two, &four, &polar})
        EXPECT_EQ(Trace_Of([&] { Close_Screen(*screens, form->kind.screen); }).at(1),
                  "show frm_PlotType modal");
}

TEST_F(PlotType, EveryScreenHasItsCaption) {
    const auto caption = [&](ScreenId screen) { return Screen_Caption(*screens, screen); };
    const std::string tail = model.CaptionTail;
    EXPECT_EQ(caption(ScreenId::frm_PlotType), "Select Plot Type" + tail);
    for (const PlotSelectScreen* form : {&single, &two, &four, &polar})
        EXPECT_EQ(caption(form->kind.screen), "Select Plot Data" + tail);
    EXPECT_EQ(caption(ScreenId::frm_PrintSelect), "Print Select" + tail);
    EXPECT_EQ(caption(ScreenId::frm_PrintData), "Output Screen" + tail);
}

}  // namespace
}  // namespace kervol
