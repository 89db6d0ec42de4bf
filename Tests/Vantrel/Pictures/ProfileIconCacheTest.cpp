#include "Vantrel/Pictures/ProfileIconCache.h"

#include "Tests/VantrelKit/Pictures.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Made anew each time, so that nothing is shared but the content.
ProfileIcon work()
{
    return {test::picture({32, 32}, "PNG"), false, u"com.google.Chrome/chromium:Default"_s, u"Work"_s};
}

ProfileIcon home()
{
    return {std::nullopt, false, u"com.google.Chrome/chromium:Profile 1"_s, u"Home"_s};
}

TEST(ProfileIconCache, GivesWhatTheIconDraws)
{
    ProfileIconCache cache;
    for (const ProfileIcon &icon : {work(), home(), ProfileIcon{}}) {
        for (const int pixels : {16, 32})
            EXPECT_EQ(cache.image(icon, pixels), icon.image(pixels));
    }
}

TEST(ProfileIconCache, GivesTheSameImageWhileNothingChanges)
{
    ProfileIconCache cache;
    const qint64 workKey = cache.image(work(), 16).cacheKey();
    const qint64 homeKey = cache.image(home(), 16).cacheKey();
    EXPECT_NE(workKey, homeKey);
    EXPECT_EQ(cache.image(work(), 16).cacheKey(), workKey);
    EXPECT_EQ(cache.image(home(), 16).cacheKey(), homeKey);
}

TEST(ProfileIconCache, KeepsEachSizeByItself)
{
    ProfileIconCache cache;
    const qint64 small = cache.image(work(), 16).cacheKey();
    const qint64 large = cache.image(work(), 32).cacheKey();
    EXPECT_NE(small, large);
    EXPECT_EQ(cache.image(work(), 32).size(), QSize(32, 32));
    EXPECT_EQ(cache.image(work(), 16).cacheKey(), small);
    EXPECT_EQ(cache.image(work(), 32).cacheKey(), large);
}

TEST(ProfileIconCache, DrawsAnewWhenWhatTheIconShowsChanges)
{
    std::vector<ProfileIcon> changed(5, work());
    changed[0].displayName = u"Play"_s;
    changed[1].isPrivate = true;
    changed[2].avatar = test::picture({16, 16}, "PNG");
    changed[3].avatar = std::nullopt;
    changed[4].id = home().id;
    for (size_t row = 0; row < changed.size(); ++row) {
        ProfileIconCache cache;
        const qint64 before = cache.image(work(), 16).cacheKey();
        const QImage after = cache.image(changed[row], 16);
        EXPECT_NE(after.cacheKey(), before) << row;
        EXPECT_EQ(after, changed[row].image(16)) << row;
        EXPECT_EQ(cache.image(changed[row], 16).cacheKey(), after.cacheKey()) << row;
    }
}

TEST(ProfileIconCache, DrawsEverySizeAnewAfterAChange)
{
    ProfileIconCache cache;
    static_cast<void>(cache.image(home(), 16));
    const qint64 large = cache.image(home(), 32).cacheKey();
    ProfileIcon renamed = home();
    renamed.displayName = u"Attic"_s;
    static_cast<void>(cache.image(renamed, 16));
    EXPECT_NE(cache.image(renamed, 32).cacheKey(), large);
    EXPECT_EQ(cache.image(renamed, 32), renamed.image(32));
}

TEST(ProfileIconCache, ForgetsTheProfilesThatAreNotKept)
{
    ProfileIconCache cache;
    const qint64 workKey = cache.image(work(), 16).cacheKey();
    const qint64 homeKey = cache.image(home(), 16).cacheKey();
    cache.keepOnly({work().id, u"another"_s});
    EXPECT_EQ(cache.image(work(), 16).cacheKey(), workKey);
    EXPECT_NE(cache.image(home(), 16).cacheKey(), homeKey);
    cache.keepOnly({});
    EXPECT_NE(cache.image(work(), 16).cacheKey(), workKey);
}

TEST(ProfileIconCache, GivesNoImageForLessThanOnePixel)
{
    ProfileIconCache cache;
    EXPECT_TRUE(cache.image(work(), 0).isNull());
}

} // namespace
} // namespace vantrel
