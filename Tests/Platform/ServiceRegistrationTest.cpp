#include "Platform/ServiceRegistration.h"

#include "Tests/VantrelKit/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Wish = ServiceRegistration::Wish;
using Status = ServiceRegistration::Status;
using Refusal = ServiceRegistration::Refusal;

constexpr qint64 launchDeniedByUser = 11;
constexpr qint64 invalidSignature = 3;

Refusal refusal(qint64 code)
{
    return {.code = code, .message = u"Operation not permitted"_s};
}

/// Empty when it succeeds.
QString failure(const ServiceRegistration &registration)
{
    const auto result = registration.result();
    return result ? QString() : result.error().message;
}

TEST(ServiceRegistration, WhatTheSystemDidIsDone)
{
    EXPECT_EQ(failure({.wish = Wish::on, .status = Status::enabled}), QString());
    EXPECT_EQ(failure({.wish = Wish::off, .status = Status::notRegistered}), QString());
    EXPECT_EQ(failure({.wish = Wish::off, .status = Status::notFound}), QString());
}

TEST(ServiceRegistration, SwitchingOnWhatIsOnAndOffWhatIsOffSucceeds)
{
    EXPECT_EQ(failure({.wish = Wish::on, .refusal = refusal(Refusal::alreadyRegistered), .status = Status::enabled}),
              QString());
    for (const Status status : {Status::notRegistered, Status::notFound})
        EXPECT_EQ(failure({.wish = Wish::off, .refusal = refusal(Refusal::jobNotFound), .status = status}), QString());
}

TEST(ServiceRegistration, TheSameRefusalsOfTheOtherWishAreFailures)
{
    EXPECT_EQ(failure({.wish = Wish::on, .refusal = refusal(Refusal::jobNotFound), .status = Status::notFound}),
              u"Operation not permitted"_s);
    EXPECT_EQ(failure({.wish = Wish::off, .refusal = refusal(Refusal::alreadyRegistered), .status = Status::enabled}),
              u"Operation not permitted"_s);
}

TEST(ServiceRegistration, WhatTheUserHasYetToAllowNamesThePlace)
{
    for (const auto &refused : {std::optional<Refusal>(), std::optional(refusal(Refusal::alreadyRegistered)),
                                std::optional(refusal(launchDeniedByUser))}) {
        const QString told = failure({.wish = Wish::on, .refusal = refused, .status = Status::requiresApproval});
        EXPECT_TRUE(told.contains(u"System Settings ▸ General ▸ Login Items"_s)) << told.toStdString();
    }
}

TEST(ServiceRegistration, WhatIsNotAllowedCanBeSwitchedOff)
{
    EXPECT_EQ(failure({.wish = Wish::off, .status = Status::requiresApproval}), QString());
    EXPECT_EQ(failure({.wish = Wish::off, .refusal = refusal(launchDeniedByUser), .status = Status::requiresApproval}),
              u"Operation not permitted"_s);
}

TEST(ServiceRegistration, OtherRefusalsAreToldInTheSystemsWords)
{
    EXPECT_EQ(failure({.wish = Wish::on, .refusal = refusal(invalidSignature), .status = Status::notFound}),
              u"Operation not permitted"_s);
    EXPECT_EQ(failure({.wish = Wish::off, .refusal = refusal(invalidSignature), .status = Status::enabled}),
              u"Operation not permitted"_s);
}

} // namespace
} // namespace vantrel
