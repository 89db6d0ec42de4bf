#include "VantrelKit/Safari/SafariLanguage.h"

#include "Tests/VantrelKit/Safari/SafariPrinting.h"

#include <gtest/gtest.h>

#include <ctime>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using std::nullopt;
using Name = std::optional<QString>;

/// A language whose items for profiles have this format, and whose other texts no item of these tests has.
SafariLanguage withFormat(const QString &format)
{
    return {u"xx"_s, u"f"_s, u"e"_s, u"ordinary"_s, u"private"_s, format};
}

TEST(SafariLanguage, EnglishIsBuiltIn)
{
    const SafariLanguage expected{u"en"_s,           u"File"_s, u"Edit"_s, u"New Window"_s, u"New Private Window"_s,
                                  u"New %@ Window"_s};
    EXPECT_EQ(SafariLanguage::english(), expected);
    EXPECT_EQ(&SafariLanguage::english(), &SafariLanguage::english());
}

TEST(SafariLanguage, EnglishIsMadeOnceWhenThreadsAskForItAtTheSameTime)
{
    std::vector<const SafariLanguage *> found(8);
    std::vector<std::thread> threads;
    for (const SafariLanguage *&language : found)
        threads.emplace_back([&language] { language = &SafariLanguage::english(); });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(found, std::vector<const SafariLanguage *>(8, &SafariLanguage::english()));
}

TEST(SafariLanguage, EachTextCountsForEquality)
{
    const SafariLanguage language = SafariLanguage::english();
    for (const auto member :
         {&SafariLanguage::code, &SafariLanguage::file, &SafariLanguage::edit, &SafariLanguage::newWindow,
          &SafariLanguage::newPrivateWindow, &SafariLanguage::newProfileWindowFormat}) {
        SafariLanguage other = language;
        EXPECT_EQ(other, language);
        other.*member += u'x';
        EXPECT_NE(other, language);
    }
}

TEST(SafariLanguage, MatchesAMenuBarByItsThirdAndFourthTitle)
{
    const std::vector<std::pair<QStringList, bool>> rows{
        {{}, false},
        {{u"File"_s, u"Edit"_s}, false},
        {{u"Apple"_s, u"Safari"_s, u"File"_s}, false},
        {{u"File"_s, u"Edit"_s, u"File"_s}, false},
        {{u"Apple"_s, u"Safari"_s, u"File"_s, u"Edit"_s}, true},
        {{u""_s, u""_s, u"File"_s, u"Edit"_s}, true},
        {{u"Apple"_s, u"Safari"_s, u"File"_s, u"Edit"_s, u"View"_s, u""_s}, true},
        {{u"Apple"_s, u"Safari"_s, u"Edit"_s, u"File"_s}, false},
        {{u"Apple"_s, u"File"_s, u"Edit"_s, u"View"_s}, false},
        {{u"Apple"_s, u"Safari"_s, u"Debug"_s, u"File"_s, u"Edit"_s}, false},
        {{u"Apple"_s, u"Safari"_s, u"file"_s, u"edit"_s}, false},
        {{u"Apple"_s, u"Safari"_s, u"File "_s, u"Edit"_s}, false},
        {{u"Apple"_s, u"Safari"_s, u"File"_s, u"Edit\u200E"_s}, false},
        {{u"Apple"_s, u"Safari"_s, u""_s, u""_s}, false},
    };
    for (const auto &[menuBar, isMatch] : rows)
        EXPECT_EQ(SafariLanguage::english().matches(menuBar), isMatch) << menuBar.join(u'|').toStdString();
}

TEST(SafariLanguage, MatchesTitlesWhoseAccentsAreCharactersOfTheirOwn)
{
    SafariLanguage language = withFormat(u"%@"_s);
    language.file = u"Fi\u00E9"_s;
    language.edit = u"\u7DE8\u96C6"_s;
    EXPECT_TRUE(language.matches({u""_s, u""_s, u"Fie\u0301"_s, u"\u7DE8\u96C6"_s}));
    EXPECT_FALSE(language.matches({u""_s, u""_s, u"Fie"_s, u"\u7DE8\u96C6"_s}));
}

