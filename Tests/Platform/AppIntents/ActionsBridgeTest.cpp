#include "Platform/AppIntents/ActionsBridge.h"

#include "Platform/AppIntents/IntentActionService.h"
#include "Tests/Fakes/FakeActionAnswers.h"

#include <gtest/gtest.h>

#include <optional>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// What a caller in C keeps of its answers. It copies all, for nothing is valid any longer than its callback runs.
struct Caller {
    QList<SystemProfile> profiles;
    std::optional<VantrelOutcome> outcome;
    int answers = 0;
};

void takeProfiles(void *context, const VantrelProfile *profiles, std::size_t count)
{
    auto &caller = *static_cast<Caller *>(context);
    ++caller.answers;
    caller.profiles.clear();
    for (std::size_t at = 0; at < count; ++at) {
        const VantrelProfile &profile = profiles[at];
        const auto *picture = reinterpret_cast<const char *>(profile.picture);
        EXPECT_EQ(picture == nullptr, profile.pictureSize == 0);
        caller.profiles.append({QString::fromUtf8(profile.id), QString::fromUtf8(profile.name),
                                QString::fromUtf8(profile.browser), QString::fromUtf8(profile.title),
                                QByteArray(picture, static_cast<qsizetype>(profile.pictureSize))});
    }
}

void takeOutcome(void *context, VantrelOutcome outcome)
{
    auto &caller = *static_cast<Caller *>(context);
    ++caller.answers;
    caller.outcome = outcome;
}

const SystemProfile work{u"chrome/1"_s, u"Büro 🗂"_s, u"Chrome"_s, u"Chrome – Büro 🗂"_s, QByteArray("\x89PNG\0\1", 6)};
const SystemProfile home{u"chrome/2"_s, u"Home"_s, u"Chrome"_s, u"Chrome – Home"_s, {}};

class ActionsBridgeTest : public testing::Test {
protected:
    ActionsBridgeTest() { answers_.setProfiles({work, home}); }

    test::FakeActionAnswers answers_;
    std::optional<IntentActionService> service_{std::in_place, [] {}};
    Caller caller_;
};

TEST_F(ActionsBridgeTest, ProfilesAreHandedOnWithAllThatTheyHave)
{
    service_->start(answers_);
    vantrelSuggestedProfiles(&caller_, takeProfiles);
    EXPECT_EQ(caller_.profiles, QList<SystemProfile>({work, home}));
    EXPECT_EQ(caller_.answers, 1);
    EXPECT_EQ(answers_.takeCalls(), QStringList(u"suggested"_s));
}

TEST_F(ActionsBridgeTest, ProfilesAreAskedForByTheirIDsInTheirOrder)
{
    service_->start(answers_);
    const char *const ids[] = {"chrome/2", "gone/ü", "chrome/1"};
    vantrelProfilesWithIDs(ids, 3, &caller_, takeProfiles);
    EXPECT_EQ(answers_.takeCalls(), QStringList(u"profiles chrome/2|gone/ü|chrome/1"_s));
    EXPECT_EQ(caller_.profiles, QList<SystemProfile>({home, work}));
}

TEST_F(ActionsBridgeTest, NoIDsAndUnknownOnesHaveNoProfiles)
{
    service_->start(answers_);
    vantrelProfilesWithIDs(nullptr, 0, &caller_, takeProfiles);
    EXPECT_EQ(caller_.answers, 1);
    const char *const ids[] = {"gone"};
    vantrelProfilesWithIDs(ids, 1, &caller_, takeProfiles);
    EXPECT_EQ(caller_.answers, 2);
    EXPECT_EQ(caller_.profiles, QList<SystemProfile>());
}

TEST_F(ActionsBridgeTest, WhatWasTypedIsSearchedFor)
{
    service_->start(answers_);
    vantrelProfilesMatching("büro – x", &caller_, takeProfiles);
    EXPECT_EQ(answers_.takeCalls(), QStringList(u"matching büro – x"_s));
    EXPECT_EQ(caller_.profiles.size(), 2);
}

