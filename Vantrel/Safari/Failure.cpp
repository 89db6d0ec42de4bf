#include "Vantrel/Safari/Failure.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace vantrel::Safari {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Safari)
};

} // namespace

const Failure &Failure::accessibility()
{
    //: Error when the user hasn't let Vantrel use other programs' menus. The names are those of System Settings.
    static const Failure failure{Texts::tr("Vantrel needs Accessibility permission to open Safari profiles. Turn it on "
                                           "in System Settings ▸ Privacy & Security ▸ Accessibility.")};
    return failure;
}

const Failure &Failure::automation()
{
    //: Error when the user has forbidden Vantrel to control Safari. The names are those of System Settings.
    static const Failure failure{Texts::tr("Vantrel isn't allowed to control Safari or System Events. Allow it in "
                                           "System Settings ▸ Privacy & Security ▸ Automation.")};
    return failure;
}

const Failure &Failure::windowNotOpened()
{
    //: Error when Safari was told to open a window and none came.
    static const Failure failure{
        Texts::tr("Safari didn't open a window for this profile. Check that the profile still exists in Safari, then "
                  "find Safari's profiles again in Vantrel's settings.")};
    return failure;
}

const Failure &Failure::notStarted()
{
    //: Error when Safari doesn't run although it was started.
    static const Failure failure{Texts::tr("Safari didn't start. Open it once yourself, then try again.")};
    return failure;
}

const Failure &Failure::menuUnreadable()
{
    //: Error when Safari's menu, which lists its profiles, shows nothing.
    static const Failure failure{Texts::tr("Vantrel could not read Safari's File menu.")};
    return failure;
}

const Failure &Failure::timeOut()
{
    //: Error when Safari takes too long to answer.
    static const Failure failure{
        .message = Texts::tr("Safari didn't answer in time. If it's showing a dialog, close it and try again."),
        .isTimeout = true,
    };
    return failure;
}

Failure Failure::noProfile(const QString &name)
{
    //: Error when a profile is gone. The placeholder is its name.
    return {
        Texts::tr("Safari has no profile named “%1”. Find Safari's profiles again in Vantrel's settings.").arg(name)};
}

Failure Failure::ofScript(const QString &errorText)
{
    // The numbers of the system's errors: the program may not send events to the other one, and System Events may not
    // use the other one's interface.
    if (errorText.contains("-1743"_L1))
        return automation();
    if (errorText.contains("-1719"_L1) || errorText.contains("-25211"_L1))
        return accessibility();
    if (errorText.isEmpty())
        return menuUnreadable();
    return {errorText};
}

bool Failure::isFatal() const
{
    return isTimeout || *this == automation() || *this == accessibility();
}

} // namespace vantrel::Safari
