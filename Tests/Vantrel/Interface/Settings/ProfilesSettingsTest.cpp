#include "Tests/Vantrel/Interface/Settings/SettingsFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::brave;
using test::chrome;

class ProfilesSettingsTest : public test::SettingsFixture {
protected:
    /// The menu of what else can be done with a profile, open.
    [[nodiscard]] static QMenu *openMenu() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }

    [[nodiscard]] static QAction *item(const QString &text)
    {
        const QList<QAction *> actions = openMenu() ? openMenu()->actions() : QList<QAction *>();
        const auto found = std::ranges::find(actions, text, &QAction::text);
        return found == actions.end() ? nullptr : *found;
    }

    static void choose(const QString &text)
    {
        QAction *action = item(text);
        ASSERT_NE(action, nullptr) << text.toStdString();
        ASSERT_TRUE(action->isEnabled()) << text.toStdString();
        openMenu()->close();
        action->trigger();
    }

    [[nodiscard]] QScrollBar *scrollBar() const { return window_->findChild<ProfilesView *>()->verticalScrollBar(); }
};

TEST_F(ProfilesSettingsTest, WithoutABrowserOnlyTheTextIsThere)
{
    program_.store.setBrowsers({});
    show();
    EXPECT_TRUE(shows(u"No browser Vantrel knows is installed. It works with Safari, Chrome, Edge, Brave, Vivaldi, "
                      "Opera and other Chromium browsers, Firefox and Zen."_s));
    EXPECT_EQ(rows(), QString());
    program_.install({chrome});
    discover(chrome, {u"1"_s});
    EXPECT_EQ(rows(), u"c:1 c:private"_s);
    EXPECT_FALSE(shows(u"No browser Vantrel knows is installed. It works with Safari, Chrome, Edge, Brave, Vivaldi, "
                       "Opera and other Chromium browsers, Firefox and Zen."_s));
}

TEST_F(ProfilesSettingsTest, ASafariThatWasNeverSearchedHasItsButtonAndNoteAndNoRows)
{
    program_.store.setBrowsers({{test::safari, u"Safari"_s, QUrl(), BrowserFamily::safari}});
    show();
    EXPECT_TRUE(shows(u"Safari"_s));
    EXPECT_NE(button(u"Find Profiles"_s), nullptr);
    EXPECT_TRUE(shows(u"Find Profiles opens Safari and reads its profiles from the File menu. macOS asks to allow "
                      "Accessibility and to let Vantrel control Safari and System Events."_s));
    EXPECT_EQ(rows(), QString());
    ASSERT_TRUE(program_.store.beginSafariSearch(test::safari));
    EXPECT_FALSE(button(u"Find Profiles"_s)->isEnabled());
    program_.store.endSafariSearch(test::safari, QList<ProfileTarget::SafariProfile>{{.name = u"Work"_s, .index = 0}});
    EXPECT_EQ(button(u"Find Profiles"_s), nullptr);
    ASSERT_NE(button(u"Find Again"_s), nullptr);
    EXPECT_TRUE(button(u"Find Again"_s)->isEnabled());
    EXPECT_TRUE(window_->findChildren<NoteView *>().isEmpty() || !window_->findChild<NoteView *>()->isVisible());
}

TEST_F(ProfilesSettingsTest, RowsShowNamesInTheStoresOrder)
{
    program_.install({chrome, brave});
    discover(brave, {u"1"_s});
    discover(chrome, {u"2"_s, u"1"_s});
    program_.store.rename(program_.store.profilesOf(chrome).first(), u"Work & \"Play\""_s);
    show();
    EXPECT_EQ(rows(), u"b:1 b:private c:2 c:1 c:private"_s);
    EXPECT_EQ(name(u"c:2"_s)->text(), u"Work & \"Play\""_s);
    EXPECT_EQ(name(u"c:2"_s)->placeholderText(), u"2"_s);
    EXPECT_EQ(name(u"c:private"_s)->text(), privateWindowName(chrome));
}

