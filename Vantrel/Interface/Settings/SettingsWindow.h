#pragma once

#include "Vantrel/Interface/Settings/GeneralSettings.h"
#include "Vantrel/Interface/Settings/ProfilesSettings.h"
#include "Vantrel/SettingsModel.h"
#include "Vantrel/SettingsWindows.h"

#include <QTabWidget>
#include <QWidget>

namespace vantrel {

/// The settings window. It shows the tab of the model.
class SettingsWindow final : public QWidget {
    Q_OBJECT

public:
    /// What it works with; all must outlive it.
    struct Environment {
        SettingsModel &model;
        SettingsWindows &windows;
        ProfilesSettings::Environment profiles;
        GeneralSettings::Environment general;
        /// The number of this build of the version.
        QString build;
    };

    explicit SettingsWindow(const Environment &environment);
    /// A name that is being edited is kept.
    ~SettingsWindow() override;
    Q_DISABLE_COPY_MOVE(SettingsWindow)

    void takeKeyboardChange() { profiles_->takeKeyboardChange(); }

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void drawTabs();

    Environment environment_;
    QTabWidget *tabs_;
    ProfilesSettings *profiles_;
    GeneralSettings *general_;
    bool isCounted_ = false;
};

} // namespace vantrel
