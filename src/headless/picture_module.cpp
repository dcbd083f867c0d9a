// SPDX-License-Identifier: GPL-3.0-or-later
#include "headless/picture_module.h"

#include <dlfcn.h>
#include <filesystem>
#include <system_error>

namespace kervol {
namespace {

constexpr const char* kModule = "libkervol-pictures.so";

/// Beside the program or in ../lib/kervol, else wherever the system looks. Sought here, since a search path
/// within the program is not heeded where a sanitizer loads for it.
std::string Module_Path() {
    namespace fs = std::filesystem;
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error).parent_path();
    for (const fs::path& folder : {program, program / "../lib/kervol"})
        if (fs::exists(folder / kModule, error)) return folder / kModule;
    return kModule;
}

RenderEntry Entry() {
    // Stays loaded: the toolkit cannot be taken out again.
    void* module = dlopen(Module_Path().c_str(), RTLD_NOW | RTLD_LOCAL);
    if (module == nullptr) {
        const char* reason = dlerror();
        throw PictureModuleError("pictures need " + std::string(kModule) +
                                 " beside this program: " + (reason == nullptr ? "it is not there" : reason));
    }
    void* entry = dlsym(module, RenderEntryName);
    if (entry == nullptr) throw PictureModuleError(std::string(kModule) + " is not this program's");
    return reinterpret_cast<RenderEntry>(entry);
}

}  // namespace

std::string Render_Sheet(const Sheet& sheet, PictureFormat format) {
    std::string file;
    const auto take = [](void* target, const char* bytes, std::size_t count) {
        static_cast<std::string*>(target)->append(bytes, count);
    };
    if (!Entry()(sizeof(Sheet), &sheet, format, take, &file))
        throw PictureModuleError("the picture could not be rendered; try a smaller --size, and " +
                                 std::string(kModule) + " of this version");
    return file;
}

}  // namespace kervol
