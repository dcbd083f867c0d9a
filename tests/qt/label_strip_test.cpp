// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/label_strip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace kervol {
namespace {

TEST(LabelStripTest, ALargeNumberIsShownWhole) {
    QWidget window;
    auto* row = new QHBoxLayout(&window);
    auto* strip = new LabelStrip(Qt::Vertical);
    auto* label = new QLabel("1.");
    strip->Add(label, 0.5);
    row->addWidget(strip);
    row->addWidget(new QLabel("plot"), 1);
    window.resize(600, 200);
    window.show();
    QTest::qWait(1);
    const int usual = strip->width();

    label->setText("-1,234,567,890,123.");
    QTest::qWait(1);
    EXPECT_GT(strip->width(), usual);
    EXPECT_GE(label->x(), 0);
    EXPECT_LE(label->geometry().right(), strip->width());
    EXPECT_GE(label->width(), label->sizeHint().width());
}

}  // namespace
}  // namespace kervol
