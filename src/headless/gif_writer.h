// SPDX-License-Identifier: GPL-3.0-or-later
// Animated GIF files.
#pragma once

#include <memory>
#include <span>
#include <string>

#include "core/picture.h"
#include "headless/raster_canvas.h"

namespace kervol {

/// Collects frames of one size and runs them for ever. Each frame but the first holds only the rectangle in
/// which it differs from the one before.
class GifWriter {
  public:
    /// `inks` are what is drawn on the ground, up to 15; the file can show each of them at 16 strengths.
    GifWriter(int width, int height, Colour ground, std::span<const Colour> inks);
    ~GifWriter();
    GifWriter(const GifWriter&) = delete;
    GifWriter& operator=(const GifWriter&) = delete;

    /// Adds a frame that stands for so many hundredths of a second. Fault 57 where the library cannot write.
    void Add(const RasterCanvas& canvas, int hundredths);
    /// The whole file; nothing can be added behind it.
    std::string Finished();

  private:
    class State;
    std::unique_ptr<State> state_;
};

}  // namespace kervol
