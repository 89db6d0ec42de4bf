#include "Platform/ServiceRegistration.h"

#include <QCoreApplication>

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ServiceRegistration)
};

} // namespace

std::expected<void, PlatformError> ServiceRegistration::result() const
{
    if (wish == Wish::on && status == Status::requiresApproval) {
        //: Error when the app is to open at login and the user has yet to allow that, or has forbidden it before.
        //: The names are those of System Settings.
        return std::unexpected(
            PlatformError{Texts::tr("Allow Vantrel to open at login in System Settings ▸ General ▸ Login Items.")});
    }
    const qint64 harmless = wish == Wish::on ? Refusal::alreadyRegistered : Refusal::jobNotFound;
    if (!refusal || refusal->code == harmless)
        return {};
    return std::unexpected(PlatformError{refusal->message});
}

} // namespace vantrel
