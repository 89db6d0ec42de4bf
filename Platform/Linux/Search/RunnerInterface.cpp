#include "Platform/Linux/Search/RunnerInterface.h"

#include "Platform/Linux/Search/RefusalError.h"
#include "Platform/Linux/Search/SearchTypes.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// KRunner shows about as many, and every one of them travels with its picture at each key.
constexpr qsizetype mostMatches = 20;
/// Of icons at 22 logical pixels: sharp on dense screens too.
constexpr int iconPixels = 48;

/// As KRunner has them: Plasma::QueryMatch::Type.
enum class MatchType : std::uint8_t { possible = 30, exact = 100 };

constexpr auto description = R"xml(    <method name="Actions">
      <arg name="actions" type="a(sss)" direction="out"/>
    </method>
    <method name="Match">
      <arg name="query" type="s" direction="in"/>
      <arg name="matches" type="a(sssida{sv})" direction="out"/>
    </method>
    <method name="Run">
      <arg name="matchId" type="s" direction="in"/>
      <arg name="actionId" type="s" direction="in"/>
    </method>
    <method name="Config">
      <arg name="config" type="a{sv}" direction="out"/>
    </method>
    <method name="Teardown"/>
    <method name="SetActivationToken">
      <arg name="token" type="s" direction="in"/>
    </method>
)xml"_L1;

/// From 0 to 1. KRunner sorts by it, among the matches of all its runners.
double relevance(ProfileAnswers::Found::Fit fit, qsizetype position)
{
    constexpr double step = 0.001;
    const double behind = step * static_cast<double>(position);
    switch (fit) {
    case ProfileAnswers::Found::Fit::wholeName: return 1.0 - behind;
    case ProfileAnswers::Found::Fit::beginOfName: return 0.9 - behind;
    case ProfileAnswers::Found::Fit::somewhere: return 0.7 - behind;
    }
    Q_UNREACHABLE();
}

RunnerMatch runnerMatch(const ProfileAnswers::Found &found, qsizetype position)
{
    const bool isExact = found.fit == ProfileAnswers::Found::Fit::wholeName;
    return {
        .id = found.id,
        .text = found.title,
        // With a name the picture isn't shown.
        .iconName = {},
        .type = static_cast<int>(isExact ? MatchType::exact : MatchType::possible),
        .relevance = relevance(found.fit, position),
        .properties = {{u"subtext"_s, found.subtitle},
                       {u"icon-data"_s, QVariant::fromValue(IconData::from(found.icon(iconPixels)))},
                       {u"actions"_s, QStringList()}},
    };
}

} // namespace

RunnerInterface::RunnerInterface(ProfileAnswers &answers)
    : answers_(answers),
      interface_(
          "org.kde.krunner1"_L1, description,
          {
              {"Actions"_L1, ""_L1,
               [](const QDBusMessage &call) {
                   return immediately(call.createReply(QVariant::fromValue(QList<RunnerAction>())));
               }},
              {"Match"_L1, "s"_L1, [this](const QDBusMessage &call) { return match(call); }},
              {"Run"_L1, "ss"_L1, [this](const QDBusMessage &call) { return run(call); }},
              {"Config"_L1, ""_L1,
               [](const QDBusMessage &call) {
                   return immediately(call.createReply(QVariantMap{{u"MinLetterCount"_s, 1}}));
               }},
              // Nothing is kept from one search to the next.
              {"Teardown"_L1, ""_L1, [](const QDBusMessage &call) { return immediately(call.createReply()); }},
              {"SetActivationToken"_L1, "s"_L1, [this](const QDBusMessage &call) { return setActivationToken(call); }},
          })
{
}

BusInterface::Reply RunnerInterface::match(QDBusMessage call)
{
    const auto found = co_await answers_.search(call.arguments().first().toStringList(), mostMatches);
    QList<RunnerMatch> matches;
    for (const ProfileAnswers::Found &each : found)
        matches.append(runnerMatch(each, matches.size()));
    co_return call.createReply(QVariant::fromValue(matches));
}

BusInterface::Reply RunnerInterface::run(QDBusMessage call)
{
    const QVariantList arguments = call.arguments();
    ProfileAnswers::Activation activation{.token = std::exchange(activationToken_, {}), .startupID = {}, .time = 0};
    if (const QString action = arguments.last().toString(); !action.isEmpty())
        co_return call.createErrorReply(QDBusError::InvalidArgs, u"There is no action “%1”."_s.arg(action));
    const auto opened = co_await answers_.openFound(arguments.first().toString(), std::move(activation));
    co_return replyOrError(call, opened);
}

BusInterface::Reply RunnerInterface::setActivationToken(const QDBusMessage &call)
{
    activationToken_ = call.arguments().first().toString();
    return immediately(call.createReply());
}

} // namespace vantrel
