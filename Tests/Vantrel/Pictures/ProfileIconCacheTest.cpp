#include "Vantrel/Pictures/ProfileIconCache.h"

#include "Tests/VantrelKit/Pictures.h"
#include "VantrelKit/PNGCoding.h"

#include <QSignalSpy>

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

TEST(ProfileIconCache, GivesTheSameFileWhileNothingChanges)
{
    ProfileIconCache cache;
    const QByteArray file = cache.png(work(), 32);
    EXPECT_EQ(PNGCoding::decoded(file).convertToFormat(QImage::Format_ARGB32_Premultiplied), work().image(32));
    EXPECT_EQ(cache.png(work(), 32).constData(), file.constData());
    EXPECT_NE(cache.png(home(), 32), file);
    EXPECT_EQ(QImage::fromData(cache.png(work(), 16), "PNG").size(), QSize(16, 16));
}

TEST(ProfileIconCache, HasWhatWasPreparedWithoutDrawing)
{
    ProfileIconCache cache;
    QSignalSpy prepared(&cache, &ProfileIconCache::prepared);
    cache.prepare({work(), home()}, {.image = 24, .png = 32});
    ASSERT_TRUE(prepared.wait());
    EXPECT_EQ(cache.image(work(), 24), work().image(24));
    EXPECT_EQ(cache.image(home(), 24), home().image(24));
    const QByteArray file = cache.png(home(), 32);
    EXPECT_EQ(PNGCoding::decoded(file).convertToFormat(QImage::Format_ARGB32_Premultiplied), home().image(32));
    // Prepared once more, all is as it was.
    const qint64 key = cache.image(work(), 24).cacheKey();
    cache.prepare({work(), home()}, {.image = 24, .png = 32});
    ASSERT_TRUE(prepared.wait());
    EXPECT_EQ(cache.image(work(), 24).cacheKey(), key);
    EXPECT_EQ(cache.png(home(), 32).constData(), file.constData());
}

TEST(ProfileIconCache, KeepsWhatSomebodyNeededBeforeItWasPrepared)
{
    ProfileIconCache cache;
    QSignalSpy prepared(&cache, &ProfileIconCache::prepared);
    cache.prepare({work(), home()}, {.image = 24, .png = 24});
    const qint64 key = cache.image(home(), 24).cacheKey();
    const QByteArray file = cache.png(home(), 24);
    ASSERT_TRUE(prepared.wait());
    EXPECT_EQ(cache.image(home(), 24).cacheKey(), key);
    EXPECT_EQ(cache.png(home(), 24).constData(), file.constData());
}

TEST(ProfileIconCache, ForgetsWhatWasPreparedForWhatAnIconShowedBefore)
{
    ProfileIconCache cache;
    QSignalSpy prepared(&cache, &ProfileIconCache::prepared);
    cache.prepare({home()}, {.image = 24});
    ProfileIcon renamed = home();
    renamed.displayName = u"Attic"_s;
    const qint64 key = cache.image(renamed, 24).cacheKey();
    ASSERT_TRUE(prepared.wait());
    EXPECT_EQ(cache.image(renamed, 24).cacheKey(), key);
    EXPECT_EQ(cache.image(renamed, 24), renamed.image(24));
}

TEST(ProfileIconCache, OfManyPreparationsTheLastIsTold)
{
    ProfileIconCache cache;
    QSignalSpy prepared(&cache, &ProfileIconCache::prepared);
    QList<ProfileIcon> icons(50, home());
    for (qsizetype index = 0; index < icons.size(); ++index) {
        icons[index].id = QString::number(index);
        cache.prepare(icons.first(index + 1), {.image = 16});
    }
    ASSERT_TRUE(prepared.wait());
    EXPECT_EQ(prepared.size(), 1);
    for (const ProfileIcon &icon : icons)
        EXPECT_EQ(cache.image(icon, 16), icon.image(16));
}

TEST(ProfileIconCache, MayEndWhileItPrepares)
{
    ProfileIconCache cache;
    cache.prepare(QList<ProfileIcon>(100, work()), {.image = 512, .png = 512});
}

TEST(ProfileIconCache, GivesNoImageForLessThanOnePixel)
{
    ProfileIconCache cache;
    EXPECT_TRUE(cache.image(work(), 0).isNull());
    EXPECT_TRUE(cache.png(work(), 0).isEmpty());
}

} // namespace
} // namespace vantrel
