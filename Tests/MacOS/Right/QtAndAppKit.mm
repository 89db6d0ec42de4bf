// expected-no-diagnostics
// Qt's headers, the coroutines' and the C++ library's beside Apple's, in either order.
#include <QCoroFuture>
#include <QCoroTask>
#include <QFileOpenEvent>
#include <QFuture>
#include <QImage>
#include <QPromise>
#include <QUrl>
#include <QWidget>

#import <AppKit/AppKit.h>

#include <expected>
#include <functional>
#include <memory>

namespace {

QCoro::Task<std::expected<bool, QString>> answered()
{
    const auto done = std::make_shared<QPromise<bool>>();
    done->start();
    const QFuture<bool> answer = done->future();
    NSURL *url = QUrl::fromLocalFile(QStringLiteral("/Applications")).toNSURL();
    [NSWorkspace.sharedWorkspace openApplicationAtURL:url
                                        configuration:[NSWorkspaceOpenConfiguration configuration]
                                    completionHandler:^(NSRunningApplication *, NSError *error) {
                                      done->addResult(error == nil);
                                      done->finish();
                                    }];
    co_await answer;
    if (!answer.result())
        co_return std::unexpected(QString::fromNSString(@"refused"));
    co_return true;
}

} // namespace

int main()
{
    const std::function<void()> task = [] { answered(); };
    dispatch_async(dispatch_get_main_queue(), ^{
      task();
    });
}
