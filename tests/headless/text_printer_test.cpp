// SPDX-License-Identifier: GPL-3.0-or-later
// The printer whose pages stay texts, and how the recording port hands it out.
#include "headless/text_printer.h"

#include "headless/recording_port.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;

TEST(TextPrinter, PutsLinesOnPagesThatAreCountedFrom1) {
    PrintedDocument document;
    TextPrinter printer(document);
    EXPECT_EQ(printer.Page(), 1);
    printer.Print_Line("first");
    printer.Print_Line("");
    printer.New_Page();
    EXPECT_EQ(printer.Page(), 2);
    printer.Print_Line("second");
    EXPECT_THAT(document.pages, ElementsAre("first\n\n", "second\n"));
    EXPECT_EQ(document.Text(), "first\n\n\fsecond\n");
}

TEST(TextPrinter, MarksTheDocumentThatWasEnded) {
    PrintedDocument document;
    TextPrinter printer(document);
    EXPECT_FALSE(document.ended);
    printer.End_Document();
    EXPECT_TRUE(document.ended);
}

TEST(RecordingPort, KeepsEachPrintedDocument) {
    RecordingPort port;
    port.Ask_Printer()->Print_Line("one");
    const auto printer = port.Ask_Printer();
    printer->Print_Line("two");
    ASSERT_EQ(port.documents.size(), 2U);
    EXPECT_EQ(port.documents.front().Text(), "one\n");
    EXPECT_EQ(port.documents.back().Text(), "two\n");
}

TEST(RecordingPort, HasNoPrinterAfterCancel) {
    RecordingPort port;
    port.has_printer = false;
    EXPECT_EQ(port.Ask_Printer(), nullptr);
    EXPECT_TRUE(port.documents.empty());
}

}  // namespace
}  // namespace kervol
