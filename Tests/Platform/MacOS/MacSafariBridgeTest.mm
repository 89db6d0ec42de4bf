#include "Platform/MacOS/MacSafariBridge.h"

#include "Tests/Contract/SafariBridgeContract.h"
#include "Tests/Platform/MacOS/StandInBundle.h"
#include "Tests/VantrelKit/Samples.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// An application in Safari's place. It is never asked for its windows: for that, the system would ask the user first.
class MacSafariBridgeSystem {
public:
    SafariBridge &bridge() { return bridge_; }
    static QString installed() { return u"com.slimjet.browser"_s; }
    QUrl url() { return bundle_.url(); }
    static QString unknown() { return test::unknownBrowser; }
    void end() { bundle_.endAll(); }

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};
    test::StandInBundle bundle_{installed()};
    MacSafariBridge bridge_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, SafariBridgeContract, MacSafariBridgeSystem);

} // namespace test
} // namespace vantrel
