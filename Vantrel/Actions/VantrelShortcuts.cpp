#include "Vantrel/Actions/VantrelShortcuts.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace vantrel::VantrelShortcuts {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(VantrelShortcuts)
};

} // namespace

AppShortcut openProfile(const QString &target, const QString &applicationName)
{
    return {
        //: Title of an action that the system offers.
        .shortTitle = Texts::tr("Open Profile"),
        .systemImage = u"paperplane.fill"_s,
        .phrases =
            {
                //: A phrase that the user says to the system. First: a profile; second: the app's name.
                Texts::tr("Open %1 with %2").arg(target, applicationName),
                //: A phrase that the user says to the system. The placeholder is the app's name.
                Texts::tr("Open a profile with %1").arg(applicationName),
            },
    };
}

} // namespace vantrel::VantrelShortcuts
