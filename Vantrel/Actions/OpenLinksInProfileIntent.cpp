#include "Vantrel/Actions/OpenLinksInProfileIntent.h"

#include "Vantrel/Actions/IntentPerforming.h"

#include <QCoreApplication>

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(OpenLinksInProfileIntent)
};

} // namespace

QString OpenLinksInProfileIntent::title()
{
    //: Title of an action that the system offers, in Shortcuts for instance.
    return Texts::tr("Open Links in Browser Profile");
}

QString OpenLinksInProfileIntent::linksTitle()
{
    //: An action's parameter.
    return Texts::tr("Links");
}

QString OpenLinksInProfileIntent::profileTitle()
{
    //: An action's parameter.
    return Texts::tr("Profile");
}

QString OpenLinksInProfileIntent::summary(const QString &links, const QString &profile)
{
    //: What an action does. First: links; second: a profile.
    return Texts::tr("Open %1 in %2").arg(links, profile);
}

QCoro::Task<OpenLinksInProfileIntent::Result>
OpenLinksInProfileIntent::perform(const IntentEnvironment &environment) const
{
    return performOpening(environment, profile.id, links, NeedsValueError::Parameter::profile);
}

} // namespace vantrel
