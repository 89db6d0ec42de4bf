#include "Platform/ProgramScriptRunner.h"

#include <QCoreApplication>
#include <QCoroTask>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class OsascriptTest : public testing::Test {
protected:
    std::expected<ScriptEnd, PlatformError> run(const QString &script)
    {
        ProgramScriptRunner runner(u"/usr/bin/osascript"_s, std::chrono::seconds(60));
        return QCoro::waitFor(runner.run(script));
    }

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};
};

TEST_F(OsascriptTest, PrintsTheResultAndALineEnd)
{
    const auto end = run(u"set a to \"Büro\"\nreturn a & \" 東京\""_s);
    ASSERT_TRUE(end.has_value());
    EXPECT_EQ(*end, (ScriptEnd{.status = 0, .output = u"Büro 東京\n"_s, .errorText = {}}));
}

TEST_F(OsascriptTest, SaysTheErrorsNumber)
{
    const auto end = run(u"error \"no\" number -1719"_s);
    ASSERT_TRUE(end.has_value());
    EXPECT_EQ(end->status, 1);
    EXPECT_TRUE(end->errorText.contains(u"-1719"_s)) << end->errorText.toStdString();
}

} // namespace
} // namespace vantrel
