#include "VantrelKit/AvatarThumbnail.h"

#include "Tests/VantrelKit/Pictures.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"

#include <QColorSpace>
#include <QGuiApplication>
#include <QImage>

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

std::optional<QByteArray> thumbnail(const QByteArray &file, const QString &name = u"Account Avatar"_s)
{
    const test::TemporaryFolder folder;
    return avatarThumbnailPNG(folder.write(name, file));
}

/// The thumbnail as a picture; a null one when there is none.
QImage thumbnailImage(const QByteArray &file)
{
    return QImage::fromData(thumbnail(file).value_or(QByteArray()), "PNG");
}

QByteArray svg(const QByteArray &content)
{
    return R"(<svg xmlns="http://www.w3.org/2000/svg" width="300" height="150" viewBox="0 0 300 150">)" + content +
           "</svg>";
}

TEST(AvatarThumbnail, APictureOf512By256ComesBackAs128By64)
{
    const auto png = thumbnail(test::picture({512, 256}, "PNG"));
    EXPECT_EQ(test::sizeOf(png), QSize(128, 64));
    EXPECT_TRUE(png && png->startsWith("\x89PNG\r\n\x1a\n"));
}

TEST(AvatarThumbnail, TheLongerSideIsAtMost128AndTheShapeStays)
{
    const std::vector<std::pair<QSize, QSize>> rows{
        {{256, 512}, {64, 128}},  {{256, 256}, {128, 128}}, {{129, 129}, {128, 128}}, {{128, 128}, {128, 128}},
        {{128, 20}, {128, 20}},   {{20, 128}, {20, 128}},   {{64, 64}, {64, 64}},     {{1, 1}, {1, 1}},
        {{127, 126}, {127, 126}}, {{1000, 500}, {128, 64}}, {{500, 1000}, {64, 128}}, {{1024, 1}, {128, 1}},
        {{1000, 1}, {128, 1}},    {{1, 1000}, {1, 128}},    {{20000, 2}, {128, 1}},   {{2000, 1500}, {128, 96}},
    };
    for (const auto &[before, after] : rows) {
        EXPECT_EQ(test::sizeOf(thumbnail(test::picture(before, "PNG"))), after)
            << before.width() << " by " << before.height();
    }
}

TEST(AvatarThumbnail, ThePictureStaysTheSame)
{
    EXPECT_EQ(test::corners(thumbnailImage(test::picture({40, 20}, "PNG"))), "rgbw");
    EXPECT_EQ(test::corners(thumbnailImage(test::picture({512, 256}, "PNG"))), "rgbw");
    QImage small = thumbnailImage(test::picture({40, 20}, "PNG"));
    small.setColorSpace({});
    EXPECT_EQ(small.convertToFormat(QImage::Format_RGB32), test::fourFields({40, 20}));
}

TEST(AvatarThumbnail, AReducedPictureIsSmooth)
{
    QImage stripes(256, 256, QImage::Format_RGB32);
    for (int row = 0; row < 256; ++row) {
        for (int column = 0; column < 256; ++column)
            stripes.setPixelColor(column, row, column % 2 == 0 ? Qt::black : Qt::white);
    }
    const test::TemporaryFolder folder;
    ASSERT_TRUE(stripes.save(folder.path(u"stripes"_s), "PNG"));
    const QImage reduced =
        QImage::fromData(avatarThumbnailPNG(folder.path(u"stripes"_s)).value_or(QByteArray()), "PNG");
    ASSERT_EQ(reduced.size(), QSize(128, 128));
    EXPECT_NEAR(reduced.pixelColor(64, 64).red(), 128, 40);
}

