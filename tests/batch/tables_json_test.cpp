// SPDX-License-Identifier: GPL-3.0-or-later
// The JSON of the tables command: its keys, shapes, numbers and messages.
#include "batch/tables_json.h"

#include <cstdio>
#include <cstdlib>

#include "batch/command_run.h"
#include "core/model_fields.h"
#include "kinematics/examples.h"
#include "kinematics/step_count.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using nlohmann::json;
using ::testing::UnorderedElementsAre;

/// An example, calculated by the program's own procedures.
struct Calculated {
    explicit Calculated(const char* example) : program(std::make_unique<Program>(port)) {
        Start_Fresh(*program);
        program->model.StartingUp = false;
        Load_Example(program->model, *Find_Example(example));
        Calculate_Model(*program);
    }

    RecordingPort port;
    std::unique_ptr<Program> program;
};

TEST(TablesJson, HasTheDocumentedKeysAndNoOther) {
    std::vector<std::string> keys;
    const json tables = Batch({"tables", "--example", "watt"}).Json();
    for (const auto& item : tables.items()) keys.push_back(item.key());
    EXPECT_THAT(keys, UnorderedElementsAre("ProgramTitle", "VersionText", "model", "messages", "NumSteps",
                                           "DataCalculated", "SomeStepFailed", "Stage1Class", "Stage2Class",
                                           "StepValid", "Theta", "Omega", "Alpha", "PointPos", "PointVel",
                                           "PointAcc", "VelRatio", "MechAdv"));
}

TEST(TablesJson, TellsTheProgramAndTheOutcome) {
    const json tables = Batch({"tables", "--example", "watt"}).Json();
    EXPECT_EQ(tables["ProgramTitle"], "KERVOL for Windows");
    EXPECT_EQ(tables["VersionText"], "7.0");
    EXPECT_EQ(tables["NumSteps"], 36);
    EXPECT_EQ(tables["DataCalculated"], true);
    EXPECT_EQ(tables["SomeStepFailed"], false);
    // 2 + 9.375 < 8.625 + 7; 5.385 + 8 < 8 + 7.
    EXPECT_EQ(tables["Stage1Class"], "Y");
    EXPECT_EQ(tables["Stage2Class"], "Y");
    EXPECT_EQ(tables["messages"], json::array());
}

/// Shape of a nested list whose lists of one depth are all alike.
std::vector<std::size_t> Shape(const json& list) {
    if (!list.is_array() || list.empty()) return {};
    std::vector<std::size_t> inner = Shape(list[0]);
    for (const json& element : list) EXPECT_EQ(Shape(element), inner);
    inner.insert(inner.begin(), list.size());
    return inner;
}

TEST(TablesJson, HasARowForEachStepInTheDocumentedShapes) {
    using Dims = std::vector<std::size_t>;
    const struct {
        const char* example;
        std::size_t rows;
    } cases[] = {{"watt", 37}, {"roberts", 37}, {"hoeken", 73}, {"double-dwell", 91}};
    for (const auto& [example, rows] : cases) {
        const json tables = Batch({"tables", "--example", example}).Json();
        EXPECT_EQ(tables["NumSteps"], rows - 1);
        EXPECT_EQ(Shape(tables["StepValid"]), Dims({rows}));
        EXPECT_EQ(Shape(tables["Theta"]), Dims({rows, 8}));
        EXPECT_EQ(Shape(tables["Omega"]), Dims({rows, 5}));
        EXPECT_EQ(Shape(tables["Alpha"]), Dims({rows, 5}));
        EXPECT_EQ(Shape(tables["PointPos"]), Dims({rows, 11, 2}));
        EXPECT_EQ(Shape(tables["PointVel"]), Dims({rows, 11, 2}));
        EXPECT_EQ(Shape(tables["PointAcc"]), Dims({rows, 11, 2}));
        EXPECT_EQ(Shape(tables["VelRatio"]), Dims({rows, 2}));
        EXPECT_EQ(Shape(tables["MechAdv"]), Dims({rows, 2}));
    }
}

