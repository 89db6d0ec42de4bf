#include "Platform/Linux/StatusItem/DBusMenuObject.h"

#include "Tests/Platform/Linux/StatusItem/StatusItemFixture.h"

#include <QSignalSpy>

#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::plainRow;

class DBusMenuObjectTest : public test::StatusItemFixture {
protected:
    DBusMenuObjectTest()
    {
        menu_ = {plainRow(MenuItem::Kind::header, u"Browser"_s), noting(u"1"_s, u"Work"_s),
                 plainRow(MenuItem::Kind::separator), noting(u"2"_s, u"Home"_s)};
        start();
    }

    /// Waits until what was sent before has arrived.
    void settle() { std::ignore = panel_.revision(); }

    [[nodiscard]] QStringList labels()
    {
        QStringList texts;
        for (const DBusMenuLayout &row : panel_.layout().children)
            texts.append(row.properties.value(u"label"_s, u"-"_s).toString());
        return texts;
    }

    /// To be sent from any connection.
    [[nodiscard]] QDBusMessage clickOn(int id)
    {
        QDBusMessage click =
            QDBusMessage::createMethodCall(serviceName(), u"/MenuBar"_s, u"com.canonical.dbusmenu"_s, u"Event"_s);
        click.setArguments({id, u"clicked"_s, QVariant::fromValue(QDBusVariant(0)), 0U});
        return click;
    }

    test::PanelStandIn panel_{bus_, serviceName()};
    QSignalSpy layoutUpdates_{&panel_.menu(), &test::RemoteMenu::LayoutUpdated};
    QSignalSpy propertyUpdates_{&panel_.menu(), &test::RemoteMenu::ItemsPropertiesUpdated};
    const QString invalid_ = QDBusError::errorString(QDBusError::InvalidArgs);
};

TEST_F(DBusMenuObjectTest, SaysWhichProtocolItFollows)
{
    const QVariantMap properties = panel_.menuProperties();
    EXPECT_EQ(properties.value(u"Version"_s), 3U);
    EXPECT_EQ(properties.value(u"Status"_s), u"normal"_s);
    EXPECT_EQ(properties.value(u"TextDirection"_s), u"ltr"_s);
    EXPECT_EQ(properties.value(u"IconThemePath"_s), QStringList());
}

TEST_F(DBusMenuObjectTest, TheLayoutIsTheRowsUnderTheMenuItself)
{
    const DBusMenuLayout layout = panel_.layout();
    EXPECT_EQ(layout.id, 0);
    EXPECT_EQ(layout.properties, (QVariantMap{{u"children-display"_s, u"submenu"_s}}));
    ASSERT_EQ(layout.children.size(), 4);
    EXPECT_EQ(layout.children[0].properties, (QVariantMap{{u"label"_s, u"Browser"_s}, {u"enabled"_s, false}}));
    EXPECT_EQ(layout.children[1].properties, (QVariantMap{{u"label"_s, u"Work"_s}}));
    EXPECT_EQ(layout.children[2].properties, (QVariantMap{{u"type"_s, u"separator"_s}}));
    EXPECT_TRUE(layout.children[3].children.isEmpty());
    EXPECT_EQ(menusAskedFor_, 1) << "Calls that open nothing don't ask again.";
}

TEST_F(DBusMenuObjectTest, TheLayoutHasTheDepthThePropertiesAndTheRowAskedFor)
{
    const auto layout = [this](int parent, int depth, const QStringList &names) {
        const QDBusMessage reply = panel_.callMenu(u"GetLayout"_s, {parent, depth, names});
        return qdbus_cast<DBusMenuLayout>(reply.arguments().value(1));
    };
    EXPECT_TRUE(layout(0, 0, {}).children.isEmpty());
    EXPECT_EQ(layout(0, 1, {}).children.size(), 4);
    const DBusMenuLayout filtered = layout(0, -1, {u"enabled"_s, u"type"_s});
    EXPECT_EQ(filtered.properties, QVariantMap());
    EXPECT_EQ(filtered.children[0].properties, (QVariantMap{{u"enabled"_s, false}}));
    EXPECT_EQ(filtered.children[1].properties, QVariantMap());
    const int home = panel_.idOf(u"Home"_s);
    EXPECT_EQ(layout(home, -1, {}).id, home);
    EXPECT_EQ(layout(home, -1, {}).properties, (QVariantMap{{u"label"_s, u"Home"_s}}));
    EXPECT_EQ(panel_.callMenu(u"GetLayout"_s, {99, -1, QStringList()}).errorName(), invalid_);
}

