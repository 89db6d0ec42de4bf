#include "Platform/Linux/FirefoxRoots.h"

#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

Environment environment(const QString &configHome = u"/home/user/.config"_s)
{
    Environment environment;
    environment.home = u"/home/user"_s;
    environment.configHome = configHome;
    return environment;
}

/// A file system in which these paths below the home exist, and nothing else.
PathExists only(const QStringList &paths)
{
    return
        [paths](const QString &path) { return path.startsWith("/home/user/"_L1) && paths.contains(path.sliced(11)); };
}

const QString oldFirefox = u"/home/user/.mozilla/firefox"_s;
const QString newFirefox = u"/home/user/.config/mozilla/firefox"_s;
const QString oldZen = u"/home/user/.zen"_s;
const QString newZen = u"/home/user/.config/zen"_s;

struct Row {
    QStringList existing;
    QStringList expected;
};

TEST(FirefoxRoots, TheOldFolderIsUsedWhereItOrAFolderWithoutItsDotExists)
{
    const std::vector<Row> rows{
        {{}, {newFirefox, oldFirefox}},
        // The folder above alone, as extensions make it, does not count.
        {{u".mozilla"_s}, {newFirefox, oldFirefox}},
        {{u".mozilla"_s, u".mozilla/extensions"_s, u".mozilla/native-messaging-hosts"_s}, {newFirefox, oldFirefox}},
        {{u".mozilla"_s, u".mozilla/firefox"_s}, {oldFirefox, newFirefox}},
        {{u"mozilla"_s}, {oldFirefox, newFirefox}},
        {{u".config/mozilla/firefox"_s}, {newFirefox, oldFirefox}},
        // It is used even where there are profiles in the new one.
        {{u".config/mozilla/firefox"_s, u".mozilla/firefox"_s}, {oldFirefox, newFirefox}},
        {{u".zen"_s, u"zen"_s, u"firefox"_s, u"mozilla/firefox"_s}, {newFirefox, oldFirefox}},
    };
    for (const Row &row : rows)
        EXPECT_EQ(firefoxRoots(environment(), only(row.existing)), row.expected)
            << row.existing.join(u' ').toStdString();
}

TEST(FirefoxRoots, ZenFollowsTheSameRuleWithItsOwnNames)
{
    const std::vector<Row> rows{
        {{}, {newZen, oldZen}},
        {{u".zen"_s}, {oldZen, newZen}},
        {{u"zen"_s}, {oldZen, newZen}},
        {{u".config/zen"_s}, {newZen, oldZen}},
        {{u".config/zen"_s, u".zen"_s}, {oldZen, newZen}},
        {{u".mozilla/firefox"_s, u"mozilla"_s}, {newZen, oldZen}},
    };
    for (const Row &row : rows)
        EXPECT_EQ(zenRoots(environment(), only(row.existing)), row.expected) << row.existing.join(u' ').toStdString();
}

TEST(FirefoxRoots, AVariableKeepsThemToTheOldFolder)
{
    Environment legacy = environment();
    legacy.legacyFirefoxHome = true;
    EXPECT_EQ(firefoxRoots(legacy, only({})), (QStringList{oldFirefox, newFirefox}));
    EXPECT_EQ(zenRoots(legacy, only({})), (QStringList{oldZen, newZen}));
}

TEST(FirefoxRoots, AnotherConfigurationFolderComesBeforeTheUsualOne)
{
    const Environment elsewhere = environment(u"/config"_s);
    const QString ownFirefox = u"/config/mozilla/firefox"_s;
    EXPECT_EQ(firefoxRoots(elsewhere, only({})), (QStringList{ownFirefox, newFirefox, oldFirefox}));
    EXPECT_EQ(firefoxRoots(elsewhere, only({u".mozilla/firefox"_s})),
              (QStringList{oldFirefox, ownFirefox, newFirefox}));
    EXPECT_EQ(zenRoots(elsewhere, only({})), (QStringList{u"/config/zen"_s, newZen, oldZen}));
    EXPECT_EQ(zenRoots(elsewhere, only({u"zen"_s})), (QStringList{oldZen, u"/config/zen"_s, newZen}));
}

TEST(FirefoxRoots, NoFolderComesTwice)
{
    EXPECT_EQ(firefoxRoots(environment(u"/home/user/.config/"_s), only({})), (QStringList{newFirefox, oldFirefox}));
    EXPECT_EQ(zenRoots(environment(u"/home/user/.config/"_s), only({})), (QStringList{newZen, oldZen}));
}

} // namespace
} // namespace vantrel
