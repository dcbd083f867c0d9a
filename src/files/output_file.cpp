// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/output_file.h"

#include <cerrno>
#include <filesystem>
#include <unistd.h>
#include <utility>

#include "core/fault.h"
#include "files/disk.h"

namespace kervol {
namespace {

namespace fs = std::filesystem;
using FileHandle = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

/// What a link points to, so that the link itself stays; a target that is not there yet is taken as named.
fs::path Followed(const std::string& path) {
    std::error_code error;
    fs::path target = fs::canonical(path, error);
    return error ? fs::path(path) : target;
}

void Check_Writable(const fs::path& path, const fs::file_status& status) {
    if (!fs::is_regular_file(status)) Raise(fault::PathFileAccess);
    if (access(path.c_str(), W_OK) != 0) Raise(Fault_Of_System_Error(errno));
}

FileHandle Opened(const fs::path& path) {
    FileHandle file(std::fopen(path.c_str(), "wb"), &std::fclose);
    // This class holds text back itself; another buffer would hide which write failed.
    if (file) static_cast<void>(std::setvbuf(file.get(), nullptr, _IONBF, 0));
    return file;
}

FileHandle Opened_Or_Fault(const fs::path& path) {
    FileHandle file = Opened(path);
    if (!file) Raise(Fault_Of_System_Error(errno));
    return file;
}

/// A new file with the old one's permissions, after the old one has moved aside.
FileHandle Opened_In_Place_Of(const fs::path& kept, const fs::path& path, fs::perms permissions) {
    std::error_code error;
    FileHandle file = Opened(path);
    if (!file) {
        const int reason = errno;
        fs::rename(kept, path, error);
        Raise(Fault_Of_System_Error(reason));
    }
    fs::permissions(path, permissions, error);
    return file;
}

FileHandle Opened_Keeping_Content(const std::string& name) {
    if (name.empty()) Raise(fault::BadFileNameOrNumber);
    const fs::path path = Followed(name);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status)) return Opened_Or_Fault(path);

    Check_Writable(path, status);
    fs::path kept = path;
    kept += "~";
    fs::rename(path, kept, error);
    if (!error) return Opened_In_Place_Of(kept, path, status.permissions());
    fs::copy_file(path, kept, fs::copy_options::overwrite_existing, error);
    return Opened_Or_Fault(path);
}

}  // namespace

OutputFile::OutputFile(const std::string& path) : file_(Opened_Keeping_Content(path)) {}

OutputFile::~OutputFile() {
    static_cast<void>(std::fwrite(held_back_.data(), 1, held_back_.size(), file_.get()));
}

void OutputFile::Write(std::string_view text) {
    held_back_ += text;
}

void OutputFile::Flush() {
    const std::string text = std::exchange(held_back_, {});
    const std::size_t written = std::fwrite(text.data(), 1, text.size(), file_.get());
    if (written != text.size()) Raise(Fault_Of_System_Error(errno));
}

}  // namespace kervol
