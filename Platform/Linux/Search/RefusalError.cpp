#include "Platform/Linux/Search/RefusalError.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QString errorName(ProfileAnswers::Refusal::Reason reason)
{
    switch (reason) {
    case ProfileAnswers::Refusal::Reason::unknownProfile: return u"app.kestrune.Vantrel.Error.UnknownProfile"_s;
    case ProfileAnswers::Refusal::Reason::badLink: return u"app.kestrune.Vantrel.Error.BadLink"_s;
    }
    Q_UNREACHABLE();
}

} // namespace

QDBusMessage replyOrError(const QDBusMessage &call, const ProfileAnswers::Outcome &outcome)
{
    return outcome ? call.createReply()
                   : call.createErrorReply(errorName(outcome.error().reason), outcome.error().message);
}

} // namespace vantrel
