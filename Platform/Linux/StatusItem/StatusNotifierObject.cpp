#include "Platform/Linux/StatusItem/StatusNotifierObject.h"

#include <QDBusError>

#include <utility>

using namespace Qt::StringLiterals;

namespace vantrel {

StatusNotifierObject::StatusNotifierObject(Look look, QDBusObjectPath menu, ActivationSource &source)
    : look_(std::move(look)),
      menu_(std::move(menu)),
      source_(source)
{
    registerIconPixmapTypes();
}

QList<IconPixmap> StatusNotifierObject::iconPixmaps()
{
    if (!iconPixmaps_) {
        iconPixmaps_.emplace();
        // What panels use at scales of 1 to 2, 3 for the smallest.
        for (const int pixels : {16, 22, 24, 32, 48, 64})
            iconPixmaps_->append(IconPixmap::from(look_.icon(pixels)));
    }
    return *iconPixmaps_;
}

void StatusNotifierObject::Activate(int /*x*/, int /*y*/)
{
    leaveToMenu();
}

void StatusNotifierObject::ContextMenu(int /*x*/, int /*y*/)
{
    leaveToMenu();
}

void StatusNotifierObject::SecondaryActivate(int /*x*/, int /*y*/) {}

void StatusNotifierObject::Scroll(int /*delta*/, const QString & /*orientation*/) {}

void StatusNotifierObject::ProvideXdgActivationToken(const QString &token)
{
    source_.noteToken(token);
}

/// On this error panels that call in spite of `ItemIsMenu` open the menu themselves: it is what they get from items
/// that have a menu and no action of their own.
void StatusNotifierObject::leaveToMenu() const
{
    sendErrorReply(QDBusError::UnknownMethod, u"The item has a menu only."_s);
}

} // namespace vantrel