TEST_F(ProfilesSettingsTest, ANameReachesTheStoreWhenItIsCommitted)
{
    discover(chrome, {u"1"_s});
    show();
    click(name(u"c:1"_s));
    name(u"c:1"_s)->selectAll();
    QTest::keyClicks(name(u"c:1"_s), u"  Home "_s);
    EXPECT_TRUE(program_.store.customNames().isEmpty());
    QTest::keyClick(name(u"c:1"_s), Qt::Key_Return);
    EXPECT_EQ(program_.store.customNames().value(id(u"c:1"_s)), u"Home"_s);
    EXPECT_EQ(name(u"c:1"_s)->text(), u"Home"_s);
    name(u"c:1"_s)->selectAll();
    QTest::keyClick(name(u"c:1"_s), Qt::Key_Delete);
    QTest::keyClick(name(u"c:1"_s), Qt::Key_Tab);
    EXPECT_TRUE(program_.store.customNames().isEmpty());
    EXPECT_EQ(name(u"c:1"_s)->text(), u"1"_s);
}

TEST_F(ProfilesSettingsTest, EscapeGivesTheNameBackAndClosingKeepsIt)
{
    discover(chrome, {u"1"_s});
    show();
    name(u"c:1"_s)->setFocus();
    QTest::keyClicks(name(u"c:1"_s), u"x"_s);
    QTest::keyClick(name(u"c:1"_s), Qt::Key_Escape);
    EXPECT_EQ(name(u"c:1"_s)->text(), u"1"_s);
    QTest::keyClicks(name(u"c:1"_s), u"Home"_s);
    window_->close();
    EXPECT_EQ(program_.store.customNames().value(id(u"c:1"_s)), u"Home"_s);
    show();
    name(u"c:1"_s)->setFocus();
    name(u"c:1"_s)->selectAll();
    QTest::keyClicks(name(u"c:1"_s), u"At home"_s);
    window_.reset();
    EXPECT_EQ(program_.store.customNames().value(id(u"c:1"_s)), u"At home"_s);
}

TEST_F(ProfilesSettingsTest, ChangesElsewhereShowAtOnceAndLeaveAnEditAlone)
{
    discover(chrome, {u"1"_s, u"2"_s});
    show();
    name(u"c:1"_s)->setFocus();
    name(u"c:1"_s)->selectAll();
    QTest::keyClicks(name(u"c:1"_s), u"Ho"_s);
    program_.store.apply(
        {{chrome, QList<DiscoveredProfile>{{u"0"_s, u"0"_s}, {u"One"_s, u"1"_s}, {u"Two"_s, u"2"_s}}}});
    EXPECT_EQ(rows(), u"c:1=One c:2=Two c:0 c:private"_s);
    EXPECT_EQ(name(u"c:2"_s)->text(), u"Two"_s);
    EXPECT_TRUE(name(u"c:1"_s)->hasFocus());
    QTest::keyClicks(name(u"c:1"_s), u"me"_s);
    EXPECT_EQ(name(u"c:1"_s)->text(), u"Home"_s);
    EXPECT_EQ(name(u"c:1"_s)->placeholderText(), u"One"_s);
    QTest::keyClick(name(u"c:1"_s), Qt::Key_Return);
    EXPECT_EQ(program_.store.customNames().value(id(u"c:1"_s)), u"Home"_s);
}

TEST_F(ProfilesSettingsTest, AnEditOfAProfileThatGoesIsKept)
{
    discover(chrome, {u"1"_s, u"2"_s});
    show();
    name(u"c:1"_s)->setFocus();
    name(u"c:1"_s)->selectAll();
    QTest::keyClicks(name(u"c:1"_s), u"Home"_s);
    discover(chrome, {u"2"_s});
    EXPECT_EQ(rows(), u"c:2 c:private"_s);
    EXPECT_EQ(program_.store.customNames().value(id(u"c:1"_s)), u"Home"_s);
    discover(chrome, {u"2"_s, u"1"_s});
    EXPECT_EQ(name(u"c:1"_s)->text(), u"Home"_s);
    EXPECT_EQ(name(u"c:2"_s)->text(), u"2"_s);
}

TEST_F(ProfilesSettingsTest, HidingKeepsTheRowAndTakesTheProfileFromTheMenu)
{
    discover(chrome, {u"1"_s});
    show();
    EXPECT_EQ(hideButton(u"c:1"_s)->toolTip(), u"Leave out of the menu"_s);
    EXPECT_GE(hideButton(u"c:1"_s)->width(), 20);
    const QImage shown = hideButton(u"c:1"_s)->icon().pixmap(32).toImage();
    click(hideButton(u"c:1"_s));
    EXPECT_EQ(program_.store.hidden(), QSet<QString>{id(u"c:1"_s)});
    EXPECT_EQ(test::notation(program_.store.menuSections().first().profiles), u"c:private"_s);
    ASSERT_NE(row(u"c:1"_s), nullptr);
    EXPECT_EQ(hideButton(u"c:1"_s)->toolTip(), u"Show in the menu"_s);
    EXPECT_NE(hideButton(u"c:1"_s)->icon().pixmap(32).toImage(), shown);
    click(hideButton(u"c:1"_s));
    EXPECT_TRUE(program_.store.hidden().isEmpty());
    EXPECT_EQ(hideButton(u"c:1"_s)->icon().pixmap(32).toImage(), shown);
}

