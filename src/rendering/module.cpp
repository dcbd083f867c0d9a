// SPDX-License-Identifier: GPL-3.0-or-later
// The module `kervol-pictures`: what programs that are not linked with the toolkit load to render sheets.
#include <QApplication>
#include <QScopeGuard>
#include <exception>

#include "rendering/render.h"

extern "C" bool kervol_render_sheet(std::size_t sheet_size, const kervol::Sheet* sheet,
                                    kervol::PictureFormat format,
                                    void (*take)(void* target, const char* bytes, std::size_t count),
                                    void* target) {
    if (sheet_size != sizeof(kervol::Sheet)) return false;
    // What the toolkit has to say about the surroundings is nothing for a person who asked for a picture.
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const auto put_back = qScopeGuard([before] { qInstallMessageHandler(before); });
    try {
        // Without a display, whatever the person's own is.
        qputenv("QT_QPA_PLATFORM", "offscreen");
        int argc = 1;
        char name[] = "kervol-batch";
        char* argv[] = {name, nullptr};
        const QApplication application(argc, argv);
        const std::string file = kervol::Rendered(*sheet, format);
        take(target, file.data(), file.size());
        return !file.empty();
    } catch (const std::exception&) {
        return false;
    }
}

// What programs look up is what stands here.
static_assert(std::is_same_v<kervol::RenderEntry, decltype(&kervol_render_sheet)>);
