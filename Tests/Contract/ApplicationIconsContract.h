#pragma once

#include "Platform/ApplicationIcons.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <concepts>

/// What every implementation of `ApplicationIcons` keeps to:
/// `INSTANTIATE_TYPED_TEST_SUITE_P(Name, ApplicationIconsContract, System)`.
namespace vantrel::test {

/// Applications at the URLs that the workspace gives, and what it takes to read pictures.
template <typename System>
concept ApplicationIconsSystem = std::default_initializable<System> && requires(System system) {
    { system.icons() } -> std::same_as<const ApplicationIcons &>;
    /// Its icon has a picture of 256 pixels or more, which is opaque in the middle.
    { system.application() } -> std::same_as<QUrl>;
    /// Another one, with another icon.
    { system.otherApplication() } -> std::same_as<QUrl>;
    /// Where there was an application once.
    { system.gone() } -> std::same_as<QUrl>;
};

template <ApplicationIconsSystem System>
class ApplicationIconsContract : public testing::Test {
protected:
    [[nodiscard]] QImage icon(const QUrl &application, int pixels) { return system_.icons().icon(application, pixels); }

    System system_;
};

TYPED_TEST_SUITE_P(ApplicationIconsContract);

TYPED_TEST_P(ApplicationIconsContract, AnIconIsAtLeastAsLargeAsItIsAskedFor)
{
    for (const int pixels : {1, 16, 33, 128, 256}) {
        const QImage image = this->icon(this->system_.application(), pixels);
        EXPECT_GE(std::max(image.width(), image.height()), pixels);
        EXPECT_GT(image.pixelColor(image.width() / 2, image.height() / 2).alpha(), 0) << pixels;
    }
}

TYPED_TEST_P(ApplicationIconsContract, EachApplicationHasItsOwn)
{
    const QImage image = this->icon(this->system_.application(), 128);
    const QImage other = this->icon(this->system_.otherApplication(), 128);
    ASSERT_FALSE(image.isNull());
    ASSERT_FALSE(other.isNull());
    EXPECT_NE(image, other);
    EXPECT_EQ(this->icon(this->system_.application(), 128), image);
}

TYPED_TEST_P(ApplicationIconsContract, AnApplicationThatIsGoneHasNone)
{
    EXPECT_TRUE(this->icon(this->system_.gone(), 128).isNull());
}

REGISTER_TYPED_TEST_SUITE_P(ApplicationIconsContract, AnIconIsAtLeastAsLargeAsItIsAskedFor, EachApplicationHasItsOwn,
                            AnApplicationThatIsGoneHasNone);

} // namespace vantrel::test
