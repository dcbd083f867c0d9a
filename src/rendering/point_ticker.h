// SPDX-License-Identifier: GPL-3.0-or-later
// Ticks of an axis on which point i stands at i, with a text for every point.
#pragma once

#include <QStringList>
#include <qcustomplot.h>

namespace kervol {

/// A tick at every n-th point and a text at every m-th, from the first point on. Where that many texts would
/// collide both spacings are doubled, where the view holds less than three they are halved, until it fits.
class PointTicker : public QCPAxisTicker {
  public:
    void Set_Spacing(int tick_every, int label_every);
    void Set_Labels(QStringList labels) { labels_ = std::move(labels); }
    const QStringList& Labels() const { return labels_; }
    /// How many texts find room side by side.
    void Set_Room(int most) { room_ = most; }

    void generate(const QCPRange& range, const QLocale& locale, QChar format, int precision,
                  QVector<double>& ticks, QVector<double>* sub_ticks, QVector<QString>* texts) override;

  private:
    QStringList labels_;
    int tick_every_ = 1, label_every_ = 1;
    int room_ = 1;
};

}  // namespace kervol