TEST_F(ProfilesSettingsTest, TheMenuHasItsItemsInOrder)
{
    discover(chrome, {u"1"_s});
    show();
    click(moreButton(u"c:1"_s));
    ASSERT_NE(openMenu(), nullptr);
    QStringList texts;
    for (const QAction *action : openMenu()->actions())
        texts.append(action->isSeparator() ? u"-"_s : action->text());
    EXPECT_EQ(texts, (QStringList{u"Open"_s, u"Create Launcher App…"_s, u"Copy Link"_s, u"-"_s, u"Move Up"_s,
                                  u"Move Down"_s}));
    EXPECT_FALSE(item(u"Move Up"_s)->isEnabled());
    choose(u"Move Down"_s);
    EXPECT_EQ(rows(), u"c:private c:1"_s);
    click(moreButton(u"c:1"_s));
    EXPECT_FALSE(item(u"Move Down"_s)->isEnabled());
    choose(u"Move Up"_s);
    EXPECT_EQ(rows(), u"c:1 c:private"_s);
}

TEST_F(ProfilesSettingsTest, OpenOpensTheProfile)
{
    discover(chrome, {u"1"_s});
    show();
    click(moreButton(u"c:1"_s));
    choose(u"Open"_s);
    ASSERT_EQ(program_.workspace.openings().size(), 1);
    EXPECT_EQ(program_.workspace.openings().first().arguments, QStringList{u"--profile-directory=1"_s});
}

TEST_F(ProfilesSettingsTest, CopyLinkNamesTheProfileAsItsBrowserDoes)
{
    discover(chrome, {u"1"_s});
    program_.store.rename(program_.store.profiles().first(), u"Mine"_s);
    show();
    click(moreButton(u"c:1"_s));
    choose(u"Copy Link"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=1&"
              "profile=com.google.Chrome/chromium:1"_s);
    click(moreButton(u"c:private"_s));
    choose(u"Copy Link"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=Private&"
              "profile=com.google.Chrome/private"_s);
}

