// SPDX-License-Identifier: GPL-3.0-or-later
// Where a command of `kervol-batch` writes its results and its complaints.
#pragma once

#include <cstddef>
#include <ostream>
#include <string>

#include "batch/batch_run.h"

namespace kervol {

class Console {
  public:
    Console(std::ostream& out, std::ostream& err) : out_(out), err_(err) {}

    /// Writes a complaint as one line and returns the code.
    int Complain(ExitCode code, std::string text);
    /// False, after a complaint, where standard output does not take it.
    bool Print(const std::string& text);
    /// Whether complaints go to a terminal, where a line of progress may stand for a time.
    bool Is_Terminal() const;
    /// Puts the text in place of the last line of progress, on a terminal alone; an empty one takes it away.
    void Show_Progress(const std::string& text);
    /// The outcome of a run, with its complaint where there is one.
    int Close(const BatchRun& run);
    /// Prints the text, or writes it to the file where one is named, and closes the run.
    int Put_Out(BatchRun& run, const std::string& text, const std::string& file);
    /// Writes the model to the file and tells so.
    int Save(BatchRun& run, const std::string& file);

  private:
    std::ostream& out_;
    std::ostream& err_;
    std::size_t progress_width_ = 0;  ///< of the line of progress that stands
};

}  // namespace kervol
