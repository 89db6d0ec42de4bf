#include "Vantrel/Pictures/IconFamily.h"

#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QProcess>
#include <QtEndian>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Element {
    QByteArray type;
    QByteArray content;
};

/// The elements of a file whose lengths add up; none of any other.
QList<Element> elements(const QByteArray &file)
{
    const auto length = [&file](qsizetype at) {
        return static_cast<qsizetype>(qFromBigEndian<quint32>(file.constData() + at));
    };
    if (file.first(4) != "icns" || length(4) != file.size())
        return {};
    QList<Element> found;
    for (qsizetype at = 8; at < file.size();) {
        const qsizetype size = length(at + 4);
        if (size < 8 || at + size > file.size())
            return {};
        found.append({file.sliced(at, 4), file.sliced(at + 8, size - 8)});
        at += size;
    }
    return found;
}

/// Three planes of 256 bytes each.
QByteArray unpacked(const QByteArray &packed)
{
    QByteArray bytes;
    for (qsizetype at = 0; at < packed.size();) {
        const int count = static_cast<uchar>(packed[at++]);
        if (count < 128) {
            bytes += packed.mid(at, count + 1);
            at += count + 1;
        } else {
            bytes += QByteArray(count - 125, packed.at(at++));
        }
    }
    return bytes;
}

QImage fromPlanes(const QByteArray &colours, const QByteArray &mask)
{
    QImage image(16, 16, QImage::Format_RGBA8888);
    const auto byte = [](const QByteArray &bytes, int at) { return static_cast<uchar>(bytes.at(at)); };
    for (int index = 0; index < 256; ++index) {
        image.setPixelColor(
            index % 16, index / 16,
            QColor(byte(colours, index), byte(colours, 256 + index), byte(colours, 512 + index), byte(mask, index)));
    }
    return image;
}

/// Every size looks different, with runs of equal pixels and without.
QImage sample(int size)
{
    QImage image(size, size, QImage::Format_RGBA8888);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const bool isPlain = y < size / 2;
            image.setPixelColor(x, y,
                                isPlain ? QColor(size % 251, 20, 30, 255)
                                        : QColor((x * 7) % 256, (x * y) % 256, (x + y) % 256, (x * 13) % 256));
        }
    }
    return image;
}

/// The file with these images and none for other sizes.
QByteArray fileOf(const QList<QImage> &images)
{
    return iconFamilyFile([&images](int pixels) {
        const auto found = std::ranges::find(images, pixels, &QImage::width);
        return found == images.end() ? QImage() : *found;
    });
}

QList<QImage> samples()
{
    QList<QImage> images;
    for (const int size : {16, 32, 64, 128, 256, 512, 1024})
        images.append(sample(size));
    return images;
}

TEST(IconFamily, EachSizeHasTheTypeThatApplicationsAreShownWith)
{
    QList<QByteArray> types;
    for (const Element &each : elements(fileOf(samples())))
        types.append(each.type);
    EXPECT_EQ(types, (QList<QByteArray>{"is32", "s8mk", "ic11", "ic12", "ic07", "ic08", "ic09", "ic10"}));
}

TEST(IconFamily, EveryPixelIsReadBackAsItWas)
{
    const QList<QImage> images = samples();
    const QList<Element> found = elements(fileOf(images));
    ASSERT_EQ(found.size(), 8);
    EXPECT_EQ(found[1].content.size(), 256);
    ASSERT_EQ(unpacked(found[0].content).size(), 768);
    EXPECT_EQ(fromPlanes(unpacked(found[0].content), found[1].content), images[0]);
    for (qsizetype index = 2; index < found.size(); ++index) {
        const QImage read = QImage::fromData(found[index].content, "PNG").convertToFormat(QImage::Format_RGBA8888);
        EXPECT_EQ(read, images[index - 1]) << found[index].type.constData();
    }
}

TEST(IconFamily, RunsOfEqualBytesAreShortAndOthersNearlyAsLongAsTheyWere)
{
    QImage plain(16, 16, QImage::Format_RGBA8888);
    plain.fill(QColor(1, 2, 3));
    // 130 + 126 bytes in each plane.
    EXPECT_EQ(elements(fileOf({plain})).first().content,
              QByteArray("\xff\x01\xfb\x01\xff\x02\xfb\x02\xff\x03\xfb\x03"));
    QImage restless(16, 16, QImage::Format_RGBA8888);
    for (int index = 0; index < 256; ++index)
        restless.setPixelColor(index % 16, index / 16, QColor(index, (index / 2) % 256, (index * 3) % 256));
    EXPECT_EQ(elements(fileOf({restless})).first().content.size(), 3 * (256 + 2));
}

TEST(IconFamily, SevenSizesAreAskedForTheSmallestFirst)
{
    QList<int> sizes;
    std::ignore = iconFamilyFile([&sizes](int pixels) {
        sizes.append(pixels);
        return QImage();
    });
    EXPECT_EQ(sizes, (QList<int>{16, 32, 64, 128, 256, 512, 1024}));
}

TEST(IconFamily, SizesWithoutAnImageAreLeftOutAndNoneAtAllIsNoFile)
{
    EXPECT_EQ(fileOf({}), QByteArray());
    EXPECT_EQ(elements(fileOf({sample(64)})).size(), 1);
    EXPECT_EQ(elements(fileOf({sample(64)})).first().type, "ic12");
}

TEST(IconFamily, AnotherProgramReadsTheSizesThatItKnows)
{
    const test::TemporaryFolder folder;
    const QList<QImage> images = samples();
    const QString file = folder.write(u"AppIcon.icns"_s, fileOf(images));
    QProcess program;
    program.setWorkingDirectory(folder.path());
    program.start(u"icns2png"_s, {u"--extract"_s, u"--output"_s, folder.path(), file});
    ASSERT_TRUE(program.waitForFinished()) << "icns2png is missing; its package is icnsutils.";
    EXPECT_EQ(program.exitCode(), 0);
    const QByteArray report = program.readAllStandardOutput() + program.readAllStandardError();
    // It is older than the types for 32, 64 and 128 pixels.
    for (const QImage &image : {images[0], images[4], images[5], images[6]}) {
        const QString name = u"AppIcon_%1x%1x32.png"_s.arg(image.width());
        const QImage read = QImage(folder.path(name)).convertToFormat(QImage::Format_RGBA8888);
        EXPECT_EQ(read, image) << name.toStdString() << '\n' << report.toStdString();
    }
}

} // namespace
} // namespace vantrel
