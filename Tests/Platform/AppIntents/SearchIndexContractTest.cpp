#include "Tests/Contract/SearchIndexContract.h"

#include "Platform/AppIntents/ActionsBridge.h"
#include "Platform/AppIntents/AppEntityIndex.h"
#include "Tests/Fakes/FakeSearchIndex.h"
#include "Tests/Vantrel/EventLoop.h"

#include <QMetaObject>

#include <span>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Entry = SearchIndex::Entry;

/// Stands for Swift's part and the system behind it, of which there is one. It answers as the system does, later.
struct System {
    QList<Entry> entries;
    QByteArray refusal;
    QObject context;

    static System *&only()
    {
        static System *system = nullptr;
        return system;
    }

    System() { only() = this; }
    ~System() { only() = nullptr; }
    Q_DISABLE_COPY_MOVE(System)

    static void removeAll(void *context, AppEntityIndex::End end) { only()->finish({}, context, end); }

    static void add(const VantrelProfile *profiles, std::size_t count, void *context, AppEntityIndex::End end)
    {
        QList<Entry> entries = only()->entries;
        // The pointers are good for this call only.
        for (const VantrelProfile &each : std::span(profiles, count)) {
            entries.append({.id = QString::fromUtf8(each.id),
                            .name = QString::fromUtf8(each.name),
                            .browser = QString::fromUtf8(each.browser),
                            .title = QString::fromUtf8(each.title),
                            .picture = QByteArray(reinterpret_cast<const char *>(each.picture),
                                                  static_cast<qsizetype>(each.pictureSize))});
        }
        only()->finish(entries, context, end);
    }

private:
    void finish(const QList<Entry> &result, void *stepContext, AppEntityIndex::End end)
    {
        QMetaObject::invokeMethod(
            &context,
            [this, result, stepContext, end] {
                if (refusal.isEmpty())
                    entries = result;
                end(stepContext, refusal.isEmpty() ? nullptr : refusal.constData());
            },
            Qt::QueuedConnection);
    }
};

class AppEntityIndexSystem {
public:
    SearchIndex &index() { return index_; }
    QList<Entry> entries() { return system_.entries; }
    void refuse(const QString &message) { system_.refusal = message.toUtf8(); }

private:
    test::EventProgram program_;
    System system_;
    AppEntityIndex index_{{System::removeAll, System::add}};
};

class FakeSearchIndexSystem {
public:
    SearchIndex &index() { return index_; }
    QList<Entry> entries() { return index_.entries(); }
    void refuse(const QString &message) { index_.refuse(message); }

private:
    test::EventProgram program_;
    test::FakeSearchIndex index_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, SearchIndexContract, FakeSearchIndexSystem);
INSTANTIATE_TYPED_TEST_SUITE_P(AppIntents, SearchIndexContract, AppEntityIndexSystem);

} // namespace test
} // namespace vantrel
