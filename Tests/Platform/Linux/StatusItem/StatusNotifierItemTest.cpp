#include "Platform/Linux/StatusItem/StatusNotifierItem.h"

#include "Platform/Linux/StatusItem/IconPixmap.h"
#include "Tests/Contract/StatusItemContract.h"
#include "Tests/Platform/Linux/StatusItem/StatusItemFixture.h"
#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QDBusError>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class StatusNotifierItemTest : public test::StatusItemFixture {
protected:
    test::PanelStandIn panel_{bus_, serviceName()};
};

TEST_F(StatusNotifierItemTest, SaysWhatItIsAndThatItOnlyHasAMenu)
{
    start();
    const QVariantMap properties = panel_.properties();
    EXPECT_EQ(properties.value(u"Category"_s), u"ApplicationStatus"_s);
    EXPECT_EQ(properties.value(u"Id"_s), u"vantrel"_s);
    EXPECT_EQ(properties.value(u"Title"_s), u"Vantrel"_s);
    EXPECT_EQ(properties.value(u"Status"_s), u"Active"_s);
    EXPECT_EQ(properties.value(u"ItemIsMenu"_s), true);
    EXPECT_EQ(properties.value(u"Menu"_s).value<QDBusObjectPath>().path(), u"/MenuBar"_s);
    const auto toolTip = qdbus_cast<StatusToolTip>(properties.value(u"ToolTip"_s));
    EXPECT_EQ(toolTip.title, u"Vantrel"_s);
}

TEST_F(StatusNotifierItemTest, ItsPropertiesHaveTheTypesOfTheProtocol)
{
    start();
    for (const auto &[name, signature] :
         {std::pair{u"IconPixmap"_s, u"a(iiay)"_s}, {u"ToolTip"_s, u"(sa(iiay)ss)"_s}}) {
        const QVariant value = panel_.properties().value(name);
        EXPECT_EQ(value.value<QDBusArgument>().currentSignature(), signature);
    }
}

TEST_F(StatusNotifierItemTest, ASymbolThatNoThemeHasIsSentAsPixels)
{
    start();
    const QVariantMap properties = panel_.properties();
    EXPECT_EQ(properties.value(u"IconName"_s), QString());
    QList<int> sizes;
    for (const IconPixmap &pixmap : qdbus_cast<QList<IconPixmap>>(properties.value(u"IconPixmap"_s))) {
        EXPECT_EQ(pixmap, IconPixmap::from(test::square(pixmap.width, 0xff0000ff)));
        sizes.append(pixmap.width);
    }
    EXPECT_EQ(sizes, (QList<int>{16, 22, 24, 32, 48, 64}));
}

TEST_F(StatusNotifierItemTest, ASymbolOfTheThemeIsNamedToo)
{
    const test::TemporaryFolder folder;
    folder.write(u"icons/hicolor/symbolic/apps/symbol.svg"_s);
    Environment environment;
    environment.dataDirs = {folder.path()};
    test::OwnConnection connection(bus_.address());
    StatusNotifierItem item(*connection, source_, environment);
    item.start({.title = u"Vantrel"_s,
                .iconName = u"symbol"_s,
                .icon = [](int pixels) { return test::square(pixels, 0xff0000ff); },
                .menu = [] { return Menu(); }},
               [](bool) {});
    const QVariantMap properties = test::PanelStandIn(bus_, connection->baseService()).properties();
    EXPECT_EQ(properties.value(u"IconName"_s), u"symbol"_s);
    EXPECT_EQ(qdbus_cast<QList<IconPixmap>>(properties.value(u"IconPixmap"_s)).size(), 6);
}

TEST_F(StatusNotifierItemTest, ClicksAreLeftToThePanelsMenu)
{
    menu_ = {noting(u"1"_s, u"Work"_s)};
    start();
    // On this error panels open the menu themselves.
    for (const QString &method : {u"Activate"_s, u"ContextMenu"_s})
        EXPECT_EQ(panel_.callItem(method, {10, 20}).errorName(), u"org.freedesktop.DBus.Error.UnknownMethod"_s);
    EXPECT_EQ(panel_.callItem(u"SecondaryActivate"_s, {10, 20}).errorName(), QString());
    EXPECT_EQ(panel_.callItem(u"Scroll"_s, {-120, u"vertical"_s}).errorName(), QString());
    EXPECT_EQ(chosen_, QStringList());
    EXPECT_EQ(menusAskedFor_, 0);
}

TEST_F(StatusNotifierItemTest, APanelsTokenIsForTheNextProgram)
{
    start();
    EXPECT_EQ(panel_.callItem(u"ProvideXdgActivationToken"_s, {u"token-1"_s}).errorName(), QString());
    EXPECT_EQ(source_.apply({}).value(u"XDG_ACTIVATION_TOKEN"_s), u"token-1"_s);
}

TEST_F(StatusNotifierItemTest, NothingIsOnTheBusAnyMoreOnceItIsGone)
{
    test::OwnConnection connection(bus_.address());
    {
        StatusNotifierItem item(*connection, source_, environment_);
        item.start({.title = u"Vantrel"_s, .iconName = {}, .icon = {}, .menu = {}}, [](bool) {});
    }
    test::PanelStandIn panel(bus_, connection->baseService());
    EXPECT_EQ(panel.callItem(u"Scroll"_s, {1, u"vertical"_s}).errorName(),
              QDBusError::errorString(QDBusError::UnknownObject));
    EXPECT_EQ(panel.callMenu(u"AboutToShow"_s, {0}).errorName(), QDBusError::errorString(QDBusError::UnknownObject));
}

/// A desktop whose panel comes and goes.
class StatusNotifierSystem {
public:
    StatusItem &item() { return item_; }
    void addPanel() { watcher_.emplace(bus_, true); }
    void removePanel() { watcher_.reset(); }

    QStringList openMenu()
    {
        std::ignore = panel_.aboutToShow();
        QStringList titles;
        for (const DBusMenuLayout &row : panel_.layout().children)
            titles.append(row.properties.value(u"label"_s).toString().replace(u"__"_s, u"_"_s));
        return titles;
    }

    void choose(const QString &title)
    {
        std::ignore = panel_.aboutToShow();
        EXPECT_EQ(panel_.click(panel_.idOf(title)), QString());
    }

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};
    test::PrivateBus bus_;
    test::OwnConnection connection_{bus_.address()};
    ActivationSource source_;
    StatusNotifierItem item_{*connection_, source_, Environment()};
    std::optional<test::WatcherStandIn> watcher_;
    test::PanelStandIn panel_{bus_, connection_->baseService()};
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, StatusItemContract, StatusNotifierSystem);

} // namespace test
} // namespace vantrel
