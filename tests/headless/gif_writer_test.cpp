// SPDX-License-Identifier: GPL-3.0-or-later
// Pixels and GIF files, read back by the library's reader.
#include "headless/gif_writer.h"

#include <array>
#include <cstring>
#include <gif_lib.h>
#include <vector>

#include <gtest/gtest.h>

namespace kervol {
namespace {

constexpr Colour kWhite = {255, 255, 255}, kRed = {255, 0, 0}, kBlack = {0, 0, 0};
constexpr std::array<Colour, 2> kInks = {kRed, kBlack};

struct Source {
    const std::string& text;
    std::size_t at = 0;
};

int Read(GifFileType* file, GifByteType* bytes, int count) {
    auto& source = *static_cast<Source*>(file->UserData);
    const std::size_t taken = std::min(static_cast<std::size_t>(count), source.text.size() - source.at);
    std::memcpy(bytes, source.text.data() + source.at, taken);
    source.at += taken;
    return static_cast<int>(taken);
}

struct ReadBack {
    int width = 0, height = 0;
    std::vector<int> delays;
    std::vector<std::vector<Colour>> frames;  ///< as shown, each over the one before
};

ReadBack Read_Back(const std::string& text) {
    Source source{text};
    int error = 0;
    GifFileType* file = DGifOpen(&source, Read, &error);
    EXPECT_NE(file, nullptr);
    EXPECT_EQ(DGifSlurp(file), GIF_OK);
    ReadBack read{file->SWidth, file->SHeight, {}, {}};
    std::vector<Colour> shown(static_cast<std::size_t>(read.width * read.height));
    for (int i = 0; i < file->ImageCount; ++i) {
        const SavedImage& image = file->SavedImages[i];
        GraphicsControlBlock control;
        EXPECT_EQ(DGifSavedExtensionToGCB(file, i, &control), GIF_OK);
        read.delays.push_back(control.DelayTime);
        const GifImageDesc& box = image.ImageDesc;
        for (int y = 0; y < box.Height; ++y)
            for (int x = 0; x < box.Width; ++x) {
                const GifColorType& colour = file->SColorMap->Colors[image.RasterBits[y * box.Width + x]];
                shown[static_cast<std::size_t>((y + box.Top) * read.width + x + box.Left)] = {
                    colour.Red, colour.Green, colour.Blue};
            }
        read.frames.push_back(shown);
    }
    DGifCloseFile(file, &error);
    return read;
}

TEST(RasterCanvas, FillsTheMiddleOfALineAndSoftensItsBorder) {
    RasterCanvas canvas(20, 20, kWhite);
    const std::array<PixelPoint, 2> line = {{{2, 10}, {18, 10}}};
    canvas.Stroke(line, false, 3, kBlack);
    EXPECT_EQ(canvas.At(10, 9), kBlack);
    EXPECT_EQ(canvas.At(10, 10), kBlack);
    // The border runs through the middle between the centres 8.5 and 7.5.
    EXPECT_EQ(canvas.At(10, 8), (Colour{128, 128, 128}));
    EXPECT_EQ(canvas.At(10, 6), kWhite);
    EXPECT_EQ(canvas.At(10, 17), kWhite);
}

TEST(RasterCanvas, FillsTheInsideOfAnOutlineAlone) {
    RasterCanvas canvas(20, 20, kWhite);
    const std::array<PixelPoint, 3> triangle = {{{0, 0}, {20, 0}, {0, 20}}};
    canvas.Fill(triangle, kBlack, 0.2);
    EXPECT_EQ(canvas.At(2, 2), (Colour{204, 204, 204}));
    EXPECT_EQ(canvas.At(17, 17), kWhite);
}

TEST(RasterCanvas, LeavesOutWhatLiesOutside) {
    RasterCanvas canvas(4, 4, kWhite);
    canvas.Disc({1e9, -1e9}, 10, kRed);
    canvas.Disc({-3, 2}, 2, kRed);
    const std::array<PixelPoint, 2> line = {{{-1e9, 2}, {1e9, 2}}};
    canvas.Stroke(line, false, 2, kBlack);
    EXPECT_EQ(canvas.At(0, 1), kBlack);
    EXPECT_EQ(canvas.At(0, 3), kWhite);
}

TEST(RasterCanvas, DrawsARingAroundAnEmptyMiddle) {
    RasterCanvas canvas(21, 21, kWhite);
    canvas.Ring({10.5, 10.5}, 8, 2, kRed);
    EXPECT_EQ(canvas.At(10, 10), kWhite);
    EXPECT_EQ(canvas.At(18, 10), kRed);
}

TEST(GifWriter, WritesFramesThatReadBackAsDrawn) {
    GifWriter file(30, 20, kWhite, kInks);
    RasterCanvas canvas(30, 20, kWhite);
    canvas.Disc({10, 10}, 5, kRed);
    file.Add(canvas, 7);
    canvas.Disc({20, 10}, 3, kBlack);
    file.Add(canvas, 250);
    const std::string text = file.Finished();
    const ReadBack read = Read_Back(text);
    EXPECT_EQ(read.width, 30);
    EXPECT_EQ(read.height, 20);
    EXPECT_EQ(read.delays, (std::vector<int>{7, 250}));
    ASSERT_EQ(read.frames.size(), 2U);
    EXPECT_EQ(read.frames[0][10 * 30 + 10], kRed);
    EXPECT_EQ(read.frames[0][10 * 30 + 20], kWhite);
    EXPECT_EQ(read.frames[1][10 * 30 + 10], kRed);
    EXPECT_EQ(read.frames[1][10 * 30 + 20], kBlack);
}

TEST(GifWriter, RunsForEver) {
    GifWriter file(8, 8, kWhite, kInks);
    file.Add(RasterCanvas(8, 8, kWhite), 5);
    EXPECT_NE(file.Finished().find(std::string("NETSCAPE2.0\x03\x01\x00\x00\x00", 16)), std::string::npos);
}

TEST(GifWriter, StoresOnlyWhatChanged) {
    const auto size = [](bool moves) {
        GifWriter file(200, 200, kWhite, kInks);
        for (int i = 0; i < 20; ++i) {
            RasterCanvas canvas(200, 200, kWhite);
            canvas.Disc({50.0 + (moves ? i : 0), 50}, 5, kRed);
            file.Add(canvas, 5);
        }
        return file.Finished().size();
    };
    EXPECT_LT(size(false), 2500U);  // the colours and one frame; nothing else changes
    EXPECT_GT(size(true), size(false));
}

TEST(GifWriter, KeepsDelaysWithinTheFormat) {
    GifWriter file(8, 8, kWhite, kInks);
    file.Add(RasterCanvas(8, 8, kWhite), 0);
    file.Add(RasterCanvas(8, 8, kWhite), 1'000'000);
    EXPECT_EQ(Read_Back(file.Finished()).delays, (std::vector<int>{1, 65535}));
}

}  // namespace
}  // namespace kervol