TEST_F(DBusMenuObjectTest, GroupPropertiesAreThoseOfTheRowsAskedForOrOfAll)
{
    const auto group = [this](const QList<int> &ids, const QStringList &names) {
        const QDBusMessage reply = panel_.callMenu(u"GetGroupProperties"_s, {QVariant::fromValue(ids), names});
        EXPECT_EQ(reply.signature(), u"a(ia{sv})"_s) << qPrintable(reply.errorMessage());
        return qdbus_cast<QList<DBusMenuItem>>(reply.arguments().value(0));
    };
    const int home = panel_.idOf(u"Home"_s);
    const QVariantMap label{{u"label"_s, u"Home"_s}};
    EXPECT_EQ(group({99, home}, {}), (QList<DBusMenuItem>{{home, label}}));
    EXPECT_EQ(group({home}, {u"enabled"_s}), (QList<DBusMenuItem>{{home, {}}}));
    const QList<DBusMenuItem> all = group({}, {u"label"_s});
    EXPECT_EQ(all.size(), 5);
    EXPECT_TRUE(all.contains(DBusMenuItem{home, label}));
}

TEST_F(DBusMenuObjectTest, APropertyIsOneRowsOrAnError)
{
    const int home = panel_.idOf(u"Home"_s);
    const QDBusMessage reply = panel_.callMenu(u"GetProperty"_s, {home, u"label"_s});
    EXPECT_EQ(reply.signature(), u"v"_s);
    EXPECT_EQ(reply.arguments().value(0).value<QDBusVariant>().variant(), u"Home"_s);
    EXPECT_EQ(panel_.callMenu(u"GetProperty"_s, {home, u"no-such"_s}).errorName(), invalid_);
    EXPECT_EQ(panel_.callMenu(u"GetProperty"_s, {99, u"label"_s}).errorName(), invalid_);
}

TEST_F(DBusMenuObjectTest, TheTypesOfAllPropertiesAreThoseOfTheProtocol)
{
    MenuItem item = noting(u"1"_s, u"Work"_s);
    item.shortcut = QKeySequence(u"Ctrl+Alt+P"_s);
    item.iconPNG = [](int pixels) { return test::squarePNG(pixels, 0xff00ff00); };
    menu_ = {item};
    const QVariantMap properties = panel_.layout().children.value(0).properties;
    EXPECT_EQ(properties.value(u"shortcut"_s).value<QDBusArgument>().currentSignature(), u"aas"_s);
    EXPECT_EQ(qdbus_cast<DBusMenuShortcut>(properties.value(u"shortcut"_s)),
              DBusMenuShortcut{(QStringList{u"Control"_s, u"Alt"_s, u"P"_s})});
    EXPECT_EQ(properties.value(u"icon-data"_s).typeId(), QMetaType::QByteArray);
    EXPECT_EQ(QImage::fromData(properties.value(u"icon-data"_s).toByteArray()).size(), QSize(32, 32));
}

TEST_F(DBusMenuObjectTest, ARowThatIsClickedActs)
{
    const int home = panel_.idOf(u"Home"_s);
    EXPECT_EQ(panel_.click(home), QString());
    EXPECT_TRUE(test::eventually([this] { return !chosen_.isEmpty(); }));
    EXPECT_EQ(chosen_, QStringList(u"Home"_s));
    EXPECT_TRUE(source_.apply({}).isEmpty()) << "A click without a time says nothing of it.";
}

