#pragma once

#include "Tests/Fakes/FakeAlert.h"
#include "Tests/Fakes/FakeBrowserData.h"
#include "Tests/Fakes/FakeDesktopHotKeys.h"
#include "Tests/Fakes/FakeKeyboardLayout.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeLoginItem.h"
#include "Tests/Fakes/FakePermissions.h"
#include "Tests/Fakes/FakeRunningApplications.h"
#include "Tests/Fakes/FakeUpdater.h"
#include "Tests/Fakes/FakeUserDefaults.h"
#include "Tests/Fakes/FakeWorkspace.h"
#include "Tests/VantrelKit/Samples.h"
#include "Vantrel/InstalledBrowsers.h"
#include "Vantrel/Interface/Settings/SettingsWindow.h"

#include <QAbstractButton>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace vantrel::test {

class CountedPolicy final : public ActivationPolicy {
public:
    void becomeRegular() override { isRegular_ = true; }
    void becomeAccessory() override { isRegular_ = false; }
    void activate() override { ++activations_; }

    [[nodiscard]] bool isRegular() const { return isRegular_; }
    [[nodiscard]] int activations() const { return activations_; }

private:
    bool isRegular_ = false;
    int activations_ = 0;
};

/// The settings window of a program whose every port is played by the test. Chrome is installed at first.
class SettingsFixture : public testing::Test {
protected:
    SettingsFixture() { install({chrome}); }

    /// These are the browsers that there are from now on.
    void install(const QStringList &bundleIDs)
    {
        for (const QString &bundleID : bundleIDs)
            workspace_.install(bundleID, bundleID);
        store_.setBrowsers(installedBrowsers(workspace_, bundleIDs));
    }

    /// What the browser has from now on, by the names of its profiles, which are their folders' names too.
    void discover(const QString &bundleID, const QStringList &names)
    {
        QList<DiscoveredProfile> profiles;
        for (const QString &name : names)
            profiles.append({name, name});
        store_.apply({{bundleID, profiles}});
    }

    void show(SettingsModel::Tab tab = SettingsModel::Tab::profiles)
    {
        model_.setTab(tab);
        window_ = std::make_unique<SettingsWindow>(SettingsWindow::Environment{
            .model = model_,
            .windows = windows_,
            .profiles = {store_, discovery_, opener_, shortcuts_, hotkeys_, texts_, icons_, launchers_, data_,
                         symbols_},
            .general = {.store = store_,
                        .alert = alert_,
                        .conventions = conventions_,
                        .accessibility = hasSafari_ ? &accessibility_ : nullptr,
                        .loginItem = &loginItem_,
                        .updater = hasUpdater_ ? &updater_ : nullptr},
            .build = QStringLiteral("42"),
        });
        window_->show();
        window_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    }

    [[nodiscard]] static QString id(const QString &notation) { return profiles(notation).first().id(); }

    /// Null when the profile's row isn't there.
    [[nodiscard]] ProfileRow *row(const QString &notation) const
    {
        for (ProfileRow *each : window_->findChildren<ProfileRow *>()) {
            if (each->isVisible() && each->profileID() == id(notation))
                return each;
        }
        return nullptr;
    }

    [[nodiscard]] QLineEdit *name(const QString &notation) const { return row(notation)->findChild<QLineEdit *>(); }
    [[nodiscard]] QAbstractButton *hideButton(const QString &notation) const
    {
        return row(notation)->findChildren<SymbolButton *>().first();
    }
    [[nodiscard]] QAbstractButton *moreButton(const QString &notation) const
    {
        return row(notation)->findChildren<SymbolButton *>().last();
    }

    /// The rows that can be seen, from top to bottom, with a space between two.
    [[nodiscard]] QString rows() const
    {
        QList<ProfileRow *> visible;
        for (ProfileRow *each : window_->findChildren<ProfileRow *>()) {
            if (each->isVisible())
                visible.append(each);
        }
        std::ranges::sort(visible, {}, [](const ProfileRow *each) { return each->y(); });
        QList<Profile> shown;
        for (const ProfileRow *each : visible) {
            const auto found = std::ranges::find(store_.profiles(), each->profileID(), &Profile::id);
            shown.append(*found);
        }
        return test::notation(shown);
    }

    /// The button with that text that can be seen; null without one.
    [[nodiscard]] QAbstractButton *button(const QString &text) const
    {
        for (QAbstractButton *each : window_->findChildren<QAbstractButton *>()) {
            if (each->isVisible() && each->text() == text)
                return each;
        }
        return nullptr;
    }

    /// Whether a label with that text can be seen.
    [[nodiscard]] bool shows(const QString &text) const
    {
        const QList<QLabel *> labels = window_->findChildren<QLabel *>();
        return std::ranges::any_of(labels,
                                   [&](const QLabel *label) { return label->isVisible() && label->text() == text; });
    }

    static void click(QWidget *widget) { QTest::mouseClick(widget, Qt::LeftButton); }

    FakeWorkspace workspace_;
    FakeBrowserData data_;
    FakeRunningApplications running_;
    FakeLog log_;
    FakeAlert alert_;
    FakeUserDefaults defaults_;
    FakeLoginItem loginItem_;
    FakeUpdater updater_;
    FakeAccessibilityTrust accessibility_;
    CountedPolicy policy_;
    bool hasSafari_ = false;
    bool hasUpdater_ = false;
    SystemConventions conventions_{.linkCommand = QStringLiteral("xdg-open")};
    DesktopKeyboard keyboard_{std::make_unique<FakeDesktopHotKeys>(), std::make_unique<FakeKeyboardLayout>()};
    FakeDesktopHotKeys &hotKeys_ = static_cast<FakeDesktopHotKeys &>(*keyboard_.hotKeys);
    KeyboardShortcuts shortcuts_{{defaults_, *keyboard_.hotKeys, *keyboard_.layout}};
    ProfileStore store_{QString(), log_, ProfileStore::Liveness::detached};
    DiscoveryRuns discovery_{store_, {workspace_, data_, running_}, ProfileReader()};
    ProfileOpener opener_{store_, {workspace_, alert_, log_}};
    ProfileHotkeys hotkeys_{store_, opener_, shortcuts_};
    ShortcutTexts texts_{shortcuts_, keyboard_, conventions_};
    ProfileIconCache icons_;
    ProfileLaunchers launchers_{{policy_, alert_, log_}};
    SymbolIcons symbols_{nullptr};
    SettingsModel model_;
    SettingsWindows windows_{policy_};
    std::unique_ptr<SettingsWindow> window_;
};

} // namespace vantrel::test
