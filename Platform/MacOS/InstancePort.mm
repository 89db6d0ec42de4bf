#include "Platform/MacOS/InstancePort.h"

#include "Platform/InstanceMessage.h"

#import <Foundation/Foundation.h>

#include <type_traits>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Releasing {
    void operator()(const void *object) const { CFRelease(object); }
};

/// An object that this process owns.
template <typename Reference>
using Owned = std::unique_ptr<std::remove_pointer_t<Reference>, Releasing>;

constexpr SInt32 requestMessage = 1;

std::expected<bool, PlatformError> resultOf(SInt32 status, CFDataRef answer)
{
    switch (status) {
    case kCFMessagePortSuccess: break;
    case kCFMessagePortSendTimeout:
    case kCFMessagePortReceiveTimeout: return std::unexpected(InstanceMessage::noAnswer());
    // It was there a moment ago.
    default: return false;
    }
    const auto parsed = answer ? InstanceMessage::parsedAnswer(QByteArray::fromRawCFData(answer)) : std::nullopt;
    if (!parsed)
        return std::unexpected(InstanceMessage::noAnswer());
    if (!parsed->isAccepted)
        return std::unexpected(InstanceMessage::refused(parsed->reason));
    return true;
}

} // namespace

struct InstancePort::Native {
    ~Native()
    {
        if (port)
            CFMessagePortInvalidate(port.get());
    }

    static CFDataRef receive(CFMessagePortRef, SInt32, CFDataRef data, void *info)
    {
        @autoreleasepool {
            const QByteArray line = data ? QByteArray::fromCFData(data) : QByteArray();
            // Released by the port.
            return static_cast<InstancePort *>(info)->take(line).toCFData();
        }
    }

    Owned<CFMessagePortRef> port;
};

QString InstancePort::defaultName()
{
    return u"app.kestrune.Vantrel.instance"_s;
}

InstancePort::InstancePort(ApplicationInstance::Handler handler)
    : handler_(std::move(handler)),
      native_(std::make_unique<Native>())
{
}

InstancePort::~InstancePort() = default;

std::unique_ptr<InstancePort> InstancePort::create(const QString &name, ApplicationInstance::Handler handler)
{
    @autoreleasepool {
        std::unique_ptr<InstancePort> instance(new InstancePort(std::move(handler)));
        CFMessagePortContext context = {0, instance.get(), nullptr, nullptr, nullptr};
        Boolean isUnused = 0;
        const Owned<CFStringRef> portName(name.toCFString());
        Owned<CFMessagePortRef> port(
            CFMessagePortCreateLocal(kCFAllocatorDefault, portName.get(), &Native::receive, &context, &isUnused));
        // Within one process the answer is the port that has the name.
        if (!port || isUnused != 0)
            return nullptr;
        instance->native_->port = std::move(port);
        const Owned<CFRunLoopSourceRef> source(
            CFMessagePortCreateRunLoopSource(kCFAllocatorDefault, instance->native_->port.get(), 0));
        CFRunLoopAddSource(CFRunLoopGetMain(), source.get(), kCFRunLoopCommonModes);
        return instance;
    }
}

QByteArray InstancePort::take(const QByteArray &line)
{
    const auto request = InstanceMessage::parsedRequest(line);
    if (!request)
        return InstanceMessage::line(InstanceMessage::Answer{.isAccepted = false, .reason = request.error()});
    // Once the answer is on its way.
    QMetaObject::invokeMethod(&context_, [this, request = *request] { handler_(request); }, Qt::QueuedConnection);
    return InstanceMessage::line(InstanceMessage::Answer{.isAccepted = true});
}

std::expected<bool, PlatformError> InstancePort::send(const QString &name, const InstanceRequest &request,
                                                      std::chrono::milliseconds patience)
{
    const QByteArray line = InstanceMessage::line(request);
    if (line.size() > InstanceMessage::maximumSize)
        return std::unexpected(PlatformError{InstanceMessage::tooLong()});
    @autoreleasepool {
        const Owned<CFStringRef> portName(name.toCFString());
        const Owned<CFMessagePortRef> port(CFMessagePortCreateRemote(kCFAllocatorDefault, portName.get()));
        if (!port)
            return false;
        const Owned<CFDataRef> data(line.toCFData());
        const CFTimeInterval seconds = std::chrono::duration<CFTimeInterval>(patience).count();
        CFDataRef answer = nullptr;
        // A mode of its own, so that nothing but the answer is handled meanwhile.
        const SInt32 status = CFMessagePortSendRequest(port.get(), requestMessage, data.get(), seconds, seconds,
                                                       (__bridge CFStringRef) @"app.kestrune.Vantrel.answer", &answer);
        const Owned<CFDataRef> owned(answer);
        return resultOf(status, answer);
    }
}

} // namespace vantrel