TEST_F(ActionsBridgeTest, AnOpeningEndsWhenTheProgramSaysSo)
{
    service_->start(answers_);
    answers_.holdNext();
    vantrelOpenProfile("chrome/1", &caller_, takeOutcome);
    EXPECT_EQ(caller_.answers, 0);
    answers_.goOn();
    EXPECT_EQ(caller_.outcome, vantrelPerformed);
    EXPECT_EQ(caller_.answers, 1);
    EXPECT_EQ(answers_.takeCalls(), QStringList(u"open chrome/1"_s));
}

TEST_F(ActionsBridgeTest, LinksKeepTheirOrderAndTheirText)
{
    service_->start(answers_);
    const char *const links[] = {"https://example.org/b%20c?q=%26#d", "https://ex%C3%A4mple.org/"};
    vantrelOpenLinks(links, 2, "chrome/1", &caller_, takeOutcome);
    vantrelOpenLinks(nullptr, 0, "chrome/2", &caller_, takeOutcome);
    EXPECT_EQ(answers_.takeCalls(),
              QStringList({u"open chrome/1 with https://example.org/b%20c?q=%26#d|https://xn--exmple-cua.org/"_s,
                           u"open chrome/2 with "_s}));
    EXPECT_EQ(caller_.answers, 2);
}

TEST_F(ActionsBridgeTest, AProfileThatIsGoneIsToBeChosenAgain)
{
    service_->start(answers_);
    answers_.setOutcome(ActionAnswers::Outcome::needsProfile);
    vantrelOpenProfile("gone", &caller_, takeOutcome);
    EXPECT_EQ(caller_.outcome, vantrelNeedsProfile);
    caller_.outcome.reset();
    vantrelOpenLinks(nullptr, 0, "gone", &caller_, takeOutcome);
    EXPECT_EQ(caller_.outcome, vantrelNeedsProfile);
}

TEST_F(ActionsBridgeTest, CallsBeforeTheStartAreAnsweredWithIt)
{
    Caller opening;
    {
        // Theirs no longer when they are answered.
        const QByteArray id("chrome/2");
        const char *const ids[] = {id.constData()};
        vantrelProfilesWithIDs(ids, 1, &caller_, takeProfiles);
        vantrelOpenProfile(id.constData(), &opening, takeOutcome);
    }
    EXPECT_EQ(caller_.answers, 0);
    service_->start(answers_);
    EXPECT_EQ(answers_.takeCalls(), QStringList({u"profiles chrome/2"_s, u"open chrome/2"_s}));
    EXPECT_EQ(caller_.profiles, QList<SystemProfile>(1, home));
    EXPECT_EQ(opening.outcome, vantrelPerformed);
    EXPECT_EQ(caller_.answers + opening.answers, 2);
}

TEST_F(ActionsBridgeTest, CallsThatNobodyWillAnswerAreTold)
{
    Caller opening;
    vantrelSuggestedProfiles(&caller_, takeProfiles);
    vantrelOpenProfile("chrome/1", &opening, takeOutcome);
    service_.reset();
    EXPECT_EQ(caller_.answers, 1);
    EXPECT_EQ(caller_.profiles, QList<SystemProfile>());
    EXPECT_EQ(opening.answers, 1);
    EXPECT_EQ(opening.outcome, vantrelUnavailable);
}

TEST_F(ActionsBridgeTest, NothingIsAskedOfWhoHasLeft)
{
    service_->start(answers_);
    service_.reset();
    vantrelOpenProfile("chrome/1", &caller_, takeOutcome);
    EXPECT_EQ(answers_.takeCalls(), QStringList());
    EXPECT_EQ(caller_.answers, 0);
    // Tells the one who waits.
    service_.emplace([] {});
    service_.reset();
    EXPECT_EQ(caller_.outcome, vantrelUnavailable);
}

TEST(IntentActionService, TellsTheFrameworkOfOtherProfiles)
{
    static int updates;
    updates = 0;
    IntentActionService service([] { ++updates; });
    EXPECT_EQ(updates, 0);
    service.announceChange();
    EXPECT_EQ(updates, 1);
}

} // namespace
} // namespace vantrel