/// What a value or a table of the program must be as JSON.
template <class T>
json As_Json(const T& value) {
    return value;
}
template <class T, std::size_t... Dims>
json As_Json(const Table<T, Dims...>& table) {
    json list = json::array();
    for (const auto& element : table) list.push_back(As_Json(element));
    return list;
}

/// Equality of JSON in which numbers are compared as singles.
bool Same_Singles(const json& left, const json& right) {
    if (left.is_number() && right.is_number())
        return std::equal_to<>{}(left.get<float>(), right.get<float>()) && !left.is_boolean();
    if (left.is_array() && right.is_array())
        return std::equal(left.begin(), left.end(), right.begin(), right.end(), Same_Singles);
    return left == right;
}

TEST(TablesJson, HoldsEveryFieldOfTheModelByItsName) {
    const Calculated expected("hoeken");
    const json model = Batch({"tables", "--example", "hoeken"}).Json()["model"];
    EXPECT_EQ(model.size(), Model_Fields().size());
    for (const ModelField& field : Model_Fields()) {
        const std::string name(field.name);
        if (name == "DateText" || name == "TimeText") continue;  // the minute may have turned
        ASSERT_TRUE(model.contains(name)) << name;
        std::visit(
            [&](auto member) {
                EXPECT_TRUE(Same_Singles(model[name], As_Json(expected.program->model.*member)))
                    << name << ": " << model[name];
            },
            field.member);
    }
    EXPECT_EQ(Shape(model["LinkMass"]), std::vector<std::size_t>({7}));
    EXPECT_EQ(Shape(model["LinkCG"]), std::vector<std::size_t>({7, 2}));
    EXPECT_TRUE(model["TorqueImported"].is_boolean());
    EXPECT_TRUE(model["ModelTitle"].is_string());
    EXPECT_TRUE(model["CalcMode"].is_number_integer());
}

TEST(TablesJson, ItsNumbersReadBackToTheSinglesOfTheTables) {
    for (const char* example : {"watt", "roberts", "hoeken", "double-dwell"}) {
        const Calculated calculated(example);
        const ResultTables& expected = calculated.program->tables;
        const json tables = Batch({"tables", "--example", example}).Json();
        const auto rows = static_cast<int>(tables["Theta"].size());
        for (int step = 0; step < rows; ++step) {
            const auto i = static_cast<std::size_t>(step);
            EXPECT_EQ(tables["StepValid"][i], expected.StepValid(step));
            EXPECT_TRUE(Same_Singles(tables["Theta"][i], As_Json(expected.Theta(step))));
            EXPECT_TRUE(Same_Singles(tables["Omega"][i], As_Json(expected.Omega(step))));
            EXPECT_TRUE(Same_Singles(tables["Alpha"][i], As_Json(expected.Alpha(step))));
            EXPECT_TRUE(Same_Singles(tables["PointPos"][i], As_Json(expected.PointPos(step))));
            EXPECT_TRUE(Same_Singles(tables["PointVel"][i], As_Json(expected.PointVel(step))));
            EXPECT_TRUE(Same_Singles(tables["PointAcc"][i], As_Json(expected.PointAcc(step))));
            EXPECT_TRUE(Same_Singles(tables["VelRatio"][i], As_Json(expected.VelRatio(step))));
            EXPECT_TRUE(Same_Singles(tables["MechAdv"][i], As_Json(expected.MechAdv(step))));
        }
    }
}

/// Collects the texts of the numbers that have a point or an exponent.
struct NumberTexts : nlohmann::json_sax<json> {
    bool null() override { return false; }
    bool boolean(bool) override { return true; }
    bool number_integer(number_integer_t) override { return true; }
    bool number_unsigned(number_unsigned_t) override { return true; }
    bool number_float(number_float_t, const string_t& text) override {
        texts.push_back(text);
        return true;
    }
    bool string(string_t&) override { return true; }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override { return true; }
    bool key(string_t&) override { return true; }
    bool end_object() override { return true; }
    bool start_array(std::size_t) override { return true; }
    bool end_array() override { return true; }
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
        return false;
    }

    std::vector<std::string> texts;
};

