#include "Platform/Linux/ExecLine.h"
#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QString home = u"/home/user"_s;
const QString link = u"https://example.com/?a=1&b=%20"_s;
const QString flatpakRun = u"/usr/bin/flatpak run --branch=stable --arch=x86_64 --command=browser "_s;
const QStringList flatpakWords = flatpakRun.split(u' ', Qt::SkipEmptyParts);

/// What Flatpak exports for an application, with the end of its line given.
QStringList expanded(const QString &id, const QString &end, const QStringList &arguments)
{
    const DesktopEntry entry{.path = u"/exports/"_s + id + u".desktop"_s,
                             .name = u"Browser"_s,
                             .exec = flatpakRun + end,
                             .icon = {},
                             .workingDirectory = {},
                             .flatpakID = id};
    const auto line = expandedCommandLine(entry, arguments, home);
    EXPECT_TRUE(line.has_value()) << line.error().message.toStdString();
    return line.value_or(QStringList());
}

TEST(FlatpakExecLine, LinksStandBetweenMarksAndSwitchesBeforeThem)
{
    const QString id = u"com.google.Chrome"_s;
    const QString end = u"--file-forwarding com.google.Chrome @@u %U @@"_s;
    const QStringList start = flatpakWords + QStringList{u"--file-forwarding"_s, id};
    const std::vector<std::pair<QStringList, QStringList>> rows{
        {{}, {}},
        {{u"--profile-directory=Profile 1"_s}, {u"--profile-directory=Profile 1"_s}},
        {{u"--profile-directory=Default"_s, link}, {u"--profile-directory=Default"_s, u"@@u"_s, link, u"@@"_s}},
        {{u"--incognito"_s, u"http://a/"_s, u"file:///tmp/b"_s, u"https://c/"_s},
         {u"--incognito"_s, u"@@u"_s, u"http://a/"_s, u"file:///tmp/b"_s, u"https://c/"_s, u"@@"_s}},
        {{link}, {u"@@u"_s, link, u"@@"_s}},
        {{u"--profile-directory=."_s, link}, {u"@@u"_s, link, u"@@"_s}},
        {{u"HTTPS://EXAMPLE.COM/"_s}, {u"@@u"_s, u"HTTPS://EXAMPLE.COM/"_s, u"@@"_s}},
    };
    for (const auto &[arguments, words] : rows)
        EXPECT_EQ(expanded(id, end, arguments), start + words) << arguments.join(u' ').toStdString();
}

TEST(FlatpakExecLine, WhatFollowsTheMarksStaysBehindThem)
{
    EXPECT_EQ(expanded(u"org.example.b"_s, u"org.example.b @@u %U @@ --last"_s, {u"--a"_s, link}),
              (flatpakWords + QStringList{u"org.example.b"_s, u"--a"_s, u"@@u"_s, link, u"@@"_s, u"--last"_s}));
}

TEST(FlatpakExecLine, WithoutMarksInTheEntryThereAreNone)
{
    EXPECT_EQ(expanded(u"org.example.b"_s, u"org.example.b %U"_s, {u"--a"_s, link}),
              (flatpakWords + QStringList{u"org.example.b"_s, u"--a"_s, link}));
    EXPECT_EQ(expanded(u"org.example.b"_s, u"org.example.b"_s, {u"--a"_s, link}),
              (flatpakWords + QStringList{u"org.example.b"_s, u"--a"_s, link}));
}

TEST(FlatpakExecLine, FirefoxIsToldTheProfileAsItsSandboxSeesIt)
{
    const QString id = u"org.mozilla.firefox"_s;
    const QString end = u"--file-forwarding org.mozilla.firefox @@u %u @@"_s;
    const QStringList start = flatpakWords + QStringList{u"--file-forwarding"_s, id};
    const QString below = u"/home/user/.var/app/org.mozilla.firefox/"_s;
    const std::vector<std::pair<QStringList, QStringList>> rows{
        {{u"--profile"_s, below + u".mozilla/firefox/my profile"_s},
         {u"--profile"_s, u"/home/user/.mozilla/firefox/my profile"_s}},
        {{u"--profile"_s, below + u".mozilla/firefox/p"_s, link},
         {u"--profile"_s, u"/home/user/.mozilla/firefox/p"_s, u"@@u"_s, link, u"@@"_s}},
        {{u"--profile"_s, below + u"config/mozilla/firefox/p"_s},
         {u"--profile"_s, below + u"config/mozilla/firefox/p"_s}},
        {{u"--profile"_s, u"/elsewhere/p"_s}, {u"--profile"_s, u"/elsewhere/p"_s}},
        // Only what follows the switch is a profile.
        {{u"--other"_s, below + u".mozilla/p"_s}, {u"--other"_s, below + u".mozilla/p"_s}},
        {{u"--profile"_s}, {u"--profile"_s}},
        {{u"--private-window"_s, link}, {u"--private-window"_s, u"@@u"_s, link, u"@@"_s}},
    };
    for (const auto &[arguments, words] : rows)
        EXPECT_EQ(expanded(id, end, arguments), start + words) << arguments.join(u' ').toStdString();
}

TEST(FlatpakExecLine, HiddenFoldersOfTheApplicationLieInTheHomeInside)
{
    const std::vector<std::pair<QString, QString>> rows{
        {u"/home/user/.var/app/ID/.mozilla/firefox/p"_s, u"/home/user/.mozilla/firefox/p"_s},
        {u"/home/user/.var/app/ID/.zen/a b"_s, u"/home/user/.zen/a b"_s},
        {u"/home/user/.var/app/ID/config/zen/p"_s, u"/home/user/.var/app/ID/config/zen/p"_s},
        {u"/home/user/.var/app/ID/cache/x"_s, u"/home/user/.var/app/ID/cache/x"_s},
        {u"/home/user/.var/app/ID"_s, u"/home/user/.var/app/ID"_s},
        {u"/home/user/.var/app/ID.other/.mozilla/p"_s, u"/home/user/.var/app/ID.other/.mozilla/p"_s},
        {u"/home/user/.var/app/OTHER/.mozilla/p"_s, u"/home/user/.var/app/OTHER/.mozilla/p"_s},
        {u"/home/user/.mozilla/firefox/p"_s, u"/home/user/.mozilla/firefox/p"_s},
        {u"/home/user2/.var/app/ID/.mozilla/p"_s, u"/home/user2/.var/app/ID/.mozilla/p"_s},
        {u"/data/home/user/.var/app/ID/.mozilla/p"_s, u"/data/home/user/.var/app/ID/.mozilla/p"_s},
        {QString(), QString()},
    };
    for (const auto &[outside, inside] : rows)
        EXPECT_EQ(pathInsideFlatpak(outside, u"ID"_s, home), inside) << outside.toStdString();
}

} // namespace
} // namespace vantrel
