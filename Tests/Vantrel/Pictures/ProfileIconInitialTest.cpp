#include "Tests/Vantrel/Pictures/Pixels.h"
#include "Vantrel/Pictures/ProfileColor.h"
#include "Vantrel/Pictures/ProfileIcon.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>

#include <gtest/gtest.h>

#include <array>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

ProfileIcon named(const QString &displayName, const QString &id = u"com.google.Chrome/chromium:Default"_s)
{
    return {std::nullopt, false, id, displayName};
}

QRectF letterBounds(const ProfileIcon &icon, int pixels)
{
    return test::whiteBounds(icon.image(pixels), profileColor(icon.id));
}

/// An id with each index in turn.
std::array<QString, 8> idsOfAllColours()
{
    std::array<QString, 8> ids;
    for (int number = 0; number < 200; ++number) {
        const QString id = u"org.mozilla.firefox/firefox:%1"_s.arg(number);
        ids.at(fnv1a(id.toUtf8()) % 8) = id;
    }
    return ids;
}

TEST(ProfileIconInitial, StandsOnTheProfilesColourUpToTheEdge)
{
    for (const QString &id : idsOfAllColours()) {
        ASSERT_FALSE(id.isEmpty());
        for (const int pixels : {16, 24, 32, 64}) {
            const QImage image = named(u"Work"_s, id).image(pixels);
            for (const QPoint point : {QPoint(pixels / 2, 1), QPoint(1, pixels / 2), QPoint(pixels - 2, pixels / 2),
                                       QPoint(pixels / 2, pixels - 2)})
                EXPECT_EQ(image.pixelColor(point), profileColor(id)) << id.toStdString() << ' ' << pixels;
        }
    }
}

TEST(ProfileIconInitial, ChangesWithTheNameAndTheColourDoesNot)
{
    const QImage work = named(u"Work"_s).image(32);
    const QImage home = named(u"Home"_s).image(32);
    EXPECT_NE(work, home);
    EXPECT_EQ(work.pixelColor(16, 2), home.pixelColor(16, 2));
    EXPECT_EQ(work, named(u"Weekend"_s).image(32));
    EXPECT_NE(work, named(u"Work"_s, u"com.google.Chrome/chromium:Profile 2"_s).image(32));
}

TEST(ProfileIconInitial, IsUpperCase)
{
    EXPECT_EQ(named(u"work"_s).image(32), named(u"Work"_s).image(32));
    EXPECT_EQ(named(u"\u00dfeta"_s).image(32).pixelColor(16, 2), named(u"S"_s).image(32).pixelColor(16, 2));
    EXPECT_GT(letterBounds(named(u"\u00dfeta"_s), 64).width(), 1.5 * letterBounds(named(u"S"_s), 64).width());
}

TEST(ProfileIconInitial, IsAQuestionMarkForABlankName)
{
    const QImage question = named(u"?"_s).image(32);
    for (const QString &name : {QString(), u"  "_s, u"\n\t"_s, u"\u3000"_s})
        EXPECT_EQ(named(name).image(32), question);
    EXPECT_FALSE(letterBounds(named({}), 32).isEmpty());
}

TEST(ProfileIconInitial, StandsInTheMiddle)
{
    for (const QString &letter : {u"W"_s, u"H"_s, u"O"_s, u"I"_s, u"Q"_s, u"J"_s, u"7"_s, u"?"_s, u"\u00c5"_s}) {
        for (const int pixels : {16, 17, 22, 24, 32, 64, 1024}) {
            const QRectF bounds = letterBounds(named(letter), pixels);
            ASSERT_FALSE(bounds.isEmpty()) << letter.toStdString() << ' ' << pixels;
            EXPECT_NEAR(bounds.center().x(), pixels / 2.0, 1) << letter.toStdString() << ' ' << pixels;
            EXPECT_NEAR(bounds.center().y(), pixels / 2.0, 1) << letter.toStdString() << ' ' << pixels;
        }
    }
}

TEST(ProfileIconInitial, IsHalfAsTallAsTheIconInTheSemiboldSystemFont)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setWeight(QFont::DemiBold);
    font.setPixelSize(512);
    for (const QString &letter : {u"W"_s, u"H"_s, u"g"_s.toUpper()}) {
        const QRectF expected = QFontMetricsF(font).tightBoundingRect(letter);
        const QRectF bounds = letterBounds(named(letter), 1024);
        EXPECT_NEAR(bounds.width(), expected.width(), 5) << letter.toStdString();
        EXPECT_NEAR(bounds.height(), expected.height(), 5) << letter.toStdString();
    }
}

TEST(ProfileIconInitial, GrowsWithTheIcon)
{
    const double height = letterBounds(named(u"H"_s), 1024).height() / 1024;
    // Fonts move the edges of small letters to those of pixels, each by less than one.
    for (const int pixels : {16, 17, 19, 24, 32, 64, 128})
        EXPECT_NEAR(letterBounds(named(u"H"_s), pixels).height(), height * pixels, 1.5) << pixels;
}

TEST(ProfileIconInitial, IsWhiteWhereItIsWide)
{
    const QRectF stem = letterBounds(named(u"I"_s), 64);
    EXPECT_EQ(named(u"I"_s).image(64).pixelColor(stem.center().toPoint()), QColor(Qt::white));
}

TEST(ProfileIconInitial, IsDrawnInEveryScript)
{
    const QList<QString> names{u"\u05e2\u05d1\u05d5\u05d3\u05d4"_s,
                               u"\u0639\u0645\u0644"_s,
                               u"\u042f"_s,
                               u"\u5de5\u4f5c"_s,
                               u"\ud55c\uad6d\uc5b4"_s,
                               u"\u0e07\u0e32\u0e19"_s,
                               u"\U0001F600"_s,
                               u"\U0001F44B\U0001F3FD"_s,
                               u"e\u0301"_s};
    for (const QString &name : names) {
        for (const int pixels : {16, 32, 64}) {
            const QImage image = named(name).image(pixels);
            const QColor background = profileColor(named(name).id);
            int other = 0;
            for (int y = pixels / 4; y < pixels * 3 / 4; ++y) {
                for (int x = pixels / 4; x < pixels * 3 / 4; ++x)
                    other += image.pixelColor(x, y) != background ? 1 : 0;
            }
            // A box stands for what no font has; coloured emoji have little white.
            EXPECT_GT(other, pixels / 4) << name.toStdString() << ' ' << pixels
                                         << ". Is a font like the package fonts-dejavu-core's installed?";
        }
    }
}

TEST(ProfileIconInitial, WithoutAGlyphLeavesTheColour)
{
    // Not assigned, for private use, half a pair, a direction mark.
    for (const QString &name : {u"\u0378"_s, u"\U0010FFFD"_s, QString(QChar(0xdc00)), u"\u200fx"_s}) {
        const QImage image = named(name).image(32);
        EXPECT_EQ(image.pixelColor(16, 2), profileColor(named(name).id));
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    }
}

TEST(ProfileIconInitial, ThatIsTooWideIsCutAtTheRectangle)
{
    // Joined to one character, which no font has as a single glyph.
    const QString row = u"\U0001F600\u200D\U0001F601\u200D\U0001F602\u200D\U0001F603\u200D\U0001F604"_s;
    QImage canvas(200, 40, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    named(row).draw(painter, QRectF(80, 4, 32, 32));
    painter.end();
    const QRectF bounds = test::opaqueBounds(canvas);
    EXPECT_TRUE(QRectF(80, 4, 32, 32).contains(bounds)) << bounds.left() << " to " << bounds.right();
}

} // namespace
} // namespace vantrel