TEST_F(ProfilesSettingsTest, AltUpAndDownMoveTheRowThatHasTheFocus)
{
    discover(chrome, {u"1"_s, u"2"_s});
    show();
    hideButton(u"c:1"_s)->setFocus();
    QTest::keyClick(window_.get(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(rows(), u"c:1 c:2 c:private"_s);
    QTest::keyClick(window_.get(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(rows(), u"c:2 c:1 c:private"_s);
    EXPECT_TRUE(hideButton(u"c:1"_s)->hasFocus());
    name(u"c:1"_s)->setFocus();
    QTest::keyClick(window_.get(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(rows(), u"c:1 c:2 c:private"_s);
    EXPECT_TRUE(name(u"c:1"_s)->hasFocus());
}

TEST_F(ProfilesSettingsTest, DraggingMovesARowWithinItsBrowser)
{
    program_.install({chrome, brave});
    discover(brave, {u"1"_s});
    discover(chrome, {u"1"_s, u"2"_s, u"3"_s});
    show();
    const auto dragTo = [this](const QString &dragged, const QString &target, int offset) {
        ProfileRow *source = row(dragged);
        const QPoint start(4, source->height() / 2);
        const QPoint end = source->mapFromGlobal(row(target)->mapToGlobal(QPoint(4, offset)));
        QTest::mousePress(source, Qt::LeftButton, {}, start);
        QTest::mouseMove(source, start + (end - start) / 2);
        QTest::mouseMove(source, end);
        return [source, end] { QTest::mouseRelease(source, Qt::LeftButton, {}, end); };
    };
    dragTo(u"c:1"_s, u"c:3"_s, 4)();
    EXPECT_EQ(rows(), u"b:1 b:private c:2 c:1 c:3 c:private"_s);
    // Beyond its browser's rows it goes to their end or beginning.
    dragTo(u"c:3"_s, u"b:1"_s, 4)();
    EXPECT_EQ(rows(), u"b:1 b:private c:3 c:2 c:1 c:private"_s);
    const auto release = dragTo(u"c:3"_s, u"c:private"_s, 4);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    release();
    EXPECT_EQ(rows(), u"b:1 b:private c:3 c:2 c:1 c:private"_s);
    EXPECT_EQ(program_.log.takeLines().filter(u"moved"_s).size(), 2);
}

TEST_F(ProfilesSettingsTest, RecordersAreThoseOfTheProfiles)
{
    discover(chrome, {u"1"_s, u"2"_s});
    program_.hotkeys.start();
    show();
    auto *recorder = row(u"c:1"_s)->findChild<ShortcutRecorder *>();
    ASSERT_NE(recorder, nullptr);
    const ShortcutName one{u"profile."_s + id(u"c:1"_s)};
    program_.shortcuts.setShortcut(Shortcut{35, CarbonModifier::control | CarbonModifier::option}, one);
    EXPECT_NE(button(u"Ctrl+Alt+P"_s), nullptr);
    EXPECT_EQ(program_.hotKeys.keys().ids().size(), 1);
    click(button(u"Ctrl+Alt+P"_s));
    EXPECT_TRUE(recorder->isRecording());
    EXPECT_TRUE(program_.hotKeys.keys().ids().isEmpty());
    window_->close();
    EXPECT_FALSE(recorder->isRecording());
    EXPECT_EQ(program_.hotKeys.keys().ids().size(), 1);
}

TEST_F(ProfilesSettingsTest, RecordersReadTheKeysOfThisKeyboard)
{
    program_.readKey = keyEventByVirtualKey;
    discover(chrome, {u"1"_s});
    program_.hotkeys.start();
    show();
    click(button(u"Record Shortcut"_s));
    // ⌃⌥P as macOS sends it: by its scan code, it would be nothing.
    QKeyEvent press(QEvent::KeyPress, Qt::Key_P, Qt::MetaModifier | Qt::AltModifier, 0, 35,
                    AppKitFlag::control | AppKitFlag::option);
    QApplication::sendEvent(QApplication::focusWidget(), &press);
    EXPECT_EQ(program_.shortcuts.getShortcut(ShortcutName{u"profile."_s + id(u"c:1"_s)}),
              (Shortcut{35, CarbonModifier::control | CarbonModifier::option}));
}

TEST_F(ProfilesSettingsTest, WithoutHotkeysTheCommandIsOffered)
{
    discover(chrome, {u"1"_s});
    show();
    EXPECT_EQ(button(u"Copy Command"_s), nullptr);
    program_.hotKeys.setAvailability(DesktopHotKeys::Availability::notAvailable);
    window_->takeKeyboardChange();
    EXPECT_EQ(row(u"c:1"_s)->findChild<ShortcutRecorder *>(), nullptr);
    ASSERT_NE(button(u"Copy Command"_s), nullptr);
    click(row(u"c:1"_s)->findChild<QPushButton *>());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"vantrel open 'com.google.Chrome/chromium:1'"_s);
    ASSERT_TRUE(program_.texts.note().has_value());
    EXPECT_TRUE(QTest::qWaitFor([this] { return shows(program_.texts.note()->text); }));
    program_.hotKeys.setAvailability(DesktopHotKeys::Availability::available);
    window_->takeKeyboardChange();
    EXPECT_EQ(button(u"Copy Command"_s), nullptr);
    EXPECT_NE(row(u"c:1"_s)->findChild<ShortcutRecorder *>(), nullptr);
}

TEST_F(ProfilesSettingsTest, AFolderThatCantBeReadHasANoteAndCanBeReadAgain)
{
    program_.data.setFolder(chrome, u"/nowhere/chrome"_s);
    program_.store.apply({{chrome, std::unexpected(ProfileDiscoveryError::accessDenied(u"/nowhere/chrome"_s))}});
    show();
    ASSERT_NE(button(u"Try Again"_s), nullptr);
    EXPECT_NE(button(u"Try Again"_s)->accessibleDescription().indexOf(u"/nowhere/chrome"_s), -1);
    click(button(u"Try Again"_s));
    EXPECT_TRUE(QTest::qWaitFor([this] { return program_.discovery.isIdle(); }));
    // A folder that isn't there has no profiles, which is no failure.
    EXPECT_EQ(button(u"Try Again"_s), nullptr);
}

} // namespace
} // namespace vantrel
