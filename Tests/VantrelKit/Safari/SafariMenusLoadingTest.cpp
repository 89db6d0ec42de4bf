#include "Tests/VantrelKit/Safari/BinaryPropertyList.h"
#include "Tests/VantrelKit/Safari/SafariPrinting.h"
#include "Tests/VantrelKit/Safari/StringsTexts.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"
#include "VantrelKit/Safari/SafariMenus.h"

#include <QDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QString languagesFolder = QStringLiteral(VANTREL_SAFARI_LANGUAGES);

QList<SafariLanguage> load(const QString &appFolder, const QString &frameworkFolder)
{
    return SafariMenus::loadLanguages(QUrl::fromLocalFile(appFolder), QUrl::fromLocalFile(frameworkFolder));
}

QList<SafariLanguage> handwritten()
{
    return load(languagesFolder + u"/App/"_s, languagesFolder + u"/Framework/"_s);
}

QString codes(const QList<SafariLanguage> &languages)
{
    QStringList codes;
    for (const SafariLanguage &language : languages)
        codes.append(language.code);
    return codes.join(u' ');
}

QByteArray menuFile()
{
    return "81.title = f; 163.title = e; 82.title = n; CV2-YC-yYw.title = p;";
}

QByteArray windowsFile()
{
    return "\"New %@ Window\" = \"w %@\";";
}

/// A folder "app" and a folder "framework" that hold languages as these tests need them.
class Resources {
public:
    void add(const QString &code, const QByteArray &menu = menuFile(), const QByteArray &windows = windowsFile()) const
    {
        folder_.write(menuPath(code), menu);
        folder_.write(windowsPath(code), windows);
    }

    [[nodiscard]] QList<SafariLanguage> load() const
    {
        return vantrel::load(folder_.path(u"app"_s), folder_.path(u"framework"_s));
    }

    [[nodiscard]] static QString menuPath(const QString &code) { return u"app/"_s + code + u".lproj/MainMenu.strings"; }
    [[nodiscard]] static QString windowsPath(const QString &code)
    {
        return u"framework/"_s + code + u".lproj/Localizable.strings";
    }

    [[nodiscard]] const test::TemporaryFolder &folder() const { return folder_; }

private:
    test::TemporaryFolder folder_;
};

TEST(SafariMenusLoading, EnglishComesFirstThenTheOthersByTheirCodes)
{
    const QList<SafariLanguage> expected{
        SafariLanguage::english(),
        {u"ar"_s, u"ملف"_s, u"تحرير"_s, u"نافذة جديدة"_s, u"نافذة خاصة جديدة"_s, u"نافذة \u2068%@\u2069 جديدة"_s},
        {u"de"_s, u"Ablage"_s, u"Bearbeiten"_s, u"Neues Fenster"_s, u"Neues privates Fenster"_s,
         u"Neues Fenster „%@“"_s},
        {u"ja"_s, u"ファイル"_s, u"編集"_s, u"新規ウインドウ"_s, u"新規プライベートウインドウ"_s,
         u"新規“%@”ウインドウ"_s},
        {u"tr"_s, u"Dosya"_s, u"Düzen"_s, u"Yeni Pencere"_s, u"Yeni Özel Pencere"_s, u"%1$@ Penceresi (Yeni)"_s},
    };
    EXPECT_EQ(handwritten(), expected);
    EXPECT_EQ(load(languagesFolder + u"/App"_s, languagesFolder + u"/Framework"_s), expected);
}

struct MenuRow {
    QString code;
    QStringList menuBar;
    QStringList titles;
    QStringList profiles;
};

TEST(SafariMenusLoading, ProfilesAreFoundInEachLanguage)
{
    const std::vector<MenuRow> rows{
        {u"en"_s,
         {u""_s, u"Safari"_s, u"File"_s, u"Edit"_s},
         {u"New Window"_s, u"New Private Window"_s, u"New Work Window"_s, u"New Tab"_s},
         {u"Work"_s}},
        {u"ar"_s,
         {u""_s, u"Safari"_s, u"ملف"_s, u"تحرير"_s},
         {u"نافذة جديدة"_s, u"نافذة خاصة جديدة"_s, u"نافذة \u2068عمل\u2069 جديدة"_s},
         {u"عمل"_s}},
        {u"de"_s,
         {u""_s, u"Safari"_s, u"Ablage"_s, u"Bearbeiten"_s},
         {u"Neues Fenster"_s, u"Neues privates Fenster"_s, u"Neues Fenster „Arbeit (1)“"_s, u"Neuer Tab"_s},
         {u"Arbeit (1)"_s}},
        {u"ja"_s,
         {u""_s, u"Safari"_s, u"ファイル"_s, u"編集"_s},
         {u"新規ウインドウ"_s, u"新規プライベートウインドウ"_s, u"新規“仕事”ウインドウ"_s, u"新規“”ウインドウ"_s},
         {u"仕事"_s}},
        {u"tr"_s,
         {u""_s, u"Safari"_s, u"Dosya"_s, u"Düzen"_s},
         {u"Yeni Pencere"_s, u"Yeni Özel Pencere"_s, u"İş Penceresi (Yeni)"_s, u" Penceresi (Yeni)"_s},
         {u"İş"_s}},
    };
    const QList<SafariLanguage> languages = handwritten();
    for (const auto &[code, menuBar, titles, profiles] : rows) {
        const SafariLanguage language = SafariMenus::language(menuBar, languages);
        EXPECT_EQ(language.code, code);
        EXPECT_EQ(SafariMenus::profileNames(titles, language), profiles);
        EXPECT_EQ(SafariMenus::position(profiles.constFirst(), titles, language), 3) << code.toStdString();
    }
}

