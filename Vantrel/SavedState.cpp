#include "Vantrel/SavedState.h"

#include "VantrelKit/JsonDecoding.h"
#include "VantrelKit/ProfileJson.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

template <typename Value>
using Decoded = std::expected<Value, DecodingError>;

Decoded<QSet<QString>> decodeStrings(const QJsonObject &object, const QString &name)
{
    const auto array = json::array(object, name);
    if (!array)
        return std::unexpected(array.error());
    QSet<QString> strings;
    for (qsizetype index = 0; index < array->size(); ++index) {
        const auto string = json::string(array->at(index));
        if (!string)
            return std::unexpected(string.error().below(u"%1[%2]"_s.arg(name).arg(index)));
        strings.insert(*string);
    }
    return strings;
}

Decoded<QList<Profile>> decodeProfiles(const QJsonObject &object, const QString &name)
{
    const auto array = json::array(object, name);
    if (!array)
        return std::unexpected(array.error());
    QList<Profile> profiles;
    for (qsizetype index = 0; index < array->size(); ++index) {
        auto profile = profileFromJson(array->at(index));
        if (!profile)
            return std::unexpected(profile.error().below(u"%1[%2]"_s.arg(name).arg(index)));
        profiles.append(*std::move(profile));
    }
    return profiles;
}

Decoded<QHash<QString, QString>> decodeNames(const QJsonObject &object, const QString &name)
{
    const auto value = json::member(object, name);
    if (!value)
        return std::unexpected(value.error());
    const auto names = json::object(*value);
    if (!names)
        return std::unexpected(names.error().below(name));
    QHash<QString, QString> result;
    for (auto entry = names->constBegin(); entry != names->constEnd(); ++entry) {
        const auto string = json::string(entry.value());
        if (!string)
            return std::unexpected(string.error().below(name + u'.' + entry.key()));
        result.insert(entry.key(), *string);
    }
    return result;
}

} // namespace

QString SavedState::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           "/app.kestrune.Vantrel/profiles.json"_L1;
}

std::expected<SavedState, DecodingError> SavedState::decode(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return std::unexpected(DecodingError{DecodingError::Kind::dataCorrupted, {}, error.errorString()});
    if (!document.isObject())
        return std::unexpected(DecodingError{DecodingError::Kind::typeMismatch, {}, u"Expected an object."_s});
    const QJsonObject object = document.object();
    auto profiles = decodeProfiles(object, u"profiles"_s);
    if (!profiles)
        return std::unexpected(profiles.error());
    auto hidden = decodeStrings(object, u"hidden"_s);
    if (!hidden)
        return std::unexpected(hidden.error());
    auto customNames = decodeNames(object, u"customNames"_s);
    if (!customNames)
        return std::unexpected(customNames.error());
    auto searchedSafari = decodeStrings(object, u"searchedSafari"_s);
    if (!searchedSafari)
        return std::unexpected(searchedSafari.error());
    return SavedState{*std::move(profiles), *std::move(hidden), *std::move(customNames), *std::move(searchedSafari)};
}

std::expected<SavedState, DecodingError> SavedState::read(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return SavedState();
    return decode(file.readAll());
}

} // namespace vantrel
