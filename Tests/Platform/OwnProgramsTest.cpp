#include "Platform/OwnPrograms.h"

#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

TEST(OwnPrograms, AProgramIsNamedAsTheSearchPathLeadsToIt)
{
    const test::TemporaryFolder folder;
    const QString program = folder.writeScript(u"opt/vantrel-1.2/bin/vantrel"_s, "exit 0\n");
    const QString link = folder.link(u"usr/local/bin/vantrel"_s, program);
    folder.writeScript(u"other/bin/vantrel"_s, "exit 0\n");
    const auto path = [&folder](const QStringList &folders) {
        QStringList full;
        for (const QString &each : folders)
            full.append(each.isEmpty() ? each : folder.path(each));
        return full.join(u':');
    };
    EXPECT_EQ(lastingName(program, path({u"other/bin"_s, u""_s, u"usr/local/bin"_s})), link);
    EXPECT_EQ(lastingName(program, path({u"opt/vantrel-1.2/bin"_s, u"usr/local/bin"_s})), program);
    EXPECT_EQ(lastingName(program, path({u"other/bin"_s})), program);
    EXPECT_EQ(lastingName(program, {}), program);
}

TEST(OwnPrograms, ARelativeFolderOfTheSearchPathIsPassedOver)
{
    const test::TemporaryFolder folder;
    const QString program = folder.writeScript(u"bin/vantrel"_s, "exit 0\n");
    const QString relative = QDir::current().relativeFilePath(folder.path(u"bin"_s));
    EXPECT_EQ(lastingName(program, relative + u":."_s), program);
}

TEST(OwnPrograms, AProgramThatIsNotThereCannotBeBecome)
{
    EXPECT_EQ(becomeProgram(u"/nonexistent/vantrel-launcher"_s, {u"--remove"_s}),
              PlatformError{u"/nonexistent/vantrel-launcher can't be started: No such file or directory."_s});
}

} // namespace
} // namespace vantrel
