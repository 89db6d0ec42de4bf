#include "Platform/Linux/Launchers/DesktopApplicationIcons.h"

#include "Tests/Contract/ApplicationIconsContract.h"
#include "Tests/Platform/Linux/PlantedHome.h"

#include <QBuffer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QByteArray png(int size, const QColor &color)
{
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(color);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, "PNG"));
    return buffer.data();
}

class DesktopApplicationIconsTest : public testing::Test {
protected:
    [[nodiscard]] QImage icon(const QString &name, int pixels) const
    {
        const QString entry = home.installEntry(u"browser.desktop"_s, "Icon=" + name.toUtf8() + '\n');
        return DesktopApplicationIcons(home.environment()).icon(QUrl::fromLocalFile(entry), pixels);
    }

    [[nodiscard]] int side(int pixels) const { return icon(u"browser"_s, pixels).width(); }

    void plant(const QString &folder, int size, const QColor &color = Qt::red) const
    {
        home.write(folder + u"/apps/browser.png"_s, png(size, color));
    }

    test::PlantedHome home;
};

TEST_F(DesktopApplicationIconsTest, TheSmallestThatIsLargeEnoughIsTaken)
{
    for (const int size : {16, 48, 256})
        plant(u"share/icons/hicolor/%1x%1"_s.arg(size), size);
    plant(u"share/icons/hicolor/32x32@2"_s, 64);
    plant(u"share/icons/hicolor/symbolic"_s, 20);
    EXPECT_EQ(side(16), 16);
    EXPECT_EQ(side(17), 48);
    EXPECT_EQ(side(48), 48);
    EXPECT_EQ(side(64), 64);
    EXPECT_EQ(side(128), 256);
    EXPECT_EQ(side(1024), 256);
}

TEST_F(DesktopApplicationIconsTest, ADrawingIsDrawnAsLargeAsNeededButPicturesOfThatSizeGoFirst)
{
    home.write(u"other/share/icons/hicolor/scalable/apps/browser.svg"_s,
               "<svg xmlns='http://www.w3.org/2000/svg' width='10' height='10'>"
               "<rect width='10' height='10' fill='#00ff00'/></svg>");
    plant(u"share/icons/hicolor/48x48"_s, 48);
    EXPECT_EQ(side(32), 48);
    EXPECT_EQ(side(512), 512);
    EXPECT_EQ(icon(u"browser"_s, 512).pixelColor(256, 256), QColor(0, 255, 0));
}

TEST_F(DesktopApplicationIconsTest, TheUsersOwnGoesBeforeTheSystems)
{
    plant(u"share/icons/hicolor/48x48"_s, 48, Qt::red);
    plant(u"home/.local/share/icons/hicolor/48x48"_s, 48, Qt::blue);
    home.variables().insert(u"XDG_DATA_HOME"_s, home.path(u"home/.local/share"_s));
    EXPECT_EQ(icon(u"browser"_s, 48).pixelColor(0, 0), QColor(Qt::blue));
}

TEST_F(DesktopApplicationIconsTest, APathIsTheFileItself)
{
    const QString path = home.write(u"opt/icon of a browser.png"_s, png(24, Qt::green));
    EXPECT_EQ(icon(path, 128).width(), 24);
    EXPECT_TRUE(icon(home.path(u"opt/none.png"_s), 128).isNull());
}

TEST_F(DesktopApplicationIconsTest, PixmapsComeLast)
{
    home.write(u"share/pixmaps/browser.png"_s, png(32, Qt::green));
    EXPECT_EQ(side(128), 32);
    plant(u"share/icons/hicolor/16x16"_s, 16);
    EXPECT_EQ(side(128), 16);
}

TEST_F(DesktopApplicationIconsTest, ADamagedFileIsPassedOver)
{
    home.write(u"share/icons/hicolor/128x128/apps/browser.png"_s, "no picture");
    plant(u"share/icons/hicolor/48x48"_s, 48);
    EXPECT_EQ(side(128), 48);
}

TEST_F(DesktopApplicationIconsTest, WithoutAnIconThereIsNone)
{
    EXPECT_TRUE(icon(u""_s, 48).isNull());
    EXPECT_TRUE(icon(u"browser"_s, 48).isNull());
    EXPECT_TRUE(icon(u"../../secret"_s, 48).isNull());
    const DesktopApplicationIcons icons(home.environment());
    EXPECT_TRUE(icons.icon(QUrl::fromLocalFile(home.path(u"none.desktop"_s)), 48).isNull());
    EXPECT_TRUE(icons.icon(QUrl(), 48).isNull());
}

/// Two browsers with icons in a home of their own.
class DesktopApplicationIconsSystem {
public:
    DesktopApplicationIconsSystem()
    {
        for (const int size : {16, 48, 256}) {
            const QString folder = u"share/icons/hicolor/%1x%1/apps/"_s.arg(size);
            home_.write(folder + u"one.png"_s, png(size, Qt::red));
            home_.write(folder + u"other.png"_s, png(size, Qt::blue));
        }
    }

    const ApplicationIcons &icons() { return icons_; }
    QUrl application() { return entry(u"one"_s); }
    QUrl otherApplication() { return entry(u"other"_s); }
    QUrl gone() { return QUrl::fromLocalFile(home_.path(u"gone.desktop"_s)); }

private:
    QUrl entry(const QString &name)
    {
        return QUrl::fromLocalFile(home_.installEntry(name + u".desktop"_s, "Icon=" + name.toUtf8() + '\n'));
    }

    test::PlantedHome home_;
    DesktopApplicationIcons icons_{home_.environment()};
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, ApplicationIconsContract, DesktopApplicationIconsSystem);

} // namespace test
} // namespace vantrel
