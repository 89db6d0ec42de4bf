#include "Platform/InstanceMessage.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace vantrel::InstanceMessage {
namespace {

constexpr int currentVersion = 1;
constexpr auto versionKey = "version"_L1;
constexpr auto kindKey = "kind"_L1;
constexpr auto linksKey = "links"_L1;
constexpr auto actionKey = "action"_L1;
constexpr auto tokenKey = "activationToken"_L1;
constexpr auto startupKey = "startupID"_L1;
constexpr auto acceptedKey = "accepted"_L1;
constexpr auto reasonKey = "reason"_L1;

constexpr std::array kinds{std::pair(InstanceRequest::Kind::activate, "activate"_L1),
                           std::pair(InstanceRequest::Kind::open, "open"_L1),
                           std::pair(InstanceRequest::Kind::action, "action"_L1)};

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(InstanceMessage)
};

QByteArray line(QJsonObject object)
{
    object.insert(versionKey, currentVersion);
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QString malformed()
{
    //: Error when the running app gets a request that it can't read.
    return Texts::tr("The request is malformed.");
}

std::optional<InstanceRequest::Kind> parsedKind(const QJsonValue &value)
{
    const QString name = value.toString();
    const auto *const found = std::ranges::find(kinds, name, [](const auto &kind) { return QString(kind.second); });
    return found == kinds.end() ? std::nullopt : std::optional(found->first);
}

/// Whether a member that may be missing is of a type when it is there.
bool isMissingOr(QJsonValue::Type type, const QJsonValue &value)
{
    return value.isUndefined() || value.type() == type;
}

bool hasProperMembers(const QJsonObject &object)
{
    const QJsonArray links = object.value(linksKey).toArray();
    return std::ranges::all_of(std::array{actionKey, tokenKey, startupKey},
                               [&](auto key) { return isMissingOr(QJsonValue::String, object.value(key)); }) &&
           isMissingOr(QJsonValue::Array, object.value(linksKey)) &&
           std::ranges::all_of(links, [](const QJsonValue &link) { return link.isString(); });
}

} // namespace

QString tooLong()
{
    //: Error when somebody asks the running app to open far too many or too long links.
    return Texts::tr("The request is too long.");
}

QByteArray line(const InstanceRequest &request)
{
    const auto *const kind = std::ranges::find(kinds, request.kind, [](const auto &entry) { return entry.first; });
    QJsonObject object{{kindKey, kind->second}};
    if (!request.links.isEmpty())
        object.insert(linksKey, QJsonArray::fromStringList(request.links));
    for (const auto &[key, value] : {std::pair(actionKey, request.action), std::pair(tokenKey, request.activationToken),
                                     std::pair(startupKey, request.startupID)}) {
        if (!value.isEmpty())
            object.insert(key, value);
    }
    return line(std::move(object));
}

QByteArray line(const Answer &answer)
{
    QJsonObject object{{acceptedKey, answer.isAccepted}};
    if (!answer.isAccepted)
        object.insert(reasonKey, answer.reason);
    return line(std::move(object));
}

std::expected<InstanceRequest, QString> parsedRequest(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const QJsonValue version = object.value(versionKey);
    if (version.isDouble() && version.toInt() != currentVersion) {
        //: Error when the program was updated while it ran, so that the running app doesn't understand a request.
        return std::unexpected(Texts::tr("It is another version. Quit it and start it again."));
    }
    const auto kind = parsedKind(object.value(kindKey));
    if (!version.isDouble() || !kind || !hasProperMembers(object))
        return std::unexpected(malformed());
    InstanceRequest request{.kind = *kind};
    const QJsonArray links = object.value(linksKey).toArray();
    request.links.reserve(links.size());
    for (const QJsonValue link : links)
        request.links.append(link.toString());
    request.action = object.value(actionKey).toString();
    request.activationToken = object.value(tokenKey).toString();
    request.startupID = object.value(startupKey).toString();
    return request;
}

std::optional<Answer> parsedAnswer(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const QJsonValue accepted = object.value(acceptedKey);
    if (!accepted.isBool())
        return std::nullopt;
    return Answer{.isAccepted = accepted.toBool(), .reason = object.value(reasonKey).toString()};
}

PlatformError noAnswer()
{
    //: Error when the app runs but hangs.
    return {Texts::tr("Vantrel is running, but doesn't answer.")};
}

PlatformError refused(const QString &reason)
{
    //: Error when the running app can't do what it is asked for. The placeholder is its reason, a sentence.
    return {Texts::tr("Vantrel is running, but refuses the request. %1").arg(reason)};
}

} // namespace vantrel::InstanceMessage
