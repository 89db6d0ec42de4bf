#include "VantrelKit/JsonFile.h"

#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// The text member "member" of the object in a text: what was read and whether it could be.
struct TextMember {
    bool isReadable = false;
    std::optional<QString> text;
};

TextMember textMember(const QByteArray &json)
{
    simdjson::dom::object object;
    TextMember result{.isReadable = false, .text = u"untouched"_s};
    const auto root = json::parse(json);
    if (!root || root->get(object) != simdjson::SUCCESS) {
        ADD_FAILURE() << json.toStdString();
        return result;
    }
    result.isReadable = json::readText(object, "member", result.text);
    return result;
}

bool isJson(const QByteArray &text)
{
    return json::parse(text).has_value();
}

/// The text member "member" of the object in a file; none when there is no object.
std::optional<QString> memberOfFile(const QString &path)
{
    const auto object = json::readObject(path);
    std::optional<QString> text;
    return object && json::readText(*object, "member", text) ? text : std::nullopt;
}

QString answerOf(const QString &path)
{
    return test::answerOfUnprivilegedProcess([&path] { return json::readObject(path) ? u"read"_s : u"none"_s; });
}

TEST(JsonFile, JsonOfAnyKindIsParsed)
{
    for (const QByteArray text : {"{}", "[]", "1", "-1.5e3", "true", "null", "\"x\"", " \r\n\t{ } \n", "[[[{}]]]"})
        EXPECT_TRUE(isJson(text)) << text.toStdString();
}

TEST(JsonFile, TextThatIsNotJsonFromBeginningToEndIsNone)
{
    for (const QByteArray text :
         {"", " ", "{", "}", "{}}", "{} x", "[1,]", "{\"a\"}", "nul", "01", "'x'", "\"\xff\"", "+1"})
        EXPECT_FALSE(isJson(text)) << text.toStdString();
    EXPECT_FALSE(isJson(QByteArray("{}\0", 3)));
    EXPECT_FALSE(isJson(QByteArray()));
}

TEST(JsonFile, NumbersBeyond64BitsAreJson)
{
    for (const QByteArray number : {"18446744073709551615", "18446744073709551616", "-9223372036854775809",
                                    "123456789012345678901234567890", "1e300"}) {
        EXPECT_TRUE(isJson("[" + number + "]")) << number.toStdString();
        EXPECT_EQ(textMember("{\"a\": " + number + ", \"member\": \"W\xC3\xB6rk \\u05d0\\n\"}").text,
                  u"W\u00f6rk \u05d0\n"_s);
    }
}

TEST(JsonFile, NumbersBeyond64BitsLeaveTextAsItIs)
{
    const QByteArray digits(40, '9');
    const std::vector<std::pair<QByteArray, QString>> rows{
        {"N", u"N"_s}, {R"(\"N\" N)", u"\"N\" N"_s}, {R"(\\)", u"\\"_s}, {R"(N\\)", u"N\\"_s}, {R"(\\\"N)", u"\\\"N"_s},
        {"", u""_s},   {R"(\u0022N)", u"\"N"_s},
    };
    for (auto [json, text] : rows) {
        const QByteArray whole =
            R"({"before": N, "member": ")" + json + R"(", "N": "N", "after": [-N, N, N.5, 1e2, 0.N]})";
        EXPECT_EQ(textMember(QByteArray(whole).replace("N", digits)).text,
                  text.replace(u"N"_s, QString::fromLatin1(digits)))
            << json.toStdString();
    }
}

TEST(JsonFile, NumbersAroundTheLimitsAreJson)
{
    for (qsizetype length = 1; length < 60; ++length) {
        for (const QByteArray form : {"[N]", "[-N]", "[N,N]", "[ N ]", "{\"a\":N}", "[N.5]", "[1.N]", "[N.Ne0]"})
            EXPECT_TRUE(isJson(QByteArray(form).replace("N", QByteArray(length, '9')))) << form.toStdString() << length;
    }
}

TEST(JsonFile, NumbersBeyond64BitsExcuseNothingElse)
{
    const QByteArray number = "123456789012345678901234567890";
    for (const QByteArray text :
         {"[N", "[N,]", "[N] x", "{N}", "[N, 01]", "[01, N]", "[N, \"\xff\"]", "[N, nul]", "[Na]", "[0N]", "[+N]",
          "N N", "[N][N]", "[N true]", "[\"a\": N]", "{\"a: N}", "[\"N", "[N, \"\\", "[N, \"a\\\"]"})
        EXPECT_FALSE(isJson(QByteArray(text).replace("N", number))) << text.toStdString();
}

TEST(JsonFile, NumbersThatAreNoJsonAreNone)
{
    for (const QByteArray text :
         {"[01]", "[-]", "[1.]", "[.5]", "[1e]", "[0x10]", "[1_000]", "[--1]", "[NaN]", "[Infinity]"})
        EXPECT_FALSE(isJson(text)) << text.toStdString();
}

TEST(JsonFile, WhatWasParsedBeforeLeavesNoTrace)
{
    const QByteArray large = "{\"a\": \"" + QByteArray(100000, 'x') + "\"}";
    EXPECT_TRUE(isJson(large));
    EXPECT_FALSE(isJson(large.first(50)));
    EXPECT_FALSE(isJson(""));
    EXPECT_TRUE(isJson("1"));
    EXPECT_FALSE(isJson(QByteArray(100000, '[')));
    EXPECT_TRUE(isJson(large));
    EXPECT_EQ(textMember(R"({"member": "1"})").text, u"1"_s);
    EXPECT_EQ(textMember(R"({})").text, std::nullopt);
}

