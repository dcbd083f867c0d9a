// SPDX-License-Identifier: GPL-3.0-or-later
// Nothing is cut: every text has the room it needs on a screen of 1280 by 800.
#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>

#include "core/units.h"
#include "qt/picture_widget.h"
#include "qt/window_test.h"
#include "screens/launch_screens.h"

namespace kervol {
namespace {

constexpr QSize kScreen(1280, 800);
/// What a desktop takes of it: a panel and the frame of a window.
constexpr QSize kRoom(1276, 740);

bool Is_Cut(const QLabel& label) {
    if (label.wordWrap()) return label.heightForWidth(label.width()) > label.height();
    return label.sizeHint().width() > label.width() || label.sizeHint().height() > label.height();
}

bool Is_Cut(const QLineEdit& field) {
    return field.fontMetrics().horizontalAdvance(field.text()) > field.width() - 10 ||
           field.height() < field.minimumSizeHint().height();
}

std::string Named(const QWidget& widget, const QString& text) {
    return widget.objectName().toStdString() + " \"" + text.toStdString() + "\"";
}

class LayoutTest : public WindowTest {
  protected:
    static void Check(FormWindow& form) {
        QTest::qWait(1);
        for (auto* label : form.findChildren<QLabel*>()) {
            EXPECT_FALSE(label->isVisible() && Is_Cut(*label)) << Named(*label, label->text());
        }
        for (auto* button : form.findChildren<QAbstractButton*>()) {
            if (!button->isVisible() || button->text().isEmpty()) continue;
            EXPECT_GE(button->width(), button->minimumSizeHint().width()) << Named(*button, button->text());
            EXPECT_GE(button->height(), button->sizeHint().height()) << Named(*button, button->text());
        }
        for (auto* field : form.findChildren<QLineEdit*>()) {
            const bool of_box = qobject_cast<QComboBox*>(field->parentWidget()) != nullptr;
            if (!field->isVisible() || of_box || field->objectName() == "txt_header") continue;
            EXPECT_FALSE(Is_Cut(*field)) << Named(*field, field->text());
        }
        for (auto* box : form.findChildren<QComboBox*>())
            EXPECT_GE(box->height(), box->sizeHint().height()) << Named(*box, box->currentText());
        Check_Overlaps(form);
    }

    /// Texts and fields of one form keep clear of each other.
    static void Check_Overlaps(FormWindow& form) {
        QList<QWidget*> shown;
        for (auto* widget : form.findChildren<QWidget*>()) {
            const bool carries = qobject_cast<QLabel*>(widget) || qobject_cast<QLineEdit*>(widget) ||
                                 qobject_cast<QAbstractButton*>(widget);
            if (carries && widget->isVisible() && !widget->objectName().startsWith("qt_toolbar"))
                shown.append(widget);
        }
        const auto room = [&](const QWidget* w) { return QRect(w->mapTo(&form, QPoint()), w->size()); };
        for (qsizetype i = 0; i < shown.size(); ++i)
            for (qsizetype j = i + 1; j < shown.size(); ++j)
                EXPECT_FALSE(room(shown[i]).intersects(room(shown[j])))
                    << Named(*shown[i], {}) << " and " << Named(*shown[j], {});
    }

