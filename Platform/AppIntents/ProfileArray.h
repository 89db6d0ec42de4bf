#pragma once

#include "Platform/AppIntents/ActionsBridge.h"
#include "Platform/SystemProfile.h"

#include <QList>

#include <vector>

namespace vantrel {

/// Profiles in C's form, valid for as long as it is.
class ProfileArray {
public:
    explicit ProfileArray(QList<SystemProfile> profiles);

    [[nodiscard]] const VantrelProfile *data() const { return rows_.data(); }
    [[nodiscard]] std::size_t size() const { return rows_.size(); }

private:
    [[nodiscard]] const char *kept(const QString &text);

    QList<SystemProfile> profiles_;
    QList<QByteArray> texts_;
    std::vector<VantrelProfile> rows_;
};

} // namespace vantrel
