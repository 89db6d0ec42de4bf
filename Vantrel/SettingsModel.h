#pragma once

#include <QObject>

namespace vantrel {

/// What the settings window shows, shared by all who can open it. Main thread only.
class SettingsModel final : public QObject {
    Q_OBJECT

public:
    enum class Tab : std::uint8_t { profiles, general, about };

    [[nodiscard]] Tab tab() const { return tab_; }
    void setTab(Tab tab)
    {
        if (std::exchange(tab_, tab) != tab)
            Q_EMIT tabChanged(tab);
    }

Q_SIGNALS:
    void tabChanged(vantrel::SettingsModel::Tab tab);

private:
    Tab tab_ = Tab::profiles;
};

} // namespace vantrel
