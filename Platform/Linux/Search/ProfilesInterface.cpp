#include "Platform/Linux/Search/ProfilesInterface.h"

#include "Platform/Linux/Search/RefusalError.h"
#include "Platform/Linux/Search/SearchTypes.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr auto interfaceName = "app.kestrune.Vantrel"_L1;

constexpr auto description = R"xml(    <method name="ListProfiles">
      <arg name="profiles" type="aa{sv}" direction="out"/>
    </method>
    <method name="OpenProfile">
      <arg name="profile" type="s" direction="in"/>
      <arg name="platform_data" type="a{sv}" direction="in"/>
    </method>
    <method name="OpenLinks">
      <arg name="profile" type="s" direction="in"/>
      <arg name="links" type="as" direction="in"/>
      <arg name="platform_data" type="a{sv}" direction="in"/>
    </method>
    <signal name="ProfilesChanged"/>
)xml"_L1;

/// The members as in the command line's listing, and the title beside.
QVariantMap members(const ProfileAnswers::Listed &profile)
{
    return {
        {u"id"_s, profile.id},           {u"browserBundleIdentifier"_s, profile.browserBundleID},
        {u"browser"_s, profile.browser}, {u"family"_s, profile.family},
        {u"name"_s, profile.name},       {u"displayName"_s, profile.displayName},
        {u"title"_s, profile.title},     {u"private"_s, profile.isPrivate},
        {u"hidden"_s, profile.isHidden}, {u"link"_s, profile.link},
    };
}

/// The keys are those of org.freedesktop.Application.
ProfileAnswers::Activation activation(const QVariant &platformData)
{
    const auto data = qdbus_cast<QVariantMap>(platformData);
    return {.token = data.value(u"activation-token"_s).toString(),
            .startupID = data.value(u"desktop-startup-id"_s).toString(),
            .time = 0};
}

} // namespace

ProfilesInterface::ProfilesInterface(ProfileAnswers &answers)
    : answers_(answers),
      interface_(interfaceName, description,
                 {
                     {"ListProfiles"_L1, ""_L1, [this](const QDBusMessage &call) { return listProfiles(call); }},
                     {"OpenProfile"_L1, "sa{sv}"_L1, [this](const QDBusMessage &call) { return open(call, {}); }},
                     {"OpenLinks"_L1, "sasa{sv}"_L1,
                      [this](const QDBusMessage &call) { return open(call, call.arguments().at(1).toStringList()); }},
                 })
{
}

QDBusMessage ProfilesInterface::profilesChanged(const QString &objectPath)
{
    return QDBusMessage::createSignal(objectPath, interfaceName, u"ProfilesChanged"_s);
}

BusInterface::Reply ProfilesInterface::listProfiles(QDBusMessage call)
{
    const auto profiles = co_await answers_.list();
    QList<QVariantMap> listed;
    for (const ProfileAnswers::Listed &profile : profiles)
        listed.append(members(profile));
    co_return call.createReply(QVariant::fromValue(listed));
}

BusInterface::Reply ProfilesInterface::open(QDBusMessage call, QStringList links)
{
    const QVariantList arguments = call.arguments();
    const auto opened =
        co_await answers_.open(arguments.first().toString(), std::move(links), activation(arguments.last()));
    co_return replyOrError(call, opened);
}

} // namespace vantrel
