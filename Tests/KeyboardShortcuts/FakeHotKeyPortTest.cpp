#include "Tests/Fakes/FakeHotKeyPort.h"

#include "Tests/Contract/HotKeyPortContract.h"

namespace vantrel {
namespace {

class FakeHotKeySystem {
public:
    HotKeyPort &port() { return port_; }
    void press(std::uint32_t keyCode) { port_.press(keyCode); }
    void release(std::uint32_t keyCode) { port_.release(keyCode); }
    void repeat() { port_.repeat(); }
    void settle() {}
    void openMenu() {}
    void holdElsewhere(std::uint32_t keyCode, std::uint32_t modifiers) { port_.holdElsewhere(keyCode, modifiers); }

private:
    test::FakeHotKeyPort port_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, HotKeyPortContract, FakeHotKeySystem);

} // namespace test
} // namespace vantrel
