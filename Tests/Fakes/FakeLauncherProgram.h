#pragma once

#include "Platform/LauncherProgram.h"

namespace vantrel::test {

/// The program that makes launchers, which never takes over. The arguments that it was to get are kept.
class FakeLauncherProgram final : public LauncherProgram {
public:
    [[nodiscard]] const QList<QStringList> &calls() const { return calls_; }

    [[nodiscard]] PlatformError become(const QStringList &arguments) override
    {
        calls_.append(arguments);
        return {QStringLiteral("This process goes on.")};
    }

private:
    QList<QStringList> calls_;
};

} // namespace vantrel::test
