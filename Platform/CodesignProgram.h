#pragma once

#include "Platform/CodeSigner.h"

namespace vantrel {

/// Signs with the program "codesign".
class CodesignProgram final : public CodeSigner {
public:
    explicit CodesignProgram(QString program = QStringLiteral("/usr/bin/codesign")) : program_(std::move(program)) {}

    [[nodiscard]] QCoro::Task<std::expected<void, PlatformError>> sign(QString bundle) override;

private:
    QString program_;
};

} // namespace vantrel
