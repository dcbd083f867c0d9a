// SPDX-License-Identifier: GPL-3.0-or-later
// A file that is written anew without losing what it held.
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace kervol {

/// Opens a file emptied for writing. Earlier content is kept beside it under its name with "~" added, one
/// generation back: by renaming, where that is impossible or would change the owner by copying, else the file
/// is written in place. Links are followed and permissions kept. Where the new file cannot be opened the old
/// one is put back; where a copy was begun and cannot be finished the file is not touched.
///
/// Raises fault 75 for a target that is no regular file, 70 where there is no right to write, 61 where a copy
/// has no room.
class OutputFile {
  public:
    explicit OutputFile(const std::string& path);
    /// Writes what is still held back, as far as it can be.
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void Write(std::string_view text);
    /// Brings what is held back to the system, so that long files need not be held whole; raises the fault of
    /// a failed write.
    void Flush();
    /// Brings everything to the system; raises the fault of a failed write (61 for a full disk), after which
    /// the file holds as much as could be written. Nothing can be written behind it.
    void Close();

  private:
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_;
    std::string held_back_;
};

}  // namespace kervol
