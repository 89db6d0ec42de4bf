#pragma once

#include "Platform/ApplicationInstance.h"
#include "Tests/VantrelKit/Samples.h"

#include <QCoreApplication>
#include <QList>
#include <QTest>

#include <gtest/gtest.h>

#include <concepts>
#include <memory>

/// What every implementation of `ApplicationInstance` keeps to: `INSTANTIATE_TYPED_TEST_SUITE_P(Name,
/// ApplicationInstanceContract, System)`.
namespace vantrel {

inline void PrintTo(const InstanceRequest &request, std::ostream *stream)
{
    *stream << "kind " << static_cast<int>(request.kind) << ' ';
    printDebugForm(request.links, stream);
    printDebugForm(QStringList{request.action, request.activationToken, request.startupID}, stream);
}

inline void PrintTo(const PlatformError &error, std::ostream *stream)
{
    *stream << error.message.toStdString();
}

namespace test {

/// A session of a user's, without an instance at first.
template <typename System>
concept ApplicationInstanceSystem =
    std::default_initializable<System> && requires(System system, const InstanceRequest &request) {
        /// A further process of the session, not started yet.
        { system.process() } -> std::same_as<std::unique_ptr<ApplicationInstance>>;
        /// What starting a further process answers, while the running instance goes on. The process then ends.
        { system.startAnother(request) } -> std::same_as<std::expected<ApplicationInstance::Role, PlatformError>>;
        /// Starts a further process while the running instance doesn't get to handle events.
        {
            system.startWhileInstanceHangs(request)
        } -> std::same_as<std::expected<ApplicationInstance::Role, PlatformError>>;
    };

template <ApplicationInstanceSystem System>
class ApplicationInstanceContract : public testing::Test {
protected:
    using Role = ApplicationInstance::Role;
    using Result = std::expected<Role, PlatformError>;

    void startInstance()
    {
        isStarting_ = true;
        instance_ = system_.process();
        const Result role = instance_->start(first_, [this](const InstanceRequest &request) {
            EXPECT_FALSE(isStarting_) << "A request was passed on from within start.";
            requests_.append(request);
        });
        isStarting_ = false;
        ASSERT_EQ(role, Result(Role::only));
    }

    /// What has come once that many requests have, or none have for long.
    const QList<InstanceRequest> &requests(qsizetype count)
    {
        std::ignore = QTest::qWaitFor([&] { return requests_.size() >= count; }, 10000);
        return requests_;
    }

    static InstanceRequest open(const QStringList &links)
    {
        return {.kind = InstanceRequest::Kind::open, .links = links};
    }

    const InstanceRequest first_ = open({QStringLiteral("vantrel://first")});

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};

protected:
    System system_;
    std::unique_ptr<ApplicationInstance> instance_;
    QList<InstanceRequest> requests_;
    bool isStarting_ = false;
};

TYPED_TEST_SUITE_P(ApplicationInstanceContract);

TYPED_TEST_P(ApplicationInstanceContract, TheFirstStartIsTheInstanceAndKeepsItsOwnRequest)
{
    this->startInstance();
    const InstanceRequest other = this->open({QStringLiteral("vantrel://other")});
    EXPECT_EQ(this->system_.startAnother(other), ApplicationInstance::Role::second);
    EXPECT_EQ(this->requests(1), QList<InstanceRequest>{other});
}

TYPED_TEST_P(ApplicationInstanceContract, EveryKindOfRequestArrivesAsItWas)
{
    using Kind = InstanceRequest::Kind;
    // No bus carries a zero.
    const QStringList texts = QStringList(oddTexts()).replaceInStrings(QStringLiteral("\0"), QStringLiteral(" "));
    const QString text = texts.join(u' ');
    const QList<InstanceRequest> asked{
        {.kind = Kind::activate},
        {.kind = Kind::activate, .activationToken = text, .startupID = QStringLiteral("vantrel-1_TIME7")},
        {.kind = Kind::open},
        {.kind = Kind::open, .links = texts},
        {.kind = Kind::action, .action = QStringLiteral("menu"), .activationToken = QStringLiteral("token")},
        {.kind = Kind::action, .action = text},
    };
    this->startInstance();
    for (const InstanceRequest &request : asked)
        EXPECT_EQ(this->system_.startAnother(request), ApplicationInstance::Role::second);
    EXPECT_EQ(this->requests(asked.size()), asked);
}

TYPED_TEST_P(ApplicationInstanceContract, LinksArriveInTheirOrderWhateverTheyAre)
{
    const InstanceRequest request = this->open(
        {QStringLiteral("vantrel://one"), QStringLiteral("not a link"), QString(), QStringLiteral("vantrel://two")});
    this->startInstance();
    EXPECT_EQ(this->system_.startAnother(request), ApplicationInstance::Role::second);
    EXPECT_EQ(this->requests(1), QList<InstanceRequest>{request});
}

TYPED_TEST_P(ApplicationInstanceContract, AStartThatGetsNoAnswerFailsWithAReason)
{
    this->startInstance();
    const auto role = this->system_.startWhileInstanceHangs(this->first_);
    ASSERT_FALSE(role.has_value());
    EXPECT_FALSE(role.error().message.isEmpty());
}

TYPED_TEST_P(ApplicationInstanceContract, OnceTheInstanceIsGoneTheNextStartIsIt)
{
    this->startInstance();
    this->instance_.reset();
    this->startInstance();
    EXPECT_EQ(this->system_.startAnother(this->first_), ApplicationInstance::Role::second);
    EXPECT_EQ(this->requests(1), QList<InstanceRequest>{this->first_});
}

TYPED_TEST_P(ApplicationInstanceContract, NothingIsPassedOnOnceTheInstanceIsGone)
{
    this->startInstance();
    this->instance_.reset();
    EXPECT_EQ(this->system_.startAnother(this->first_), ApplicationInstance::Role::only);
    QCoreApplication::processEvents();
    EXPECT_TRUE(this->requests_.isEmpty());
}

REGISTER_TYPED_TEST_SUITE_P(ApplicationInstanceContract, TheFirstStartIsTheInstanceAndKeepsItsOwnRequest,
                            EveryKindOfRequestArrivesAsItWas, LinksArriveInTheirOrderWhateverTheyAre,
                            AStartThatGetsNoAnswerFailsWithAReason, OnceTheInstanceIsGoneTheNextStartIsIt,
                            NothingIsPassedOnOnceTheInstanceIsGone);

} // namespace test
} // namespace vantrel
