// SPDX-License-Identifier: GPL-3.0-or-later
// The one linkage that the program holds: what the user gave, what follows from it, and the flags that tell
// which data are complete. Results stand in `ResultTables` (core/result_tables.h).
//
// Frames: in the "user" frame O2 is the origin and the ground link O2-O4 lies as entered; the "local" frame
// is the user frame turned by minus `GroundAngleDeg`, so that O4 lies on +x. Lengths are in the model's unit
// of length.
#pragma once

#include <cstdint>
#include <string>

#include "core/constants.h"
#include "core/table.h"

namespace kervol {

/// One value for each link number 0 to 6; numbers that no link has stay 0.
using LinkArray = Table<float, NumLinks + 1>;

struct LinkageModel {
    // Identity. Program values are set at launch; the rest comes from the user or a file.
    std::string ProgramTitle;     ///< name of the program and identity of its model files
    std::string VersionText;      ///< release number of the running program
    std::string ProgramDate;      ///< release date of the running program
    std::string ReleaseText;      ///< revision of the running program
    std::string CaptionTail;      ///< name, version and revision, behind the caption of each screen
    std::string ModelPath;        ///< full path of the file in use, empty until one is opened or saved
    std::string ModelName;        ///< file name without folder and extension
    std::string ModelTitle;       ///< free title line
    std::string UserName;         ///< name or project printed in headers
    std::int16_t DesignNumber{};  ///< design number printed in headers
    std::string DateText;         ///< date stamp, never parsed
    std::string TimeText;         ///< time stamp, never parsed

    // Chain and assembly.
    std::string LinkageType;          ///< "W" Watt, "S" Stephenson; any other text skips Stage 2
    std::int16_t OpenCross1{};        ///< Stage 1: 1 open, 2 crossed
    std::int16_t OpenCross2{};        ///< Stage 2: 1 open, 2 crossed
    std::int16_t OpenSign1{};         ///< sign of the root in Stage 1: -1 open, +1 crossed
    std::int16_t OpenSign2{};         ///< sign of the root in Stage 2: -1 open, +1 crossed
    std::string OpenCross1Text;       ///< "Open" or "Crossed", never compared
    std::string OpenCross2Text;       ///< "Open" or "Crossed", never compared
    std::string Stage1Class;          ///< "Y" Grashof, "N" not, "SC" special case
    std::string Stage2Class;          ///< the same for a Watt chain; a Stephenson chain leaves it as it was
    Table<std::string, 2> StageText;  ///< the classification in words, by stage index

    // Geometry as entered. `Deg` fields in degrees, their twins in radians.
    float Link1{};           ///< O2-O4, always the polar magnitude of (O4X, O4Y)
    float Link2{};           ///< crank O2-A
    float Link3{};           ///< coupler A-B
    float Link4{};           ///< rocker O4-B
    float LinkO4D{};         ///< Watt: arm O4-D of link 4
    float Link5{};           ///< Stage 2 coupler: D-E (Watt), C-D (Stephenson)
    float Link6{};           ///< Stage 2 output: O6-E (Watt), O6-D (Stephenson)
    float CouplerAC{};       ///< A to C: coupler point 1 (Watt), pin of link 5 (Stephenson)
    float Delta3Deg{};       ///< at A from link 3 to line A-C, degrees
    float Delta3{};          ///< the same, radians
    std::string Delta3Text;  ///< the same as shown
    float Delta4Deg{};       ///< Watt: at O4 from link 4 to line O4-D, degrees
    float Delta4{};          ///< the same, radians
    std::string Delta4Text;  ///< the same as shown
    float Coupler2Length{};  ///< start of link 5 (D Watt, C Stephenson) to coupler point 2
    float Coupler2Spare{};   ///< a distance of the legacy format, carried through and used by nothing
    float Delta5Deg{};       ///< at the start of link 5 from link 5 to coupler point 2, degrees
    float Delta5{};          ///< the same, radians
    std::string Delta5Text;  ///< the same as shown
    float O4X{};             ///< pivot O4, user frame
    float O4Y{};             ///< pivot O4, user frame
    float O6X{};             ///< pivot O6, user frame
    float O6Y{};             ///< pivot O6, user frame

    // Geometry that follows. Angles from `Cart_to_Polar`, so -90 to 270 degrees.
    float GroundAngleDeg{};     ///< direction O2 to O4, degrees, user frame
    float GroundAngle{};        ///< the same, radians
    float O4LocalX{};           ///< O4, local frame
    float O4LocalY{};           ///< O4, local frame: 0 within rounding
    float O6LocalX{};           ///< O6, local frame
    float O6LocalY{};           ///< O6, local frame
    float O4O6X{};              ///< O6 minus O4, local frame
    float O4O6Y{};              ///< O6 minus O4, local frame
    float O4O6Length{};         ///< length of O4-O6: Stage 2 ground link of a Watt chain
    float O4O6AngleDeg{};       ///< its direction, degrees, local frame
    float O4O6Angle{};          ///< the same, radians
    float O2O6Length{};         ///< length of O2-O6: Stage 2 ground link of a Stephenson chain
    float O2O6AngleDeg{};       ///< its direction, degrees, local frame
    float O2O6Angle{};          ///< the same, radians
    float O6O4AngleDeg{};       ///< direction O6 to O4, degrees, user frame; for the record
    float O6O4Angle{};          ///< the same, radians
    Table<float, 9> LinkTable;  ///< CouplerAC, Link1 to Link6, LinkO4D, O2O6Length

