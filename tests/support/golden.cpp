// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/golden.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

std::filesystem::path Golden_Folder() {
    return std::filesystem::path(__FILE__).parent_path().parent_path() / "golden";
}

std::filesystem::path Output_Folder() {
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return (error ? std::filesystem::current_path() : program.parent_path()) / "actual_output";
}

void Write(const std::filesystem::path& path, const std::string& content) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << content;
    EXPECT_TRUE(file.flush().good()) << path << " could not be written";
}

bool Is_To_Regenerate() {
    const char* value = std::getenv("KERVOL_REGENERATE");
    return value != nullptr && std::string_view(value) == "1";
}

}  // namespace

void Expect_Golden(const std::string& name, const std::string& output) {
    const auto golden = Golden_Folder() / name;
    if (Is_To_Regenerate()) Write(golden, output);
    if (std::filesystem::exists(golden) && Content_Of(golden.string()) == output) return;
    const auto actual = Output_Folder() / name;
    Write(actual, output);
    ADD_FAILURE() << "The output differs.\nGOLDEN: " << golden.string() << "\nOUTPUT: " << actual.string()
                  << "\nIf the new one is right, run with KERVOL_REGENERATE=1.";
}

}  // namespace kervol
