// SPDX-License-Identifier: GPL-3.0-or-later
// The Animation screen in the hands of a person: its controls, and what stands on its picture after a run.
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "animation/linkage_drawing.h"
#include "animation/surroundings.h"
#include "qt/animate_test.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class AnimateWindowTest : public AnimateTest {
  protected:
    static constexpr Colour kGreen = {0, 255, 0}, kWhite = {255, 255, 255};

    PictureWidget& Picture(FormWindow& form) {
        return dynamic_cast<PictureWidget&>(Find<QWidget>(form, "Picture1"));
    }
    static void Check(FormWindow& form, const char* name, bool on) {
        Find<QCheckBox>(form, name).setChecked(on);
    }

    /// A clear picture of the same window.
    void Clear(PictureList& list) {
        const AnimationState& state = program->animation;
        list.Set_Scale(state.PlotMin, state.PlotMin, state.PlotMax, state.PlotMax);
        list.Set_Background(kWhite);
    }
    void Draw_Row(PictureList& list, int row) {
        program->animation.LinkColour = kMagenta;
        Drawsub6(*program, static_cast<std::int16_t>(row), list, NumLinks);
    }
    void Draw_Coupler_Marks(PictureList& list, int row) {
        for (const int point : {2, 5}) {
            const auto& at = program->tables.PointPos(row, point);
            list.Circle(at(0), double(program->animation.PlotY0) - at(1), program->animation.RadiusCoupler,
                        kGreen);
        }
    }
    void Close_Cycle(PictureList& list) {
        Draw_Coupler_Curves(*program, list);
        Drawpivots(*program, list);
        Axes(*program, list);
    }
    static QImage Image_Of(PictureWidget& widget) {
        return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    /// What a widget of that size shows of the list.
    static QImage Image_Of(PictureList& list, QSize size) {
        PictureWidget widget(list);
        widget.resize(size);
        return Image_Of(widget);
    }

    /// The middle of the crank of a row, worked out by hand.
    QColor At_Middle_Of_Crank(FormWindow& form, const QImage& image, int row) {
        const double angle = row * kDegreesARow * 3.14159265358979 / 180;
        const QPointF at = Picture(form).To_Widget(kCrank / 2 * std::cos(angle),
                                                   program->animation.PlotY0 - kCrank / 2 * std::sin(angle));
        return image.pixelColor(at.toPoint());
    }
};

TEST_F(AnimateWindowTest, EveryControlIsThereUnderItsName) {
    const FormWindow& form = port.Form(ScreenId::frm_Animate);
    for (const char* bar : {"hsc_step", "hsc_speed"}) EXPECT_NE(form.findChild<QScrollBar*>(bar), nullptr);
    EXPECT_NE(form.findChild<QComboBox*>("cmb_wait"), nullptr);
    for (const char* box : {"chk_autoscale", "chk_Trace", "chk_Showlinks", "chk_Coupler", "chk_Points"})
        EXPECT_NE(form.findChild<QCheckBox*>(box), nullptr) << box;
    for (const char* button :
         {"cmd_Run", "cmd_Step", "cmd_Reset", "cmd_Recalc", "cmd_Copy", "cmd_Done", "cmd_Back"})
        EXPECT_NE(form.findChild<QPushButton*>(button), nullptr) << button;
    for (const int field : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 14, 15, 16})
        EXPECT_NE(form.findChild<QLineEdit*>("txt_Linkout_" + QString::number(field)), nullptr) << field;
    for (const char* field : {"txt_Initial_0", "txt_Initial_1", "txt_Initial_2", "txt_Cycles", "txt_header"})
        EXPECT_NE(form.findChild<QLineEdit*>(field), nullptr) << field;
    for (const char* option :
         {"opt_OpenCross1_0", "opt_OpenCross1_1", "opt_OpenCross2_0", "opt_OpenCross2_1"})
        EXPECT_NE(form.findChild<QRadioButton*>(option), nullptr) << option;
    for (const char* label : {"lbl_StepLabel", "lbl_StepNumber", "lbl_StepUnit", "lbl_Header", "lbl_cw",
                              "lbl_ccw", "lbl_time", "lbl_camdriven"})
        EXPECT_NE(form.findChild<QLabel*>(label), nullptr) << label;
}

