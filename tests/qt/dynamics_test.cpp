// SPDX-License-Identifier: GPL-3.0-or-later
// The Dynamics and the Matrix screen on real widgets: the table as a table, the focus, the ways between them.
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>

#include "kinematics/sweep.h"
#include "qt/linkage_sketch.h"
#include "qt/window_test.h"

namespace kervol {
namespace {

class DynamicsWindow : public WindowTest {
  protected:
    DynamicsWindow() {
        Answer response = Answer::None;
        Run_Sweep(*program, 3, response);
        program->model.DataCalculated = true;
    }

    static QLineEdit& Field(FormWindow& form, const char* fields, int link) {
        return Find<QLineEdit>(form, (fields + ("_" + std::to_string(link))).c_str());
    }
    static QPoint Place(FormWindow& form, const QWidget& widget) { return widget.mapTo(&form, QPoint()); }

    static bool Results_On(FormWindow& form) {
        for (const char* name : {"cmd_Done", "cmd_Matrix", "cmd_Print", "cmd_Copy"})
            if (!Find<QPushButton>(form, name).isEnabled()) return false;
        return true;
    }

    static constexpr std::pair<const char*, int> kColumns[] = {
        {"txt_Mass", 2},     {"txt_Inertia", 2}, {"txt_DistCG", 2}, {"txt_AngCG", 2},  {"txt_MagForce", 3},
        {"txt_AngForce", 3}, {"txt_DistP", 3},   {"txt_AngP", 3},   {"txt_Torque", 3}, {"txt_Frict", 3}};
};

TEST_F(DynamicsWindow, ALinkIsOneLineAndAPropertyOneColumn) {
    In(ScreenId::frm_MassProp, [](FormWindow& form) {
        int right = 0;
        for (const auto& [fields, first] : kColumns) {
            const int left = Place(form, Field(form, fields, first)).x();
            EXPECT_GT(left, right) << fields;
            right = left + Field(form, fields, first).width();
            for (int link = first; link <= 6; ++link) {
                const QLineEdit& field = Field(form, fields, link);
                EXPECT_EQ(Place(form, field).x(), left) << fields;
                EXPECT_EQ(Place(form, field).y(), Place(form, Field(form, "txt_Mass", link)).y()) << fields;
                EXPECT_EQ(field.height(), Field(form, "txt_Mass", link).height()) << fields;
                EXPECT_TRUE(field.alignment() & Qt::AlignRight) << fields;
            }
        }
        for (int link = 2; link <= 6; ++link) {
            const auto& number = Find<QLabel>(form, ("lbl_Segment_" + std::to_string(link)).c_str());
            const QRect line(QPoint(0, Place(form, Field(form, "txt_Mass", link)).y()),
                             QSize(form.width(), Field(form, "txt_Mass", link).height()));
            EXPECT_TRUE(line.contains(Place(form, number) + number.rect().center()));
        }
    });
}

TEST_F(DynamicsWindow, UnitsStandInTheHeadOverTheirColumns) {
    program->model.UnitText(14) = "bl";
    In(ScreenId::frm_MassProp, [](FormWindow& form) {
        const std::pair<const char*, const char*> heads[] = {
            {"lbl_MassUnit", "txt_Mass"},        {"lbl_InertiaUnit", "txt_Inertia"},
            {"Lbl_DistUnit_1", "txt_DistCG"},    {"lbl_AngUnit_1", "txt_AngCG"},
            {"lbl_ForceUnit_1", "txt_MagForce"}, {"lbl_AngUnit_2", "txt_AngForce"},
            {"Lbl_DistUnit_2", "txt_DistP"},     {"lbl_AngUnit_3", "txt_AngP"},
            {"lbl_TorqueUnit", "txt_Torque"},    {"lbl_ForceUnit_2", "txt_Frict"}};
        const int line = Place(form, Find<QLabel>(form, "lbl_MassUnit")).y();
        for (const auto& [name, fields] : heads) {
            const auto& unit = Find<QLabel>(form, name);
            const QLineEdit& field = Field(form, fields, 3);
            EXPECT_EQ(Place(form, unit).y(), line) << name;
            EXPECT_LT(Place(form, unit).y() + unit.height(), Place(form, Field(form, "txt_Mass", 2)).y());
            EXPECT_EQ(Place(form, unit).x() + unit.width(), Place(form, field).x() + field.width()) << name;
        }
        EXPECT_EQ(Find<QLabel>(form, "lbl_MassUnit").text(), "bl");
    });
}

TEST_F(DynamicsWindow, TheTabKeyGoesLinkByLinkAcrossTheTable) {
    In(ScreenId::frm_MassProp, [](FormWindow& form) {
        ASSERT_EQ(QApplication::focusWidget(), &Field(form, "txt_Mass", 2));
        for (int link = 2; link <= 6; ++link)
            for (const auto& [fields, first] : kColumns) {
                if (link < first) continue;
                EXPECT_EQ(QApplication::focusWidget(), &Field(form, fields, link)) << fields << " " << link;
                EXPECT_TRUE(Field(form, fields, link).selectedText() == Field(form, fields, link).text());
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
    });
}

TEST_F(DynamicsWindow, SolveTurnsTheResultsOnAndMovesTheFocusToNext) {
    In(ScreenId::frm_MassProp, [this](FormWindow& form) {
        EXPECT_FALSE(Results_On(form));
        Click(form, "cmd_Solve");
        EXPECT_TRUE(Results_On(form));
        EXPECT_EQ(QApplication::focusWidget(), &Find<QWidget>(form, "cmd_Done"));
        EXPECT_TRUE(program->model.DynamicsCalculated);
        Type(form, "txt_Mass_4", "2");
        EXPECT_FALSE(Results_On(form));
        Click(form, "cmd_Solve");
        EXPECT_EQ(program->model.LinkMass(4), 2);
        EXPECT_TRUE(Results_On(form));
    });
}

TEST_F(DynamicsWindow, TheMatrixStandsOverItAndLeavesItsButtonsOn) {
    Follow({{ScreenId::frm_MassProp,
             [](FormWindow& form) {
                 Press(form, "cmd_Solve");
                 Press(form, "cmd_Matrix");
             }},
            {ScreenId::frm_Matrix,
             [&](FormWindow& form) {
                 EXPECT_TRUE(port.Form(ScreenId::frm_MassProp).isVisible());
                 EXPECT_TRUE(screens.frm_MassProp.FromMatrix);
                 Press(form, "cmd_Done");
             }},
            {ScreenId::frm_MassProp, [&](FormWindow& form) {
                 EXPECT_FALSE(port.Form(ScreenId::frm_Matrix).isVisible());
                 EXPECT_FALSE(screens.frm_MassProp.FromMatrix) << "the screen came to the front again";
                 EXPECT_TRUE(Results_On(form));
                 Press(form, "cmd_Done");
                 EXPECT_FALSE(form.isVisible());
             }}});
    port.Show_Screen(ScreenId::frm_HomeScreen, Modality::Modeless);
    Press(port.Form(ScreenId::frm_HomeScreen), "cmd_Dynamics");
    EXPECT_TRUE(port.Form(ScreenId::frm_HomeScreen).isVisible());
}

TEST_F(DynamicsWindow, TheMatrixStandsOutInRed) {
    Follow({{ScreenId::frm_MassProp,
             [](FormWindow& form) {
                 Press(form, "cmd_Solve");
                 Press(form, "cmd_Matrix");
             }},
            {ScreenId::frm_Matrix,
             [](FormWindow& form) {
                 const auto& one = Find<QLabel>(form, "lbl_A1_1");
                 const auto& zero = Find<QLabel>(form, "lbl_A1_2");
                 EXPECT_EQ(one.text(), "1.000");
                 EXPECT_EQ(one.palette().color(QPalette::WindowText), QColor(255, 0, 0));
                 EXPECT_EQ(zero.text(), "0.000");
                 EXPECT_EQ(zero.palette().color(QPalette::WindowText), QColor(128, 128, 128));
                 // Row by row on one line, the right-hand side too; columns one below the other.
                 for (int row = 1; row <= 15; ++row) {
                     const std::string r = std::to_string(row);
                     const auto& first = Find<QLabel>(form, ("lbl_A" + r + "_1").c_str());
                     const auto& last = Find<QLabel>(form, ("lbl_A" + r + "_15").c_str());
                     const auto& right = Find<QLabel>(form, ("lbl_B_" + r).c_str());
                     EXPECT_EQ(Place(form, first).y(), Place(form, last).y()) << row;
                     EXPECT_EQ(Place(form, first).y(), Place(form, right).y()) << row;
                     EXPECT_EQ(Place(form, first).x(), Place(form, one).x()) << row;
                 }
                 Press(form, "cmd_Back");
             }},
            {ScreenId::frm_MassProp, [](FormWindow& form) { Press(form, "cmd_Cancel"); }}});
    port.Show_Screen(ScreenId::frm_MassProp, Modality::Modal);
}

TEST_F(DynamicsWindow, CopyPutsTheScreenOnTheClipboard) {
    QApplication::clipboard()->clear();
    In(ScreenId::frm_MassProp, [this](FormWindow& form) {
        Click(form, "cmd_Solve");
        Await([](QDialog& box) { box.accept(); });
        Click(form, "cmd_Copy");
        EXPECT_EQ(QApplication::clipboard()->pixmap().size(), form.size() * form.devicePixelRatio());
    });
}

TEST_F(DynamicsWindow, HelpShowsItsThreeBoxesOneAfterTheOther) {
    In(ScreenId::frm_MassProp, [this](FormWindow& form) {
        int shown = 0;
        for (int box = 0; box < 3; ++box)
            Await([&](QDialog& dialog) {
                EXPECT_EQ(dynamic_cast<QMessageBox&>(dialog).icon(), QMessageBox::NoIcon);
                ++shown;
                dialog.accept();
            });
        Click(form, "cmd_Help");
        EXPECT_EQ(shown, 3);
    });
}

TEST_F(DynamicsWindow, TheFigureWritesANumberInTheMiddleOfEachLink) {
    const SketchPosition watt = Nomenclature("W");
    const auto painted = [&](bool numbered) {
        LinkageSketch sketch({400, 300});
        sketch.resize(400, 300);
        if (numbered) sketch.Number_Links();
        sketch.Show_Position(watt);
        return sketch.grab().toImage();
    };
    const QImage plain = painted(false), numbered = painted(true);
    QRect changed;
    for (int y = 0; y < plain.height(); ++y)
        for (int x = 0; x < plain.width(); ++x)
            if (plain.pixel(x, y) != numbered.pixel(x, y)) changed |= QRect(x, y, 1, 1);
    // From the middle of the crank at the left to that of link 6 at the right.
    EXPECT_GT(changed.width(), 100);
    EXPECT_LT(changed.width(), 400);
}

TEST_F(DynamicsWindow, ATorqueFileIsAskedForByTheBoxAndCancelClearsIt) {
    program->model.DataFromFile = false;
    In(ScreenId::frm_MassProp, [this](FormWindow& form) {
        auto& box = Find<QCheckBox>(form, "chk_Torque");
        Await([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        box.click();
        EXPECT_FALSE(box.isChecked());
        EXPECT_TRUE(Find<QWidget>(form, "cmd_Solve").isEnabled());
        EXPECT_TRUE(Find<QWidget>(form, "txt_Torque_6").isEnabled());
    });
}

}  // namespace
}  // namespace kervol
