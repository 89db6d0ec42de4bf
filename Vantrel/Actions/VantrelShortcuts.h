#pragma once

#include <QStringList>

/// What the system offers to speak or to type without the user having set anything up.
namespace vantrel::VantrelShortcuts {

/// One of OpenProfileIntent's.
struct AppShortcut {
    QString shortTitle;
    QString systemImage;
    QStringList phrases;
};

/// `target` and `applicationName` stand in the phrases where the system puts a profile and the app's name.
[[nodiscard]] AppShortcut openProfile(const QString &target, const QString &applicationName);

} // namespace vantrel::VantrelShortcuts
