#include "Platform/MacOS/MacRunningApplications.h"

#include "Tests/Contract/RunningApplicationsContract.h"
#include "Tests/Platform/MacOS/StandInBundle.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class MacRunningApplicationsSystem {
public:
    RunningApplications &applications() { return *applications_; }
    static QString first() { return u"com.slimjet.browser"_s; }
    static QString second() { return u"de.srware.iron"_s; }
    void start(const QString &bundleID) { bundle(bundleID).start(); }
    void end(const QString &bundleID) { bundle(bundleID).end(); }
    void destroyApplications() { applications_.reset(); }

private:
    test::StandInBundle &bundle(const QString &bundleID) { return bundleID == first() ? first_ : second_; }

    test::StandInBundle first_{first()};
    test::StandInBundle second_{second()};
    std::optional<MacRunningApplications> applications_{std::in_place};
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, RunningApplicationsContract, MacRunningApplicationsSystem);

} // namespace test
} // namespace vantrel
