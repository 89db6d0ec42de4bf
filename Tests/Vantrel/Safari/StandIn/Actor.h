#pragma once

#include "Tests/Vantrel/Safari/StandIn/AppleScript.h"
#include "Tests/Vantrel/Safari/StandIn/Scene.h"

#include <expected>

namespace vantrel::test {

/// Does in a scene what statements of a script say.
class Actor {
public:
    /// What a statement yields, or what is wrong with it.
    using Result = std::expected<QStringList, QString>;

    explicit Actor(Scene &scene) : scene_(scene) {}

    [[nodiscard]] Result perform(const AppleScript::Statement &statement);

private:
    [[nodiscard]] std::optional<Result> read(const AppleScript::Statement &statement) const;
    [[nodiscard]] std::optional<Result> click(const AppleScript::Statement &statement);
    [[nodiscard]] std::optional<Result> press(const AppleScript::Statement &statement);
    [[nodiscard]] std::optional<Result> manage(const AppleScript::Statement &statement);
    [[nodiscard]] Result clickItem(const QList<Scene::Item> &items, const QString &number);
    /// Whether there is such a process with such a menu.
    [[nodiscard]] bool has(const QString &process, const QString &menu = {}, const QString &item = {}) const;

    Scene &scene_;
};

} // namespace vantrel::test
