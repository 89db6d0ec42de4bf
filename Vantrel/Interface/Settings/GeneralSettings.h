#pragma once

#include "Platform/AccessibilityTrust.h"
#include "Platform/LoginItem.h"
#include "Platform/SystemConventions.h"
#include "Platform/Updater.h"
#include "Vantrel/FailureAlert.h"
#include "Vantrel/ProfileStore.h"

#include <QLabel>
#include <QWidget>

class QVBoxLayout;

namespace vantrel {

/// The page of the settings that concern the whole program. What the system doesn't have isn't shown.
class GeneralSettings final : public QWidget {
    Q_OBJECT

public:
    /// What it works with; all that is there must outlive it.
    struct Environment {
        const ProfileStore &store;
        FailureAlert &alert;
        const SystemConventions &conventions;
        /// Null where there is no Safari.
        const AccessibilityTrust *accessibility = nullptr;
        /// Null where the program can't be started with the session.
        LoginItem *loginItem = nullptr;
        /// Null where the system itself keeps programs up to date.
        Updater *updater = nullptr;
    };

    explicit GeneralSettings(const Environment &environment, QWidget *parent = nullptr);

    /// Asks the system again for what the user may have changed there.
    void readSystemAgain();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void addSafari(QVBoxLayout *groups);
    void addLinks(QVBoxLayout *groups);
    void addStart(QVBoxLayout *groups);

    Environment environment_;
    QLabel *accessibilityStatus_ = nullptr;
    class LaunchAtLoginToggle *login_ = nullptr;
};

} // namespace vantrel
