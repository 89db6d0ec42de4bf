#include "Platform/AppIntents/ActionsBridge.h"

#include "Platform/AppIntents/ActionCalls.h"
#include "Platform/AppIntents/ProfileArray.h"
#include "Platform/AppIntents/Reply.h"

#include <memory>
#include <span>

using namespace vantrel;

namespace {

using ProfilesReply = Reply<const VantrelProfile *, std::size_t>;
using OutcomeReply = Reply<VantrelOutcome>;

QStringList texts(const char *const *first, std::size_t count)
{
    QStringList list;
    for (const char *text : std::span(first, count))
        list.append(QString::fromUtf8(text));
    return list;
}

VantrelOutcome inC(ActionAnswers::Outcome outcome)
{
    switch (outcome) {
    case ActionAnswers::Outcome::performed: return vantrelPerformed;
    case ActionAnswers::Outcome::needsProfile: return vantrelNeedsProfile;
    }
    return vantrelUnavailable;
}

/// `ask` makes the task, when there is somebody to ask.
void askForProfiles(const std::function<ActionAnswers::Profiles(ActionAnswers &answers)> &ask, void *context,
                    ProfilesReply::Function answer)
{
    const auto reply = std::make_shared<ProfilesReply>(context, answer, nullptr, 0);
    ActionCalls::ofProgram().add([ask, reply](ActionAnswers &answers) {
        ask(answers).then([reply](const QList<SystemProfile> &profiles) {
            const ProfileArray array(profiles);
            reply->give(array.data(), array.size());
        });
    });
}

void perform(const std::function<QCoro::Task<ActionAnswers::Outcome>(ActionAnswers &answers)> &start, void *context,
             OutcomeReply::Function end)
{
    const auto reply = std::make_shared<OutcomeReply>(context, end, vantrelUnavailable);
    ActionCalls::ofProgram().add([start, reply](ActionAnswers &answers) {
        start(answers).then([reply](ActionAnswers::Outcome outcome) { reply->give(inC(outcome)); });
    });
}

} // namespace

void vantrelProfilesWithIDs(const char *const *ids, std::size_t count, void *context, ProfilesReply::Function answer)
{
    askForProfiles([asked = texts(ids, count)](ActionAnswers &answers) { return answers.profiles(asked); }, context,
                   answer);
}

void vantrelSuggestedProfiles(void *context, ProfilesReply::Function answer)
{
    askForProfiles([](ActionAnswers &answers) { return answers.suggestedProfiles(); }, context, answer);
}

void vantrelProfilesMatching(const char *text, void *context, ProfilesReply::Function answer)
{
    askForProfiles(
        [asked = QString::fromUtf8(text)](ActionAnswers &answers) { return answers.profilesMatching(asked); }, context,
        answer);
}

void vantrelOpenProfile(const char *profileID, void *context, OutcomeReply::Function end)
{
    perform([id = QString::fromUtf8(profileID)](ActionAnswers &answers) { return answers.openProfile(id); }, context,
            end);
}

void vantrelOpenLinks(const char *const *links, std::size_t count, const char *profileID, void *context,
                      OutcomeReply::Function end)
{
    QList<QUrl> parsed;
    for (const QString &link : texts(links, count))
        parsed.append(QUrl(link));
    perform(
        [parsed, id = QString::fromUtf8(profileID)](ActionAnswers &answers) { return answers.openLinks(parsed, id); },
        context, end);
}
