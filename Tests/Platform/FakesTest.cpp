#include "Tests/Contract/ActivationPolicyContract.h"
#include "Tests/Contract/BrowserDataContract.h"
#include "Tests/Contract/LogSinkContract.h"
#include "Tests/Contract/LoginItemContract.h"
#include "Tests/Contract/LoginItemRefusalContract.h"
#include "Tests/Contract/UpdaterContract.h"
#include "Tests/Contract/WorkspaceContract.h"
#include "Tests/Fakes/FakeActivationPolicy.h"
#include "Tests/Fakes/FakeBrowserData.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeLoginItem.h"
#include "Tests/Fakes/FakeUpdater.h"
#include "Tests/Fakes/FakeWorkspace.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class FakeWorkspaceSystem {
public:
    FakeWorkspaceSystem()
    {
        workspace_.install(installed(), u"Stand-in"_s);
        workspace_.install(damaged(), u"Damaged"_s);
        workspace_.refuse(damaged(), u"It can't be started."_s);
    }

    Workspace &workspace() { return workspace_; }
    static QString installed() { return test::chrome; }
    static QString missing() { return test::firefox; }
    static QString damaged() { return test::brave; }
    QStringList startedArguments() { return workspace_.openings().last().arguments; }

private:
    test::FakeWorkspace workspace_;
};

class FakeBrowserDataSystem {
public:
    FakeBrowserDataSystem()
    {
        data_.setFolder(installed(), u"/data/chrome"_s);
        data_.setFolders(withSeveralFolders(), {{.path = u"/old"_s}, {.path = u"/new"_s}, {.path = u"/old"_s}});
        data_.setFolders(withSingleProfile(),
                         {{.path = singleFolder(), .layout = BrowserDataFolder::Layout::singleProfile}});
    }

    const BrowserData &browserData() { return data_; }
    static QString installed() { return test::chrome; }
    static QString withSeveralFolders() { return test::firefox; }
    static QStringList severalFolders() { return {u"/old"_s, u"/new"_s}; }
    static QString withSingleProfile() { return u"com.operasoftware.Opera"_s; }
    static QString singleFolder() { return u"/data/opera"_s; }
    static QString missing() { return test::brave; }

private:
    test::FakeBrowserData data_;
};

class FakeLoginItemSystem {
public:
    LoginItem &item() { return item_; }
    [[nodiscard]] bool startsProgram() const { return item_.isEnabled(); }
    void change(bool isOn) { item_.change(isOn); }

private:
    test::FakeLoginItem item_;
};

class RefusingFakeLoginItemSystem {
public:
    RefusingFakeLoginItemSystem() { item_.refuse(u"Not here."_s); }

    LoginItem &item() { return item_; }

private:
    test::FakeLoginItem item_;
};

class FakeActivationPolicySystem {
public:
    ActivationPolicy &policy() { return policy_; }
    [[nodiscard]] bool isRegular() const { return policy_.isRegular(); }
    [[nodiscard]] bool isAccessory() const { return !policy_.isRegular(); }

private:
    test::FakeActivationPolicy policy_;
};

class FakeLogSystem {
public:
    LogSink &sink() { return log_; }

    /// As the log has them, but for the mark of errors.
    QStringList lines(qsizetype /*count*/) { return log_.takeLines().replaceInStrings(u"] error: "_s, u"] "_s); }

private:
    test::FakeLog log_;
};

class FakeUpdaterSystem {
public:
    FakeUpdaterSystem() { updater_.setCanCheckForUpdates(true); }

    Updater &updater() { return updater_; }

private:
    test::FakeUpdater updater_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, LoginItemContract, FakeLoginItemSystem);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, LoginItemRefusalContract, RefusingFakeLoginItemSystem);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, ActivationPolicyContract, FakeActivationPolicySystem);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, LogSinkContract, FakeLogSystem);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, UpdaterContract, FakeUpdaterSystem);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, WorkspaceContract, FakeWorkspaceSystem);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, BrowserDataContract, FakeBrowserDataSystem);

} // namespace test
} // namespace vantrel
