#include <QGuiApplication>

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>

namespace vantrel::test {
namespace {

/// What drawing text takes, without a screen.
class GuiProgram final : public testing::Environment {
public:
    void SetUp() override
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application_ = std::make_unique<QGuiApplication>(argumentCount_, arguments_.data());
    }

    void TearDown() override { application_.reset(); }

private:
    int argumentCount_ = 1;
    std::string name_ = "vantrel";
    std::array<char *, 2> arguments_{name_.data(), nullptr};
    std::unique_ptr<QGuiApplication> application_;
};

/// GoogleTest owns it.
const testing::Environment *const guiProgram = testing::AddGlobalTestEnvironment(new GuiProgram);

} // namespace
} // namespace vantrel::test
