#include "Tests/Platform/Linux/Search/SearchFixture.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QString interface = u"app.kestrune.Vantrel."_s;

using ProfilesInterfaceTest = test::SearchFixture;

TEST_F(ProfilesInterfaceTest, ListsProfiles)
{
    EXPECT_EQ(call(interface + u"ListProfiles"_s), u"(@aa{sv} [],)"_s);
    answers_.setListed({{.id = u"a/1"_s,
                         .browserBundleID = u"a"_s,
                         .browser = u"Chrome"_s,
                         .family = u"chromium"_s,
                         .name = u"Own"_s,
                         .displayName = u"Wörk"_s,
                         .title = u"Chrome – Wörk"_s,
                         .isPrivate = false,
                         .isHidden = true,
                         .link = u"vantrel://?a"_s}});
    EXPECT_EQ(call(interface + u"ListProfiles"_s),
              u"([{'browser': <'Chrome'>, 'browserBundleIdentifier': <'a'>, 'displayName': <'Wörk'>, "
              "'family': <'chromium'>, 'hidden': <true>, 'id': <'a/1'>, 'link': <'vantrel://?a'>, 'name': <'Own'>, "
              "'private': <false>, 'title': <'Chrome – Wörk'>}],)"_s);
}

TEST_F(ProfilesInterfaceTest, OpensProfilesAndLinksWithTheTokensOfTheCaller)
{
    const QString data = u"{'activation-token': <'token'>, 'desktop-startup-id': <'startup'>, 'other': <7>}"_s;
    EXPECT_EQ(call(interface + u"OpenProfile"_s, {u"a/1"_s, data}), u"()"_s);
    EXPECT_EQ(call(interface + u"OpenLinks"_s, {u"a/1"_s, u"['https://a', 'b']"_s, u"{}"_s}), u"()"_s);
    EXPECT_EQ(answers_.takeCalls(),
              QStringList({u"open a/1  [token] [startup] 0"_s, u"open a/1 https://a|b [] [] 0"_s}));
}

TEST_F(ProfilesInterfaceTest, RefusalsAreErrorsWithTheirMessage)
{
    answers_.refuse({ProfileAnswers::Refusal::Reason::unknownProfile, u"There is none."_s});
    EXPECT_EQ(call(interface + u"OpenProfile"_s, {u"x"_s, u"{}"_s}),
              u"Error: GDBus.Error:app.kestrune.Vantrel.Error.UnknownProfile: There is none."_s);
    answers_.refuse({ProfileAnswers::Refusal::Reason::badLink, u"That is no link."_s});
    EXPECT_EQ(call(interface + u"OpenLinks"_s, {u"x"_s, u"['y']"_s, u"{}"_s}),
              u"Error: GDBus.Error:app.kestrune.Vantrel.Error.BadLink: That is no link."_s);
}

} // namespace
} // namespace vantrel
