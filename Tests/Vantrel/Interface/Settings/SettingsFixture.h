#pragma once

#include "Tests/Vantrel/Interface/Settings/SettingsProgram.h"
#include "Tests/VantrelKit/Samples.h"

#include <QAbstractButton>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace vantrel::test {

/// The settings window of a program whose every port is played by the test. Chrome is installed at first.
class SettingsFixture : public testing::Test {
protected:
    SettingsFixture() { program_.install({chrome}); }

    /// What the browser has from now on, by the names of its profiles, which are their folders' names too.
    void discover(const QString &bundleID, const QStringList &names)
    {
        QList<DiscoveredProfile> profiles;
        for (const QString &name : names)
            profiles.append({name, name});
        program_.store.apply({{bundleID, profiles}});
    }

    void show(SettingsModel::Tab tab = SettingsModel::Tab::profiles)
    {
        program_.model.setTab(tab);
        window_ = std::make_unique<SettingsWindow>(program_.settings());
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
            const auto found = std::ranges::find(program_.store.profiles(), each->profileID(), &Profile::id);
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

    SettingsProgram program_;
    std::unique_ptr<SettingsWindow> window_;
};

} // namespace vantrel::test
