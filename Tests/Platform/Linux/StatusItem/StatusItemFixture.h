#pragma once

#include "Platform/Linux/StatusItem/StatusNotifierItem.h"
#include "Tests/Platform/Linux/StatusItem/MenuSamples.h"
#include "Tests/Platform/Linux/StatusItem/PanelStandIn.h"
#include "Tests/Platform/Linux/StatusItem/WatcherStandIn.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace vantrel::test {

/// A symbol on a bus of its own, with a menu that the test changes.
class StatusItemFixture : public testing::Test {
protected:
    void start()
    {
        item_.start({.title = QStringLiteral("Vantrel"),
                     .iconName = QStringLiteral("symbol"),
                     .icon = [](int pixels) { return square(pixels, 0xff0000ff); },
                     .menu =
                         [this] {
                             ++menusAskedFor_;
                             return menu_;
                         }},
                    [this](bool isShown) { shown_.append(isShown); });
    }

    /// Waits for that many answers to whether it is shown; false when more came, or fewer in ten seconds.
    [[nodiscard]] bool awaitShown(qsizetype count)
    {
        return eventually([this, count] { return shown_.size() >= count; }) && shown_.size() == count;
    }

    /// A row that notes that it was chosen.
    [[nodiscard]] MenuItem noting(const QString &id, const QString &title)
    {
        return command(id, title, [this, title] { chosen_.append(title); });
    }

    [[nodiscard]] QString serviceName() { return connection_->baseService(); }

    QList<bool> shown_;
    Menu menu_;
    int menusAskedFor_ = 0;
    QStringList chosen_;
    Environment environment_;
    ActivationSource source_;

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};

protected:
    PrivateBus bus_;

    OwnConnection connection_{bus_.address()};
    StatusNotifierItem item_{*connection_, source_, environment_};
};

} // namespace vantrel::test
