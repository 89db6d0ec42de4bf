#include "Vantrel/Translations/Translations.h"

#include "Tests/Platform/Linux/ScopedVariable.h"
#include "VantrelKit/Browser.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLocale>
#include <QPushButton>

#include <gtest/gtest.h>

#include <array>
#include <string>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QString privateWindow()
{
    return privateWindowName(u"org.mozilla.firefox"_s);
}

/// A program without a screen, and its texts.
class TranslationsTest : public testing::Test {
protected:
    TranslationsTest() : application_(argumentCount_, arguments_.data()) {}
    ~TranslationsTest() override { QLocale::setDefault(QLocale::system()); }

    /// A text of the program's, for a user who reads these languages.
    QString privateWindowIn(const QStringList &languages)
    {
        translations_.install(languages);
        return privateWindow();
    }

    // Before the application, which reads it.
    test::ScopedVariable platform_{"QT_QPA_PLATFORM", "offscreen"};
    int argumentCount_ = 1;
    std::string name_ = "vantrel";
    std::array<char *, 2> arguments_{name_.data(), nullptr};
    QApplication application_;
    Translations translations_;
};

TEST_F(TranslationsTest, GermanIsReadFromLeftToRight)
{
    EXPECT_EQ(privateWindowIn({u"de"_s}), u"Privates Fenster"_s);
    EXPECT_EQ(translations_.layoutDirection(), Qt::LeftToRight);
}

TEST_F(TranslationsTest, ArabicIsReadFromRightToLeft)
{
    EXPECT_EQ(privateWindowIn({u"ar"_s}), u"نافذة خاصة"_s);
    EXPECT_EQ(translations_.layoutDirection(), Qt::RightToLeft);
}

TEST_F(TranslationsTest, ACountryWithoutTextsOfItsOwnGetsThoseOfItsLanguage)
{
    EXPECT_EQ(privateWindowIn({u"de-AT"_s}), u"Privates Fenster"_s);
}

TEST_F(TranslationsTest, ALanguageWithoutTextsLeavesEnglishFromLeftToRight)
{
    EXPECT_EQ(privateWindowIn({u"he-IL"_s, u"he"_s}), u"Private Window"_s);
    EXPECT_EQ(translations_.layoutDirection(), Qt::LeftToRight);
}

TEST_F(TranslationsTest, TheFirstLanguageThatThereAreTextsForIsShown)
{
    EXPECT_EQ(privateWindowIn({u"he"_s, u"ar"_s, u"de"_s}), u"نافذة خاصة"_s);
}

TEST_F(TranslationsTest, EnglishIsALanguageThatThereAreTextsFor)
{
    EXPECT_EQ(privateWindowIn({u"en-GB"_s, u"de"_s}), u"Private Window"_s);
    EXPECT_EQ(translations_.layoutDirection(), Qt::LeftToRight);
}

TEST_F(TranslationsTest, NoLanguageLeavesEnglish)
{
    EXPECT_EQ(privateWindowIn({}), u"Private Window"_s);
    EXPECT_EQ(translations_.layoutDirection(), Qt::LeftToRight);
}

TEST_F(TranslationsTest, TheToolkitsOwnButtonsAreInTheSameLanguage)
{
    translations_.install({u"he"_s, u"de"_s});
    const QDialogButtonBox box(QDialogButtonBox::Cancel);
    EXPECT_EQ(box.button(QDialogButtonBox::Cancel)->text(), u"Abbrechen"_s)
        << "Install the package qt6-translations-l10n.";
}

TEST_F(TranslationsTest, TextsLastAsLongAsTheirObject)
{
    {
        Translations translations;
        translations.install({u"de"_s});
        EXPECT_EQ(privateWindow(), u"Privates Fenster"_s);
    }
    EXPECT_EQ(privateWindow(), u"Private Window"_s);
}

TEST_F(TranslationsTest, TheUsersLanguagesAreThoseOfTheLocale)
{
    QLocale::setDefault(QLocale(u"de_AT"_s));
    EXPECT_TRUE(Translations::userLanguages().contains(u"de-AT"_s));
}

TEST_F(TranslationsTest, TheUserHasNoLanguageInTheCLocale)
{
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(Translations::userLanguages(), QStringList());
}

} // namespace
} // namespace vantrel
