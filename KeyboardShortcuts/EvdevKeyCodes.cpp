#include "KeyboardShortcuts/EvdevKeyCodes.h"

#include <array>

namespace vantrel {
namespace {

struct Row {
    std::uint8_t keyCode;
    std::uint8_t evdevCode;
};

// Keys by their place, named as on an American keyboard. Two choices: 0x72 is Help on old Macintosh keyboards, where PC
// keyboards have Insert and report it; and the two keys that Macintosh keyboards swap on their European form (0x0a and
// 0x32) have the numbers that any other keyboard gives them.
constexpr std::array rows{
    Row{0x00, 30},  // A
    Row{0x01, 31},  // S
    Row{0x02, 32},  // D
    Row{0x03, 33},  // F
    Row{0x04, 35},  // H
    Row{0x05, 34},  // G
    Row{0x06, 44},  // Z
    Row{0x07, 45},  // X
    Row{0x08, 46},  // C
    Row{0x09, 47},  // V
    Row{0x0a, 86},  // ISO_Section
    Row{0x0b, 48},  // B
    Row{0x0c, 16},  // Q
    Row{0x0d, 17},  // W
    Row{0x0e, 18},  // E
    Row{0x0f, 19},  // R
    Row{0x10, 21},  // Y
    Row{0x11, 20},  // T
    Row{0x12, 2},   // 1
    Row{0x13, 3},   // 2
    Row{0x14, 4},   // 3
    Row{0x15, 5},   // 4
    Row{0x16, 7},   // 6
    Row{0x17, 6},   // 5
    Row{0x18, 13},  // Equal
    Row{0x19, 10},  // 9
    Row{0x1a, 8},   // 7
    Row{0x1b, 12},  // Minus
    Row{0x1c, 9},   // 8
    Row{0x1d, 11},  // 0
    Row{0x1e, 27},  // RightBracket
    Row{0x1f, 24},  // O
    Row{0x20, 22},  // U
    Row{0x21, 26},  // LeftBracket
    Row{0x22, 23},  // I
    Row{0x23, 25},  // P
    Row{0x24, 28},  // Return
    Row{0x25, 38},  // L
    Row{0x26, 36},  // J
    Row{0x27, 40},  // Quote
    Row{0x28, 37},  // K
    Row{0x29, 39},  // Semicolon
    Row{0x2a, 43},  // Backslash
    Row{0x2b, 51},  // Comma
    Row{0x2c, 53},  // Slash
    Row{0x2d, 49},  // N
    Row{0x2e, 50},  // M
    Row{0x2f, 52},  // Period
    Row{0x30, 15},  // Tab
    Row{0x31, 57},  // Space
    Row{0x32, 41},  // Grave
    Row{0x33, 14},  // Delete
    Row{0x35, 1},   // Escape
    Row{0x36, 126}, // RightCommand
    Row{0x37, 125}, // Command
    Row{0x38, 42},  // Shift
    Row{0x39, 58},  // CapsLock
    Row{0x3a, 56},  // Option
    Row{0x3b, 29},  // Control
    Row{0x3c, 54},  // RightShift
    Row{0x3d, 100}, // RightOption
    Row{0x3e, 97},  // RightControl
    Row{0x40, 187}, // F17
    Row{0x41, 83},  // KpDecimal
    Row{0x43, 55},  // KpMultiply
    Row{0x45, 78},  // KpPlus
    Row{0x47, 69},  // KpClear
    Row{0x48, 115}, // VolumeUp
    Row{0x49, 114}, // VolumeDown
    Row{0x4a, 113}, // Mute
    Row{0x4b, 98},  // KpDivide
    Row{0x4c, 96},  // KpEnter
    Row{0x4e, 74},  // KpMinus
    Row{0x4f, 188}, // F18
    Row{0x50, 189}, // F19
    Row{0x51, 117}, // KpEquals
    Row{0x52, 82},  // Kp0
    Row{0x53, 79},  // Kp1
    Row{0x54, 80},  // Kp2
    Row{0x55, 81},  // Kp3
    Row{0x56, 75},  // Kp4
    Row{0x57, 76},  // Kp5
    Row{0x58, 77},  // Kp6
    Row{0x59, 71},  // Kp7
    Row{0x5a, 190}, // F20
    Row{0x5b, 72},  // Kp8
    Row{0x5c, 73},  // Kp9
    Row{0x5d, 124}, // JIS_Yen
    Row{0x5e, 89},  // JIS_Underscore
    Row{0x5f, 121}, // JIS_KeypadComma
    Row{0x60, 63},  // F5
    Row{0x61, 64},  // F6
    Row{0x62, 65},  // F7
    Row{0x63, 61},  // F3
    Row{0x64, 66},  // F8
    Row{0x65, 67},  // F9
    Row{0x66, 123}, // JIS_Eisu
    Row{0x67, 87},  // F11
    Row{0x68, 122}, // JIS_Kana
    Row{0x69, 183}, // F13
    Row{0x6a, 186}, // F16
    Row{0x6b, 184}, // F14
    Row{0x6d, 68},  // F10
    Row{0x6e, 127}, // ContextMenu
    Row{0x6f, 88},  // F12
    Row{0x71, 185}, // F15
    Row{0x72, 110}, // Help
    Row{0x73, 102}, // Home
    Row{0x74, 104}, // PageUp
    Row{0x75, 111}, // ForwardDelete
    Row{0x76, 62},  // F4
    Row{0x77, 107}, // End
    Row{0x78, 60},  // F2
    Row{0x79, 109}, // PageDown
    Row{0x7a, 59},  // F1
    Row{0x7b, 105}, // LeftArrow
    Row{0x7c, 106}, // RightArrow
    Row{0x7d, 108}, // DownArrow
    Row{0x7e, 103}, // UpArrow
};

constexpr std::uint8_t none = 0xff;
using Table = std::array<std::uint8_t, 256>;

constexpr Table tableOf(std::uint8_t Row::*from, std::uint8_t Row::*to)
{
    Table table{};
    table.fill(none);
    for (const Row &row : rows)
        table.at(row.*from) = row.*to;
    return table;
}

constexpr Table evdevCodes = tableOf(&Row::keyCode, &Row::evdevCode);
constexpr Table keyCodes = tableOf(&Row::evdevCode, &Row::keyCode);

std::optional<std::uint32_t> found(const Table &table, std::uint32_t code) noexcept
{
    if (code >= table.size() || table[code] == none)
        return std::nullopt;
    return table[code];
}

} // namespace

std::optional<std::uint32_t> evdevKeyCode(std::uint32_t keyCode) noexcept
{
    return found(evdevCodes, keyCode);
}

std::optional<std::uint32_t> keyCodeOfEvdev(std::uint32_t evdevCode) noexcept
{
    return found(keyCodes, evdevCode);
}

} // namespace vantrel
