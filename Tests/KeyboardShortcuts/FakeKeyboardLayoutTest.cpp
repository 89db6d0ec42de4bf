#include "Tests/Fakes/FakeKeyboardLayout.h"

#include "Tests/Contract/KeyboardLayoutContract.h"

#include <array>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// A user whose keyboard types what two layouts do, in part.
class FakeLayoutSystem {
public:
    FakeLayoutSystem() { play(); }

    KeyboardLayout &layout() { return layout_; }
    [[nodiscard]] test::TestedLayout chosen() const { return chosen_; }

    void choose(test::TestedLayout layout, const bool & /*isTold*/)
    {
        chosen_ = layout;
        play();
    }

private:
    struct Key {
        std::uint32_t code;
        QString unitedStates;
        /// Null for an accent.
        QString german;
    };

    void play()
    {
        const std::array<Key, 5> keys{{{0x00, u"a"_s, u"a"_s},
                                       {0x10, u"y"_s, u"z"_s},
                                       {0x18, u"="_s, {}},
                                       {0x1c, u"8"_s, u"8"_s},
                                       {0x21, u"["_s, u"ü"_s}}};
        for (const Key &key : keys) {
            const QString &character = chosen_ == test::TestedLayout::german ? key.german : key.unitedStates;
            if (character.isNull())
                layout_.clear(key.code);
            else
                layout_.set(key.code, character);
        }
    }

    test::FakeKeyboardLayout layout_;
    test::TestedLayout chosen_ = test::TestedLayout::unitedStates;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, KeyboardLayoutContract, FakeLayoutSystem);

} // namespace test
} // namespace vantrel