    void Example(const char* entry) {
        port.Form(ScreenId::frm_HomeScreen).findChild<QAction*>(entry)->trigger();
    }
};

TEST_F(LayoutTest, EveryWindowFitsTheScreenAndShowsItsTextsWhole) {
    for (const ScreenId screen : kScreensWithWindow) {
        In(screen, [](FormWindow& form) {
            form.resize(form.size().boundedTo(kRoom));
            EXPECT_LE(form.minimumSizeHint().width(), kRoom.width());
            EXPECT_LE(form.minimumSizeHint().height(), kRoom.height());
            Check(form);
        });
    }
}

TEST_F(LayoutTest, ThePlotScreensFitTheScreenInEveryMode) {
    for (const int mode : {1, 2, 3}) {
        Select("watt", {"Accel CP-1", "Accel CP-2", "Veloc CP-1", "Veloc CP-2"});
        program->model.CalcMode = static_cast<std::int16_t>(mode);
        for (const ScreenId screen : kPlotScreens) {
            In(screen, [](FormWindow& form) {
                form.resize(kRoom);
                EXPECT_LE(form.minimumSizeHint().width(), 1024);
                EXPECT_LE(form.minimumSizeHint().height(), 700) << "at 1024 by 768";
                Check(form);
            });
        }
    }
}

TEST_F(LayoutTest, LabelsOfAPlotStandBelowTheirQuarterMarks) {
    Select("watt", {"Omega3", "Omega4", "Omega5", "Omega6"});
    In(ScreenId::frm_MyPlot3, [](FormWindow& form) {
        form.resize(kRoom);
        QTest::qWait(1);
        const auto& picture = Find<PictureWidget>(form, "pct_Plot_2");
        const auto middle = [&](const char* name) {
            auto& label = Find<QLabel>(form, name);
            return label.mapTo(&form, label.rect().center());
        };
        double angle = 0;
        for (const char* name : {"lbl_Xmin_2", "lbl_X1_2", "lbl_X2_2", "lbl_X3_2", "lbl_Xmax_2"}) {
            const QPointF mark = picture.mapTo(&form, picture.To_Widget(angle, 0).toPoint());
            EXPECT_NEAR(middle(name).x(), mark.x(), 2) << name;
            angle += 90;
        }
        const double top = picture.mapTo(&form, QPoint()).y();
        EXPECT_GT(middle("lbl_Xmin_2").y(), top + picture.height());
        EXPECT_LT(middle("lbl_Ymax_2").x(), picture.mapTo(&form, QPoint()).x());
        EXPECT_LT(middle("lbl_Ymax_2").y(), middle("lbl_Ymin_2").y());
    });
}

TEST_F(LayoutTest, TheInputScreenShowsAllModesOfBothChainsWhole) {
    In(ScreenId::frm_Inputnew, [this](FormWindow& form) {
        form.resize(kRoom);
        for (const char* chain : {"opt_SteveWatt_0", "opt_SteveWatt_1"}) {
            form.findChild<QAbstractButton*>(chain)->click();
            for (const char* mode : {"opt_Calctype_0", "opt_Calctype_1", "opt_Calctype_2"}) {
                form.findChild<QAbstractButton*>(mode)->click();
                Check(form);
            }
        }
        for (const int units : {1, 2, 3, 4, 5}) {
            program->model.UnitSystem = static_cast<std::int16_t>(units);
            port.Fill_Screens();
            Check(form);
        }
    });
}

TEST_F(LayoutTest, TheDynamicsScreenShowsLongNumbersAndAllUnitsWhole) {
    LinkageModel& model = program->model;
    for (int link = 2; link <= 6; ++link) {
        model.LinkMass(link) = -0.00123F;
        model.LinkInertia(link) = 123456.5F;
        model.LinkCG(link, 1) = -6.2F;
    }
    for (const int units : {1, 2, 3, 4, 5}) {
        model.UnitSystem = static_cast<std::int16_t>(units);
        Put_Units(model);
        In(ScreenId::frm_MassProp, [](FormWindow& form) {
            form.resize(kRoom);
            Check(form);
        });
    }
}

TEST_F(LayoutTest, TheMatrixScreenShowsLargeNumbersWhole) {
    for (int row = 1; row <= 15; ++row) {
        for (int column = 1; column <= 15; ++column)
            program->matrix.lbl_A(row, column).caption = "-123,456.789";
        program->matrix.lbl_B(row).caption = "-123,456,789.125";
    }
    In(ScreenId::frm_Matrix, [](FormWindow& form) {
        EXPECT_LE(form.minimumSizeHint().width(), kRoom.width());
        Check(form);
    });
}

TEST_F(LayoutTest, TheMatrixOfAnExampleNeedsNoScrolling) {
    for (int row = 1; row <= 15; ++row)
        for (int column = 1; column <= 15; ++column) program->matrix.lbl_A(row, column).caption = "-12.345";
    const FormWindow& window = port.Form(ScreenId::frm_Matrix);
    Activate_Screen(screens, ScreenId::frm_Matrix);
    port.Run({});
    const QSize asked = window.sizeHint();
    In(ScreenId::frm_Matrix, [asked](FormWindow& form) {
        EXPECT_EQ(asked.boundedTo(kRoom), asked);
        form.resize(asked);
        QTest::qWait(1);
        for (const auto* bar : form.findChildren<QScrollBar*>()) EXPECT_FALSE(bar->isVisible());
    });
}

TEST_F(LayoutTest, APictureTakesAtLeastHalfTheWidthAndTheGroupsStandStill) {
    In(ScreenId::frm_Inputnew, [](FormWindow& form) {
        form.resize(kScreen);
        QTest::qWait(1);
        auto& picture = Find<QWidget>(form, "Picture1");
        EXPECT_GE(2 * picture.width(), kScreen.width() - 60) << "of the room within the margins";
        const QRect before = picture.geometry();
        const QPoint field = Find<QWidget>(form, "txt_Linkout_8").mapTo(&form, QPoint());
        for (const char* name : {"opt_SteveWatt_1", "opt_Calctype_1", "opt_Calctype_2", "opt_SteveWatt_0"}) {
            form.findChild<QAbstractButton*>(name)->click();
            QTest::qWait(1);
            EXPECT_EQ(picture.geometry(), before) << name;
            EXPECT_EQ(Find<QWidget>(form, "txt_Linkout_8").mapTo(&form, QPoint()), field) << name;
        }
    });
}

TEST_F(LayoutTest, NumbersStandAtTheRightInFieldsOfOneWidth) {
    FormWindow& form = port.Form(ScreenId::frm_Inputnew);
    const int width = Find<QLineEdit>(form, "txt_Linkout_0").maximumWidth();
    for (const auto* field : form.findChildren<QLineEdit*>()) {
        if (field->objectName() == "txt_header") continue;
        EXPECT_TRUE(field->alignment() & Qt::AlignRight) << field->objectName().toStdString();
        EXPECT_EQ(field->maximumWidth(), width) << field->objectName().toStdString();
        EXPECT_FALSE(field->toolTip().isEmpty()) << field->objectName().toStdString();
    }
}

TEST_F(LayoutTest, ALargeDrivenByTextHasItsRoom) {
    program->model.CalcMode = 4;
    program->model.DriveFileName = "a rather long name of a drive file.sva";
    In(ScreenId::frm_Inputnew, [](FormWindow& form) {
        form.resize(kRoom);
        EXPECT_TRUE(Find<QLabel>(form, "lbl_camdriven").isVisible());
        EXPECT_FALSE(Find<QWidget>(form, "frm_calcmode").isVisible());
        Check(form);
    });
}

}  // namespace
}  // namespace kervol
