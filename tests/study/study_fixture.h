// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of studies: a fresh program, whose model is the Watt example, as the base.
#pragma once

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "catalogue/names.h"
#include "study/study_run.h"
#include "support/program_test.h"

namespace kervol {

class IgnoringPort : public RecordingPort {
  public:
    IgnoringPort() {
        answer = [](const MessageBox& box) {
            return box.buttons == Buttons::AbortRetryIgnore ? Answer::Ignore : Answer::None;
        };
    }
};

class StudyTest : public ProgramTest {
  protected:
    StudyTest() { Change_Catalog_Labels(program->catalogue, model.LinkageType); }

    Variation Vary(const std::string& text) {
        Variation variation;
        EXPECT_EQ(variation.Parse(text), "") << text;
        return variation;
    }
    Measure Take(const std::string& text) {
        Measure measure;
        EXPECT_EQ(measure.Parse(text, *program), "") << text;
        return measure;
    }
    StudyPlan Plan(const std::vector<std::string>& variations, const std::vector<std::string>& measures) {
        StudyPlan plan;
        for (const std::string& text : variations) plan.variations.push_back(Vary(text));
        for (const std::string& text : measures) plan.measures.push_back(Take(text));
        return plan;
    }
    StudyRow Solve(const StudyPlan& plan, std::uint64_t number) {
        return StudySolver(plan, *program, std::make_unique<IgnoringPort>()).Solve(number);
    }
    /// The file of a run.
    std::string Run(const StudyPlan& plan, const StudyOptions& options, StudyProgress* progress = nullptr) {
        std::string file;
        StudySurroundings surroundings;
        surroundings.make_port = [] { return std::make_unique<IgnoringPort>(); };
        surroundings.write = [&](std::string_view text) { file += text; };
        const StudyProgress end = Run_Study(plan, *program, options, surroundings);
        if (progress != nullptr) *progress = end;
        return file;
    }
    static std::vector<std::string> Lines_Of(const std::string& text) {
        std::vector<std::string> lines;
        std::istringstream stream(text);
        for (std::string line; std::getline(stream, line);) {
            EXPECT_TRUE(line.ends_with('\r')) << line;
            line.pop_back();
            lines.push_back(line);
        }
        return lines;
    }
};

}  // namespace kervol