    // Motion input. Angles in the user frame.
    std::int16_t CalcMode{};    ///< 1 one position, 2 time steps, 3 angle steps, 4 cam drive, 5 linkage drive
    std::int16_t NumSteps{};    ///< highest step index of the last set-up
    float Theta2One{};          ///< crank angle of mode 1 and at time 0 of mode 2, degrees
    float Omega2Start{};        ///< crank speed, rad/s; at time 0 in mode 2
    float Alpha2Const{};        ///< constant crank acceleration of modes 1 and 2, rad/s^2
    float ThetaMinDeg{};        ///< angle range of mode 3, degrees
    float ThetaMaxDeg{};        ///< the same
    float ThetaStepDeg{};       ///< the same
    float ThetaMin{};           ///< angle range, radians
    float ThetaMax{};           ///< the same
    float ThetaStep{};          ///< the same
    std::string ThetaMinText;   ///< start of the mode's range as shown: an angle or a time
    std::string ThetaMaxText;   ///< end of the mode's range as shown
    std::string ThetaStepText;  ///< step of the mode's range as shown
    float TimeStart{};          ///< time range of mode 2, seconds
    float TimeEnd{};            ///< the same
    float TimeStep{};           ///< the same
    std::string AngleRange;     ///< of link angles: "abs" 0 to 360, "180" -180 to 180, else not wrapped

    // Imported drive and torque. The torque's name stands in no model file.
    bool CamDriven{};            ///< the drive columns hold data of a cam s-v-a file
    bool LinkDriven{};           ///< the drive columns hold data of a linkage output file
    bool TorqueImported{};       ///< link 6 takes its torque from `Torque21Imported`
    std::string DriveFileName;   ///< base name of the drive file with its extension
    std::string TorqueFileName;  ///< base name of the torque file with its extension
    float DriveScale{};          ///< crank degrees for one unit of the imported cam displacement
    float DriveOffset{};         ///< added to an imported cam curve, degrees
    float DriveDatum{};          ///< imported zero angle, degrees
    float DriveArmLength{};      ///< arm drawn at the driven pivot, length
    float CamBaseRadius{};       ///< drawn cam radius, length
    float CamRollerRadius{};     ///< drawn roller radius, length
    float CamCentreX{};          ///< cam centre for drawing, length
    float CamCentreY{};          ///< cam centre for drawing, length

    // Link data by link number.
    LinkArray LinkMass;     ///< mass, links 2 to 6
    LinkArray LinkInertia;  ///< mass moment of inertia about the centre of gravity, links 2 to 6
    Table<float, NumLinks + 1, 2> LinkCG;  ///< (k, 0) distance from the pivot; (k, 1) angle from the line of
                                           ///< centres, radians
    LinkArray ForceMag;                    ///< external force, links 3 to 6; negative reverses it
    LinkArray ForceAngle;       ///< its constant direction, degrees, used in the local frame as entered
    LinkArray ForceX;           ///< its component, local frame
    LinkArray ForceY;           ///< its component, local frame
    LinkArray ForcePointDist;   ///< its point's distance from the centre of gravity, length
    LinkArray ForcePointAngle;  ///< its point's angle from the line of centres, degrees
    LinkArray LinkTorque;       ///< external torque, links 3 to 6
    LinkArray LinkFriction;     ///< friction force at the coupler points, links 3 and 5 used

    // Working state of the position solved last. Angles in radians: crank and Stage 1 local, Stage 2 from the
    // Stage 2 ground link.
    float Theta2Rad{};    ///< crank angle, set by the sweep
    float Omega2{};       ///< crank speed, rad/s, set by the sweep
    float Alpha2{};       ///< crank acceleration, rad/s^2; set by drive-file sweeps alone
    float CurrentTime{};  ///< time of a time-step sweep, seconds
    float Theta3Rad{};
    float Theta4Rad{};
    float Theta5Rad{};
    float Theta6Rad{};
    float Omega3Now{};  ///< rad/s
    float Omega4Now{};
    float Omega5Now{};
    float Omega6Now{};
    float Alpha3Now{};  ///< rad/s^2
    float Alpha4Now{};
    float Alpha5Now{};
    float Alpha6Now{};

    // Units, display and output.
    std::int16_t UnitSystem{};        ///< 1 ips, 2 fps, 3 SI, 4 cgs, 5 kg-mm-s; labels only
    std::int16_t UnitCount{};         ///< unit texts in use beside the last
    Table<std::string, 19> UnitText;  ///< unit of a table code 1 to 18; 0 stays empty
    std::string StepMode;             ///< "Y" or "N": "N" clears the picture at each set-up
    std::string ShowTrace;            ///< "Y" or "N", empty until the animation has been used
    std::string HideLinks;            ///< "Y" or "N", empty until the animation has been used
    std::string ShowPoints;           ///< "Y" or "N"
    std::string ShowCoupler;          ///< "Y" or "N"
    std::int32_t AnimDelay{};         ///< delay factor: 32767 minus the speed bar
    std::int16_t AnimCycles{};        ///< runs of the table
    std::int16_t AnimWait{};          ///< delay multiplier
    std::int16_t PrintStep{};         ///< every n-th step is printed; below 1 counts as 1 where it is used
    float CoefFluct{};                ///< coefficient of fluctuation of the flywheel

    // State flags.
    bool DataCalculated{};      ///< the kinematic tables are complete
    bool DynamicsCalculated{};  ///< the force and torque tables are complete
    bool FlywheelCalculated{};  ///< the flywheel torque is complete
    bool DataSaved{};           ///< a file for the model has been chosen in this run
    bool NewData{};             ///< selection screens rebuild their lists
    bool SomeStepFailed{};      ///< a step of the last sweep did not assemble
    bool Loading{};             ///< option handlers ignore their events
    bool DataFromFile{};        ///< read and not yet calculated
    bool StartingUp{};          ///< before the Home screen has come to the front

    bool operator==(const LinkageModel&) const = default;
};

}  // namespace kervol