TEST(SafariLanguage, FindsTheProfileOfAnEnglishItem)
{
    const std::vector<std::pair<QString, Name>> rows{
        {u"New Work Window"_s, u"Work"_s},
        {u"New Two Words Window"_s, u"Two Words"_s},
        {u"New Window Window"_s, u"Window"_s},
        {u"New New Window Window"_s, u"New Window"_s},
        {u"New   Window"_s, u" "_s},
        {u"New  Work  Window"_s, u" Work "_s},
        {u"New (.+) Window"_s, u"(.+)"_s},
        {u"New %@ Window"_s, u"%@"_s},
        {u"New $1 \\1 \\E Window"_s, u"$1 \\1 \\E"_s},
        {u"New ^[a]{2}|b?*$ Window"_s, u"^[a]{2}|b?*$"_s},
        {u"New \"Work\" 'x' Window"_s, u"\"Work\" 'x'"_s},
        {u"New \u200FWork\u202E Window"_s, u"\u200FWork\u202E"_s},
        {u"New \u05D0\u0628 Window"_s, u"\u05D0\u0628"_s},
        {u"New \U0001F600 Window"_s, u"\U0001F600"_s},
        {u"New Private Work Window"_s, u"Private Work"_s},
        {u"New private Window"_s, u"private"_s},
        {u"New \tWork Window"_s, u"\tWork"_s},
        {u"New a\0b Window"_s, u"a\0b"_s},

        {u"New Window"_s, nullopt},
        {u"New Private Window"_s, nullopt},
        {u"New  Window"_s, nullopt},
        {u"New Work Window 2"_s, nullopt},
        {u"A New Work Window"_s, nullopt},
        {u" New Work Window"_s, nullopt},
        {u"New Work Window "_s, nullopt},
        {u"New Work Window\n"_s, nullopt},
        {u"new Work window"_s, nullopt},
        {u"NewWorkWindow"_s, nullopt},
        {u"New Tab"_s, nullopt},
        {u"Close Window"_s, nullopt},
        {u""_s, nullopt},
        {QString(), nullopt},
    };
    for (const auto &[title, name] : rows)
        EXPECT_EQ(SafariLanguage::english().profileName(title), name) << title.toStdString();
}

TEST(SafariLanguage, ANameStaysOnOneLine)
{
    for (const QString &end : {u"\n"_s, u"\r"_s, u"\r\n"_s, u"\v"_s, u"\f"_s, u"\u0085"_s, u"\u2028"_s, u"\u2029"_s}) {
        EXPECT_EQ(SafariLanguage::english().profileName(u"New Wo"_s + end + u"rk Window"_s), nullopt);
        EXPECT_EQ(SafariLanguage::english().profileName(u"New "_s + end + u" Window"_s), nullopt);
    }
}

TEST(SafariLanguage, TheItemsOfOtherWindowsAreNoProfilesThoughTheyFitTheFormat)
{
    SafariLanguage language = withFormat(u"%@"_s);
    language.newWindow = u"Neues Fe\u0301"_s;
    language.newPrivateWindow = u"Privat"_s;
    EXPECT_EQ(language.profileName(u"Neues Fe\u0301"_s), nullopt);
    EXPECT_EQ(language.profileName(u"Neues F\u00E9"_s), nullopt);
    EXPECT_EQ(language.profileName(u"Privat"_s), nullopt);
    EXPECT_EQ(language.profileName(u"Privat "_s), u"Privat "_s);
}

TEST(SafariLanguage, TheFormatBecomesAPattern)
{
    const std::vector<std::pair<QString, QString>> rows{
        {u"New %@ Window"_s, u"New (.+) Window"_s},
        {u"%1$@ Penceresi"_s, u"(.+) Penceresi"_s},
        {u"%1$@ (Yeni)"_s, u"(.+) \\(Yeni\\)"_s},
        {u"Neues Fenster %12$@"_s, u"Neues Fenster (.+)"_s},
        {u"%@"_s, u"(.+)"_s},
        {u"%@%@"_s, u"(.+)(.+)"_s},
        {u"a %@ b %2$@ c"_s, u"a (.+) b (.+) c"_s},
        {u"%[name]@!"_s, u"(.+)!"_s},
        {u"%[]@"_s, u"(.+)"_s},
        {u"%1$[a b%]@"_s, u"(.+)"_s},
        {u"%[a\nb]@"_s, u"(.+)"_s},
        {u"%\u0661$@"_s, u"(.+)"_s},
        {u"100%%@"_s, u"100%(.+)"_s},

        {u""_s, u""_s},
        {u"no name"_s, u"no name"_s},
        {u"%d %s %1@ %$@ % @ %1$ @ @ %"_s, u"%d %s %1@ %\\$@ % @ %1\\$ @ @ %"_s},
        {u"%[a@"_s, u"%\\[a@"_s},
        {u"%[a]]@"_s, u"%\\[a\\]\\]@"_s},
        {u"%[a]1$@"_s, u"%\\[a\\]1\\$@"_s},
        {u"\\^$.|?*+()[]{}"_s, u"\\\\\\^\\$\\.\\|\\?\\*\\+\\(\\)\\[\\]\\{\\}"_s},
        {u"a-b#c/d e\u00E9"_s, u"a-b#c/d e\u00E9"_s},
    };
    for (const auto &[format, pattern] : rows)
        EXPECT_EQ(withFormat(format).itemPattern(), pattern) << format.toStdString();
}

struct FormatRow {
    QString format;
    QString title;
    Name name;
};

