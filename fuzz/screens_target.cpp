// SPDX-License-Identifier: GPL-3.0-or-later
// Any events in any order on all screens: what a person could do with keyboard and mouse, and a little more.
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "headless/recording_port.h"
#include "line_mutator.h"
#include "person.h"
#include "screen_controls.h"
#include "support/temporary_folder.h"

namespace kervol {
namespace {

/// Files that a person finds in the file dialogs; what a run has written over is put back.
class Desk {
  public:
    Desk() { Tidy(); }

    void Tidy() const {
        namespace fs = std::filesystem;
        for (const fs::path& old : std::vector<fs::path>(fs::directory_iterator(folder_.path()), {}))
            fs::remove_all(old);
        for (const char* source : {KERVOL_EXAMPLES, KERVOL_CORPUS})
            for (const fs::path& file : std::vector<fs::path>(fs::directory_iterator(source), {}))
                folder_.Put(file.filename().string(), Content_Of(file.string()));
        const std::string whole = Content_Of(folder_ / "watt.kvl");
        folder_.Put("damaged.kvl", whole.substr(0, whole.size() / 2));
    }
    std::string Path() const { return folder_.path().string(); }

  private:
    TemporaryFolder folder_;
};

/// Names of the controls of all screens.
std::vector<std::string> All_Names() {
    RecordingPort port;
    const auto program = std::make_unique<Program>(port);
    const auto screens = std::make_unique<Screens>(*program);
    std::vector<std::string> names = {"enter", "close", "close"};
    for (std::size_t i = 0; i < NumScreens; ++i)
        for (const NamedControl& named : Controls_Of(*screens, static_cast<ScreenId>(i)))
            names.push_back(named.name);
    return names;
}

/// Values that screens ask for, beside those at the edge.
std::string Value_For_Screens(FuzzRandom& random) {
    static constexpr std::array kUsual = {"0",  "1",   "2",   "3",   "5",    "10",   "15", "30", "60",
                                          "90", "360", "-10", "8.5", "0.05", "2.75", "1*", "7*", "*"};
    return Below(random, 2) == 0 ? kUsual.at(Below(random, kUsual.size())) : Edge_Value(random);
}

std::string New_Event(FuzzRandom& random) {
    static const std::vector<std::string> names = All_Names();
    static constexpr std::array kAnswers = {"OK", "Cancel", "Yes", "No", "Abort", "Retry", "Ignore"};
    static constexpr std::array kFiles = {"watt.kvl",   "cam.sva",         "drive.out",
                                          "torque.trq", "every-field.kvl", "torque.kvl",
                                          "legacy.ikv", "mine.kvl",        ""};
    switch (Below(random, 12)) {
        case 0:
            return std::string("answer=") + kAnswers.at(Below(random, kAnswers.size()));
        case 1:
            return std::string("file=") + kFiles.at(Below(random, kFiles.size()));
        case 2:
        case 3:
        case 4:
            return names[Below(random, names.size())] + "=" + Value_For_Screens(random);
        default:
            return std::to_string(Below(random, 80)) + "=" + Value_For_Screens(random);
    }
}

}  // namespace

LineKind Lines_Of_Input() {
    return {"=", New_Event};
}

}  // namespace kervol

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const kervol::Desk desk;
    const auto person = std::make_unique<kervol::Person>(
        std::string_view(reinterpret_cast<const char*>(data), size), desk.Path());
    person->Use_Program();
    if (person->files_used) desk.Tidy();
    return 0;
}
