// SPDX-License-Identifier: GPL-3.0-or-later
#include "rendering/point_ticker.h"

#include <algorithm>
#include <cmath>

namespace kervol {
namespace {

constexpr int kFewestTexts = 3;

/// How many multiples of the spacing lie between two points.
int Multiples(int first, int last, int spacing) {
    return last < first ? 0 : last / spacing - (first + spacing - 1) / spacing + 1;
}

}  // namespace

void PointTicker::Set_Spacing(int tick_every, int label_every) {
    tick_every_ = std::max(1, tick_every);
    label_every_ = std::max(1, label_every);
}

void PointTicker::generate(const QCPRange& range, const QLocale&, QChar, int, QVector<double>& ticks,
                           QVector<double>* sub_ticks, QVector<QString>* texts) {
    ticks.clear();
    if (sub_ticks != nullptr) sub_ticks->clear();
    if (texts != nullptr) texts->clear();
    const int end = static_cast<int>(labels_.size()) - 1;
    const int first = std::clamp(static_cast<int>(std::ceil(range.lower)), 0, end + 1);
    const int last = std::clamp(static_cast<int>(std::floor(range.upper)), -1, end);

    int tick = tick_every_, label = label_every_;
    while (label > 1 && Multiples(first, last, label) < std::min(kFewestTexts, last - first + 1)) {
        label /= 2;
        tick = std::max(1, tick / 2);
    }
    while (label <= end && Multiples(first, last, label) > std::max(1, room_)) {
        label *= 2;
        tick *= 2;
    }
    for (int point = first; point <= last; ++point) {
        const bool named = point % label == 0;
        if (!named && point % tick != 0) continue;
        ticks.append(point);
        if (texts != nullptr) texts->append(named ? labels_.at(point) : QString());
    }
}

}  // namespace kervol
