#pragma once

#include "Platform/StatusItem.h"
#include "Tests/VantrelKit/Printing.h"

#include <QCoreApplication>
#include <QList>
#include <QTest>

#include <gtest/gtest.h>

#include <concepts>

/// What every implementation of `StatusItem` keeps to: `INSTANTIATE_TYPED_TEST_SUITE_P(Name, StatusItemContract,
/// System)`.
namespace vantrel::test {

/// A session, without a panel at first. Provides the event loop.
template <typename System>
concept StatusItemSystem = std::default_initializable<System> && requires(System system, const QString &title) {
    { system.item() } -> std::same_as<StatusItem &>;
    { system.addPanel() } -> std::same_as<void>;
    { system.removePanel() } -> std::same_as<void>;
    /// The titles of the rows in the menu that the user opens in the panel now.
    { system.openMenu() } -> std::same_as<QStringList>;
    /// Chooses a row of a menu that the user opens.
    { system.choose(title) } -> std::same_as<void>;
};

template <StatusItemSystem System>
class StatusItemContract : public testing::Test {
protected:
    void start()
    {
        isStarting_ = true;
        system_.item().start({.title = QStringLiteral("Vantrel"),
                              .iconName = QStringLiteral("vantrel"),
                              .icon =
                                  [](int pixels) {
                                      QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
                                      image.fill(Qt::red);
                                      return image;
                                  },
                              .menu = [this] { return menu(); }},
                             [this](bool isShown) {
                                 EXPECT_FALSE(isStarting_) << "It was told from within start.";
                                 shown_.append(isShown);
                             });
        isStarting_ = false;
        EXPECT_EQ(shown_, QList<bool>());
    }

    /// What was told once there is as much, or is not for long.
    [[nodiscard]] const QList<bool> &shown(qsizetype count)
    {
        std::ignore = QTest::qWaitFor([&] { return shown_.size() >= count; }, 10'000);
        QCoreApplication::processEvents();
        return shown_;
    }

    [[nodiscard]] Menu menu()
    {
        Menu rows;
        for (const QString &title : std::as_const(titles_))
            rows.append({.title = title, .id = title, .action = [this, title] { chosen_.append(title); }});
        return rows;
    }

    QStringList titles_{QStringLiteral("Work")};
    QStringList chosen_;
    QList<bool> shown_;
    bool isStarting_ = false;
    System system_;
};

TYPED_TEST_SUITE_P(StatusItemContract);

TYPED_TEST_P(StatusItemContract, WithoutAPanelItIsToldOnceThatNothingIsShown)
{
    this->start();
    EXPECT_EQ(this->shown(1), QList<bool>{false});
}

TYPED_TEST_P(StatusItemContract, WithAPanelItIsToldOnceThatTheSymbolIsShown)
{
    this->system_.addPanel();
    this->start();
    EXPECT_EQ(this->shown(1), QList<bool>{true});
}

TYPED_TEST_P(StatusItemContract, EachPanelThatComesOrGoesIsTold)
{
    this->start();
    QList<bool> expected{false};
    EXPECT_EQ(this->shown(1), expected);
    for (int time = 0; time < 2; ++time) {
        this->system_.addPanel();
        expected.append(true);
        EXPECT_EQ(this->shown(expected.size()), expected);
        this->system_.removePanel();
        expected.append(false);
        EXPECT_EQ(this->shown(expected.size()), expected);
    }
}

TYPED_TEST_P(StatusItemContract, TheMenuHasTheRowsAsTheyAreWhenItOpens)
{
    this->system_.addPanel();
    this->start();
    EXPECT_EQ(this->system_.openMenu(), this->titles_);
    this->titles_ = {QStringLiteral("Home"), QStringLiteral("_Büro_ & Co")};
    EXPECT_EQ(this->system_.openMenu(), this->titles_);
    this->titles_.removeFirst();
    this->system_.item().updateMenu();
    EXPECT_EQ(this->system_.openMenu(), this->titles_);
}

TYPED_TEST_P(StatusItemContract, ChoosingARowDoesWhatTheRowIsFor)
{
    this->system_.addPanel();
    this->titles_ = {QStringLiteral("Home"), QStringLiteral("Work")};
    this->start();
    this->system_.choose(QStringLiteral("Work"));
    this->system_.choose(QStringLiteral("Home"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return this->chosen_.size() >= 2; }, 10'000));
    QCoreApplication::processEvents();
    EXPECT_EQ(this->chosen_, (QStringList{QStringLiteral("Work"), QStringLiteral("Home")}));
}

REGISTER_TYPED_TEST_SUITE_P(StatusItemContract, WithoutAPanelItIsToldOnceThatNothingIsShown,
                            WithAPanelItIsToldOnceThatTheSymbolIsShown, EachPanelThatComesOrGoesIsTold,
                            TheMenuHasTheRowsAsTheyAreWhenItOpens, ChoosingARowDoesWhatTheRowIsFor);

} // namespace vantrel::test
