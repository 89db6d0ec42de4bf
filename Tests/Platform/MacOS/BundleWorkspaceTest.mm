#include "Platform/MacOS/BundleWorkspace.h"

#include "Tests/Contract/WorkspaceContract.h"
#include "Tests/Platform/MacOS/StandInBundle.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Browsers that nobody who runs the tests is likely to have.
class BundleWorkspaceSystem {
public:
    Workspace &workspace() { return workspace_; }
    static QString installed() { return u"com.slimjet.browser"_s; }
    static QString missing() { return u"com.pushplaylabs.sidekick"_s; }
    static QString damaged() { return u"de.srware.iron"_s; }
    QStringList startedArguments() { return whole_.takeArguments().value_or(QStringList(u"none"_s)); }

private:
    BundleWorkspace workspace_;
    test::StandInBundle whole_{installed()};
    test::StandInBundle damaged_{damaged(), test::StandInBundle::State::withoutProgram};
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, WorkspaceContract, BundleWorkspaceSystem);

} // namespace test
} // namespace vantrel
