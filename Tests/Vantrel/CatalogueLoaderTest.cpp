#include "Vantrel/CatalogueLoader.h"

#include "Tests/Vantrel/PlantedBrowsers.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class CatalogueLoader : public testing::Test {
protected:
    CatalogueLoader()
    {
        planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"Work"_s}, {u"Profile 1"_s, u"Home"_s}});
        planted_.plantFirefox(test::firefox, u"Firefox"_s, {{u"/p"_s, u"Fox"_s}});
    }

    [[nodiscard]] LoadedCatalogue load(const QStringList &bundleIDs = KnownBrowsers::all()) const
    {
        return loadCatalogue(planted_.workspace, planted_.data, ProfileReader(), planted_.folder.path(savedState_),
                             bundleIDs);
    }

    test::PlantedBrowsers planted_;
    QString savedState_ = u"profiles.json"_s;
};

const QString savedOrder = uR"({"searchedSafari": [], "hidden": ["org.mozilla.firefox/private"],
    "customNames": {"com.google.Chrome/chromium:Default": "Office"},
    "profiles": [
        {"browserBundleID": "com.google.Chrome", "name": "", "target": {"chromiumPrivate": {}}},
        {"browserBundleID": "com.brave.Browser", "name": "Kept", "target": {"chromium": {"folder": "1"}}},
        {"browserBundleID": "com.google.Chrome", "name": "Old", "target": {"chromium": {"folder": "Default"}}}
    ]})"_s;

TEST_F(CatalogueLoader, WithoutSavedStateBrowsersComeByNameWithTheirProfilesAsFound)
{
    const LoadedCatalogue loaded = load();
    EXPECT_EQ(loaded.savedStateError, std::nullopt);
    EXPECT_EQ(test::notation(loaded.catalogue.profiles),
              u"c:Default=Work c:Profile 1=Home c:private f:/p=Fox f:private"_s);
    ASSERT_EQ(loaded.catalogue.browsers.size(), 2);
    EXPECT_EQ(loaded.catalogue.browsers.first().name, u"Chrome"_s);
    EXPECT_TRUE(loaded.catalogue.hidden.isEmpty());
    EXPECT_TRUE(loaded.catalogue.customNames.isEmpty());
    EXPECT_EQ(loaded.results.size(), 2);
}

TEST_F(CatalogueLoader, WhatIsFoundIsMergedIntoTheSavedOrder)
{
    planted_.folder.write(savedState_, savedOrder.toUtf8());
    const LoadedCatalogue loaded = load();
    EXPECT_EQ(loaded.savedStateError, std::nullopt);
    EXPECT_EQ(test::notation(loaded.catalogue.profiles),
              u"c:Profile 1=Home c:private c:Default=Work b:1=Kept f:/p=Fox f:private"_s);
    EXPECT_EQ(loaded.catalogue.hidden, QSet<QString>{u"org.mozilla.firefox/private"_s});
    EXPECT_EQ(loaded.catalogue.customNames.value(u"com.google.Chrome/chromium:Default"_s), u"Office"_s);
}

TEST_F(CatalogueLoader, OnlyTheBrowsersAskedForAreSearched)
{
    planted_.folder.write(savedState_, savedOrder.toUtf8());
    const LoadedCatalogue loaded = load({test::firefox, test::brave});
    ASSERT_EQ(loaded.catalogue.browsers.size(), 1);
    EXPECT_EQ(loaded.catalogue.browsers.first().bundleID, test::firefox);
    EXPECT_EQ(loaded.results.keys(), QStringList(test::firefox));
    EXPECT_EQ(test::notation(loaded.catalogue.profiles), u"c:private b:1=Kept c:Default=Old f:/p=Fox f:private"_s);
}

TEST_F(CatalogueLoader, ADamagedSavedStateIsAnErrorAndLeftOut)
{
    planted_.folder.write(savedState_, R"({"profiles": [], "hidden": [], "customNames": {}})");
    const LoadedCatalogue loaded = load();
    ASSERT_TRUE(loaded.savedStateError.has_value());
    EXPECT_EQ(loaded.savedStateError->kind, DecodingError::Kind::keyNotFound);
    EXPECT_EQ(loaded.catalogue.profiles.size(), 5);
}

TEST_F(CatalogueLoader, ABrowsersFailureIsAmongTheResults)
{
    planted_.plantUnreadable(test::brave, u"Brave"_s);
    planted_.folder.write(savedState_, savedOrder.toUtf8());
    const LoadedCatalogue loaded = load();
    EXPECT_FALSE(loaded.results.value(test::brave).has_value());
    EXPECT_TRUE(loaded.results.value(test::chrome).has_value());
    EXPECT_EQ(test::notation(loaded.catalogue.profiles),
              u"c:Profile 1=Home c:private c:Default=Work b:1=Kept b:private f:/p=Fox f:private"_s);
}

TEST_F(CatalogueLoader, NothingIsWritten)
{
    const QDir folder(planted_.folder.path());
    const QStringList before = folder.entryList(QDir::AllEntries | QDir::Hidden);
    savedState_ = u"new folder/profiles.json"_s;
    EXPECT_EQ(load().catalogue.profiles.size(), 5);
    EXPECT_EQ(folder.entryList(QDir::AllEntries | QDir::Hidden), before);
}

} // namespace
} // namespace vantrel