TEST_F(AnimateWindowTest, CaptionsAndFramesReadAsTheyShould) {
    Open([](FormWindow& form) {
        const std::pair<const char*, const char*> captions[] = {
            {"cmd_Run", "&Run"},        {"cmd_Step", "&Step"},         {"cmd_Reset", "Rese&t"},
            {"cmd_Recalc", "&Recalc"},  {"cmd_Copy", "&Print"},        {"cmd_Done", "&Next >"},
            {"cmd_Back", "< &Back"},    {"chk_Trace", "Trace"},        {"chk_autoscale", "Autoscale"},
            {"chk_Showlinks", "Links"}, {"chk_Points", "Coupler Pts"}, {"chk_Coupler", "Coupler Path"},
        };
        for (const auto& [name, caption] : captions)
            EXPECT_EQ(Find<QAbstractButton>(form, name).text(), caption) << name;
        QStringList titles, texts;
        for (const auto* group : form.findChildren<QGroupBox*>()) titles.append(group->title());
        for (const auto* label : form.findChildren<QLabel*>()) texts.append(label->text());
        for (const char* title : {"Animation Speed", "Cycles", "Range", "Animation Settings", "Show Curves"})
            EXPECT_TRUE(titles.contains(title)) << title;
        EXPECT_TRUE(texts.contains("<< Slow    Fast >>"));
        EXPECT_TRUE(form.windowTitle().startsWith("Animation Screen")) << form.windowTitle().toStdString();
    });
}

TEST_F(AnimateWindowTest, TheRunButtonHasTheFocusAndTheTabKeyGoesOnBesideIt) {
    Open([](FormWindow& form) {
        ASSERT_EQ(QApplication::focusWidget(), &Find<QWidget>(form, "cmd_Run"));
        QStringList order;
        for (int i = 0; i < 60; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            order.append(QApplication::focusWidget()->objectName());
            if (order.last() == "cmd_Run") break;
        }
        EXPECT_EQ(order.mid(0, 4), QStringList({"cmd_Step", "cmd_Reset", "cmd_Copy", "cmd_Done"}));
        const QStringList settings = {"hsc_step",      "hsc_speed", "cmb_wait",      "txt_Cycles",
                                      "chk_autoscale", "chk_Trace", "chk_Showlinks", "chk_Coupler",
                                      "chk_Points",    "cmd_Back",  "cmd_Recalc",    "cmd_Run"};
        EXPECT_EQ(order.mid(order.size() - settings.size()), settings) << order.join(' ').toStdString();
        const QStringList lengths = {"txt_Linkout_1", "txt_Linkout_2", "txt_Linkout_3"};
        EXPECT_EQ(order.mid(order.indexOf("txt_Linkout_1"), 3), lengths);
        EXPECT_FALSE(order.contains("txt_Linkout_0")) << "a result";
    });
}

TEST_F(AnimateWindowTest, EverythingThatCanBeSetSaysWhatItIsFor) {
    Open([](FormWindow& form) {
        for (const QWidget* widget : form.findChildren<QWidget*>()) {
            const bool setting =
                qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QScrollBar*>(widget) ||
                qobject_cast<const QComboBox*>(widget) || qobject_cast<const QCheckBox*>(widget) ||
                qobject_cast<const QRadioButton*>(widget);
            if (!setting || widget->objectName().isEmpty()) continue;
            EXPECT_FALSE(widget->toolTip().isEmpty()) << widget->objectName().toStdString();
        }
        for (const char* button : {"cmd_Run", "cmd_Step", "cmd_Reset", "cmd_Recalc", "cmd_Copy"})
            EXPECT_FALSE(Find<QWidget>(form, button).toolTip().isEmpty()) << button;
        EXPECT_FALSE(Find<QWidget>(form, "cmb_wait").accessibleName().isEmpty());
    });
}

