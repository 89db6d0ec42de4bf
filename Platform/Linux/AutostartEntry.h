#pragma once

#include "Platform/LoginItem.h"

#include <QProcessEnvironment>
#include <QStringList>

namespace vantrel {

/// An entry in the user's autostart folder (freedesktop.org Desktop Application Autostart Specification).
class AutostartEntry final : public LoginItem {
public:
    struct Places {
        /// The user's entry.
        QString own;
        /// Where an administrator may have put one for all users, the most important one first.
        QStringList everybodys;

        [[nodiscard]] static Places from(const QProcessEnvironment &variables);
    };

    /// `program` is started with the session.
    AutostartEntry(Places places, QString program) : places_(std::move(places)), program_(std::move(program)) {}

    [[nodiscard]] bool isEnabled() const override;
    [[nodiscard]] std::expected<void, PlatformError> setEnabled(bool isEnabled) override;

private:
    [[nodiscard]] bool isEnabledForEverybody() const;

    Places places_;
    QString program_;
};

} // namespace vantrel
