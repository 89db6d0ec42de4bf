#include "Tests/Fakes/FakeApplicationInstance.h"

#include "Tests/Contract/ApplicationInstanceContract.h"

namespace vantrel {
namespace {

using Result = std::expected<ApplicationInstance::Role, PlatformError>;

class FakeSystem {
public:
    std::unique_ptr<ApplicationInstance> process() { return std::make_unique<test::FakeApplicationInstance>(session_); }

    Result startAnother(const InstanceRequest &request)
    {
        return test::FakeApplicationInstance(session_).start(request, [](const InstanceRequest &) { ADD_FAILURE(); });
    }

    Result startWhileInstanceHangs(const InstanceRequest &request)
    {
        session_.silence();
        return startAnother(request);
    }

private:
    test::FakeApplicationInstance::Session session_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, ApplicationInstanceContract, FakeSystem);

} // namespace test
} // namespace vantrel