TEST_F(DBusMenuObjectTest, ARowActsOnceThePanelHasItsReply)
{
    test::OwnConnection second(bus_.address());
    std::optional<QDBusPendingCall> click;
    std::optional<bool> wasReplied;
    menu_ = {test::command(u"1"_s, u"Work"_s, [&] {
        connection_.synchronize();
        second.synchronize();
        wasReplied = click && click->isFinished();
    })};
    click = second->asyncCall(clickOn(panel_.idOf(u"Work"_s)));
    EXPECT_TRUE(test::eventually([&] { return wasReplied.has_value(); }));
    EXPECT_EQ(wasReplied, true);
}

TEST_F(DBusMenuObjectTest, TheTimeOfAClickIsForThePrograms)
{
    EXPECT_EQ(panel_.click(panel_.idOf(u"Home"_s), 4711), QString());
    EXPECT_TRUE(source_.apply({}).value(u"DESKTOP_STARTUP_ID"_s).endsWith("_TIME4711"_L1));
}

TEST_F(DBusMenuObjectTest, OnlyClicksOnCommandsDoAnything)
{
    const QList<DBusMenuLayout> rows = panel_.layout().children;
    EXPECT_EQ(panel_.click(rows[0].id), QString());
    EXPECT_EQ(panel_.click(rows[2].id), QString());
    EXPECT_EQ(panel_.click(0), QString());
    const QVariant data = QVariant::fromValue(QDBusVariant(0));
    for (const QString &type : {u"hovered"_s, u"opened"_s, u"closed"_s, u"Clicked"_s, QString()})
        EXPECT_EQ(panel_.callMenu(u"Event"_s, {rows[1].id, type, data, 1U}).errorName(), QString());
    EXPECT_EQ(panel_.click(rows[3].id), QString());
    EXPECT_TRUE(test::eventually([this] { return !chosen_.isEmpty(); }));
    EXPECT_EQ(chosen_, QStringList(u"Home"_s));
}