TEST(SafariMenusLoading, WithoutFoldersThereIsOnlyEnglish)
{
    const QList<SafariLanguage> english{SafariLanguage::english()};
    const Resources resources;
    EXPECT_EQ(resources.load(), english);
    EXPECT_EQ(load(resources.folder().write(u"file"_s), languagesFolder + u"/Framework"_s), english);
    EXPECT_EQ(load(languagesFolder + u"/App"_s, resources.folder().path(u"missing"_s)), english);
    EXPECT_EQ(load(resources.folder().makeFolder(u"empty"_s), languagesFolder + u"/Framework"_s), english);
}

TEST(SafariMenusLoading, AnAddressThatIsNoFolderHereIsNotTakenForTheCurrentOne)
{
    const Resources resources;
    resources.add(u"de"_s);
    const QString appFolder = resources.folder().path(u"app"_s);
    const QString frameworkFolder = resources.folder().path(u"framework"_s);
    const QString former = QDir::currentPath();
    for (const QUrl &noFolder : {QUrl(), QUrl(u"https://example.com/"_s)}) {
        ASSERT_TRUE(QDir::setCurrent(appFolder));
        EXPECT_EQ(codes(SafariMenus::loadLanguages(noFolder, QUrl::fromLocalFile(frameworkFolder))), u"en"_s);
        ASSERT_TRUE(QDir::setCurrent(frameworkFolder));
        EXPECT_EQ(codes(SafariMenus::loadLanguages(QUrl::fromLocalFile(appFolder), noFolder)), u"en"_s);
    }
    EXPECT_TRUE(QDir::setCurrent(former));
}

TEST(SafariMenusLoading, AFolderThatMayNotBeListedHasNoLanguages)
{
    const Resources resources;
    resources.add(u"de"_s);
    const auto answer = [&resources] { return codes(resources.load()); };
    EXPECT_EQ(test::answerOfUnprivilegedProcess(answer), u"en de"_s);
    const test::ClosedPath guard(resources.folder().path(u"app"_s));
    EXPECT_EQ(test::answerOfUnprivilegedProcess(answer), u"en"_s);
}

TEST(SafariMenusLoading, AFileThatMayNotBeReadLeavesOutItsLanguage)
{
    const Resources resources;
    resources.add(u"de"_s);
    resources.add(u"fr"_s);
    const test::ClosedPath guard(resources.folder().path(Resources::windowsPath(u"de"_s)));
    EXPECT_EQ(test::answerOfUnprivilegedProcess([&resources] { return codes(resources.load()); }), u"en fr"_s);
}

TEST(SafariMenusLoading, CodesAreTheNamesOfLocalizationFolders)
{
    const Resources resources;
    for (const QString &code : {u"zh-Hant"_s, u"Zulu"_s, u"en-GB"_s, u"en"_s, u"Base"_s, u"base"_s, u"EN"_s, u"pt_BR"_s,
                                u"de"_s, u".fr"_s, u"a.b"_s, u"\uFF5E"_s, u"\U00010400"_s, u""_s, u"x y"_s})
        resources.add(code);
    for (const QString &name : {u"it.LPROJ"_s, u"it.lproj.bak"_s, u"it"_s, u"itlproj"_s})
        resources.folder().write(u"app/"_s + name + u"/MainMenu.strings"_s, menuFile());
    resources.folder().write(u"app/es.lproj"_s);
    EXPECT_EQ(codes(resources.load()), u"en  .fr EN Zulu a.b base de en-GB pt_BR x y zh-Hant \uFF5E \U00010400"_s);
}

TEST(SafariMenusLoading, FoldersInLocalizationFoldersAreNotSearched)
{
    const Resources resources;
    resources.add(u"de"_s);
    resources.add(u"de.lproj/fr"_s);
    EXPECT_EQ(codes(resources.load()), u"en de"_s);
}

TEST(SafariMenusLoading, ALanguageWithoutOneOfItsTextsIsLeftOut)
{
    for (const QByteArray key : {"81.title", "163.title", "82.title", "CV2-YC-yYw.title", "New %@ Window"}) {
        const Resources resources;
        resources.add(u"aa"_s);
        resources.add(u"de"_s, QByteArray(menuFile()).replace(key, "other"), windowsFile().replace(key, "other"));
        resources.add(u"zz"_s);
        EXPECT_EQ(codes(resources.load()), u"en aa zz"_s) << key.toStdString();
    }
}

