#include "Platform/AppIntents/AppEntityIndex.h"

#include "Platform/AppIntents/ProfileArray.h"

#include <QCoroFuture>
#include <QPromise>

#include <memory>

namespace vantrel {
namespace {

using Result = std::expected<void, PlatformError>;
using Promise = QPromise<Result>;

/// Its own until `end` is called with it.
std::unique_ptr<Promise> startedPromise()
{
    auto promise = std::make_unique<Promise>();
    promise->start();
    return promise;
}

void end(void *context, const char *failure)
{
    const std::unique_ptr<Promise> promise(static_cast<Promise *>(context));
    promise->addResult(failure == nullptr ? Result() : std::unexpected(PlatformError{QString::fromUtf8(failure)}));
    promise->finish();
}

} // namespace

SearchIndex::Step AppEntityIndex::removeAll()
{
    auto promise = startedPromise();
    const QFuture<Result> result = promise->future();
    functions_.removeAll(promise.release(), end);
    co_return co_await result;
}

SearchIndex::Step AppEntityIndex::add(QList<Entry> entries)
{
    auto promise = startedPromise();
    const QFuture<Result> result = promise->future();
    const ProfileArray profiles(std::move(entries));
    functions_.add(profiles.data(), profiles.size(), promise.release(), end);
    co_return co_await result;
}

} // namespace vantrel
