#include "VantrelKit/ChromiumAvatar.h"

#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// A picture reader that notes what it is asked for, and finds a picture in the paths given.
class Reader {
public:
    explicit Reader(QStringList pictures = {}) : pictures_(std::move(pictures)) {}

    PictureReader function()
    {
        return [this](const QString &path) -> std::optional<QByteArray> {
            asked.append(path);
            return pictures_.contains(path) ? std::optional(path.toUtf8()) : std::nullopt;
        };
    }

    QStringList asked;

private:
    QStringList pictures_;
};

/// A data folder with one profile folder, whose picture folders hold files.
class ChromiumAvatar : public testing::Test {
protected:
    ChromiumAvatar()
    {
        for (const QString &picture :
             {u"Accounts/Avatar Images/b"_s, u"Accounts/Avatar Images/a"_s, u"Avatar Icons/26"_s, u"Avatar Icons/13"_s,
              u"Avatar Images/x.png"_s, u"Account Avatar"_s})
            root.write(u"Profile 1/"_s + picture);
    }

    [[nodiscard]] QString data(const QString &path) const { return root.path(path); }
    [[nodiscard]] QString profile(const QString &path) const { return root.path(u"Profile 1/"_s + path); }

    /// The picture, told by its path below the profile folder.
    QString found(const std::optional<QString> &avatarIcon, const QStringList &pictures)
    {
        QStringList paths;
        for (const QString &picture : pictures)
            paths.append(profile(picture));
        Reader reader(paths);
        const auto png = chromiumAvatarPNG(root.path(u"Profile 1"_s), root.path(), avatarIcon, reader.function());
        return png ? QString::fromUtf8(*png).mid(profile({}).size()) : u"none"_s;
    }

    QStringList asked(const std::optional<QString> &avatarIcon)
    {
        Reader reader;
        const auto png = chromiumAvatarPNG(root.path(u"Profile 1"_s), root.path(), avatarIcon, reader.function());
        EXPECT_EQ(png, std::nullopt);
        return reader.asked;
    }

    /// What is asked for in any case, in order.
    [[nodiscard]] QStringList usualPlaces() const
    {
        return {profile(u"Account Avatar"_s),           profile(u"Accounts/Avatar Images/a"_s),
                profile(u"Accounts/Avatar Images/b"_s), profile(u"Avatar Icons/13"_s),
                profile(u"Avatar Icons/26"_s),          profile(u"Avatar Images/x.png"_s)};
    }

    test::TemporaryFolder root;
};

const QString builtIn = u"chrome://theme/IDR_PROFILE_AVATAR_"_s;

TEST_F(ChromiumAvatar, WithoutAnIconTheUsualPlacesAreTriedInTheirOrder)
{
    EXPECT_EQ(asked(std::nullopt), usualPlaces());
}

TEST_F(ChromiumAvatar, AnIconsPathIsTriedFirstBelowTheDataFolder)
{
    for (const QString &icon : {u"Avatars/me.png"_s, u"me.png"_s, u"a b/c&d.png"_s, u"Chrome://theme/x"_s,
                                u"chrome:/x"_s, u"chrome"_s, u"26"_s})
        EXPECT_EQ(asked(icon), QStringList(data(icon)) + usualPlaces()) << icon.toStdString();
    EXPECT_EQ(asked(u"/Avatars/me.png"_s), QStringList(data(u"Avatars/me.png"_s)) + usualPlaces());
}

TEST_F(ChromiumAvatar, AnEmptyIconGivesNoPictureOfItsOwn)
{
    EXPECT_EQ(found(u""_s, {u"Account Avatar"_s}), u"Account Avatar"_s);
}

TEST_F(ChromiumAvatar, ABuiltInIconIsTriedFirstByItsNumber)
{
    const std::vector<std::pair<QString, QString>> rows{
        {u"26"_s, u"26"_s}, {u"0"_s, u"0"_s},   {u"007"_s, u"7"_s},
        {u"+5"_s, u"5"_s},  {u"-1"_s, u"-1"_s}, {u"1000"_s, u"1000"_s},
    };
    for (const auto &[number, file] : rows) {
        EXPECT_EQ(asked(builtIn + number), QStringList(profile(u"Avatar Icons/"_s + file)) + usualPlaces())
            << number.toStdString();
    }
}

TEST_F(ChromiumAvatar, ABuiltInIconWithoutANumberAddsNoPlace)
{
    for (const QString &rest : {u""_s, u"x"_s, u"26x"_s, u" 26"_s, u"26 "_s, u"2.6"_s, u"0x1A"_s, u"_26"_s, u"-"_s,
                                u"99999999999999999999"_s, u"\u0662\u0666"_s, u"../26"_s})
        EXPECT_EQ(asked(builtIn + rest), usualPlaces()) << rest.toStdString();
}

TEST_F(ChromiumAvatar, AnyOtherBuiltInAddressAddsNoPlace)
{
    for (const QString &icon :
         {u"chrome://"_s, u"chrome://theme"_s, u"chrome://theme/IDR_PROFILE_AVATAR"_s, u"chrome://theme/IDR_OTHER_26"_s,
          u"chrome://theme/idr_profile_avatar_26"_s, u"chrome://favicon/IDR_PROFILE_AVATAR_26"_s})
        EXPECT_EQ(asked(icon), usualPlaces()) << icon.toStdString();
}

