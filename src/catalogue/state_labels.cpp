// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/state_labels.h"

#include "core/number_text.h"

namespace kervol {
namespace {

constexpr std::int16_t kLinkCode = 3;

/// One field of the drive; without a value it is not shown.
struct DriveField {
    const char* caption = "";
    const char* unit = "";
    float LinkageModel::*value = nullptr;
};
using DriveFields = std::array<DriveField, NumRangeFields>;

constexpr DriveField kTheta0 = {"Theta0", "deg", &LinkageModel::Theta2One};
constexpr DriveField kOmega0 = {"Omega0", "rad/s", &LinkageModel::Omega2Start};
constexpr DriveField kAlpha0 = {"Alpha0", "rad/s/s", &LinkageModel::Alpha2Const};

constexpr DriveFields kOnePosition = {{{}, {}, {}, kTheta0, kOmega0, kAlpha0}};
constexpr DriveFields kTime = {{{"Start Time", "sec", &LinkageModel::TimeStart},
                                {"End Time", "sec", &LinkageModel::TimeEnd},
                                {"Delta Time", "sec", &LinkageModel::TimeStep},
                                kTheta0,
                                kOmega0,
                                kAlpha0}};
constexpr DriveFields kAngle = {{{"Min Theta", "deg", &LinkageModel::ThetaMinDeg},
                                 {"Max Theta", "deg", &LinkageModel::ThetaMaxDeg},
                                 {"Delta Theta", "deg", &LinkageModel::ThetaStepDeg},
                                 {"Omega2", "rad/s", &LinkageModel::Omega2Start},
                                 {},
                                 {}}};

void Put(const LinkageModel& model, StateLabels& labels, const DriveFields& fields) {
    for (std::size_t i = 0; i < NumRangeFields; ++i) {
        const DriveField& field = fields[i];
        const bool shown = field.value != nullptr;
        labels.lbl_Initial[i].caption = field.caption;
        labels.lbl_Unit[i].caption = field.unit;
        labels.lbl_Linkout2[i].caption = shown ? Plain_Number(model.*field.value) : "";
        for (Label* label : {&labels.lbl_Initial[i], &labels.lbl_Unit[i], &labels.lbl_Linkout2[i]})
            label->visible = shown;
    }
}

}  // namespace

StateLabels::StateLabels() {
    static constexpr std::array<const char*, 9> kCaptions = {
        "Link 1 (O2-O4)",      "Link 2 (O2-A)",         "Link 3 (A-B)",
        "Link 4 (O4-B)",       "O4D or cp3 dist",       "delta4 or delta3",
        "Link 5 (D-E or C-D)", "Link 6 (O6-E or O6-D)", "Coords of O6"};
    for (std::size_t i = 0; i < kCaptions.size(); ++i) lbl_Left[i].caption = kCaptions[i];
    frm_initial.caption = "Initial Conditions";
}

void Put_Link_Labels(const LinkageModel& model, StateLabels& labels) {
    const bool watt = model.LinkageType == "W";
    labels.lbl_Left[4].caption = watt ? "Link O4-D" : "Coupler A-C";
    labels.lbl_Left[5].caption = watt ? "Angle Delta4" : "Angle Delta3";
    labels.lbl_Left[6].caption = watt ? "Link 5 (D-E)" : "Link 5 (C-D)";
    labels.lbl_Left[7].caption = watt ? "Link 6 (O6-E)" : "Link 6 (O6-D)";
    const std::array<float, 10> values = {model.Link1,
                                          model.Link2,
                                          model.Link3,
                                          model.Link4,
                                          watt ? model.LinkO4D : model.CouplerAC,
                                          watt ? model.Delta4Deg : model.Delta3Deg,
                                          model.Link5,
                                          model.Link6,
                                          model.O6X,
                                          model.O6Y};
    for (std::size_t i = 0; i < values.size(); ++i)
        labels.lbl_Links[i].caption = FNRoundStr(values[i], kLinkCode);
}

void Put_Labels_One(const LinkageModel& model, StateLabels& labels) {
    Put(model, labels, kOnePosition);
}

void Put_Labels_Time(const LinkageModel& model, StateLabels& labels) {
    Put(model, labels, kTime);
}

void Put_Labels_Angle(const LinkageModel& model, StateLabels& labels) {
    Put(model, labels, kAngle);
}

void Put_Drive_Labels(const LinkageModel& model, StateLabels& labels) {
    switch (model.CalcMode) {
        case 1:
            Put_Labels_One(model, labels);
            break;
        case 2:
        case 4:
        case 5:
            Put_Labels_Time(model, labels);
            break;
        case 3:
            Put_Labels_Angle(model, labels);
            break;
        default:
            break;
    }
}

void Put_Coordinate_Labels(const Selections& selections, StateLabels& labels) {
    labels.lbl_Coord.caption = selections.LocalCoords != 0 ? "Local Rotating" : "Global";
}

}  // namespace kervol
