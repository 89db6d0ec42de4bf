#include "Platform/Linux/StatusItem/StatusNotifierItem.h"

#include "Platform/Linux/StatusItem/DBusMenuObject.h"
#include "Platform/Linux/StatusItem/StatusNotifierObject.h"
#include "Platform/Linux/StatusItem/ThemeIcon.h"
#include "Platform/Linux/StatusItem/WatcherRegistration.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Where watchers look when an item tells them no path.
const QString &itemPath()
{
    static const QString path = u"/StatusNotifierItem"_s;
    return path;
}

const QString &menuPath()
{
    static const QString path = u"/MenuBar"_s;
    return path;
}

} // namespace

StatusNotifierItem::StatusNotifierItem(QDBusConnection connection, ActivationSource &source, Environment environment)
    : connection_(std::move(connection)),
      source_(source),
      environment_(std::move(environment))
{
}

StatusNotifierItem::~StatusNotifierItem() = default;

void StatusNotifierItem::start(Content content, std::function<void(bool)> shownChanged)
{
    const QString iconName = isThemeIcon(content.iconName, environment_) ? content.iconName : QString();
    menu_ = std::make_unique<DBusMenuObject>(std::move(content.menu), source_);
    item_ = std::make_unique<StatusNotifierObject>(
        StatusNotifierObject::Look{std::move(content.title), iconName, std::move(content.icon)},
        QDBusObjectPath(menuPath()), source_);
    if (!exportObjects()) {
        QMetaObject::invokeMethod(
            item_.get(), [shownChanged = std::move(shownChanged)] { shownChanged(false); }, Qt::QueuedConnection);
        return;
    }
    registration_ = std::make_unique<WatcherRegistration>(connection_, std::move(shownChanged));
    registration_->start();
}

void StatusNotifierItem::updateMenu()
{
    if (menu_)
        menu_->update();
}

/// False without a bus.
bool StatusNotifierItem::exportObjects()
{
    const auto everything =
        QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals | QDBusConnection::ExportAllProperties;
    return connection_.isConnected() && connection_.registerObject(menuPath(), menu_.get(), everything) &&
           connection_.registerObject(itemPath(), item_.get(), everything);
}

} // namespace vantrel
