// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/output_file.h"

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
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

void Write_And_Close(FileHandle file, std::string_view text) {
    const bool written = std::fwrite(text.data(), 1, text.size(), file.get()) == text.size();
    const int reason = errno;
    const bool closed = std::fclose(file.release()) == 0;
    if (!written) Raise(Fault_Of_System_Error(reason));
    if (!closed) Raise(Fault_Of_System_Error(errno));
}

/// A new file with the old one's group and permissions, after the old one has moved aside.
FileHandle Opened_In_Place_Of(const fs::path& kept, const fs::path& path, const struct stat& old) {
    FileHandle file = Opened(path);
    if (!file) {
        const int reason = errno;
        std::error_code error;
        fs::rename(kept, path, error);
        Raise(Fault_Of_System_Error(reason));
    }
    const int descriptor = fileno(file.get());
    // Who may not give the file away keeps it; the permissions come last, since a change of owner cuts them.
    static_cast<void>(fchown(descriptor, old.st_uid, old.st_gid) == 0);
    static_cast<void>(fchmod(descriptor, old.st_mode & 07777) == 0);
    return file;
}

/// Copies beside the file where that can be read and there is or can be a plain file of that name; else
/// nothing.
void Keep_Copy(const fs::path& path, const fs::path& kept) {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(kept, error);
    if (fs::exists(status) && !fs::is_regular_file(status)) return;
    if (access(path.c_str(), R_OK) != 0) return;
    const std::string content = Read_Whole_File(path.string());
    if (FileHandle copy = Opened(kept)) Write_And_Close(std::move(copy), content);
}

FileHandle Opened_Keeping_Content(const std::string& name) {
    if (name.empty()) Raise(fault::BadFileNameOrNumber);
    const fs::path path = Followed(name);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status)) return Opened_Or_Fault(path);

    Check_Writable(path, status);
    struct stat old {};
    if (stat(path.c_str(), &old) != 0) Raise(Fault_Of_System_Error(errno));
    // What a full disk leaves behind must not push out what was kept before it.
    if (old.st_size == 0) return Opened_Or_Fault(path);
    fs::path kept = path;
    kept += "~";
    const bool owner_stays = old.st_uid == geteuid() || geteuid() == 0;
    if (owner_stays) fs::rename(path, kept, error);
    if (owner_stays && !error) return Opened_In_Place_Of(kept, path, old);
    Keep_Copy(path, kept);
    return Opened_Or_Fault(path);
}

}  // namespace

OutputFile::OutputFile(const std::string& path) : file_(Opened_Keeping_Content(path)) {}

OutputFile::~OutputFile() {
    if (file_) static_cast<void>(std::fwrite(held_back_.data(), 1, held_back_.size(), file_.get()));
}

void OutputFile::Write(std::string_view text) {
    held_back_ += text;
}

void OutputFile::Close() {
    Write_And_Close(std::move(file_), std::exchange(held_back_, {}));
}

}  // namespace kervol
