// SPDX-License-Identifier: GPL-3.0-or-later
// A folder of a test's own, removed with all it holds when the test ends.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kervol {

class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "kervol-test-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder could be made");
        path_ = std::filesystem::canonical(name);
    }
    ~TemporaryFolder() {
        std::error_code error;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all, error);
        std::filesystem::remove_all(path_, error);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    /// Full path of a name within the folder.
    std::string operator/(std::string_view name) const { return (path_ / name).string(); }

    /// Makes or replaces a file of that content and returns its full path.
    std::string Put(std::string_view name, std::string_view content) const {
        const std::string file = *this / name;
        std::ofstream(file, std::ios::binary) << content;
        return file;
    }

  private:
    std::filesystem::path path_;
};

/// Content of a file, byte for byte; empty if there is none.
inline std::string Content_Of(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace kervol
