#include "Platform/Linux/Search/ShellSearchInterface.h"

#include "Platform/Linux/Search/RefusalError.h"
#include "Platform/Linux/Search/SearchTypes.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// The Shell shows five and says how many more there are.
constexpr qsizetype mostResults = 500;
/// It shows icons at 24 logical pixels: sharp on dense screens too.
constexpr int iconPixels = 48;

constexpr auto description = R"xml(    <method name="GetInitialResultSet">
      <arg name="terms" type="as" direction="in"/>
      <arg name="results" type="as" direction="out"/>
    </method>
    <method name="GetSubsearchResultSet">
      <arg name="previous_results" type="as" direction="in"/>
      <arg name="terms" type="as" direction="in"/>
      <arg name="results" type="as" direction="out"/>
    </method>
    <method name="GetResultMetas">
      <arg name="identifiers" type="as" direction="in"/>
      <arg name="metas" type="aa{sv}" direction="out"/>
    </method>
    <method name="ActivateResult">
      <arg name="identifier" type="s" direction="in"/>
      <arg name="terms" type="as" direction="in"/>
      <arg name="timestamp" type="u" direction="in"/>
    </method>
    <method name="LaunchSearch">
      <arg name="terms" type="as" direction="in"/>
      <arg name="timestamp" type="u" direction="in"/>
    </method>
)xml"_L1;

QVariantMap meta(const ProfileAnswers::Found &found)
{
    return {
        {u"id"_s, found.id},
        {u"name"_s, found.title},
        {u"description"_s, found.subtitle},
        {u"icon"_s, QVariant::fromValue(SerializedIcon::ofFile(found.iconPNG(iconPixels)))},
    };
}

} // namespace

// What was found before is of no use for a narrower search: to look through all profiles takes less than a millisecond,
// and what was found may have had no link yet.
ShellSearchInterface::ShellSearchInterface(ProfileAnswers &answers)
    : answers_(answers),
      interface_(
          "org.gnome.Shell.SearchProvider2"_L1, description,
          {
              {"GetInitialResultSet"_L1, "as"_L1,
               [this](const QDBusMessage &call) { return results(call, call.arguments().first().toStringList()); }},
              {"GetSubsearchResultSet"_L1, "asas"_L1,
               [this](const QDBusMessage &call) { return results(call, call.arguments().last().toStringList()); }},
              {"GetResultMetas"_L1, "as"_L1, [this](const QDBusMessage &call) { return resultMetas(call); }},
              {"ActivateResult"_L1, "sasu"_L1, [this](const QDBusMessage &call) { return activateResult(call); }},
              {"LaunchSearch"_L1, "asu"_L1, [this](const QDBusMessage &call) { return launchSearch(call); }},
          })
{
}

BusInterface::Reply ShellSearchInterface::results(QDBusMessage call, QStringList terms)
{
    const auto found = co_await answers_.search(std::move(terms), mostResults);
    QStringList ids;
    for (const ProfileAnswers::Found &each : found)
        ids.append(each.id);
    co_return call.createReply(ids);
}

BusInterface::Reply ShellSearchInterface::resultMetas(QDBusMessage call)
{
    const auto found = co_await answers_.found(call.arguments().first().toStringList());
    QList<QVariantMap> metas;
    for (const ProfileAnswers::Found &each : found)
        metas.append(meta(each));
    co_return call.createReply(QVariant::fromValue(metas));
}

BusInterface::Reply ShellSearchInterface::activateResult(QDBusMessage call)
{
    const QVariantList arguments = call.arguments();
    const ProfileAnswers::Activation activation{.token = {}, .startupID = {}, .time = arguments.last().toUInt()};
    const auto opened = co_await answers_.openFound(arguments.first().toString(), activation);
    co_return replyOrError(call, opened);
}

BusInterface::Reply ShellSearchInterface::launchSearch(const QDBusMessage &call)
{
    answers_.showList({.token = {}, .startupID = {}, .time = call.arguments().last().toUInt()});
    return immediately(call.createReply());
}

} // namespace vantrel