TEST(SafariMenusLoading, ALanguageWhoseFilesCannotBeReadIsLeftOut)
{
    const std::vector<QByteArray> contents{
        "",        "/* empty */", "{}",      "81.title = f",  "81.title", "\xFF\xFE\x61", "<plist><array/></plist>",
        "<plist>", "bplist00",    "<html/>", "( f, e, n, p )"};
    for (const QByteArray &content : contents) {
        const Resources resources;
        resources.add(u"aa"_s);
        resources.add(u"de"_s, content);
        resources.add(u"fr"_s, menuFile(), content);
        resources.add(u"zz"_s);
        EXPECT_EQ(codes(resources.load()), u"en aa zz"_s) << content.toStdString();
    }
}

TEST(SafariMenusLoading, ALanguageWithoutOneOfItsFilesIsLeftOut)
{
    const Resources resources;
    resources.folder().write(Resources::menuPath(u"de"_s), menuFile());
    resources.folder().write(Resources::windowsPath(u"fr"_s), windowsFile());
    resources.folder().makeFolder(u"app/fr.lproj"_s);
    resources.folder().makeFolder(u"app/it.lproj/MainMenu.strings"_s);
    resources.folder().write(Resources::windowsPath(u"it"_s), windowsFile());
    resources.add(u"zz"_s);
    EXPECT_EQ(codes(resources.load()), u"en zz"_s);
}

TEST(SafariMenusLoading, ALanguageWhoseFilesHoldMoreThanTextsIsLeftOut)
{
    const Resources resources;
    resources.add(u"aa"_s, menuFile() + "other = text;", windowsFile() + "other = text;");
    resources.add(u"de"_s, menuFile() + "other = ();");
    resources.add(u"fr"_s, menuFile(), windowsFile() + "other = { a = b; };");
    resources.add(u"it"_s, menuFile() + "82.title = ();");
    EXPECT_EQ(codes(resources.load()), u"en aa"_s);
}

TEST(SafariMenusLoading, TextsAreUsedExactlyAsTheyAreFound)
{
    const Resources resources;
    resources.add(u"xx"_s, R"(81.title = " F\n"; 163.title = ""; 82.title = "\t"; CV2-YC-yYw.title = "%@";)",
                  "\"New %@ Window\" = \"  \";");
    const SafariLanguage expected{u"xx"_s, u" F\n"_s, u""_s, u"\t"_s, u"%@"_s, u"  "_s};
    EXPECT_EQ(resources.load(), QList<SafariLanguage>({SafariLanguage::english(), expected}));
}

TEST(SafariMenusLoading, EveryFormOfStringsFileIsALanguages)
{
    test::BinaryPropertyList list;
    const int text = list.addText(u"\u7DE8"_s);
    const QList<int> keys{list.addAscii("81.title"), list.addAscii("163.title"), list.addAscii("82.title"),
                          list.addAscii("CV2-YC-yYw.title")};
    const Resources resources;
    resources.add(u"binary"_s, list.content(list.addDictionary(keys, {text, text, text, text})));
    resources.add(u"utf16be"_s, test::bigEndian(QString::fromUtf8(menuFile())), test::bigEndian(u"'New %@ Window';"_s));
    resources.add(u"utf16le"_s, test::littleEndian(QString::fromUtf8(menuFile())));
    resources.add(u"xml"_s, menuFile(), "<plist><dict><key>New %@ Window</key><string>w %@</string></dict></plist>");
    const QString character = u"\u7DE8"_s;
    EXPECT_EQ(resources.load(),
              QList<SafariLanguage>({SafariLanguage::english(),
                                     {u"binary"_s, character, character, character, character, u"w %@"_s},
                                     {u"utf16be"_s, u"f"_s, u"e"_s, u"n"_s, u"p"_s, u"New %@ Window"_s},
                                     {u"utf16le"_s, u"f"_s, u"e"_s, u"n"_s, u"p"_s, u"w %@"_s},
                                     {u"xml"_s, u"f"_s, u"e"_s, u"n"_s, u"p"_s, u"w %@"_s}}));
}

TEST(SafariMenusLoading, ARegionalEnglishWithTheSameTitlesIsTakenForEnglish)
{
    const Resources resources;
    resources.add(u"en-AU"_s, QByteArray(menuFile()).replace("= f;", "= File;").replace("= e;", "= Edit;"));
    const QList<SafariLanguage> languages = resources.load();
    EXPECT_EQ(codes(languages), u"en en-AU"_s);
    EXPECT_EQ(SafariMenus::language({u""_s, u"Safari"_s, u"File"_s, u"Edit"_s, u"View"_s}, languages),
              SafariLanguage::english());
}

} // namespace
} // namespace vantrel
