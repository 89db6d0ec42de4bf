#include "Platform/InstanceMessage.h"

#include "Tests/Contract/ApplicationInstanceContract.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using InstanceMessage::Answer;
using Kind = InstanceRequest::Kind;

QString refusal(const QByteArray &line)
{
    const auto request = InstanceMessage::parsedRequest(line);
    return request ? u"taken"_s : request.error();
}

TEST(InstanceMessage, ARequestIsOneLineWhateverItHolds)
{
    for (const Kind kind : {Kind::activate, Kind::open, Kind::action}) {
        for (const QString &text : test::oddTexts()) {
            const InstanceRequest request{
                .kind = kind, .links = {text, {}, text}, .action = text, .activationToken = text, .startupID = text};
            const QByteArray line = InstanceMessage::line(request);
            EXPECT_EQ(line.indexOf('\n'), line.size() - 1) << line.toStdString();
            EXPECT_EQ(InstanceMessage::parsedRequest(line), request);
        }
    }
}

TEST(InstanceMessage, ARequestIsWrittenWithoutWhatIsEmpty)
{
    EXPECT_EQ(InstanceMessage::line(InstanceRequest{}), "{\"kind\":\"activate\",\"version\":1}\n");
    EXPECT_EQ(InstanceMessage::line({.kind = Kind::action, .action = u"menu"_s}),
              "{\"action\":\"menu\",\"kind\":\"action\",\"version\":1}\n");
    EXPECT_EQ(InstanceMessage::line({.kind = Kind::open, .links = {u"a"_s, u""_s}, .activationToken = u"t"_s}),
              "{\"activationToken\":\"t\",\"kind\":\"open\",\"links\":[\"a\",\"\"],\"version\":1}\n");
}

TEST(InstanceMessage, MembersThatANewerVersionAddsArePassedOver)
{
    EXPECT_EQ(InstanceMessage::parsedRequest(R"({"version":1,"kind":"open","links":["a"],"new":[1]})"),
              (InstanceRequest{.kind = Kind::open, .links = {u"a"_s}}));
}

TEST(InstanceMessage, WhatIsNoRequestIsRefused)
{
    for (const QByteArray &line : {
             QByteArray(),
             QByteArray("GET / HTTP/1.1"),
             QByteArray("\0\xff\xfe", 3),
             QByteArray("[]"),
             QByteArray("{}"),
             QByteArray(R"({"kind":"activate"})"),
             QByteArray(R"({"version":"1","kind":"activate"})"),
             QByteArray(R"({"version":1})"),
             QByteArray(R"({"version":1,"kind":"destroy"})"),
             QByteArray(R"({"version":1,"kind":""})"),
             QByteArray(R"({"version":1,"kind":1})"),
             QByteArray(R"({"version":1,"kind":"open","links":"a"})"),
             QByteArray(R"({"version":1,"kind":"open","links":["a",1]})"),
             QByteArray(R"({"version":1,"kind":"action","action":{}})"),
             QByteArray(R"({"version":1,"kind":"activate","activationToken":1})"),
             QByteArray(R"({"version":1,"kind":"activate","startupID":null})"),
             QByteArray(R"({"version":1,"kind":"activate")"),
             QByteArray(100000, '['),
         })
        EXPECT_EQ(refusal(line), u"The request is malformed."_s)
            << line.first(std::min(line.size(), 80LL)).toStdString();
}

TEST(InstanceMessage, ARequestOfAnotherVersionIsRefusedWithWhatToDo)
{
    for (const QByteArray line : {R"({"version":2,"kind":"activate"})", R"({"version":0,"sort":"new"})"})
        EXPECT_EQ(refusal(line), u"It is another version. Quit it and start it again."_s);
}

TEST(InstanceMessage, AnAnswerIsOneLine)
{
    EXPECT_EQ(InstanceMessage::line(Answer{.isAccepted = true}), "{\"accepted\":true,\"version\":1}\n");
    const Answer refused{.isAccepted = false, .reason = u"line\nbreak"_s};
    EXPECT_EQ(InstanceMessage::line(refused).count('\n'), 1);
    EXPECT_EQ(InstanceMessage::parsedAnswer(InstanceMessage::line(refused)), refused);
}

TEST(InstanceMessage, WhatIsNoAnswerIsNone)
{
    for (const QByteArray line : {"", "{", "HTTP/1.1 200 OK", "{}", R"({"accepted":"yes"})", "[true]"})
        EXPECT_EQ(InstanceMessage::parsedAnswer(line), std::nullopt) << line.toStdString();
}

} // namespace
} // namespace vantrel
