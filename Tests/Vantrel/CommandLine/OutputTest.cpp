#include "Vantrel/CommandLine/Output.h"

#include "Tests/Vantrel/CommandLine/TemporaryStream.h"
#include "Tests/VantrelKit/Samples.h"

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class OutputTest : public testing::Test {
protected:
    test::TemporaryStream results_;
    test::TemporaryStream messages_;
    Output output_{results_.file(), messages_.file()};
};

TEST_F(OutputTest, AResultIsALineOfUtf8AsItIs)
{
    output_.line(u"Wörk – \u65e5\u672c \U0001F600\t%s\x1b[31m"_s);
    output_.line({});
    output_.line(u"two\nlines"_s);
    EXPECT_EQ(results_.bytes(), "W\u00f6rk \u2013 \u65e5\u672c \U0001F600\t%s\x1b[31m\n\ntwo\nlines\n");
    EXPECT_EQ(messages_.bytes(), QByteArray());
}

TEST_F(OutputTest, AZeroByteDoesNotEndALine)
{
    output_.line(u"before\0behind"_s);
    EXPECT_EQ(results_.bytes(), QByteArray("before\0behind\n", 14));
}

TEST_F(OutputTest, AMessageBeginsWithTheProgramsName)
{
    const std::vector<std::pair<QString, QByteArray>> rows{
        {u"Nein, “ja”."_s, "vantrel: Nein, \u201cja\u201d.\n"},
        {u"100% %s %1"_s, "vantrel: 100% %s %1\n"},
        {u"first\n  second"_s, "vantrel: first\n  second\n"},
        {u"red\x1b[31m\ttab\r\x7f"_s, "vantrel: red\\x1b[31m\\ttab\\r\\x7f\n"},
        {u"back\\slash"_s, "vantrel: back\\slash\n"},
        {QString(), "vantrel: \n"},
    };
    for (const auto &[text, expected] : rows) {
        const test::TemporaryStream messages;
        Output(results_.file(), messages.file()).message(text);
        EXPECT_EQ(messages.bytes(), expected);
    }
    EXPECT_EQ(results_.bytes(), QByteArray());
}

TEST_F(OutputTest, WhatIsHeldBackIsWrittenOutAtTheEnd)
{
    output_.line(u"result"_s);
    EXPECT_TRUE(output_.finish());
    std::rewind(results_.file());
    char text[16]{};
    EXPECT_NE(std::fgets(text, sizeof text, results_.file()), nullptr);
    EXPECT_STREQ(text, "result\n");
}

TEST_F(OutputTest, WithoutResultsThereIsNothingToFail)
{
    EXPECT_TRUE(output_.finish());
}

/// The disk that is always full.
class FullDisk : public testing::Test {
protected:
    struct Closer {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };

    FullDisk() { EXPECT_NE(full_, nullptr); }

    std::unique_ptr<std::FILE, Closer> full_{std::fopen("/dev/full", "w")};
    test::TemporaryStream other_;
};

TEST_F(FullDisk, ResultsThatCouldNotBeWrittenAreAFailure)
{
    Output output(full_.get(), other_.file());
    output.line(u"short"_s);
    EXPECT_FALSE(output.finish());
    EXPECT_FALSE(output.finish()) << "Asking again does not make it better.";
}

TEST_F(FullDisk, AFailureInTheMiddleIsNotForgotten)
{
    // More than is held back, so that nothing is left to be written out at the end.
    std::setvbuf(full_.get(), nullptr, _IONBF, 0);
    Output output(full_.get(), other_.file());
    output.line(QString(100000, u'x'));
    EXPECT_FALSE(output.finish());
}

TEST_F(FullDisk, LostMessagesDoNotMakeTheResultsFail)
{
    Output output(other_.file(), full_.get());
    output.message(u"lost"_s);
    output.line(u"result"_s);
    EXPECT_TRUE(output.finish());
    EXPECT_EQ(other_.bytes(), "result\n");
}

} // namespace
} // namespace vantrel
