#include "Tests/Vantrel/Interface/Settings/SettingsFixture.h"
#include "Vantrel/Settings/ProfileLinks.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QPlainTextEdit>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::brave;
using test::chrome;
using Tab = SettingsModel::Tab;

class SettingsWindowTest : public test::SettingsFixture {
protected:
    [[nodiscard]] QTabWidget *tabs() const { return window_->findChild<QTabWidget *>(); }

    [[nodiscard]] QCheckBox *toggle(const QString &text) const { return qobject_cast<QCheckBox *>(button(text)); }

    /// On its box, which is at its left end.
    static void clickBox(QCheckBox *box)
    {
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->height() / 2, box->height() / 2));
    }

    /// Where the focus comes by on its way through the window, as screen readers name it.
    [[nodiscard]] QStringList focusWay() const
    {
        QStringList names;
        const QWidget *first = QApplication::focusWidget();
        do {
            QAccessibleInterface *widget = QAccessible::queryAccessibleInterface(QApplication::focusWidget());
            names.append(widget->text(QAccessible::Name));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (QApplication::focusWidget() != first && names.size() < 200);
        return names;
    }
};

TEST_F(SettingsWindowTest, CountsFromBeingShownToBeingClosed)
{
    show();
    EXPECT_TRUE(program_.policy.isRegular());
    EXPECT_EQ(program_.policy.activations(), 1);
    window_->hide();
    window_->show();
    EXPECT_EQ(program_.windows.count(), 1);
    window_->close();
    EXPECT_EQ(program_.windows.count(), 0);
    EXPECT_FALSE(program_.policy.isRegular());
    window_->show();
    EXPECT_EQ(program_.windows.count(), 1);
}

TEST_F(SettingsWindowTest, HasThreeTabsAndFollowsTheModel)
{
    show(Tab::general);
    ASSERT_EQ(tabs()->count(), 3);
    QStringList labels;
    for (int index = 0; index < tabs()->count(); ++index) {
        labels.append(tabs()->tabText(index));
        EXPECT_FALSE(tabs()->tabIcon(index).pixmap(32).toImage().isNull());
    }
    EXPECT_EQ(labels, (QStringList{u"Profiles"_s, u"General"_s, u"About"_s}));
    EXPECT_EQ(tabs()->currentIndex(), 1);
    program_.model.setTab(Tab::profiles);
    EXPECT_EQ(tabs()->currentIndex(), 0);
    tabs()->setCurrentIndex(2);
    EXPECT_EQ(program_.model.tab(), Tab::about);
}

TEST_F(SettingsWindowTest, AboutNamesTheProgramAndItsVersion)
{
    QCoreApplication::setApplicationVersion(u"1.2"_s);
    show(Tab::about);
    EXPECT_TRUE(shows(u"Vantrel"_s));
    EXPECT_TRUE(shows(u"Version 1.2 (42)"_s));
    EXPECT_TRUE(shows(u"Every browser profile, one click away."_s));
}

TEST_F(SettingsWindowTest, GeneralShowsNothingThatThereIsNot)
{
    show(Tab::general);
    EXPECT_FALSE(shows(u"Safari Profiles"_s));
    EXPECT_EQ(button(u"Open Privacy Settings…"_s), nullptr);
    EXPECT_EQ(toggle(u"Check for Updates Automatically"_s), nullptr);
    EXPECT_NE(toggle(u"Open at Login"_s), nullptr);
    EXPECT_TRUE(shows(u"Links"_s));
}

TEST_F(SettingsWindowTest, GeneralShowsWhetherSafarisMenusMayBeUsedAndReadsItAgain)
{
    program_.hasSafari = true;
    program_.accessibility.setTrusted(false);
    show(Tab::general);
    EXPECT_TRUE(shows(u"Safari Profiles"_s));
    EXPECT_TRUE(shows(u"Accessibility"_s));
    EXPECT_TRUE(shows(u"Not allowed"_s));
    EXPECT_NE(button(u"Open Privacy Settings…"_s), nullptr);
    EXPECT_TRUE(shows(u"Safari can only be told which profile to open through its File menu, so Vantrel clicks it for "
                      "you. That needs Accessibility, and macOS asks to let Vantrel control Safari and System Events. "
                      "Other browsers need neither."_s));
    EXPECT_EQ(program_.accessibility.questions(), 0);
    program_.accessibility.setTrusted(true);
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    window_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    EXPECT_TRUE(shows(u"Allowed"_s));
    program_.accessibility.setTrusted(false);
    tabs()->setCurrentIndex(0);
    tabs()->setCurrentIndex(1);
    EXPECT_TRUE(shows(u"Not allowed"_s));
}

TEST_F(SettingsWindowTest, GeneralShowsHowALinkIsOpened)
{
    show(Tab::general);
    EXPECT_TRUE(shows(u"Other apps and scripts can open a profile with a link; Copy Link in a profile's menu in the "
                      "Profiles tab gives it. Add <tt>\u2066url=\u2069</tt> items to open web pages in it:"_s));
    auto *example = window_->findChild<QPlainTextEdit *>();
    EXPECT_TRUE(example->isReadOnly());
    discover(chrome, {u"1"_s});
    EXPECT_EQ(example->toPlainText(), linkExample(program_.store, program_.conventions, false));
    EXPECT_TRUE(example->toPlainText().contains(u"profile=com.google.Chrome/chromium:1"_s));
}