TEST(AvatarThumbnail, TransparencyStays)
{
    QImage half(200, 200, QImage::Format_ARGB32);
    half.fill(QColor(255, 0, 0, 128));
    const test::TemporaryFolder folder;
    ASSERT_TRUE(half.save(folder.path(u"half"_s), "PNG"));
    const QImage reduced = QImage::fromData(avatarThumbnailPNG(folder.path(u"half"_s)).value_or(QByteArray()), "PNG");
    ASSERT_TRUE(reduced.hasAlphaChannel());
    EXPECT_NEAR(reduced.pixelColor(64, 64).alpha(), 128, 2);
    EXPECT_NEAR(reduced.pixelColor(64, 64).red(), 255, 2);
}

TEST(AvatarThumbnail, APictureIsTurnedAsItsOrientationSays)
{
    const QByteArray jpeg = test::picture({64, 32}, "JPG");
    const std::vector<std::pair<QSize, std::string>> rows{
        {{64, 32}, "rgbw"}, {{64, 32}, "grwb"}, {{64, 32}, "wbgr"}, {{64, 32}, "bwrg"},
        {{32, 64}, "rbgw"}, {{32, 64}, "brwg"}, {{32, 64}, "wgbr"}, {{32, 64}, "gwrb"},
    };
    for (size_t row = 0; row < rows.size(); ++row) {
        const auto orientation = static_cast<quint8>(row + 1);
        const QImage image = thumbnailImage(test::withOrientation(jpeg, orientation));
        EXPECT_EQ(image.size(), rows[row].first) << "orientation " << row + 1;
        EXPECT_EQ(test::corners(image), rows[row].second) << "orientation " << row + 1;
    }
}

TEST(AvatarThumbnail, APictureIsTurnedBeforeItIsReduced)
{
    const QByteArray jpeg = test::withOrientation(test::picture({512, 256}, "JPG"), 6);
    EXPECT_EQ(thumbnailImage(jpeg).size(), QSize(64, 128));
    EXPECT_EQ(test::corners(thumbnailImage(jpeg)), "brwg");
}

TEST(AvatarThumbnail, EveryFormatThatQtWritesIsRead)
{
    for (const char *format : {"PNG", "JPG", "BMP", "PPM", "ICO"})
        EXPECT_EQ(test::corners(thumbnailImage(test::picture({48, 32}, format))), "rgbw") << format;
}

TEST(AvatarThumbnail, OfAnAnimationTheFirstPictureIsTaken)
{
    const QImage image = thumbnailImage(test::animatedGif());
    ASSERT_EQ(image.size(), QSize(1, 1));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::red));
}

