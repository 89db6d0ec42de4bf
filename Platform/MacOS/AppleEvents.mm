#include "Platform/MacOS/AppleEvents.h"

#include <QCoreApplication>
#include <QFileOpenEvent>

#import <AppKit/AppKit.h>

using namespace vantrel;

@interface VantrelAppleEvents : NSObject
- (instancetype)initWithHandler:(ApplicationInstance::Handler)handler;
- (void)remove;
@end

@implementation VantrelAppleEvents {
    ApplicationInstance::Handler _handler;
}

- (instancetype)initWithHandler:(ApplicationInstance::Handler)handler
{
    self = [super init];
    if (self) {
        _handler = std::move(handler);
        // Qt takes links for itself at that time, one an event. Observers are told in the order in which they came.
        [NSNotificationCenter.defaultCenter addObserver:self
                                               selector:@selector(applicationWillFinishLaunching:)
                                                   name:NSApplicationWillFinishLaunchingNotification
                                                 object:nil];
    }
    return self;
}

- (void)applicationWillFinishLaunching:(NSNotification *)notification
{
    NSAppleEventManager *events = NSAppleEventManager.sharedAppleEventManager;
    [events setEventHandler:self
                andSelector:@selector(openLinks:withReplyEvent:)
              forEventClass:kInternetEventClass
                 andEventID:kAEGetURL];
    [events setEventHandler:self
                andSelector:@selector(reopen:withReplyEvent:)
              forEventClass:kCoreEventClass
                 andEventID:kAEReopenApplication];
}

- (void)remove
{
    [NSNotificationCenter.defaultCenter removeObserver:self];
    NSAppleEventManager *events = NSAppleEventManager.sharedAppleEventManager;
    [events removeEventHandlerForEventClass:kInternetEventClass andEventID:kAEGetURL];
    [events removeEventHandlerForEventClass:kCoreEventClass andEventID:kAEReopenApplication];
}

- (void)openLinks:(NSAppleEventDescriptor *)event withReplyEvent:(NSAppleEventDescriptor *)reply
{
    NSAppleEventDescriptor *object = [event paramDescriptorForKeyword:keyDirectObject];
    QStringList links;
    // What is no list has no items.
    for (NSInteger index = 1; index <= object.numberOfItems; ++index)
        links.append(QString::fromNSString([object descriptorAtIndex:index].stringValue));
    if (links.isEmpty())
        links.append(QString::fromNSString(object.stringValue));
    _handler({.kind = InstanceRequest::Kind::open, .links = links});
}

- (void)reopen:(NSAppleEventDescriptor *)event withReplyEvent:(NSAppleEventDescriptor *)reply
{
    _handler({.kind = InstanceRequest::Kind::activate});
}

@end

namespace vantrel {

struct AppleEvents::Native {
    VantrelAppleEvents *target = nil;
};

AppleEvents::AppleEvents(ApplicationInstance::Handler handler)
    : handler_(std::move(handler)),
      native_(new Native{[[VantrelAppleEvents alloc] initWithHandler:handler_]})
{
    QCoreApplication::instance()->installEventFilter(this);
}

AppleEvents::~AppleEvents()
{
    [native_->target remove];
}

bool AppleEvents::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::FileOpen)
        return QObject::eventFilter(object, event);
    const QUrl url = static_cast<QFileOpenEvent *>(event)->url();
    handler_({.kind = InstanceRequest::Kind::open, .links = {url.toString(QUrl::FullyEncoded)}});
    return true;
}

} // namespace vantrel
