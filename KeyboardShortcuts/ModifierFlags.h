#pragma once

#include <QtGlobal>

#include <cstdint>

namespace vantrel {

/// Bits of AppKit's modifier flags, in which key events name the modifiers that are held.
struct AppKitFlag {
    static constexpr std::uint32_t capsLock = 0x1'0000;
    static constexpr std::uint32_t shift = 0x2'0000;
    static constexpr std::uint32_t control = 0x4'0000;
    static constexpr std::uint32_t option = 0x8'0000;
    static constexpr std::uint32_t command = 0x10'0000;
    static constexpr std::uint32_t numericPad = 0x20'0000;
    static constexpr std::uint32_t help = 0x40'0000;
    static constexpr std::uint32_t function = 0x80'0000;
};

/// Bits of Carbon's modifier masks, in which shortcuts are stored and registered.
struct CarbonModifier {
    static constexpr std::uint32_t command = 0x100;
    static constexpr std::uint32_t shift = 0x200;
    static constexpr std::uint32_t option = 0x800;
    static constexpr std::uint32_t control = 0x1000;
    static constexpr std::uint32_t function = 0x2'0000;
};

/// Control, Option, Shift, Command and Function; all other flags are dropped.
[[nodiscard]] std::uint32_t carbonModifiers(std::uint32_t appKitFlags) noexcept;

/// The way back; all other bits are dropped.
[[nodiscard]] std::uint32_t appKitFlags(qint64 carbonModifiers) noexcept;

/// Makes masks comparable that come from outside: only the five known bits stay.
[[nodiscard]] std::uint32_t normalizedModifiers(qint64 carbonModifiers) noexcept;

} // namespace vantrel