TEST_F(DBusMenuObjectTest, AClickOnARowThatDoesNotExistIsRefused)
{
    EXPECT_EQ(panel_.click(1), invalid_) << "No host has seen a row yet.";
    const int last = panel_.layout().children.last().id;
    for (const int id : {last + 1, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        EXPECT_EQ(panel_.click(id), invalid_) << id;
    settle();
    EXPECT_EQ(chosen_, QStringList());
}

TEST_F(DBusMenuObjectTest, EventsOfAGroupAreDeliveredAndThoseWithoutARowAreNamed)
{
    const auto send = [this](const QList<int> &ids) {
        QList<DBusMenuEvent> events;
        for (const int id : ids)
            events.append({.id = id, .type = u"clicked"_s, .data = QDBusVariant(0), .timestamp = 0});
        return panel_.callMenu(u"EventGroup"_s, {QVariant::fromValue(events)});
    };
    const int work = panel_.idOf(u"Work"_s);
    const int home = panel_.idOf(u"Home"_s);
    const QDBusMessage reply = send({home, 99, work});
    EXPECT_EQ(reply.signature(), u"ai"_s) << qPrintable(reply.errorMessage());
    EXPECT_EQ(qdbus_cast<QList<int>>(reply.arguments().value(0)), QList<int>{99});
    EXPECT_TRUE(test::eventually([this] { return chosen_.size() == 2; }));
    EXPECT_EQ(chosen_, (QStringList{u"Home"_s, u"Work"_s}));
    EXPECT_EQ(send({99, 98}).errorName(), invalid_);
    EXPECT_EQ(send({}).errorName(), QString());
}

TEST_F(DBusMenuObjectTest, OpeningTheMenuBuildsItAndTellsWhetherItChanged)
{
    EXPECT_EQ(labels(), (QStringList{u"Browser"_s, u"Work"_s, u"-"_s, u"Home"_s}));
    EXPECT_FALSE(panel_.aboutToShow());
    EXPECT_EQ(menusAskedFor_, 2);
    settle();
    EXPECT_EQ(layoutUpdates_.size(), 0);
    const uint former = panel_.revision();
    menu_.append(noting(u"3"_s, u"New"_s));
    EXPECT_TRUE(panel_.aboutToShow());
    EXPECT_EQ(labels(), (QStringList{u"Browser"_s, u"Work"_s, u"-"_s, u"Home"_s, u"New"_s}));
    EXPECT_GT(panel_.revision(), former);
    EXPECT_FALSE(panel_.aboutToShow());
    // The other panels learn of it too.
    EXPECT_EQ(layoutUpdates_.size(), 1);
    EXPECT_FALSE(panel_.callMenu(u"AboutToShow"_s, {panel_.idOf(u"New"_s)}).arguments().value(0).toBool());
    EXPECT_EQ(panel_.callMenu(u"AboutToShow"_s, {99}).errorName(), invalid_);
}

TEST_F(DBusMenuObjectTest, OpeningAGroupBuildsTheMenuWhenItIsOneOfThem)
{
    const auto open = [this](const QList<int> &ids) {
        return panel_.callMenu(u"AboutToShowGroup"_s, {QVariant::fromValue(ids)});
    };
    settle();
    menu_.removeLast();
    const QDBusMessage changed = open({0, 99});
    EXPECT_EQ(changed.signature(), u"aiai"_s) << qPrintable(changed.errorMessage());
    EXPECT_EQ(qdbus_cast<QList<int>>(changed.arguments().value(0)), QList<int>{0});
    EXPECT_EQ(qdbus_cast<QList<int>>(changed.arguments().value(1)), QList<int>{99});
    const QDBusMessage unchanged = open({0});
    EXPECT_EQ(qdbus_cast<QList<int>>(unchanged.arguments().value(0)), QList<int>());
    EXPECT_EQ(open({99}).errorName(), invalid_);
    menu_.removeLast();
    std::ignore = open({panel_.idOf(u"Work"_s)});
    EXPECT_EQ(labels().size(), 3);
}

TEST_F(DBusMenuObjectTest, ManyUpdatesInOneTurnAreToldOnce)
{
    const uint former = panel_.revision();
    for (int time = 0; time < 3; ++time) {
        menu_.append(noting(QString::number(10 + time), u"New"_s));
        item_.updateMenu();
    }
    EXPECT_TRUE(test::eventually([this] { return !layoutUpdates_.isEmpty(); }));
    settle();
    ASSERT_EQ(layoutUpdates_.size(), 1);
    EXPECT_EQ(layoutUpdates_[0], (QVariantList{panel_.revision(), 0}));
    EXPECT_GT(panel_.revision(), former);
    EXPECT_EQ(menusAskedFor_, 2);
    EXPECT_EQ(labels().size(), 7);
    item_.updateMenu();
    EXPECT_TRUE(test::eventually([this] { return menusAskedFor_ == 3; }));
    settle();
    EXPECT_EQ(layoutUpdates_.size(), 1) << "Nothing is told when the rows are what they were.";
}

TEST_F(DBusMenuObjectTest, AMenuThatNobodyHasSeenNeedsNoUpdate)
{
    item_.updateMenu();
    settle();
    EXPECT_EQ(menusAskedFor_, 1) << "It is what the panel asked for just now.";
    EXPECT_EQ(layoutUpdates_.size(), 0);
}

TEST_F(DBusMenuObjectTest, PropertiesThatChangeOrGoAreTold)
{
    menu_[1].shortcut = QKeySequence(u"Ctrl+P"_s);
    const int work = panel_.idOf(u"Work"_s);
    menu_[1].title = u"Office"_s;
    menu_[1].shortcut = {};
    item_.updateMenu();
    EXPECT_TRUE(test::eventually([this] { return !layoutUpdates_.isEmpty(); }));
    ASSERT_EQ(propertyUpdates_.size(), 1);
    EXPECT_EQ(qvariant_cast<QList<DBusMenuItem>>(propertyUpdates_[0][0]),
              (QList<DBusMenuItem>{{work, {{u"label"_s, u"Office"_s}}}}));
    EXPECT_EQ(qvariant_cast<QList<DBusMenuItemKeys>>(propertyUpdates_[0][1]),
              (QList<DBusMenuItemKeys>{{work, {u"shortcut"_s}}}));
    EXPECT_EQ(panel_.idOf(u"Office"_s), work);
}

TEST_F(DBusMenuObjectTest, AMenuThatChangedBetweenOpeningAndClickingNeverOpensAnotherRow)
{
    std::ignore = panel_.aboutToShow();
    const int work = panel_.idOf(u"Work"_s);
    const int home = panel_.idOf(u"Home"_s);
    // "Home" moves to where "Work" was, and a new row takes its place.
    menu_[1] = noting(u"2"_s, u"Home"_s);
    menu_[3] = noting(u"3"_s, u"New"_s);
    item_.updateMenu();
    EXPECT_EQ(panel_.click(work), invalid_);
    EXPECT_EQ(panel_.click(home), QString());
    EXPECT_TRUE(test::eventually([this] { return !chosen_.isEmpty(); }));
    EXPECT_EQ(chosen_, QStringList(u"Home"_s));
}

TEST_F(DBusMenuObjectTest, ARowThatWasRemovedCanNotBeClickedEvenBeforeTheNextTurn)
{
    const int home = panel_.idOf(u"Home"_s);
    test::OwnConnection second(bus_.address());
    const QDBusPendingCall pending = second->asyncCall(clickOn(home));
    // The click waits in the event loop when the menu changes, before the turn that tells of the change.
    second.synchronize();
    connection_.synchronize();
    menu_.removeLast();
    item_.updateMenu();
    EXPECT_TRUE(test::eventually([&] { return pending.isFinished(); }));
    EXPECT_EQ(pending.reply().errorName(), invalid_);
    EXPECT_EQ(chosen_, QStringList());
}

TEST_F(DBusMenuObjectTest, RowsWithTheSameIDBothWork)
{
    menu_ = {noting(u"1"_s, u"Work"_s), noting(u"1"_s, u"Home"_s)};
    EXPECT_EQ(panel_.click(panel_.idOf(u"Home"_s)), QString());
    EXPECT_EQ(panel_.click(panel_.idOf(u"Work"_s)), QString());
    EXPECT_TRUE(test::eventually([this] { return chosen_.size() == 2; }));
    EXPECT_EQ(chosen_, (QStringList{u"Home"_s, u"Work"_s}));
}

TEST_F(DBusMenuObjectTest, TitlesOfAnyKindArrive)
{
    const QChar halfOfAPair(0xd800);
    menu_ = {noting(u"1"_s, u"a_b & c"_s), noting(u"2"_s, u"\u202e evil\n\0\a"_s), noting(u"3"_s, halfOfAPair + u"x"_s),
             noting(u"4"_s, QString(100'000, u'W')), noting(u"5"_s, {})};
    const QStringList arrived = labels();
    EXPECT_EQ(arrived.value(0), u"a__b & c"_s);
    EXPECT_EQ(arrived.value(1), u"\u202e evil   "_s);
    EXPECT_TRUE(arrived.value(2).endsWith(u'x'));
    EXPECT_EQ(arrived.value(3).size(), 100'000);
    EXPECT_EQ(arrived.value(4), QString());
}

TEST_F(DBusMenuObjectTest, AThousandRowsArriveAndEachIsItself)
{
    menu_.clear();
    for (int index = 0; index < 1000; ++index) {
        MenuItem item = noting(QString::number(index), u"Profile %1"_s.arg(index));
        item.iconPNG = [picture = test::squarePNG(32, 0xff000000 + static_cast<QRgb>(index))](int) { return picture; };
        menu_.append(item);
    }
    const QList<DBusMenuLayout> rows = panel_.layout().children;
    ASSERT_EQ(rows.size(), 1000);
    EXPECT_EQ(rows[999].properties.value(u"label"_s), u"Profile 999"_s);
    const QImage icon = QImage::fromData(rows[999].properties.value(u"icon-data"_s).toByteArray());
    EXPECT_EQ(icon.pixel(0, 0), 0xff000000 + 999);
    EXPECT_FALSE(panel_.aboutToShow());
    EXPECT_EQ(panel_.click(rows[500].id), QString());
    EXPECT_TRUE(test::eventually([this] { return !chosen_.isEmpty(); }));
    EXPECT_EQ(chosen_, QStringList(u"Profile 500"_s));
}

} // namespace
} // namespace vantrel
