#include "Tests/Contract/BrowserDataContract.h"
#include "Tests/Contract/WorkspaceContract.h"
#include "Tests/Fakes/FakeBrowserData.h"
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

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, WorkspaceContract, FakeWorkspaceSystem);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, BrowserDataContract, FakeBrowserDataSystem);

} // namespace test
} // namespace vantrel
