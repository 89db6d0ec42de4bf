#pragma once

#include "Platform/LauncherWriter.h"

#include <QMap>

namespace vantrel::test {

/// Launchers that exist for a test alone.
class FakeLauncherWriter final : public LauncherWriter {
public:
    /// Whether its panel asks for a folder rather than for a file.
    void setAsksForFolder(bool asks) { asksForFolder_ = asks; }
    /// Nothing can be written or removed from now on.
    void refuse(const QString &message) { refusal_ = PlatformError{message}; }

    /// By their places.
    [[nodiscard]] const QMap<QString, Launcher> &launchers() const { return launchers_; }

    [[nodiscard]] SavePanel::Panel panel(const QString &title) const override
    {
        return {.title = QStringLiteral("Create"),
                .message = title,
                .confirmButton = QStringLiteral("Create"),
                .folder = QStringLiteral("/usual"),
                .fileName = asksForFolder_ ? QString() : title + QStringLiteral(".app")};
    }

    [[nodiscard]] QString placeIn(const std::optional<QString> &folder, const QString &profileID,
                                  const QString & /*title*/) const override
    {
        return folder.value_or(QStringLiteral("/usual")) + u'/' + QString(profileID).replace(u'/', u'_');
    }

    [[nodiscard]] QCoro::Task<std::expected<QUrl, PlatformError>> write(Launcher launcher, QString place) override
    {
        if (refusal_)
            co_return std::unexpected(*refusal_);
        launchers_.insert(place, launcher);
        co_return QUrl::fromLocalFile(place);
    }

    [[nodiscard]] QCoro::Task<std::expected<void, PlatformError>> remove(QString profileID, QString place) override
    {
        if (refusal_)
            co_return std::unexpected(*refusal_);
        if (!launchers_.contains(place) || launchers_.value(place).profileID != profileID)
            co_return std::unexpected(PlatformError{QStringLiteral("There is no launcher at ") + place});
        launchers_.remove(place);
        co_return {};
    }

private:
    bool asksForFolder_ = false;
    std::optional<PlatformError> refusal_;
    QMap<QString, Launcher> launchers_;
};

} // namespace vantrel::test
