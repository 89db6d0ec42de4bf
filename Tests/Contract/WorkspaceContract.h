#pragma once

#include "Platform/Workspace.h"
#include "Tests/VantrelKit/Samples.h"

#include <QCoreApplication>
#include <QCoroTask>

#include <gtest/gtest.h>

#include <concepts>
#include <thread>
#include <vector>

/// What every implementation of `Workspace` keeps to: `INSTANTIATE_TYPED_TEST_SUITE_P(Name, WorkspaceContract,
/// System)`.
namespace vantrel::test {

/// Where an implementation runs. It provides three applications, by the bundle identifiers of browsers.
template <typename System>
concept WorkspaceSystem = std::default_initializable<System> && requires(System system) {
    { system.workspace() } -> std::same_as<Workspace &>;
    /// Can be started; its name is "Stand-in".
    { system.installed() } -> std::same_as<QString>;
    /// Exists for this system, but isn't installed.
    { system.missing() } -> std::same_as<QString>;
    /// Is found like any other, but the system refuses to start it.
    { system.damaged() } -> std::same_as<QString>;
    /// The arguments of the latest start of the installed application, as they reached it. Waits for that start, not
    /// for ever.
    { system.startedArguments() } -> std::same_as<QStringList>;
};

template <WorkspaceSystem System>
class WorkspaceContract : public testing::Test {
protected:
    Workspace &workspace() { return system_.workspace(); }

    QUrl urlOf(const QString &bundleID)
    {
        const auto application = workspace().applicationWithBundleIdentifier(bundleID);
        EXPECT_TRUE(application.has_value()) << bundleID.toStdString();
        return application.value_or(Application()).url;
    }

    std::expected<void, PlatformError> open(const QUrl &application, const QStringList &arguments)
    {
        return QCoro::waitFor(workspace().openApplication(application, arguments));
    }