TEST_F(AnimateWindowTest, TheSettingsShowWhatTheModelHolds) {
    program->model.AnimDelay = 30000;
    program->model.AnimCycles = 7;
    program->model.ShowPoints = "Y";
    program->model.ShowCoupler = "N";
    program->model.AnimWait = 10;
    Open([this](FormWindow& form) {
        EXPECT_EQ(Find<QScrollBar>(form, "hsc_speed").value(), 2767);
        EXPECT_EQ(Find<QScrollBar>(form, "hsc_speed").maximum(), 32767);
        EXPECT_EQ(Find<QLineEdit>(form, "txt_Cycles").text(), "7");
        EXPECT_TRUE(Find<QCheckBox>(form, "chk_Points").isChecked());
        EXPECT_FALSE(Find<QCheckBox>(form, "chk_Coupler").isChecked());
        EXPECT_EQ(Find<QComboBox>(form, "cmb_wait").currentText(), "1000");
        EXPECT_EQ(program->model.AnimWait, 10) << "until it is changed";
        EXPECT_EQ(Find<QScrollBar>(form, "hsc_step").maximum(), kLast);
        EXPECT_EQ(Find<QLabel>(form, "lbl_StepNumber").text(), "10.0") << "row 1 is shown";
    });
}

TEST_F(AnimateWindowTest, TheRangeIsPickedFromItsFiveItemsOrTyped) {
    Open([this](FormWindow& form) {
        auto& range = Find<QComboBox>(form, "cmb_wait");
        QStringList items;
        for (int i = 0; i < range.count(); ++i) items.append(range.itemText(i));
        EXPECT_EQ(items, QStringList({"10", "20", "40", "100", "500"}));
        range.setFocus();
        QTest::keyClick(&range, Qt::Key_End);
        QTest::keyClick(&range, Qt::Key_Down);
        EXPECT_THAT(items, Contains(range.currentText()));
        EXPECT_EQ(program->model.AnimWait, range.currentText().toInt());
        range.lineEdit()->selectAll();
        QTest::keyClicks(range.lineEdit(), "25");
        EXPECT_EQ(range.currentText(), "25");
        EXPECT_EQ(program->model.AnimWait, 25);
        range.lineEdit()->selectAll();
        QTest::keyClicks(range.lineEdit(), "fast");
        EXPECT_EQ(program->model.AnimWait, 0);
    });
}

TEST_F(AnimateWindowTest, ARangeThatBeginsLikeAnItemIsNotCompletedToIt) {
    Open([this](FormWindow& form) {
        auto& range = Find<QComboBox>(form, "cmb_wait");
        range.setFocus();
        range.lineEdit()->selectAll();
        QTest::keyClicks(range.lineEdit(), "5");
        EXPECT_EQ(range.currentText(), "5");
        EXPECT_EQ(program->model.AnimWait, 5) << "500 would make the run a hundred times as slow";
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(range.currentText(), "5");
        EXPECT_EQ(program->model.AnimWait, 5);
    });
}

TEST_F(AnimateWindowTest, AfterARunWithoutTraceOnlyTheLastPositionAndWhatIsFixedStand) {
    Open([this](FormWindow& form) {
        Check(form, "chk_Trace", false);
        Check(form, "chk_Points", false);
        Run(form);
        EXPECT_THAT(Standing(), ElementsAre(0)) << "the last, which is the direction of the first";
        PictureList clear;
        Clear(clear);
        Draw_Row(clear, kLast);
        Close_Cycle(clear);
        const QImage image = Image_Of(Picture(form));
        EXPECT_EQ(image, Image_Of(clear, image.size()));
        EXPECT_NE(At_Middle_Of_Crank(form, image, kLast), QColor(Qt::white));
        // Clear of the axes.
        for (const int row : {3, 5, 13, 15, 21, 24, 30, 33})
            EXPECT_EQ(At_Middle_Of_Crank(form, image, row), QColor(Qt::white)) << row;
    });
}