TEST(AvatarThumbnail, ADrawingIsRead)
{
    const QImage image = thumbnailImage(svg(R"(<rect width="300" height="150" fill="#00ff00"/>)"));
    ASSERT_EQ(image.size(), QSize(128, 64)) << "Is the package libqt6svg6 installed?";
    EXPECT_EQ(test::corners(image), "gggg");
}

TEST(AvatarThumbnail, ADrawingWithTextIsReadInAThreadOfAProgramThatShowsSomething)
{
    const test::TemporaryFolder folder;
    const QString path = folder.write(u"drawing"_s, svg(R"(<text x="10" y="50">A</text>)"));
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int argumentCount = 1;
    std::string name = "vantrel";
    std::array<char *, 2> arguments{name.data(), nullptr};
    const QGuiApplication application(argumentCount, arguments.data());
    std::optional<QByteArray> png;
    std::thread([&path, &png] { png = avatarThumbnailPNG(path); }).join();
    EXPECT_EQ(test::sizeOf(png), QSize(128, 64));
}

TEST(AvatarThumbnail, TheContentDecidesAndNotTheExtension)
{
    for (const QString &name :
         {u"26"_s, u"picture.jpg"_s, u"picture.svg"_s, u"picture.txt"_s, u"a b.png.gif"_s, u"\u00e9 #%"_s})
        EXPECT_EQ(test::sizeOf(thumbnail(test::picture({20, 10}, "PNG"), name)), QSize(20, 10)) << name.toStdString();
    EXPECT_EQ(test::sizeOf(thumbnail(test::picture({20, 10}, "JPG"), u"picture.png"_s)), QSize(20, 10));
}

TEST(AvatarThumbnail, ALinkToAPictureIsRead)
{
    const test::TemporaryFolder folder;
    const QString link = folder.link(u"link"_s, folder.write(u"picture"_s, test::picture({20, 10}, "PNG")));
    EXPECT_EQ(test::sizeOf(avatarThumbnailPNG(link)), QSize(20, 10));
}

TEST(AvatarThumbnail, WhatIsNoPictureGivesNone)
{
    const QByteArray png = test::picture({20, 10}, "PNG");
    for (const QByteArray &content :
         QByteArrayList{QByteArray(), QByteArray("text"), QByteArray(100000, '\0'), png.first(8), png.first(40),
                        "x" + png, QByteArray("<svg"), QByteArray("GIF89a"), QByteArray("\xff\xd8\xff\xe0"),
                        QByteArray("%PDF-1.4"), QByteArray("BM")})
        EXPECT_EQ(thumbnail(content), std::nullopt) << content.left(20).toStdString();
}

TEST(AvatarThumbnail, APictureCutOffAnywhereIsReadOrRefusedAndNothingElse)
{
    for (const char *format : {"PNG", "JPG", "BMP"}) {
        const QByteArray whole = test::picture({64, 32}, format);
        for (qsizetype length = 0; length < whole.size(); length += 97) {
            const auto png = thumbnail(whole.first(length));
            EXPECT_EQ(test::sizeOf(png).isValid(), png.has_value()) << format << length;
        }
    }
}

TEST(AvatarThumbnail, APictureThatOnlyClaimsToBeHugeGivesNone)
{
    QByteArray bmp = test::picture({2, 2}, "BMP");
    // Width and height, each in four bytes, the smallest first.
    bmp.replace(18, 8, QByteArray("\x50\xc3\x00\x00\x50\xc3\x00\x00", 8));
    EXPECT_EQ(thumbnail(bmp), std::nullopt);
}

TEST(AvatarThumbnail, WhatIsMissingOrNoFileGivesNone)
{
    const test::TemporaryFolder folder;
    EXPECT_EQ(avatarThumbnailPNG(folder.path(u"missing"_s)), std::nullopt);
    EXPECT_EQ(avatarThumbnailPNG(folder.makeFolder(u"Account Avatar"_s)), std::nullopt);
    EXPECT_EQ(avatarThumbnailPNG(folder.link(u"broken"_s, folder.path(u"nowhere"_s))), std::nullopt);
    EXPECT_EQ(avatarThumbnailPNG({}), std::nullopt);
}

TEST(AvatarThumbnail, NoOtherExtensionIsTriedForAMissingFile)
{
    const test::TemporaryFolder folder;
    folder.write(u"26.png"_s, test::picture({20, 10}, "PNG"));
    EXPECT_EQ(avatarThumbnailPNG(folder.path(u"26"_s)), std::nullopt);
}

TEST(AvatarThumbnail, APipeDoesNotBlock)
{
    const test::TemporaryFolder folder;
    const QString pipe = folder.makePipe(u"Account Avatar"_s);
    EXPECT_EQ(test::answerOfUnprivilegedProcess([&pipe] { return avatarThumbnailPNG(pipe) ? u"read"_s : u"none"_s; }),
              u"none"_s);
}

TEST(AvatarThumbnail, AFileThatMayNotBeReadGivesNone)
{
    const test::TemporaryFolder folder;
    const QString open = folder.write(u"open"_s, test::picture({20, 10}, "PNG"));
    const QString closed = folder.write(u"closed"_s, test::picture({20, 10}, "PNG"));
    const test::ClosedPath guard(closed);
    const auto answerOf = [](const QString &path) {
        return test::answerOfUnprivilegedProcess([&path] { return avatarThumbnailPNG(path) ? u"read"_s : u"none"_s; });
    };
    EXPECT_EQ(answerOf(open), u"read"_s);
    EXPECT_EQ(answerOf(closed), u"none"_s);
}

} // namespace
} // namespace vantrel
