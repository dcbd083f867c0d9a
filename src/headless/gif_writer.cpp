// SPDX-License-Identifier: GPL-3.0-or-later
#include "headless/gif_writer.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <gif_lib.h>
#include <unordered_map>
#include <vector>

#include "core/fault.h"

namespace kervol {
namespace {

constexpr std::size_t kColours = 256;
constexpr int kStrengths = 16;
constexpr int kLongestDelay = 65535;

int Append(GifFileType* file, const GifByteType* bytes, int count) {
    static_cast<std::string*>(file->UserData)->append(bytes, bytes + count);
    return count;
}

void Require(bool done) {
    if (!done) Raise(fault::DeviceIO);
}

int Distance(const GifColorType& entry, Colour colour) {
    const int red = entry.Red - colour.red, green = entry.Green - colour.green,
              blue = entry.Blue - colour.blue;
    return red * red + green * green + blue * blue;
}

/// A colour map of inks at all strengths on the ground, and the entry nearest to a colour.
class Palette {
  public:
    Palette(Colour ground, std::span<const Colour> inks) : entries_(kColours), last_(ground) {
        std::size_t next = 0;
        const auto put = [&](Colour ink, int strength) {
            const auto mixed = [&](int below, int above) {
                return static_cast<GifByteType>(below + (above - below) * strength / kStrengths);
            };
            if (next < kColours)
                entries_[next++] = {mixed(ground.red, ink.red), mixed(ground.green, ink.green),
                                    mixed(ground.blue, ink.blue)};
        };
        put(ground, 0);
        for (const Colour ink : inks)
            for (int strength = 1; strength <= kStrengths; ++strength) put(ink, strength);
    }

    const std::vector<GifColorType>& Entries() const { return entries_; }

    GifPixelType Nearest(Colour colour) {
        // Neighbours mostly have the same colour.
        if (!(colour == last_)) {
            last_ = colour;
            nearest_to_last_ = Look_Up(colour);
        }
        return nearest_to_last_;
    }

  private:
    GifPixelType Look_Up(Colour colour) {
        const int key = colour.red << 16 | colour.green << 8 | colour.blue;
        const auto known = nearest_.find(key);
        if (known != nearest_.end()) return known->second;
        const auto found = std::min_element(entries_.begin(), entries_.end(),
                                            [&](const GifColorType& left, const GifColorType& right) {
                                                return Distance(left, colour) < Distance(right, colour);
                                            });
        return nearest_[key] = static_cast<GifPixelType>(found - entries_.begin());
    }

    std::vector<GifColorType> entries_;
    std::unordered_map<int, GifPixelType> nearest_;
    Colour last_;  ///< the ground, which is entry 0
    GifPixelType nearest_to_last_ = 0;
};

struct Rectangle {
    int left, top, right, bottom;
};

}  // namespace

class GifWriter::State {
  public:
    State(int width, int height, Colour ground, std::span<const Colour> inks)
        : width_(width), height_(height), palette_(ground, inks) {
        int error = 0;
        file_ = EGifOpen(&text_, Append, &error);
        Require(file_ != nullptr);
        EGifSetGifVersion(file_, true);
        ColorMapObject* map = GifMakeMapObject(int{kColours}, palette_.Entries().data());
        const bool begun = map != nullptr && EGifPutScreenDesc(file_, width, height, 8, 0, map) == GIF_OK;
        GifFreeMapObject(map);
        Require(begun);
        Put_Loop();
    }
    ~State() {
        int error = 0;
        if (file_ != nullptr) EGifCloseFile(file_, &error);
    }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    void Add(const RasterCanvas& canvas, int hundredths) {
        std::vector<GifPixelType> pixels;
        pixels.reserve(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
        for (int y = 0; y < height_; ++y)
            for (int x = 0; x < width_; ++x) pixels.push_back(palette_.Nearest(canvas.At(x, y)));
        Put_Delay(std::clamp(hundredths, 1, kLongestDelay));
        Put_Image(pixels, Changed(pixels));
        shown_ = std::move(pixels);
    }

    std::string Finished() {
        int error = 0;
        const bool closed = EGifCloseFile(file_, &error) == GIF_OK;
        file_ = nullptr;
        Require(closed);
        return std::move(text_);
    }

  private:
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
    }

    /// The extension by which viewers run the frames again and again.
    void Put_Loop() {
        static constexpr std::array<GifByteType, 3> kForEver = {1, 0, 0};
        Require(EGifPutExtensionLeader(file_, APPLICATION_EXT_FUNC_CODE) == GIF_OK &&
                EGifPutExtensionBlock(file_, 11, "NETSCAPE2.0") == GIF_OK &&
                EGifPutExtensionBlock(file_, int{kForEver.size()}, kForEver.data()) == GIF_OK &&
                EGifPutExtensionTrailer(file_) == GIF_OK);
    }

    void Put_Delay(int hundredths) {
        const GraphicsControlBlock control = {DISPOSE_DO_NOT, false, hundredths, NO_TRANSPARENT_COLOR};
        std::array<GifByteType, 4> bytes{};
        EGifGCBToExtension(&control, bytes.data());
        Require(EGifPutExtension(file_, GRAPHICS_EXT_FUNC_CODE, int{bytes.size()}, bytes.data()) == GIF_OK);
    }

    /// Where the pixels differ from those that are shown; one pixel where they do not.
    Rectangle Changed(const std::vector<GifPixelType>& pixels) const {
        if (shown_.empty()) return {0, 0, width_ - 1, height_ - 1};
        Rectangle box = {width_, height_, -1, -1};
        for (int y = 0; y < height_; ++y) {
            for (int x = 0; x < width_; ++x) {
                if (pixels[Index(x, y)] == shown_[Index(x, y)]) continue;
                box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x),
                       std::max(box.bottom, y)};
            }
        }
        return box.right < 0 ? Rectangle{0, 0, 0, 0} : box;
    }

    void Put_Image(std::vector<GifPixelType>& pixels, const Rectangle& box) {
        const int width = box.right - box.left + 1, height = box.bottom - box.top + 1;
        Require(EGifPutImageDesc(file_, box.left, box.top, width, height, false, nullptr) == GIF_OK);
        for (int y = box.top; y <= box.bottom; ++y)
            Require(EGifPutLine(file_, &pixels[Index(box.left, y)], width) == GIF_OK);
    }

    int width_, height_;
    Palette palette_;
    std::string text_;
    GifFileType* file_ = nullptr;
    std::vector<GifPixelType> shown_;
};

GifWriter::GifWriter(int width, int height, Colour ground, std::span<const Colour> inks)
    : state_(std::make_unique<State>(width, height, ground, inks)) {}

GifWriter::~GifWriter() = default;

void GifWriter::Add(const RasterCanvas& canvas, int hundredths) {
    state_->Add(canvas, hundredths);
}

std::string GifWriter::Finished() {
    return state_->Finished();
}

}  // namespace kervol