TEST(TablesJson, ItsNumbersAreTheShortestThatReadBack) {
    NumberTexts numbers;
    ASSERT_TRUE(json::sax_parse(Batch({"tables", "--example", "watt"}).out, &numbers));
    EXPECT_GT(numbers.texts.size(), 1000U);
    for (const std::string& text : numbers.texts) {
        const float value = std::strtof(text.c_str(), nullptr);
        const std::string mantissa = text.substr(0, text.find('E'));
        const auto first = mantissa.find_first_of("123456789");
        const auto digits = std::count_if(mantissa.begin() + static_cast<std::ptrdiff_t>(first),
                                          mantissa.end(), [](char c) { return c != '.'; });
        ASSERT_GE(digits, 1) << text;
        if (digits == 1) continue;
        char shorter[64];
        std::snprintf(shorter, sizeof shorter, "%.*e", static_cast<int>(digits) - 2, double(value));
        EXPECT_NE(std::strtof(shorter, nullptr), value) << text << " could be " << shorter;
    }
}

TEST(TablesJson, RecordsTheBoxOfASuccessfulRead) {
    const TemporaryFolder folder;
    const std::string path = Model_File(folder, "crank.kvl", [](Program&) {});
    const json tables = Batch({"tables", path}).Json();
    EXPECT_EQ(tables["messages"], json::array({{{"text", "File " + path + " successfully read."},
                                                {"icon", "information"},
                                                {"buttons", "OK"},
                                                {"answer", 1}}}));
    EXPECT_EQ(tables["model"]["ModelPath"], path);
    EXPECT_EQ(tables["model"]["ModelName"], "crank");
    EXPECT_EQ(tables["model"]["DataFromFile"], false) << "calculated since";
}

std::string Failure_Text(const std::string& degrees) {
    return "Stage  1 of linkage cannot connect or is indeterminate at Theta2 =  " + degrees +
           " Degrees\n\n"
           "Choose Abort to terminate further calculations beyond the current position\n\n"
           "Choose Retry to continue calculating the linkage motion and flag new problem positions with this "
           "message\n\n"
           "Choose Ignore to continue calculating, skipping over new problem positions and suppressing "
           "further "
           "messages\n";
}

TEST(TablesJson, RecordsOneBoxOfFailureWhereItIsIgnored) {
    const TemporaryFolder folder;
    const std::string path = Long_Crank_File(folder);
    const json implicitly = Batch({"tables", path}).Json();
    const json tables = Batch({"tables", path, "--on-failure", "ignore"}).Json();
    EXPECT_EQ(implicitly, tables);
    ASSERT_EQ(tables["messages"].size(), 2U);
    EXPECT_EQ(tables["messages"][1], json({{"text", Failure_Text("100")},
                                           {"icon", "exclamation"},
                                           {"buttons", "AbortRetryIgnore"},
                                           {"answer", 5}}));
    EXPECT_EQ(tables["SomeStepFailed"], true);
    EXPECT_EQ(tables["DataCalculated"], true);
    EXPECT_EQ(tables["Stage1Class"], "N");
    for (int step = 0; step <= 36; ++step)
        EXPECT_EQ(tables["StepValid"][static_cast<std::size_t>(step)],
                  step < kFirstFailed || step > kLastFailed)
            << step;
    for (const json& angle : tables["Theta"][kFirstFailed]) EXPECT_EQ(angle, 0);
}

TEST(TablesJson, RecordsEveryBoxOfFailureWhereItIsRetried) {
    const TemporaryFolder folder;
    const json messages =
        Batch({"tables", Long_Crank_File(folder), "--on-failure", "retry"}).Json()["messages"];
    ASSERT_EQ(messages.size(), 1U + 17U);
    for (int step = kFirstFailed; step <= kLastFailed; ++step) {
        const json& box = messages[static_cast<std::size_t>(step - kFirstFailed + 1)];
        EXPECT_EQ(box["text"], Failure_Text(std::to_string(10 * step)));
        EXPECT_EQ(box["answer"], 4);
    }
}

