#include "Tests/Fakes/FakeSafariBridge.h"

#include "Tests/Contract/SafariBridgeContract.h"
#include "Tests/VantrelKit/Samples.h"

namespace vantrel {
namespace {

class FakeSafariSystem {
public:
    FakeSafariSystem() { bridge_.application().runs = false; }

    SafariBridge &bridge() { return bridge_; }
    static QString installed() { return test::FakeSafariBridge::bundleID(); }
    static QUrl url() { return test::FakeSafariBridge::url(); }
    static QString unknown() { return test::unknownBrowser; }
    void end() { bridge_.application().runs = false; }

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};
    test::FakeSafariBridge bridge_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, SafariBridgeContract, FakeSafariSystem);

} // namespace test
} // namespace vantrel
