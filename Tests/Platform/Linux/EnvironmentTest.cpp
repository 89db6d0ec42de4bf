#include "Platform/Linux/Environment.h"

#include "Tests/Platform/Linux/ScopedVariable.h"
#include "Tests/VantrelKit/Samples.h"

#include <QMap>

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Variables = QMap<QString, QString>;

const QStringList usualDataDirs{u"/usr/local/share"_s, u"/usr/share"_s, u"/var/lib/flatpak/exports/share"_s,
                                u"/var/lib/snapd/desktop"_s};

/// With the home "/home/user", unless the variables say otherwise.
Environment environment(const Variables &variables)
{
    QProcessEnvironment given;
    given.insert(u"HOME"_s, u"/home/user"_s);
    for (auto variable = variables.constBegin(); variable != variables.constEnd(); ++variable)
        given.insert(variable.key(), variable.value());
    return Environment::from(given);
}

TEST(Environment, WithoutVariablesTheUsualFoldersCount)
{
    const Environment usual = environment({});
    EXPECT_EQ(usual.home, u"/home/user"_s);
    EXPECT_EQ(usual.configHome, u"/home/user/.config"_s);
    EXPECT_EQ(usual.dataHome, u"/home/user/.local/share"_s);
    EXPECT_EQ(usual.dataDirs, usualDataDirs);
    EXPECT_EQ(usual.chromeConfigHome, std::nullopt);
    EXPECT_EQ(usual.heliumConfigHome, std::nullopt);
    EXPECT_EQ(usual.chromeUserDataDir, std::nullopt);
    EXPECT_FALSE(usual.legacyFirefoxHome);
}

TEST(Environment, EachVariableNamesItsFolder)
{
    const Environment named = environment({{u"XDG_CONFIG_HOME"_s, u"/config"_s},
                                           {u"XDG_DATA_HOME"_s, u"/data"_s},
                                           {u"XDG_DATA_DIRS"_s, u"/one:/two"_s},
                                           {u"CHROME_CONFIG_HOME"_s, u"/chrome"_s},
                                           {u"HELIUM_CONFIG_HOME"_s, u"/helium"_s},
                                           {u"CHROME_USER_DATA_DIR"_s, u"/user data"_s}});
    EXPECT_EQ(named.home, u"/home/user"_s);
    EXPECT_EQ(named.configHome, u"/config"_s);
    EXPECT_EQ(named.dataHome, u"/data"_s);
    EXPECT_EQ(named.dataDirs, (QStringList{u"/one"_s, u"/two"_s}));
    EXPECT_EQ(named.chromeConfigHome, u"/chrome"_s);
    EXPECT_EQ(named.heliumConfigHome, u"/helium"_s);
    EXPECT_EQ(named.chromeUserDataDir, u"/user data"_s);
}

TEST(Environment, ARelativeOrEmptyPathCountsAsNotSet)
{
    for (const QString &value : {QString(), u"relative"_s, u"./relative"_s, u"~/config"_s, u" /blank"_s}) {
        const Environment usual = environment({{u"XDG_CONFIG_HOME"_s, value},
                                               {u"XDG_DATA_HOME"_s, value},
                                               {u"XDG_DATA_DIRS"_s, value},
                                               {u"CHROME_CONFIG_HOME"_s, value},
                                               {u"HELIUM_CONFIG_HOME"_s, value},
                                               {u"CHROME_USER_DATA_DIR"_s, value}});
        EXPECT_EQ(usual.configHome, u"/home/user/.config"_s) << value.toStdString();
        EXPECT_EQ(usual.dataHome, u"/home/user/.local/share"_s) << value.toStdString();
        EXPECT_EQ(usual.dataDirs, usualDataDirs) << value.toStdString();
        EXPECT_EQ(usual.chromeConfigHome, std::nullopt) << value.toStdString();
        EXPECT_EQ(usual.heliumConfigHome, std::nullopt) << value.toStdString();
        EXPECT_EQ(usual.chromeUserDataDir, std::nullopt) << value.toStdString();
    }
}

TEST(Environment, DataDirsAreKeptInTheirOrderOnceEach)
{
    const std::vector<std::pair<QString, QStringList>> rows{
        {u"/b:/a:/b"_s, {u"/b"_s, u"/a"_s}}, {u":/a::/b:"_s, {u"/a"_s, u"/b"_s}},
        {u"relative:/a:~/b"_s, {u"/a"_s}},   {u"/with blank:/caf\u00e9"_s, {u"/with blank"_s, u"/caf\u00e9"_s}},
        {u":::"_s, usualDataDirs},
    };
    for (const auto &[value, dirs] : rows)
        EXPECT_EQ(environment({{u"XDG_DATA_DIRS"_s, value}}).dataDirs, dirs) << value.toStdString();
}

TEST(Environment, FirefoxKeepsToItsOldFolderWhenTheVariableBeginsWithOne)
{
    const std::vector<std::pair<QString, bool>> rows{{u"1"_s, true},   {u"1 and more"_s, true}, {u"10"_s, true},
                                                     {u"0"_s, false},  {u"01"_s, false},        {u"true"_s, false},
                                                     {u" 1"_s, false}, {QString(), false}};
    for (const auto &[value, isLegacy] : rows)
        EXPECT_EQ(environment({{u"MOZ_LEGACY_HOME"_s, value}}).legacyFirefoxHome, isLegacy) << value.toStdString();
}

TEST(Environment, WithoutAUsableHomeTheProcesssOwnCounts)
{
    const test::ScopedVariable home("HOME", "/home/of/this/process");
    for (const QString &value : {QString(), u"relative"_s}) {
        const Environment own = environment({{u"HOME"_s, value}});
        EXPECT_EQ(own.home, u"/home/of/this/process"_s);
        EXPECT_EQ(own.configHome, u"/home/of/this/process/.config"_s);
    }
    EXPECT_EQ(Environment::from({}).dataHome, u"/home/of/this/process/.local/share"_s);
}

TEST(Environment, FoldersBelowAHomeThatEndsWithASlashHaveOneSlash)
{
    const Environment slashed = environment({{u"HOME"_s, u"/home/user/"_s}});
    EXPECT_EQ(slashed.configHome, u"/home/user/.config"_s);
    EXPECT_EQ(slashed.dataHome, u"/home/user/.local/share"_s);
}

} // namespace
} // namespace vantrel
