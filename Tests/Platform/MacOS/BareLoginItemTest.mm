#include "Platform/MacOS/ServiceLoginItem.h"
#include "Tests/Contract/LoginItemRefusalContract.h"

namespace vantrel {
namespace {

/// The program of these tests is no application, and only those are opened at login.
class BareProgram {
public:
    LoginItem &item() { return item_; }

private:
    ServiceLoginItem item_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, LoginItemRefusalContract, BareProgram);

} // namespace test
} // namespace vantrel