TEST_F(AnimateWindowTest, MarksOfTheCouplerPointsStandAtEveryPositionAfterARunWithoutTrace) {
    Open([this](FormWindow& form) {
        Check(form, "chk_Points", true);
        Run(form);
        PictureList clear;
        Clear(clear);
        for (int row = 0; row <= kLast; ++row) Draw_Coupler_Marks(clear, row);
        Draw_Row(clear, kLast);
        Close_Cycle(clear);
        const QImage image = Image_Of(Picture(form));
        EXPECT_EQ(image, Image_Of(clear, image.size()));
        EXPECT_THAT(Standing(), SizeIs(1));
    });
}

TEST_F(AnimateWindowTest, WithHiddenLinksOnlyThePathsAndWhatIsFixedStand) {
    Open([this](FormWindow& form) {
        Check(form, "chk_Showlinks", false);
        Check(form, "chk_Points", false);
        Run(form);
        PictureList clear;
        Clear(clear);
        Close_Cycle(clear);
        const QImage image = Image_Of(Picture(form));
        EXPECT_EQ(image, Image_Of(clear, image.size()));
        EXPECT_THAT(Standing(), IsEmpty());
    });
}

TEST_F(AnimateWindowTest, AfterARunWithTraceEveryPositionStands) {
    Open([this](FormWindow& form) {
        Check(form, "chk_Trace", true);
        Run(form);
        EXPECT_THAT(Standing(), ::testing::IsSupersetOf(Rows_To(kLast - 1)));
        PictureList clear;
        Clear(clear);
        for (int row = 0; row <= kLast; ++row) Draw_Row(clear, row);
        Close_Cycle(clear);
        const QImage image = Image_Of(Picture(form));
        EXPECT_EQ(image, Image_Of(clear, image.size()));
        for (int row = 0; row <= kLast; ++row)
            EXPECT_NE(At_Middle_Of_Crank(form, image, row), QColor(Qt::white)) << row;
    });
}

TEST_F(AnimateWindowTest, AStrayRowOfARunBeforeDoesNotStandInTheNextOne) {
    Open([this](FormWindow& form) {
        Check(form, "chk_Trace", true);
        Run(form);
        const QImage traced = Image_Of(Picture(form));
        Check(form, "chk_Trace", false);
        Run(form);
        const QImage plain = Image_Of(Picture(form));
        EXPECT_NE(plain, traced);
        EXPECT_THAT(Standing(), SizeIs(1));
        Check(form, "chk_Trace", true);
        Run(form);
        EXPECT_EQ(Image_Of(Picture(form)), traced);
    });
}

TEST_F(AnimateWindowTest, AWindowOfAnotherSizeShowsTheWholeRunAgain) {
    Open([this](FormWindow& form) {
        Check(form, "chk_Trace", true);
        Run(form);
        PictureList clear;
        Clear(clear);
        for (int row = 0; row <= kLast; ++row) Draw_Row(clear, row);
        Close_Cycle(clear);
        const QSize before = Picture(form).size();
        form.resize(form.width() + 200, form.height() + 150);
        ASSERT_TRUE(QTest::qWaitFor([&] { return seen.back().size == Picture(form).size(); }, 2000));
        EXPECT_GT(Picture(form).width(), before.width());
        EXPECT_GT(Picture(form).height(), before.height());
        const QImage image = Image_Of(Picture(form));
        EXPECT_EQ(image, Image_Of(clear, image.size()));
        for (int row = 0; row <= kLast; ++row)
            EXPECT_NE(At_Middle_Of_Crank(form, image, row), QColor(Qt::white)) << row;
    });
}

TEST_F(AnimateWindowTest, SingleStepsLeaveTheirPositionsStandingAfterARun) {
    Open([this](FormWindow& form) {
        Run(form);
        for (int i = 0; i < 3; ++i) Click(form, "cmd_Step");
        // From row 0 on, beside the position that the run left.
        EXPECT_THAT(Standing(), ::testing::IsSupersetOf({0, 1, 2}));
        EXPECT_THAT(Standing(), Each(::testing::Le(2)));
        EXPECT_EQ(Find<QScrollBar>(form, "hsc_step").value(), 2);
        EXPECT_TRUE(Find<QLabel>(form, "lbl_StepNumber").isVisible());
        EXPECT_EQ(Find<QLabel>(form, "lbl_StepNumber").text(), "20.0");
    });
}

}  // namespace
}  // namespace kervol