    System system_;

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    /// Whose events a task may wait for.
    QCoreApplication program_{argumentCount_, arguments_};
};

TYPED_TEST_SUITE_P(WorkspaceContract);

TYPED_TEST_P(WorkspaceContract, AnInstalledApplicationIsFoundWithItsName)
{
    const auto application = this->workspace().applicationWithBundleIdentifier(this->system_.installed());
    ASSERT_TRUE(application.has_value());
    EXPECT_EQ(application->name, QStringLiteral("Stand-in"));
    EXPECT_TRUE(application->url.isLocalFile()) << application->url.toString().toStdString();
}

TYPED_TEST_P(WorkspaceContract, AnApplicationThatIsNotInstalledIsNotFound)
{
    EXPECT_EQ(this->workspace().applicationWithBundleIdentifier(this->system_.missing()), std::nullopt);
}

TYPED_TEST_P(WorkspaceContract, IdentifiersAreComparedExactly)
{
    const QString installed = this->system_.installed();
    for (const QString &identifier :
         {QString(), unknownBrowser, installed.toUpper(), installed.chopped(1), QString(installed + u' ')}) {
        EXPECT_EQ(this->workspace().applicationWithBundleIdentifier(identifier), std::nullopt)
            << identifier.toStdString();
        EXPECT_EQ(this->workspace().searchedNames(identifier), QStringList()) << identifier.toStdString();
    }
}

TYPED_TEST_P(WorkspaceContract, TheNamesLookedForAreKnownWhetherInstalledOrNot)
{
    for (const QString &bundleID : {this->system_.installed(), this->system_.missing()}) {
        const QStringList names = this->workspace().searchedNames(bundleID);
        EXPECT_FALSE(names.isEmpty()) << bundleID.toStdString();
        EXPECT_FALSE(names.contains(QString())) << bundleID.toStdString();
        EXPECT_EQ(QSet<QString>(names.begin(), names.end()).size(), names.size()) << bundleID.toStdString();
    }
}

TYPED_TEST_P(WorkspaceContract, TheCommandLineIsTheProgramWithTheArguments)
{
    const QStringList arguments{QStringLiteral("--profile-directory=Profile 1"),
                                QStringLiteral("https://example.com/?a=%20&b")};
    const auto line = this->workspace().commandLine(this->urlOf(this->system_.installed()), arguments);
    ASSERT_TRUE(line.has_value()) << line.error().message.toStdString();
    EXPECT_FALSE(line->first().isEmpty());
    EXPECT_EQ(line->sliced(1), arguments);
}

TYPED_TEST_P(WorkspaceContract, WithoutArgumentsTheCommandLineIsTheProgram)
{
    const auto line = this->workspace().commandLine(this->urlOf(this->system_.installed()), {});
    ASSERT_TRUE(line.has_value()) << line.error().message.toStdString();
    EXPECT_EQ(line->size(), 1);
}

TYPED_TEST_P(WorkspaceContract, AnApplicationThatIsGoneHasNoCommandLine)
{
    const QUrl gone = QUrl::fromLocalFile(QStringLiteral("/no/such/application"));
    const auto line = this->workspace().commandLine(gone, {});
    ASSERT_FALSE(line.has_value());
    EXPECT_TRUE(line.error().message.contains(gone.path())) << line.error().message.toStdString();
}

TYPED_TEST_P(WorkspaceContract, ArgumentsReachTheApplicationAsTheyAre)
{
    QStringList arguments{QString(), QStringLiteral("--option=two words")};
    for (const QString &text : oddTexts()) {
        // Nothing behind a zero byte reaches any program.
        if (!text.contains(QChar(u'\0')))
            arguments.append(text);
    }
    const auto opened = this->open(this->urlOf(this->system_.installed()), arguments);
    ASSERT_TRUE(opened.has_value()) << opened.error().message.toStdString();
    EXPECT_EQ(this->system_.startedArguments(), arguments);
}

TYPED_TEST_P(WorkspaceContract, EachOpeningIsAStartOfItsOwn)
{
    const QUrl application = this->urlOf(this->system_.installed());
    for (const QString &argument : {QStringLiteral("first"), QStringLiteral("second")}) {
        const auto opened = this->open(application, QStringList(argument));
        ASSERT_TRUE(opened.has_value()) << opened.error().message.toStdString();
        EXPECT_EQ(this->system_.startedArguments(), QStringList(argument));
    }
}

TYPED_TEST_P(WorkspaceContract, WhatTheSystemRefusesToStartFailsWithAReason)
{
    const auto opened = this->open(this->urlOf(this->system_.damaged()), {});
    ASSERT_FALSE(opened.has_value());
    EXPECT_FALSE(opened.error().message.isEmpty());
}

TYPED_TEST_P(WorkspaceContract, AnApplicationThatIsGoneFailsToOpenAsItsCommandLineDoes)
{
    const QUrl gone = QUrl::fromLocalFile(QStringLiteral("/no/such/application"));
    const auto opened = this->open(gone, {});
    const auto line = this->workspace().commandLine(gone, {});
    ASSERT_FALSE(opened.has_value());
    ASSERT_FALSE(line.has_value());
    EXPECT_EQ(opened.error(), line.error());
}

TYPED_TEST_P(WorkspaceContract, ApplicationsAreFoundOnAnyThread)
{
    const auto expected = this->workspace().applicationWithBundleIdentifier(this->system_.installed());
    std::vector<std::optional<Application>> found(4);
    std::vector<std::thread> threads;
    for (auto &place : found) {
        threads.emplace_back([this, &place] {
            for (int time = 0; time < 25; ++time)
                place = this->workspace().applicationWithBundleIdentifier(this->system_.installed());
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    for (const auto &place : found)
        EXPECT_EQ(place, expected);
}

REGISTER_TYPED_TEST_SUITE_P(WorkspaceContract, AnInstalledApplicationIsFoundWithItsName,
                            AnApplicationThatIsNotInstalledIsNotFound, IdentifiersAreComparedExactly,
                            TheNamesLookedForAreKnownWhetherInstalledOrNot, TheCommandLineIsTheProgramWithTheArguments,
                            WithoutArgumentsTheCommandLineIsTheProgram, AnApplicationThatIsGoneHasNoCommandLine,
                            ArgumentsReachTheApplicationAsTheyAre, EachOpeningIsAStartOfItsOwn,
                            WhatTheSystemRefusesToStartFailsWithAReason,
                            AnApplicationThatIsGoneFailsToOpenAsItsCommandLineDoes, ApplicationsAreFoundOnAnyThread);

} // namespace vantrel::test
