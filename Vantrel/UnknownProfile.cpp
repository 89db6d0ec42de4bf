#include "Vantrel/UnknownProfile.h"

#include <QCoreApplication>

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(UnknownProfile)
};

} // namespace

QString unknownProfileMessage(const QString &profileName)
{
    //: Error when a link or launcher app names a profile that isn't there. The placeholder is the profile's name.
    return Texts::tr("Vantrel doesn't know the profile “%1”. Check that it still exists in the browser, then make its "
                     "launcher app again.")
        .arg(profileName);
}

} // namespace vantrel
