#pragma once

#include "KeyboardShortcuts/KeyboardLayout.h"

#include <QHash>

#include <utility>

namespace vantrel::test {

/// A layout that types only what a test says.
class FakeKeyboardLayout final : public KeyboardLayout {
public:
    [[nodiscard]] std::optional<QString> character(std::uint32_t keyCode) const override
    {
        const auto found = characters_.constFind(keyCode);
        return found == characters_.constEnd() ? std::nullopt : std::optional(*found);
    }

    void onChange(std::function<void()> changed) override { changed_ = std::move(changed); }

    /// The key types this from now on.
    void set(std::uint32_t keyCode, const QString &character)
    {
        characters_.insert(keyCode, character);
        if (changed_)
            changed_();
    }

    /// The key types nothing from now on, as one for an accent.
    void clear(std::uint32_t keyCode)
    {
        characters_.remove(keyCode);
        if (changed_)
            changed_();
    }

private:
    QHash<std::uint32_t, QString> characters_{
        {0, QStringLiteral("a")}, {1, QStringLiteral("s")}, {18, QStringLiteral("1")}, {35, QStringLiteral("p")}};
    std::function<void()> changed_;
};

} // namespace vantrel::test
