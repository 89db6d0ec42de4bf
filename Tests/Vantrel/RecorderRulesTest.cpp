#include "Vantrel/RecorderRules.h"

#include "KeyboardShortcuts/ModifierFlags.h"
#include "Tests/KeyboardShortcuts/Printing.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

using Kind = RecorderAnswer::Kind;

constexpr std::uint32_t keyA = 0;
constexpr std::uint32_t keyDelete = 51;
constexpr std::uint32_t keyEscape = 53;
constexpr std::uint32_t keyDeleteForward = 117;

RecorderAnswer answer(std::optional<std::uint32_t> keyCode, std::uint32_t flags)
{
    return recorderAnswer({.type = KeyEvent::Type::keyDown, .keyCode = keyCode, .modifierFlags = flags});
}

TEST(RecorderRules, PlainKeysEndRecordingOrAreRefused)
{
    EXPECT_EQ(answer(keyEscape, 0).kind, Kind::cancel);
    EXPECT_EQ(answer(keyDelete, 0).kind, Kind::remove);
    EXPECT_EQ(answer(keyDeleteForward, 0).kind, Kind::remove);
    for (const std::uint32_t keyCode : {keyA, 36U, 48U, 49U, 71U, 96U, 114U, 126U})
        EXPECT_EQ(answer(keyCode, 0).kind, Kind::refuse) << keyCode;
    EXPECT_EQ(answer(std::nullopt, 0).kind, Kind::refuse);
}

TEST(RecorderRules, LocksTheKeypadAndFunctionMakeNoDifference)
{
    for (const std::uint32_t flag : {AppKitFlag::capsLock, AppKitFlag::numericPad, AppKitFlag::function, 0x1U,
                                     AppKitFlag::capsLock | AppKitFlag::numericPad | AppKitFlag::function}) {
        EXPECT_EQ(answer(keyEscape, flag).kind, Kind::cancel) << flag;
        EXPECT_EQ(answer(keyDelete, flag).kind, Kind::remove) << flag;
        EXPECT_EQ(answer(keyA, flag).kind, Kind::refuse) << flag;
        EXPECT_EQ(answer(keyA, flag | AppKitFlag::shift).kind, Kind::refuse) << flag;
        EXPECT_EQ(answer(keyA, flag | AppKitFlag::control).shortcut, (Shortcut{keyA, CarbonModifier::control})) << flag;
    }
}

TEST(RecorderRules, ControlOrCommandIsRecorded)
{
    for (const std::uint32_t flags :
         {AppKitFlag::control, AppKitFlag::command,
          AppKitFlag::control | AppKitFlag::command | AppKitFlag::shift | AppKitFlag::option,
          AppKitFlag::command | AppKitFlag::help}) {
        for (const std::uint32_t keyCode : {keyA, keyDelete, keyEscape, keyDeleteForward}) {
            const RecorderAnswer recorded = answer(keyCode, flags);
            EXPECT_EQ(recorded.kind, Kind::record) << keyCode << ' ' << flags;
            EXPECT_EQ(recorded.shortcut, (Shortcut{keyCode, carbonModifiers(flags)})) << keyCode << ' ' << flags;
        }
    }
}

TEST(RecorderRules, OtherModifiersAreNotEnough)
{
    for (const std::uint32_t flags : {AppKitFlag::shift, AppKitFlag::option, AppKitFlag::shift | AppKitFlag::option,
                                      AppKitFlag::help, 0x100'0000U}) {
        for (const std::uint32_t keyCode : {keyA, keyDelete, keyEscape, keyDeleteForward})
            EXPECT_EQ(answer(keyCode, flags).kind, Kind::refuse) << keyCode << ' ' << flags;
    }
}

TEST(RecorderRules, AKeyWithoutANumberCanNotBeRecorded)
{
    EXPECT_EQ(answer(std::nullopt, AppKitFlag::control).kind, Kind::refuse);
}

} // namespace
} // namespace vantrel
