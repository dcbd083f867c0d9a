// SPDX-License-Identifier: GPL-3.0-or-later
// Drawings in DXF, group by group.
#include "headless/dxf_writer.h"

#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kervol {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

TEST(DxfWriter, FramesTheEntitiesByHeaderTablesAndEnd) {
    DxfWriter file;
    file.Add_Layer("LINK1", 8);
    const std::string text = file.Finished();
    EXPECT_THAT(text, StartsWith("0\r\nSECTION\r\n2\r\nHEADER\r\n9\r\n$ACADVER\r\n1\r\nAC1009\r\n"));
    EXPECT_THAT(text, HasSubstr("2\r\nLAYER\r\n70\r\n1\r\n0\r\nLAYER\r\n2\r\nLINK1\r\n70\r\n0\r\n62\r\n8\r\n"
                                "6\r\nCONTINUOUS\r\n0\r\nENDTAB\r\n"));
    EXPECT_THAT(text, EndsWith("0\r\nSECTION\r\n2\r\nENTITIES\r\n0\r\nENDSEC\r\n0\r\nEOF\r\n"));
}

TEST(DxfWriter, WritesEntitiesOnTheirLayers) {
    DxfWriter file;
    file.Line("A", {1, 2}, {3.5, -4});
    file.Circle("B", {0, 0.25}, 2);
    const std::array<DxfPoint, 2> points = {{{1, 1}, {2, 2}}};
    file.Polyline("C", points);
    const std::string text = file.Finished();
    EXPECT_THAT(text, HasSubstr("0\r\nLINE\r\n8\r\nA\r\n10\r\n1.0\r\n20\r\n2.0\r\n30\r\n0.0\r\n"
                                "11\r\n3.5\r\n21\r\n-4.0\r\n31\r\n0.0\r\n"));
    EXPECT_THAT(text,
                HasSubstr("0\r\nCIRCLE\r\n8\r\nB\r\n10\r\n0.0\r\n20\r\n0.25\r\n30\r\n0.0\r\n40\r\n2.0\r\n"));
    EXPECT_THAT(text, HasSubstr("0\r\nPOLYLINE\r\n8\r\nC\r\n66\r\n1\r\n"));
    EXPECT_THAT(text,
                HasSubstr("0\r\nVERTEX\r\n8\r\nC\r\n10\r\n2.0\r\n20\r\n2.0\r\n30\r\n0.0\r\n0\r\nSEQEND"));
}

TEST(DxfWriter, TellsTheExtentOfWhatWasDrawn) {
    DxfWriter file;
    file.Point("A", {5, 6});
    file.Line("A", {7, 8}, {2, 30});
    EXPECT_THAT(file.Finished(), HasSubstr("9\r\n$EXTMIN\r\n10\r\n2.0\r\n20\r\n6.0\r\n"
                                           "9\r\n$EXTMAX\r\n10\r\n7.0\r\n20\r\n30.0\r\n"));
}

TEST(DxfWriter, NeverWritesExponents) {
    DxfWriter file;
    file.Point("A", {1e-7, 2e12});
    EXPECT_THAT(file.Finished(), HasSubstr("10\r\n0.0000001\r\n20\r\n2000000000000.0\r\n"));
}

TEST(DxfWriter, KeepsHostileTextsOnOneLineOfAscii) {
    DxfWriter file;
    file.Comment("a\r\n0\r\nEOF");
    file.Text("A", {0, 0}, 1, "\xC3\x9C%%d\\U+0041\xE2\x82\xAC");
    const std::string text = file.Finished();
    EXPECT_THAT(text, StartsWith("999\r\na  0  EOF\r\n"));
    EXPECT_THAT(text, HasSubstr("1\r\n\\U+00DC\\U+0025\\U+0025d\\U+005CU+0041\\U+20AC\r\n"));
}

TEST(DxfWriter, CutsTextsToWhatTheFormatTakes) {
    DxfWriter file;
    file.Comment(std::string(1000, 'x'));
    EXPECT_THAT(file.Finished(), StartsWith("999\r\n" + std::string(255, 'x') + "\r\n"));
}

}  // namespace
}  // namespace kervol
