#include "Platform/MacOS/MacApplicationInstance.h"

#include "Tests/Contract/ApplicationInstanceContract.h"
#include "Tests/Platform/Beside.h"

#include <QUuid>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Result = std::expected<ApplicationInstance::Role, PlatformError>;

/// Threads in place of processes: to the port they are the same.
class MacApplicationInstanceSystem {
public:
    std::unique_ptr<ApplicationInstance> process() { return std::make_unique<MacApplicationInstance>(portName_); }

    Result startAnother(const InstanceRequest &request)
    {
        return test::beside([this, request] { return start(request, std::chrono::seconds(10)); });
    }

    Result startWhileInstanceHangs(const InstanceRequest &request)
    {
        return start(request, std::chrono::milliseconds(200));
    }

private:
    Result start(const InstanceRequest &request, std::chrono::milliseconds patience)
    {
        MacApplicationInstance other(portName_, patience);
        return other.start(request, [](const InstanceRequest &) { ADD_FAILURE(); });
    }

    QString portName_ = u"app.kestrune.Vantrel.test."_s + QUuid::createUuid().toString(QUuid::WithoutBraces);
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, ApplicationInstanceContract, MacApplicationInstanceSystem);

} // namespace test
} // namespace vantrel
