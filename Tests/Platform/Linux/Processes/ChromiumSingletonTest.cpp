#include "Platform/Linux/Processes/ChromiumSingleton.h"

#include "Tests/VantrelKit/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

TEST(ChromiumSingletonTest, ALockIsAHostAndANumber)
{
    const QList<std::pair<QString, SingletonLock>> locks{
        {u"host-1"_s, {u"host"_s, 1}},
        {u"my-old-host-4194303"_s, {u"my-old-host"_s, 4194303}},
        {u"host--7"_s, {u"host-"_s, 7}},
        {u"-7"_s, {QString(), 7}},
        {u"h\u00f6st.example.org-0042"_s, {u"h\u00f6st.example.org"_s, 42}},
    };
    for (const auto &[destination, lock] : locks)
        EXPECT_EQ(parseSingletonLock(destination), lock) << destination.toStdString();
}

TEST(ChromiumSingletonTest, WhatIsNoLockIsNone)
{
    for (const QString &destination : {QString(), u"host"_s, u"host-"_s, u"host-0"_s, u"host-+1"_s, u"host- 1"_s,
                                       u"host-1 "_s, u"host-1a"_s, u"host-99999999999"_s, u"1"_s, u"host-\u0661"_s})
        EXPECT_EQ(parseSingletonLock(destination), std::nullopt) << destination.toStdString();
}

TEST(ChromiumSingletonTest, AFlatpakIsToldByItsDataFolder)
{
    EXPECT_EQ(flatpakApplication(u"/home/u/.var/app/com.google.Chrome/config/google-chrome"_s), u"com.google.Chrome"_s);
    EXPECT_EQ(flatpakApplication(u"/home/u/.var/app/com.google.Chrome"_s), u"com.google.Chrome"_s);
    for (const QString &folder : {u"/home/u/.config/google-chrome"_s, u"/home/u/snap/chromium/common/chromium"_s,
                                  u"/home/u/.var/apps/x/config"_s, QString()})
        EXPECT_EQ(flatpakApplication(folder), QString()) << folder.toStdString();
}

TEST(ChromiumSingletonTest, ASocketIsWhereTheLinkLeadsFromWithinTheSandbox)
{
    const QString native = u"/home/u/.config/chromium"_s;
    const QString flatpak = u"/home/u/.var/app/org.chromium.Chromium/config/chromium"_s;
    struct Case {
        QString destination;
        QString folder;
        QStringList places;
    };
    const QList<Case> cases{
        {u"/tmp/x/SingletonSocket"_s, native, {u"/tmp/x/SingletonSocket"_s}},
        {u"/tmp/x/S"_s, flatpak, {u"/run/.flatpak/org.chromium.Chromium/tmp/x/S"_s, u"/tmp/x/S"_s}},
        {u"/var/tmp/x/S"_s, flatpak, {u"/home/u/.var/app/org.chromium.Chromium/cache/tmp/x/S"_s, u"/var/tmp/x/S"_s}},
        {u"/home/u/x/S"_s, flatpak, {u"/home/u/x/S"_s}},
        {QString(), native, {}},
        {QString(), flatpak, {}},
        {u"relative/S"_s, native, {}},
    };
    for (const auto &[destination, folder, places] : cases)
        EXPECT_EQ(singletonSocketPlaces(destination, folder, u"/run"_s), places) << destination.toStdString();
}

} // namespace
} // namespace vantrel