TEST_F(SettingsWindowTest, OpenAtLoginShowsWhatHolds)
{
    show(Tab::general);
    QCheckBox *login = toggle(u"Open at Login"_s);
    EXPECT_FALSE(login->isChecked());
    clickBox(login);
    EXPECT_TRUE(login->isChecked());
    EXPECT_TRUE(program_.loginItem.isEnabled());
    clickBox(login);
    program_.loginItem.refuse(u"The disk is full."_s);
    clickBox(login);
    EXPECT_FALSE(login->isChecked());
    EXPECT_EQ(program_.alert.shown(), QStringList{u"Vantrel Can't Be Opened at Login / The disk is full."_s});
    program_.loginItem.change(true);
    tabs()->setCurrentIndex(0);
    tabs()->setCurrentIndex(1);
    EXPECT_TRUE(login->isChecked());
}

TEST_F(SettingsWindowTest, UpdatesAreLookedForAsTheUserWants)
{
    program_.hasUpdater = true;
    show(Tab::general);
    QCheckBox *updates = toggle(u"Check for Updates Automatically"_s);
    ASSERT_NE(updates, nullptr);
    EXPECT_FALSE(updates->isChecked());
    clickBox(updates);
    EXPECT_TRUE(program_.updater.automaticallyChecksForUpdates());
    clickBox(updates);
    EXPECT_FALSE(program_.updater.automaticallyChecksForUpdates());
}

TEST_F(SettingsWindowTest, TheKeyboardReachesEverythingInTheOrderInWhichItIsRead)
{
    program_.install({chrome, brave});
    discover(brave, {u"1"_s});
    program_.store.apply({{chrome, std::unexpected(ProfileDiscoveryError::accessDenied(u"/x"_s))}});
    show();
    tabs()->tabBar()->setFocus();
    QStringList expected{u"Profiles"_s};
    for (const QString &notation : {u"b:1"_s, u"b:private"_s, u"c:private"_s}) {
        if (notation == u"c:private"_s)
            expected.append(u"Try Again"_s);
        const QString title = program_.store.catalogue().title(test::profiles(notation).first());
        for (const QString &part : {u"Name"_s, u"Record Shortcut"_s, u"Leave out of the menu"_s, u"More"_s})
            expected.append(title + u": "_s + part);
    }
    EXPECT_EQ(focusWay(), expected);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(program_.model.tab(), Tab::general);
}

TEST_F(SettingsWindowTest, EverythingThatCanBeUsedHasANameAndARole)
{
    program_.hasSafari = true;
    program_.hasUpdater = true;
    discover(chrome, {u"1"_s});
    show();
    for (const int tab : {0, 1, 2}) {
        tabs()->setCurrentIndex(tab);
        for (QWidget *widget : window_->findChildren<QWidget *>()) {
            if (!widget->isVisible() || widget->focusProxy() || (widget->focusPolicy() & Qt::TabFocus) == 0)
                continue;
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
            ASSERT_NE(accessible, nullptr);
            EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty()) << widget->metaObject()->className();
            EXPECT_NE(accessible->role(), QAccessible::NoRole);
            EXPECT_TRUE(accessible->state().focusable) << widget->metaObject()->className();
        }
    }
}

TEST_F(SettingsWindowTest, RightToLeftIsMirrored)
{
    discover(chrome, {u"1"_s});
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    show();
    const ProfileRow *mirrored = row(u"c:1"_s);
    EXPECT_GT(mirrored->findChild<PictureView *>()->x(), name(u"c:1"_s)->x());
    EXPECT_EQ(name(u"c:1"_s)->alignment(), Qt::AlignAbsolute | Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_LT(moreButton(u"c:1"_s)->x(), hideButton(u"c:1"_s)->x());
    EXPECT_LT(hideButton(u"c:1"_s)->x(), name(u"c:1"_s)->x());
    window_.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(SettingsWindowTest, NothingIsCutOffWithLargeTextInANarrowWindow)
{
    program_.hasSafari = true;
    program_.hasUpdater = true;
    program_.install({chrome, brave});
    discover(chrome, {u"1"_s});
    program_.store.apply({{brave, std::unexpected(ProfileDiscoveryError::accessDenied(u"/x"_s))}});
    show();
    QFont font = window_->font();
    font.setPointSizeF(font.pointSizeF() * 2);
    window_->setFont(font);
    window_->resize(480, 600);
    for (const int tab : {0, 1, 2}) {
        tabs()->setCurrentIndex(tab);
        QCoreApplication::sendPostedEvents();
        for (QWidget *widget : window_->findChildren<QWidget *>()) {
            const bool isText = qobject_cast<QLabel *>(widget) || qobject_cast<QAbstractButton *>(widget);
            if (!isText || !widget->isVisible() || widget->parentWidget() == tabs()->tabBar())
                continue;
            const QRect place(widget->mapTo(window_.get(), QPoint()), widget->size());
            EXPECT_GE(place.left(), 0) << widget->metaObject()->className();
            EXPECT_LE(place.right(), window_->width()) << widget->metaObject()->className();
            if (const auto *label = qobject_cast<QLabel *>(widget); label && label->wordWrap())
                EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->text().toStdString();
            else
                EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << widget->metaObject()->className();
        }
    }
}

} // namespace
} // namespace vantrel