TEST_F(ChromiumAvatar, TheFirstPictureWins)
{
    const QStringList all{u"Avatar Icons/26"_s,          u"Account Avatar"_s,  u"Accounts/Avatar Images/a"_s,
                          u"Accounts/Avatar Images/b"_s, u"Avatar Icons/13"_s, u"Avatar Images/x.png"_s};
    EXPECT_EQ(found(builtIn + u"26"_s, all), u"Avatar Icons/26"_s);
    EXPECT_EQ(found(builtIn + u"27"_s, all), u"Account Avatar"_s);
    EXPECT_EQ(found(std::nullopt, all), u"Account Avatar"_s);
    EXPECT_EQ(found(std::nullopt, all.mid(2)), u"Accounts/Avatar Images/a"_s);
    EXPECT_EQ(found(std::nullopt, all.mid(3)), u"Accounts/Avatar Images/b"_s);
    EXPECT_EQ(found(std::nullopt, all.mid(4)), u"Avatar Icons/13"_s);
    EXPECT_EQ(found(std::nullopt, all.mid(5)), u"Avatar Images/x.png"_s);
    EXPECT_EQ(found(std::nullopt, {}), u"none"_s);
}

TEST_F(ChromiumAvatar, ADamagedIconIsPassedOver)
{
    EXPECT_EQ(found(u"Avatars/me.png"_s, {u"Avatar Images/x.png"_s}), u"Avatar Images/x.png"_s);
    EXPECT_EQ(found(builtIn + u"26"_s, {u"Avatar Icons/13"_s}), u"Avatar Icons/13"_s);
}

TEST_F(ChromiumAvatar, NothingIsReadAfterTheFirstPicture)
{
    Reader reader({profile(u"Account Avatar"_s)});
    EXPECT_TRUE(chromiumAvatarPNG(root.path(u"Profile 1"_s), root.path(), u"me.png"_s, reader.function()));
    EXPECT_EQ(reader.asked, QStringList({data(u"me.png"_s), profile(u"Account Avatar"_s)}));
}

TEST_F(ChromiumAvatar, AProfileFolderWithoutPicturesHasNone)
{
    Reader reader;
    EXPECT_EQ(chromiumAvatarPNG(data(u"missing"_s), root.path(), std::nullopt, reader.function()), std::nullopt);
    EXPECT_EQ(reader.asked, QStringList({data(u"missing/Account Avatar"_s)}));
}

TEST_F(ChromiumAvatar, AFoldersEntriesAreTriedByNameWithoutHiddenOnes)
{
    for (const QString &name : {u"b"_s, u"B"_s, u"a10"_s, u"a9"_s, u".hidden"_s, u"_"_s, u"\u00e9"_s})
        root.write(u"pictures/"_s + name);
    root.makeFolder(u"pictures/aa"_s);
    Reader reader;
    EXPECT_EQ(firstImageInFolder(data(u"pictures"_s), reader.function()), std::nullopt);
    QStringList expected;
    for (const QString &name : {u"B"_s, u"_"_s, u"a10"_s, u"a9"_s, u"aa"_s, u"b"_s, u"\u00e9"_s})
        expected.append(data(u"pictures/"_s + name));
    EXPECT_EQ(reader.asked, expected);
}

TEST_F(ChromiumAvatar, AFoldersFirstEntryThatIsAPictureWins)
{
    Reader reader({profile(u"Accounts/Avatar Images/b"_s)});
    EXPECT_EQ(firstImageInFolder(profile(u"Accounts/Avatar Images"_s), reader.function()),
              profile(u"Accounts/Avatar Images/b"_s).toUtf8());
}

TEST_F(ChromiumAvatar, AFolderThatIsMissingOrNoneOrEmptyHasNoPicture)
{
    Reader reader;
    EXPECT_EQ(firstImageInFolder(data(u"missing"_s), reader.function()), std::nullopt);
    EXPECT_EQ(firstImageInFolder(profile(u"Account Avatar"_s), reader.function()), std::nullopt);
    EXPECT_EQ(firstImageInFolder(root.makeFolder(u"empty"_s), reader.function()), std::nullopt);
    EXPECT_EQ(reader.asked, QStringList());
}

TEST_F(ChromiumAvatar, AFolderThatMayNotBeListedHasNoPictureAndTheNextIsTried)
{
    const test::ClosedPath guard(profile(u"Accounts"_s));
    const QString answer = test::answerOfUnprivilegedProcess([this] {
        Reader reader({profile(u"Avatar Icons/13"_s)});
        const auto png = chromiumAvatarPNG(root.path(u"Profile 1"_s), root.path(), std::nullopt, reader.function());
        return png ? QString::fromUtf8(*png) : u"none"_s;
    });
    EXPECT_EQ(answer, profile(u"Avatar Icons/13"_s));
}

} // namespace
} // namespace vantrel