TEST(TablesJson, StopsAtTheFirstFailureWhereItIsAborted) {
    const TemporaryFolder folder;
    const json tables = Batch({"tables", Long_Crank_File(folder), "--on-failure", "abort"}).Json();
    ASSERT_EQ(tables["messages"].size(), 2U);
    EXPECT_EQ(tables["messages"][1]["answer"], 3);
    EXPECT_EQ(tables["DataCalculated"], false);
    EXPECT_EQ(tables["StepValid"][9], true);
    EXPECT_EQ(tables["StepValid"][11], false) << "never reached";
    EXPECT_EQ(tables["Theta"].size(), 37U);
}

TEST(TablesJson, FollowsTheDriveModeOfTheModel) {
    const TemporaryFolder folder;
    const auto rows = [&](std::int16_t mode, std::int16_t steps) {
        const std::string path = Model_File(folder, "a.kvl", [&](Program& program) {
            program.model.CalcMode = mode;
            program.model.NumSteps = steps;
            program.model.TimeEnd = 1;
            for (int i = 0; i <= 4; ++i) program.tables.DriveTheta(i) = static_cast<float>(10 * i);
            for (int i = 0; i <= 4; ++i) program.tables.Omega(i, 0) = 3;
        });
        return Batch({"tables", path}).Json();
    };
    EXPECT_EQ(rows(1, 36)["NumSteps"], 0);
    EXPECT_EQ(rows(2, 36)["NumSteps"], 20) << "1 s by 0.05 s";
    EXPECT_EQ(rows(3, 7)["NumSteps"], 36);
    const json driven = rows(5, 4);
    EXPECT_EQ(driven["NumSteps"], 4);
    EXPECT_NEAR(driven["Theta"][4][0].get<double>(), 40, 1e-4);
    EXPECT_EQ(driven["Omega"][4][0], 3);
}

TEST(TablesJson, NoModeMeansNoSweepAndARefusal) {
    const TemporaryFolder folder;
    for (const std::int16_t mode : {std::int16_t{0}, std::int16_t{-1}, std::int16_t{6}}) {
        const std::string path = Model_File(folder, "a.kvl", [&](Program& program) {
            program.model.CalcMode = mode;
            program.model.NumSteps = -1;
        });
        const CommandRun run = Batch({"tables", path});
        EXPECT_EQ(run.code, 4);
        Expect_One_Line(run.err);
        EXPECT_EQ(run.Json()["StepValid"], json::array());
    }
}

TEST(TablesJson, CountsOfStepsOutOfRangeGiveNoRowsOrAllRows) {
    const TemporaryFolder folder;
    const auto tables = [&](std::int16_t steps) {
        // A mode that sweeps nothing keeps the count as read.
        std::string content = Content_Of(Model_File(folder, "a.kvl", [&](Program& program) {
            program.model.CalcMode = 0;
            program.model.NumSteps = steps;
        }));
        return Batch({"tables", folder.Put("b.kvl", content)}).Json();
    };
    EXPECT_EQ(tables(-5)["NumSteps"], -5);
    EXPECT_EQ(tables(-5)["Theta"], json::array());
    EXPECT_EQ(tables(30000)["NumSteps"], 30000);
    EXPECT_EQ(tables(30000)["Theta"].size(), 1025U);
}

TEST(TablesJson, TextsWithQuotesBreaksAndOddBytesStayJson) {
    const TemporaryFolder folder;
    const std::string path = Model_File(folder, "a.kvl", [](Program& program) {
        program.model.ModelTitle = "back\\slash, tab\t, break\r\n, M\xC3\xBCller, \x01";
        program.model.UserName = "M\xFCller";  // not UTF-8, as in an old file
    });
    const json model = Batch({"tables", path}).Json()["model"];
    EXPECT_EQ(model["ModelTitle"], "back\\slash, tab\t, break\r\n, M\xC3\xBCller, \x01");
    EXPECT_EQ(model["UserName"], "M\xC3\xBCller");

    const std::string odd = folder.Put("odd \xFC \"name\".kvl", Content_Of(path));
    const json tables = Batch({"tables", odd}).Json();
    EXPECT_EQ(tables["model"]["ModelName"], "odd \xC3\xBC \"name\"");
}

}  // namespace
}  // namespace kervol
