#pragma once

#include "Platform/Linux/Instance/ActivationMessage.h"
#include "Platform/Linux/Instance/BusApplication.h"
#include "Platform/Linux/Search/BusProfileService.h"
#include "Tests/Fakes/FakeProfileAnswers.h"
#include "Tests/Platform/Linux/PrivateBus.h"
#include "Tests/VantrelKit/Printing.h"

#include <QCoreApplication>
#include <QDBusConnection>

#include <gtest/gtest.h>

namespace vantrel::test {

/// The app's object on a bus of its own, as desktops and scripts see it.
class SearchFixture : public testing::Test {
protected:
    SearchFixture();
    ~SearchFixture() override;

    /// What gdbus prints for a call of the object, with its errors. Answers are given meanwhile.
    [[nodiscard]] QString call(const QString &method, const QStringList &arguments = {});
    [[nodiscard]] QString gdbus(const QString &command, const QStringList &arguments);
    /// A call whose reply nobody waits for.
    [[nodiscard]] QDBusPendingCall asyncCall(const QString &interface, const QString &method,
                                             const QVariantList &arguments) const;

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};

protected:
    PrivateBus bus_;
    QDBusConnection app_;
    QDBusConnection desktop_;
    FakeProfileAnswers answers_;
    BusProfileService service_{app_, ActivationMessage::objectPath()};
    QList<InstanceRequest> requests_;
    BusApplication application_{app_, [this](const InstanceRequest &request) { requests_.append(request); }, &service_};
};

} // namespace vantrel::test
