#include "VantrelKit/Safari/StringsFile.h"

#include "Tests/VantrelKit/Safari/BinaryPropertyList.h"
#include "Tests/VantrelKit/Safari/StringsTexts.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::bigEndian;
using test::littleEndian;
using test::shown;

QString parsed(const QByteArray &content)
{
    return shown(StringsFile::parse(content));
}

TEST(StringsFile, TextIsReadInEachEncoding)
{
    const QString text = u"\"ä\" = \"\u7DE8\U0001F600\";"_s;
    const QString expected = u"ä=\u7DE8\U0001F600"_s;
    EXPECT_EQ(parsed(text.toUtf8()), expected);
    EXPECT_EQ(parsed("\xEF\xBB\xBF" + text.toUtf8()), expected);
    EXPECT_EQ(parsed(littleEndian(text)), expected);
    EXPECT_EQ(parsed(bigEndian(text)), expected);
}

TEST(StringsFile, AnEmptyFileHoldsNothing)
{
    for (const QByteArray &content : {QByteArray(), QByteArray(" \n"), QByteArray("\xEF\xBB\xBF"),
                                      QByteArray("\xFF\xFE"), QByteArray("\xFE\xFF"), littleEndian(u"/* a */"_s)})
        EXPECT_EQ(parsed(content), u""_s) << content.toHex().toStdString();
}

TEST(StringsFile, TextInAnotherEncodingIsAnError)
{
    const std::vector<std::pair<QByteArray, QString>> rows{
        {"\"\xE4\" = b;", u"It isn't UTF-8 text from beginning to end"_s},
        {"a = \"\xC3", u"It isn't UTF-8 text from beginning to end"_s},
        {"a = \"\xED\xA0\x80\";", u"It isn't UTF-8 text from beginning to end"_s},
        {"a = \"\xC0\xAF\";", u"It isn't UTF-8 text from beginning to end"_s},
        {"\xEF\xBB\xBF\xFF", u"It isn't UTF-8 text from beginning to end"_s},
        {QByteArray("\xFF\xFE\x61", 3), u"It isn't UTF-16 text from beginning to end"_s},
        {QByteArray("\xFE\xFF\x00\x61\x00", 5), u"It isn't UTF-16 text from beginning to end"_s},
        {littleEndian(u"a = b;"_s).sliced(2), u"line 1, column 2: An equals sign or a semicolon is missing"_s},
        {bigEndian(u"a = b;"_s).sliced(2), u"line 1, column 1: A text is missing"_s},
        {"\xEF\xBB\xBF\xEF\xBB\xBF"
         "a = b;",
         u"line 1, column 1: A text is missing"_s},
        {"\x89PNG\r\n\x1A\n", u"It isn't UTF-8 text from beginning to end"_s},
    };
    for (const auto &[content, error] : rows)
        EXPECT_EQ(parsed(content), error) << content.toHex().toStdString();
}

TEST(StringsFile, HalfASurrogatePairOfUtf16IsReplaced)
{
    EXPECT_EQ(parsed(littleEndian(u"a = \"b"_s) + QByteArray("\x3D\xD8\x22\x00\x3B\x00", 6)), u"a=b\uFFFD"_s);
}

TEST(StringsFile, APropertyListIsReadInEachForm)
{
    const QString xml = u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>ä</key>"
                        "<string>\u7DE8</string></dict></plist>\n"_s;
    const QString expected = u"ä=\u7DE8"_s;
    EXPECT_EQ(parsed(xml.toUtf8()), expected);
    EXPECT_EQ(parsed("\xEF\xBB\xBF" + xml.toUtf8()), expected);
    EXPECT_EQ(parsed("\n " + xml.toUtf8()), expected);
    EXPECT_EQ(parsed(littleEndian(xml)), expected);
    EXPECT_EQ(parsed(bigEndian(xml)), expected);

    test::BinaryPropertyList list;
    const int key = list.addText(u"ä"_s);
    EXPECT_EQ(parsed(list.content(list.addDictionary({key}, {list.addText(u"\u7DE8"_s)}))), expected);
}

TEST(StringsFile, AFileThatIsTooLargeIsAnError)
{
    const QByteArray largest = "a = b;" + QByteArray(StringsFile::largestSize - 6, ' ');
    EXPECT_EQ(parsed(largest), u"a=b"_s);
    EXPECT_EQ(parsed(largest + ' '), u"It is larger than 4194304 bytes"_s);

    const test::TemporaryFolder folder;
    EXPECT_EQ(shown(StringsFile::read(folder.write(u"largest"_s, largest))), u"a=b"_s);
    EXPECT_EQ(shown(StringsFile::read(folder.write(u"larger"_s, largest + ' '))), u"It is larger than 4194304 bytes"_s);
}

TEST(StringsFile, AFileIsReadByItsPath)
{
    const test::TemporaryFolder folder;
    const QString file = folder.write(u"a b.strings"_s, "a = b;");
    EXPECT_EQ(shown(StringsFile::read(file)), u"a=b"_s);
    EXPECT_EQ(shown(StringsFile::read(folder.link(u"link"_s, file))), u"a=b"_s);
    EXPECT_EQ(shown(StringsFile::read(folder.write(u"empty"_s))), u""_s);
    EXPECT_EQ(shown(StringsFile::read(folder.write(u"bad"_s, "a"))),
              u"line 1, column 2: An equals sign or a semicolon is missing"_s);
}

TEST(StringsFile, WhatIsMissingOrNoFileIsAnError)
{
    const test::TemporaryFolder folder;
    for (const QString &path : {folder.path(u"missing"_s), folder.makeFolder(u"folder"_s),
                                folder.link(u"loop"_s, folder.path(u"loop"_s)), u"/dev/null"_s, u""_s})
        EXPECT_EQ(shown(StringsFile::read(path)), u"There is no such file"_s) << path.toStdString();
}

TEST(StringsFile, APipeIsAnErrorAndDoesNotBlock)
{
    const test::TemporaryFolder folder;
    const QString pipe = folder.makePipe(u"pipe"_s);
    EXPECT_EQ(test::answerOfUnprivilegedProcess([&pipe] { return shown(StringsFile::read(pipe)); }),
              u"There is no such file"_s);
}

TEST(StringsFile, AFileThatMayNotBeReadIsAnError)
{
    const test::TemporaryFolder folder;
    const QString path = folder.write(u"closed"_s, "a = b;");
    const auto answer = [&path] { return shown(StringsFile::read(path)); };
    EXPECT_EQ(test::answerOfUnprivilegedProcess(answer), u"a=b"_s);
    const test::ClosedPath guard(path);
    EXPECT_EQ(test::answerOfUnprivilegedProcess(answer), u"Permission denied"_s);
}

TEST(StringsFile, TheLastValueOfAKeyCounts)
{
    StringsFile file;
    EXPECT_TRUE(file.setText(u"a"_s, u"1"_s));
    EXPECT_TRUE(file.setOther(u"a"_s));
    EXPECT_EQ(shown(file), u"a?"_s);
    EXPECT_TRUE(file.setText(u"a"_s, u"2"_s));
    EXPECT_EQ(shown(file), u"a=2"_s);
}

} // namespace
} // namespace vantrel
