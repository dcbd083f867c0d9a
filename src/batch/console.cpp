// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/console.h"

#include <algorithm>
#include <iostream>
#include <unistd.h>

#include "core/report.h"
#include "files/model_file.h"
#include "files/output_file.h"

namespace kervol {

int Console::Complain(ExitCode code, std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    if (!text.empty()) err_ << "kervol-batch: " << text << '\n';
    return code;
}

bool Console::Print(const std::string& text) {
    out_ << text << std::flush;
    if (!out_) Complain(Failed, "standard output: cannot be written; check where it goes");
    return static_cast<bool>(out_);
}

bool Console::Is_Terminal() const {
    return &err_ == &std::cerr && isatty(STDERR_FILENO) == 1;
}

void Console::Show_Progress(const std::string& text) {
    if (!Is_Terminal() || (text.empty() && progress_width_ == 0)) return;
    std::string line = text;
    line.resize(std::max(progress_width_, text.size()), ' ');
    err_ << '\r' << line << (text.empty() ? "\r" : "") << std::flush;
    progress_width_ = text.size();
}

int Console::Close(const BatchRun& run) {
    return Complain(run.Outcome(), run.Complaint());
}

int Console::Put_Out(BatchRun& run, const std::string& text, const std::string& file) {
    if (file.empty()) return Print(text) ? Close(run) : Failed;
    const bool written = Procedure(run.program(), "Put_Out", [&] {
        OutputFile output(file);
        output.Write(text);
        output.Close();
    });
    return written ? Close(run) : Complain(Failed, run.Write_Complaint(file));
}

int Console::Save(BatchRun& run, const std::string& file) {
    if (!Save_Model_As(run.program(), file)) return Complain(Failed, run.Write_Complaint(file));
    return Print(run.port().messages.back().box.text + "\n") ? Done : Failed;
}

}  // namespace kervol
