// SPDX-License-Identifier: GPL-3.0-or-later
// Running a command of `kervol-batch` within the test, and making model files for it.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "batch/commands.h"
#include "files/model_file.h"
#include "headless/recording_port.h"
#include "startup/launch.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace kervol {

struct CommandRun {
    int code = -1;
    std::string out;
    std::string err;

    nlohmann::json Json() const { return nlohmann::json::parse(out); }
};

inline CommandRun Batch(const std::vector<std::string>& arguments) {
    std::vector<const char*> words = {"kervol-batch"};
    for (const std::string& argument : arguments) words.push_back(argument.c_str());
    words.push_back(nullptr);
    std::ostringstream out, err;
    CommandRun run;
    run.code = Run_Commands(static_cast<int>(arguments.size()) + 1, words.data(), out, err);
    run.out = out.str();
    run.err = err.str();
    return run;
}

/// A complaint is one line that says who complains.
inline void Expect_One_Line(const std::string& err) {
    EXPECT_EQ(std::count(err.begin(), err.end(), '\n'), 1) << err;
    EXPECT_EQ(err.substr(0, 14), "kervol-batch: ") << err;
    EXPECT_TRUE(err.ends_with('\n')) << err;
    EXPECT_GT(err.size(), 25U) << err;
}

/// With "-o" the text goes to the file, and standard output stays empty.
inline void Expect_Same_In_File(std::vector<std::string> arguments) {
    const TemporaryFolder folder;
    const std::string text = Batch(arguments).out;
    arguments.insert(arguments.end(), {"-o", folder / "out.txt"});
    const CommandRun run = Batch(arguments);
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(Content_Of(folder / "out.txt"), text);
}

/// Writes a fresh model, changed by `edit`, to a file of the folder and returns its path.
template <class Edit>
std::string Model_File(const TemporaryFolder& folder, const std::string& name, const Edit& edit) {
    RecordingPort port;
    const auto program = std::make_unique<Program>(port);
    Start_Fresh(*program);
    edit(*program);
    EXPECT_TRUE(Save_Model_As(*program, folder / name));
    return folder / name;
}

/// A crank too long for a full turn. With links 12, 8.625, 7 and 9.375 the distance from A to O4 may be at
/// most 15.625: 12^2 + 9.375^2 - 225 cos(theta) <= 15.625^2, so cos(theta) >= -0.0545 and the crank turns
/// from 266.9 over 0 to 93.1 degrees. In steps of 10 degrees, rows 10 to 26 do not assemble.
inline std::string Long_Crank_File(const TemporaryFolder& folder) {
    return Model_File(folder, "long.kvl", [](Program& program) { program.model.Link2 = 12; });
}
inline constexpr int kFirstFailed = 10;
inline constexpr int kLastFailed = 26;

}  // namespace kervol