TEST(SafariLanguage, FindsTheProfileByAnyFormat)
{
    const std::vector<FormatRow> rows{
        {u"%1$@ Penceresi (Yeni)"_s, u"\u0130\u015F Penceresi (Yeni)"_s, u"\u0130\u015F"_s},
        {u"%1$@ Penceresi (Yeni)"_s, u" Penceresi (Yeni)"_s, nullopt},
        {u"Neues Fenster \u201E%@\u201C"_s, u"Neues Fenster \u201EArbeit\u201C"_s, u"Arbeit"_s},
        {u"\u65B0\u898F\u201C%@\u201D"_s, u"\u65B0\u898F\u201C\u4ED5\u4E8B\u201D"_s, u"\u4ED5\u4E8B"_s},
        {u"\u2068%@\u2069 \u062C"_s, u"\u2068\u0639\u0645\u0644\u2069 \u062C"_s, u"\u0639\u0645\u0644"_s},
        {u"\u2068%@\u2069 \u062C"_s, u"\u0639\u0645\u0644 \u062C"_s, nullopt},
        {u"(%@)."_s, u"(Work)."_s, u"Work"_s},
        {u"(%@)."_s, u"(Work)x"_s, nullopt},
        {u"\\Q%@"_s, u"\\QWork"_s, u"Work"_s},
        {u"(*FAIL)%@"_s, u"(*FAIL)Work"_s, u"Work"_s},
        {u"x|%@"_s, u"x|Work"_s, u"Work"_s},
        {u"x|%@"_s, u"x"_s, nullopt},
        {u"a\nb %@"_s, u"a\nb Work"_s, u"Work"_s},
        {u"a\0b %@"_s, u"a\0b Work"_s, u"Work"_s},
        {u"%@"_s, u"Anything at all"_s, u"Anything at all"_s},
        {u"%@"_s, u""_s, nullopt},
        {u"New %@ in %@"_s, u"New Work in Space"_s, u"Work"_s},
        {u"New %@ in %@"_s, u"New a in b in c"_s, u"a in b"_s},
        {u"%2$@ of %1$@"_s, u"Window of Work"_s, u"Window"_s},
        {u"%@%@"_s, u"ab"_s, u"a"_s},
        {u"%@%@"_s, u"a"_s, nullopt},
        {u"New Profile Window"_s, u"New Profile Window"_s, nullopt},
        {u"New Profile Window"_s, u"New Work Window"_s, nullopt},
        {u""_s, u""_s, nullopt},
        {u""_s, u"New Work Window"_s, nullopt},
    };
    for (const auto &[format, title, name] : rows)
        EXPECT_EQ(withFormat(format).profileName(title), name) << format.toStdString() << ": " << title.toStdString();
}

TEST(SafariLanguage, TakesEveryItemForAProfileWhenTheFormatMakesNoPattern)
{
    const std::vector<QString> formats{u"New \xD83D %@ Window"_s, u"New %@ \xDE00"_s, QString(5000, u'x') + u"%@"_s,
                                       u"%["_s.repeated(1'000'000)};
    for (const QString &format : formats) {
        const SafariLanguage language = withFormat(format);
        EXPECT_EQ(language.profileName(u"New Work Window"_s), u"New Work Window"_s);
        EXPECT_EQ(language.profileName(u"x"_s), u"x"_s);
        EXPECT_EQ(language.profileName(u""_s), nullopt);
        EXPECT_EQ(language.profileName(u"ordinary"_s), nullopt);
        EXPECT_EQ(language.profileName(u"private"_s), nullopt);
    }
}

TEST(SafariLanguage, ALongFormatAndALongNameAreNoObstacle)
{
    const QString words = u"word "_s.repeated(800);
    EXPECT_EQ(withFormat(words + u"%@"_s).profileName(words + u"Work"_s), u"Work"_s);
    const QString name = u" Window"_s.repeated(10'000);
    EXPECT_EQ(SafariLanguage::english().profileName(u"New"_s + name + u" Window"_s), name.sliced(1));
}

/// The processor's time that this process has used, which other programs don't lengthen.
double processorSeconds()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

TEST(SafariLanguage, AFormatOfManyPlaceholdersTakesNoCountlessSteps)
{
    const SafariLanguage language = withFormat(u"%@a"_s.repeated(30) + u"b"_s);
    const double start = processorSeconds();
    for (qsizetype length = 1000; length < 1100; ++length)
        EXPECT_EQ(language.profileName(QString(length, u'a') + u"bc"_s), nullopt);
    EXPECT_LT(processorSeconds() - start, 3);
    EXPECT_EQ(withFormat(u"%@"_s.repeated(500) + u"b"_s).profileName(QString(100'000, u'a') + u"bc"_s), nullopt);
}

} // namespace
} // namespace vantrel
