#pragma once

#include "Platform/StatusItem.h"

#include <QObject>

#include <utility>

namespace vantrel::test {

/// A symbol in a panel that a test plays. There is none at first.
class FakeStatusItem final : public StatusItem {
public:
    void start(Content content, std::function<void(bool isShown)> shownChanged) override
    {
        ++starts_;
        content_ = std::move(content);
        shownChanged_ = std::move(shownChanged);
        tell();
    }

    void updateMenu() override { ++menuUpdates_; }

    /// A panel comes or goes.
    void setShown(bool isShown)
    {
        isShown_ = isShown;
        if (shownChanged_)
            tell();
    }

    /// The menu as it opens now. Only after `start`.
    [[nodiscard]] Menu openedMenu() const { return content_.menu(); }

    /// Chooses the row from a menu that opens now; false when there is none of that id that can be chosen.
    [[nodiscard]] bool choose(const QString &id) const
    {
        for (const MenuItem &item : openedMenu()) {
            if (item.kind != MenuItem::Kind::command || item.id != id || !item.action)
                continue;
            item.action();
            return true;
        }
        return false;
    }

    [[nodiscard]] const Content &content() const { return content_; }
    /// How often each was called.
    [[nodiscard]] int starts() const { return starts_; }
    [[nodiscard]] int menuUpdates() const { return menuUpdates_; }

private:
    void tell()
    {
        QMetaObject::invokeMethod(
            &context_, [this, isShown = isShown_] { shownChanged_(isShown); }, Qt::QueuedConnection);
    }

    Content content_;
    std::function<void(bool)> shownChanged_;
    int starts_ = 0;
    int menuUpdates_ = 0;
    bool isShown_ = false;
    /// Owns what is still to be told.
    QObject context_;
};

} // namespace vantrel::test
