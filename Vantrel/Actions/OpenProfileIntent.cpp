#include "Vantrel/Actions/OpenProfileIntent.h"

#include "Vantrel/Actions/IntentPerforming.h"

#include <QCoreApplication>

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(OpenProfileIntent)
};

} // namespace

QString OpenProfileIntent::title()
{
    //: Title of an action that the system offers, in Shortcuts for instance.
    return Texts::tr("Open Browser Profile");
}

QString OpenProfileIntent::targetTitle()
{
    //: An action's parameter.
    return Texts::tr("Profile");
}

QString OpenProfileIntent::summary(const QString &target)
{
    //: What an action does. The placeholder is a profile.
    return Texts::tr("Open %1").arg(target);
}

QCoro::Task<OpenProfileIntent::Result> OpenProfileIntent::perform(const IntentEnvironment &environment) const
{
    return performOpening(environment, target.id, {}, NeedsValueError::Parameter::target);
}

} // namespace vantrel