TEST(JsonFile, AnObjectIsReadFromAFile)
{
    const test::TemporaryFolder folder;
    EXPECT_EQ(memberOfFile(folder.write(u"file"_s, R"({"member": "Work"})")), u"Work"_s);
    EXPECT_EQ(memberOfFile(folder.link(u"link"_s, folder.path(u"file"_s))), u"Work"_s);
    EXPECT_TRUE(json::readObject(folder.write(u"empty object"_s, "{}")));
}

TEST(JsonFile, AnyFileSizeIsRead)
{
    const test::TemporaryFolder folder;
    for (const qsizetype size : {0, 1, 63, 64, 65, 4095, 4096, 4097, 16384, 1000000}) {
        const QByteArray text(size, 'x');
        const QString path = folder.write(u"file"_s, "{\"member\": \"" + text + "\"}");
        EXPECT_EQ(memberOfFile(path), QString::fromLatin1(text)) << size;
    }
}

TEST(JsonFile, AFileThatHoldsNoObjectIsNone)
{
    const test::TemporaryFolder folder;
    for (const QByteArray text : {"", "[]", "1", "null", "\"x\"", "{", "nonsense"})
        EXPECT_FALSE(json::readObject(folder.write(u"file"_s, text))) << text.toStdString();
}

TEST(JsonFile, AShortFileAfterALongOneIsReadAlone)
{
    const test::TemporaryFolder folder;
    const QString longFile = folder.write(u"long"_s, R"({"member": ")" + QByteArray(100000, 'x') + R"("})");
    const QString shortFile = folder.write(u"short"_s, R"({"member": ")");
    const QString emptyFile = folder.write(u"empty"_s);
    EXPECT_TRUE(json::readObject(longFile));
    EXPECT_FALSE(json::readObject(shortFile));
    EXPECT_TRUE(json::readObject(longFile));
    EXPECT_FALSE(json::readObject(emptyFile));
}

TEST(JsonFile, WhatIsMissingOrNoFileIsNone)
{
    const test::TemporaryFolder folder;
    EXPECT_FALSE(json::readObject(folder.path(u"missing"_s)));
    EXPECT_FALSE(json::readObject(folder.makeFolder(u"folder"_s)));
    EXPECT_FALSE(json::readObject(folder.link(u"loop"_s, folder.path(u"loop"_s))));
    EXPECT_FALSE(json::readObject(u"/dev/null"_s));
    EXPECT_FALSE(json::readObject({}));
}

TEST(JsonFile, APipeIsNoneAndDoesNotBlock)
{
    const test::TemporaryFolder folder;
    EXPECT_EQ(answerOf(folder.makePipe(u"pipe"_s)), u"none"_s);
}

TEST(JsonFile, AFileThatMayNotBeReadIsNone)
{
    const test::TemporaryFolder folder;
    const QString closed = folder.write(u"closed"_s, "{}");
    const test::ClosedPath guard(closed);
    EXPECT_EQ(answerOf(folder.write(u"open"_s, "{}")), u"read"_s);
    EXPECT_EQ(answerOf(closed), u"none"_s);
}

TEST(JsonFile, ThreadsDoNotDisturbEachOther)
{
    const test::TemporaryFolder folder;
    std::vector<std::thread> threads;
    std::vector<int> wrong(4, 0);
    for (size_t index = 0; index < wrong.size(); ++index) {
        const QString text(1000, QChar(u'a' + static_cast<char16_t>(index)));
        const QString path = folder.write(QString::number(index), "{\"member\": \"" + text.toLatin1() + "\"}");
        threads.emplace_back([path, text, &count = wrong[index]] {
            for (int round = 0; round < 200; ++round)
                count += memberOfFile(path) == text ? 0 : 1;
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(wrong, std::vector<int>(4, 0));
}

TEST(JsonFile, ATextMemberIsReadAsUtf8)
{
    EXPECT_EQ(textMember(R"({"other": 1, "member": "Work"})").text, u"Work"_s);
    EXPECT_EQ(textMember(R"({"member": ""})").text, u""_s);
    EXPECT_EQ(textMember("{\"member\": \"caf\xC3\xA9 \xF0\x9F\x98\x80 \\u05d0 \\n \\u0000x\"}").text,
              u"caf\u00e9 \U0001F600 \u05d0 \n \0x"_s);
    EXPECT_TRUE(textMember(R"({"member": "Work"})").isReadable);
}

TEST(JsonFile, ATextMemberThatIsMissingOrNullIsNoneAndReadable)
{
    for (const QByteArray json :
         {R"({})", R"({"member": null})", R"({"Member": "x"})", R"({"other": {"member": "x"}})"}) {
        EXPECT_TRUE(textMember(json).isReadable) << json.toStdString();
        EXPECT_EQ(textMember(json).text, std::nullopt) << json.toStdString();
    }
}

TEST(JsonFile, ATextMemberOfAnotherTypeIsNotReadable)
{
    for (const QByteArray value : {"1", "1.5", "true", "[]", "{}", "[\"x\"]"}) {
        const TextMember member = textMember("{\"member\": " + value + "}");
        EXPECT_FALSE(member.isReadable) << value.toStdString();
        EXPECT_EQ(member.text, std::nullopt) << value.toStdString();
    }
}

} // namespace
} // namespace vantrel
