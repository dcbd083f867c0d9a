// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/disk.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>

#include "core/fault.h"

namespace kervol {
namespace {

namespace fs = std::filesystem;

/// A file that is not there is told from a folder that is not there.
void Check_Readable(const std::string& path) {
    if (path.empty()) Raise(fault::BadFileNameOrNumber);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) {
        const fs::path folder = fs::path(path).parent_path();
        Raise(folder.empty() || fs::is_directory(folder, error) ? fault::FileNotFound : fault::PathNotFound);
    }
    if (error) Raise(Fault_Of_System_Error(error.value()));
    if (!fs::is_regular_file(status)) Raise(fault::PathFileAccess);
}

}  // namespace

std::int32_t Fault_Of_System_Error(int error) {
    switch (error) {
        case EACCES:
        case EPERM:
        case EROFS:
            return fault::PermissionDenied;
        case ENOENT:
        case ENOTDIR:
            return fault::PathNotFound;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return fault::DiskFull;
        case ENAMETOOLONG:
        case EINVAL:
            return fault::BadFileNameOrNumber;
        case EIO:
            return fault::DeviceIO;
        case ENOMEM:
            return fault::OutOfMemory;
        default:
            return fault::PathFileAccess;
    }
}

std::string Read_Whole_File(const std::string& path) {
    Check_Readable(path);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), &std::fclose);
    if (!file) Raise(Fault_Of_System_Error(errno));
    std::string content;
    std::array<char, 16384> block;
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), file.get()))
        content.append(block.data(), count);
    if (std::ferror(file.get()) != 0) Raise(fault::DeviceIO);
    return content;
}

}  // namespace kervol
